// Days of the exceptional situations of the historic month, in its two cells (former and
// new index), from the two situations the record holds.
#include <initializer_list>

#include "orvalis/MethodeCalculG.h"
#include "period/periode_outils.h"
#include "period/situation_jours.h"

namespace orvalis {

using periode::JourDe;

namespace {

bool EstDetachement(const std::string& sCode) { return sCode == "D" || sCode == "M"; }

// The days [d1, d2] of a situation starting on dS: the former index takes them up to the
// day before the change (all of them when the change comes after d2), the new index from
// the change on.
void RepartitCellules(const VarCalculSalarie& s, Date dS, Int16 d1, Int16 d2, Int16& iA,
                      Int16& iN) {
  const Int16 iTout = d2 - d1 + 1;
  if (s.dCoefficient_IAncien > 0) {
    const Date dIndice = LireDate(s.sDateChangementIndice);
    if (dIndice >= dS) {
      if (JourDe(dIndice) <= d2) {
        iA = iA + JourDe(dIndice) - d1;
      } else {
        iA = iA + iTout;
        return;
      }
    }
  } else {
    iA = 0;
  }
  if (s.dCoefficient_INouveau > 0) {
    const Int16 jI = JourDe(s.sDateChangementIndice);
    if (iA >= 1 && d2 > jI && d1 < jI) {
      iN = iN + d2 - jI + 1;
    } else {
      iN = iN + iTout;
    }
  } else {
    iN = 0;
  }
}

// The codes of a member among the record's two situations, in two fresh counts.
void CompteSituations(MethodeCalculG& m, VarCalculSalarie& s,
                      std::initializer_list<const char*> codes, Int16& iA, Int16& iN) {
  iA = 0;
  iN = 0;
  auto Parmi = [&](const std::string& sCode) {
    for (const char* c : codes)
      if (sCode == c) return true;
    return false;
  };
  if (Parmi(s.sSituation1))
    m.CalculNombreJour_Situation(s.sSituation1, s.sDateDebutSituation1, s.sDatefinSituation1, s,
                                 iA, iN);
  if (Parmi(s.sSituation2))
    m.CalculNombreJour_Situation(s.sSituation2, s.sDateDebutSituation2, s.sDatefinSituation2, s,
                                 iA, iN);
}

}  // namespace

// A detachment counts on the new index, within the month's presence.
void MethodeCalculG::CalculNombreJour_Situation(const std::string& sSituation,
                                                const std::string& sDateDeb_Situation,
                                                const std::string& sDateFin_Situation,
                                                VarCalculSalarie& InfosSalaries, Int16& iNbj_A,
                                                Int16& iNbj_N) {
  VarCalculSalarie& s = InfosSalaries;
  const auto j = periode::JoursDeLaSituation(gPeriodeEncours, s, sSituation, sDateDeb_Situation,
                                             sDateFin_Situation);
  if (j) {
    if (EstDetachement(sSituation)) {
      iNbj_N = iNbj_N + j->d2 - j->d1 + 1;
      const Int16 iPresence = s.iNBJ_PresenceA + s.iNBJ_PresenceN;
      if (iNbj_N > iPresence) iNbj_N = iPresence;
      return;
    }
    RepartitCellules(s, j->dS, j->d1, j->d2, iNbj_A, iNbj_N);
  }
  if (EstDetachement(sSituation)) return;
  if (iNbj_N > s.iNBJ_PresenceN) iNbj_N = s.iNBJ_PresenceN;
  if (iNbj_A > s.iNBJ_PresenceA) iNbj_A = s.iNBJ_PresenceA;
}

void MethodeCalculG::CalculNombreJourDemiTraitement(VarCalculSalarie& InfosSalaries) {
  CompteSituations(*this, InfosSalaries, {"DT", "LD", "GD", "CD"},
                   InfosSalaries.iNBJ_DemiTraitementA, InfosSalaries.iNBJ_DemiTraitementN);
}

void MethodeCalculG::CalculNombreJourCPA(VarCalculSalarie& InfosSalaries) {
  CompteSituations(*this, InfosSalaries, {"PD", "PF", "CP"}, InfosSalaries.iNBJ_CPAA,
                   InfosSalaries.iNBJ_CPAN);
}

void MethodeCalculG::CalculNombreJourCFA(VarCalculSalarie& InfosSalaries) {
  CompteSituations(*this, InfosSalaries, {"CF"}, InfosSalaries.iNBJ_CFAA,
                   InfosSalaries.iNBJ_CFAN);
}

// With half pay, the leave of office takes no more than what is left of 30 days.
void MethodeCalculG::CalculNombreJourDispoOffice(VarCalculSalarie& InfosSalaries) {
  VarCalculSalarie& s = InfosSalaries;
  CompteSituations(*this, s, {"DO"}, s.iNBJ_DispoOfficeA, s.iNBJ_DispoOfficeN);
  const Int16 iDemiTraitement = s.iNBJ_DemiTraitementA + s.iNBJ_DemiTraitementN;
  if (s.iNBJ_DispoOfficeA + s.iNBJ_DispoOfficeN + iDemiTraitement > 30)
    s.iNBJ_DispoOfficeN = Int16(30) - (s.iNBJ_DispoOfficeA + iDemiTraitement);
}

void MethodeCalculG::CalculNombreJourCongeMaternite(VarCalculSalarie& InfosSalaries) {
  CompteSituations(*this, InfosSalaries, {"MM"}, InfosSalaries.iNBJ_CongeMaterniteTempsCompletA,
                   InfosSalaries.iNBJ_CongeMaterniteTempsCompletN);
}

void MethodeCalculG::CalculNombreJourFormation(VarCalculSalarie& InfosSalaries) {
  CompteSituations(*this, InfosSalaries, {"CO"}, InfosSalaries.iNBJ_FormationA,
                   InfosSalaries.iNBJ_FormationN);
}

// Each situation "D" or "M" in fresh counts; the last one's days stand.
void MethodeCalculG::CalculNombreJourDetachement(VarCalculSalarie& InfosSalaries) {
  VarCalculSalarie& s = InfosSalaries;
  for (int i = 1; i <= 2; ++i) {
    const std::string& sCode = i == 1 ? s.sSituation1 : s.sSituation2;
    if (!EstDetachement(sCode)) continue;
    Int16 iA = 0, iN = 0;
    CalculNombreJour_Situation(sCode, i == 1 ? s.sDateDebutSituation1 : s.sDateDebutSituation2,
                               i == 1 ? s.sDatefinSituation1 : s.sDatefinSituation2, s, iA, iN);
    s.iNBJ_DETACHEMENT = iN;
  }
}

// Sick leave and therapeutic part-time at half time; the other rates of therapeutic
// part-time ("M6" to "M9") are unknown here.
void MethodeCalculG::CalculNombreJourAutresAbsences(VarCalculSalarie& InfosSalaries) {
  VarCalculSalarie& s = InfosSalaries;
  for (int i = 1; i <= 2; ++i) {
    const std::string& sCode = i == 1 ? s.sSituation1 : s.sSituation2;
    if (sCode != "LM" && sCode != "GM" && sCode != "MI" && sCode != "CM") continue;
    Int16 iA = 0, iN = 0;
    CalculNombreJour_Situation(sCode, i == 1 ? s.sDateDebutSituation1 : s.sDateDebutSituation2,
                               i == 1 ? s.sDatefinSituation1 : s.sDatefinSituation2, s, iA, iN);
    periode::ImputeAutreAbsence(s, sCode, iA + iN);
  }
}

}  // namespace orvalis
