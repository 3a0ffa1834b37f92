// Waiting days of one waiting period in the pay month, by quadrant: all of them, and those
// that fall on half pay.
#include "orvalis/MethodeCalculG_Nouv.h"
#include "period/periode_outils.h"

namespace orvalis {

namespace {

// The waiting period clipped to the employment: [S, E], or nothing when S passes E.
struct Bornes {
  Date dDebut;
  Date dFin;
  bool bVide;
};

Bornes BornesEmploi(const VarCalculSalarie& s, const std::string& sDateDebutCarence,
                    const std::string& sDateFinCarence) {
  Bornes b{LireDate(sDateDebutCarence), LireDate(sDateFinCarence), false};
  const Date dEntree = LireDate(s.sDateDebut);
  if (DiffJours(b.dDebut, dEntree) > 0) b.dDebut = dEntree;
  if (!s.sDateFin.empty()) {
    const Date dSortie = LireDate(s.sDateFin);
    if (DiffJours(b.dFin, dSortie) < 0) b.dFin = dSortie;
  }
  b.bVide = DiffJours(b.dDebut, b.dFin) < 0;
  return b;
}

}  // namespace

void MethodeCalculG_Nouv::CalculNombreJourCarence(VarCalculSalarie& InfosSalaries,
                                                  const std::string& sDateDebutCarence,
                                                  const std::string& sDateFinCarence,
                                                  const std::string& sPeriode) {
  // Another month may be asked for: the counts are then made on that month.
  if (!sPeriode.empty()) gPeriodeEncours = sPeriode;

  VarCalculSalarie& s = InfosSalaries;
  Int16 iIATA = 0, iIATN = 0, iINTA = 0, iINTN = 0;
  CalculNombreJourCarenceMois(s, gPeriodeEncours, sDateDebutCarence, sDateFinCarence, iIATA, iIATN,
                              iINTA, iINTN);
  s.iNBJ_CarenceIATA_Total = iIATA;
  s.iNBJ_CarenceIATN_Total = iIATN;
  s.iNBJ_CarenceINTA_Total = iINTA;
  s.iNBJ_CarenceINTN_Total = iINTN;

  iIATA = 0;
  iIATN = 0;
  iINTA = 0;
  iINTN = 0;
  static const std::vector<std::string> kCodesDemiTraitement = {"DT", "LD", "GD", "CD", "DO50"};
  periode::ParcourtSituations(
      s, kCodesDemiTraitement, [&](Recordset& rs) {
        const periode::Situation x = periode::LitSituation(rs);
        CalculNombreJourCarence_Situation("", x.sDateDebut, x.sDateFin, s, sDateDebutCarence,
                                          sDateFinCarence, iIATA, iIATN, iINTA, iINTN);
      });
  s.iNBJ_CarenceIATA_DT = iIATA;
  s.iNBJ_CarenceIATN_DT = iIATN;
  s.iNBJ_CarenceINTA_DT = iINTA;
  s.iNBJ_CarenceINTN_DT = iINTN;
}

void MethodeCalculG_Nouv::CalculNombreJourCarenceMois(VarCalculSalarie& InfosSalaries,
                                                      const std::string& sPeriodeEnCours,
                                                      const std::string& sDateDebutCarence,
                                                      const std::string& sDateFinCarence,
                                                      Int16& iNbj_IATA, Int16& iNbj_IATN,
                                                      Int16& iNbj_INTA, Int16& iNbj_INTN) {
  iNbj_IATA = 0;
  iNbj_IATN = 0;
  iNbj_INTA = 0;
  iNbj_INTN = 0;
  const Date dDernier = DernierJourDuMois(LireDate(sPeriodeEnCours));
  const Bornes b = BornesEmploi(InfosSalaries, sDateDebutCarence, sDateFinCarence);
  // Nothing of the period within the employment, or nothing of it by the month's end.
  if (b.bVide || DiffJours(b.dDebut, dDernier) < 0) return;
  // No situation code: a waiting day counts one day, February or not, as on half pay.
  CalculNombreJour_Situation("", TexteDate(b.dDebut), TexteDate(b.dFin), InfosSalaries, iNbj_IATA,
                             iNbj_IATN, iNbj_INTA, iNbj_INTN);
}

void MethodeCalculG_Nouv::CalculNombreJourCarence_Situation(
    const std::string& sSituation, const std::string& sDateDeb_Situation,
    const std::string& sDateFin_Situation, VarCalculSalarie& InfosSalaries,
    const std::string& sDateDebutCarence, const std::string& sDateFinCarence, Int16& iNbj_IATA,
    Int16& iNbj_IATN, Int16& iNbj_INTA, Int16& iNbj_INTN) {
  Bornes b = BornesEmploi(InfosSalaries, sDateDebutCarence, sDateFinCarence);
  if (b.bVide) return;
  // Then clipped to the situation: only the waiting days that fall within it.
  const Date dDebutSituation = LireDate(sDateDeb_Situation);
  if (DiffJours(b.dDebut, dDebutSituation) > 0) b.dDebut = dDebutSituation;
  if (!sDateFin_Situation.empty()) {
    const Date dFinSituation = LireDate(sDateFin_Situation);
    if (DiffJours(b.dFin, dFinSituation) < 0) b.dFin = dFinSituation;
  }
  if (DiffJours(b.dDebut, b.dFin) < 0) return;
  CalculNombreJour_Situation(sSituation, TexteDate(b.dDebut), TexteDate(b.dFin), InfosSalaries,
                             iNbj_IATA, iNbj_IATN, iNbj_INTA, iNbj_INTN);
}

}  // namespace orvalis
