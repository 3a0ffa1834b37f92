// One exceptional situation turned into days of the pay month, added to four running
// counts by quadrant of index and hours.
#include <optional>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "period/periode_outils.h"
#include "period/situation_jours.h"

namespace orvalis {

using periode::JourDe;

namespace {

bool EstDetachement(const std::string& sCode) { return sCode == "D" || sCode == "M"; }

// Adds the situation's days [d1, d2] to the quadrants in order; a quadrant that takes them
// all ends the split.
void RepartitQuadrants(const VarCalculSalarie& s, Date dS, Int16 d1, Int16 d2, Int16& iIATA,
                       Int16& iIATN, Int16& iINTA, Int16& iINTN) {
  auto jI = [&] { return JourDe(s.sDateChangementIndice); };
  auto jH = [&] { return JourDe(s.sDateChangementHeures); };
  const Int16 iTout = d2 - d1 + 1;

  if (s.dCoefficient_IATA > 0) {
    const Date dIndice = LireDate(s.sDateChangementIndice);
    const Date dHeures = LireDate(s.sDateChangementHeures);
    const Date dX = dIndice >= dHeures ? dHeures : dIndice;
    if (dX >= dS) {
      if (JourDe(dX) <= d2) {
        iIATA = iIATA + JourDe(dX) - d1;
      } else {
        iIATA = iIATA + iTout;
        return;
      }
    }
  } else {
    iIATA = 0;
  }

  if (s.dCoefficient_IATN > 0) {
    if (iIATA >= 1) {
      iIATN = jI() < d2 ? iIATN + jI() - jH() : iIATN + d2 - jH() + 1;
    } else if (jI() >= d1) {
      if (jI() <= d2) {
        iIATN = iIATN + jI() - d1;
      } else {
        iIATN = iIATN + iTout;
        return;
      }
    }
  } else {
    iIATN = 0;
  }

  if (s.dCoefficient_INTA > 0) {
    if (iIATA >= 1) {
      iINTA = jH() < d2 ? iINTA + jH() - jI() : iINTA + d2 - jI() + 1;
    } else if (jH() >= d1) {
      // Strictly before d2 here, where the old index above takes day d2 itself.
      if (jH() < d2) {
        iINTA = iINTA + jH() - d1;
      } else {
        iINTA = iINTA + iTout;
        return;
      }
    }
  } else {
    iINTA = 0;
  }

  if (s.dCoefficient_INTN > 0) {
    std::optional<Int16> jY;
    if (iINTA >= 1) {
      jY = jH();
    } else if (iIATN >= 1 || iIATA >= 1) {
      jY = jI();
    }
    // A period ending on day Y or before is counted here again in full: kept for the hosts.
    if (jY && d2 > *jY && d1 < *jY) {
      iINTN = iINTN + d2 - *jY + 1;
    } else {
      iINTN = iINTN + iTout;
    }
  } else {
    iINTN = 0;
  }
}

}  // namespace

std::optional<periode::JoursSituation> periode::JoursDeLaSituation(
    const std::string& sPeriode, VarCalculSalarie& s, const std::string& sSituation,
    const std::string& sDateDeb_Situation, const std::string& sDateFin_Situation) {
  const Date dPeriode = LireDate(sPeriode);
  const Date dDernier = DernierJourDuMois(dPeriode);
  const bool bCalendaire = s.bCalculPayeEnJoursCalendaires;

  const bool bChevauche =
      (sDateFin_Situation.empty() || LireDate(sDateFin_Situation) >= dPeriode) &&
      LireDate(sDateDeb_Situation) <= dDernier;
  if (!bChevauche) return std::nullopt;
  if (sSituation == "PF" || sSituation == "PD" || sSituation == "CP") {
    s.sTypeCPA = sSituation;
    const std::string sPremierDuMois = TexteDate(DateSerial(Annee(dPeriode), Mois(dPeriode), 1));
    CoefficientsCPA(sSituation, sDateDeb_Situation, sPremierDuMois, s.dCoefficient_CPA,
                    s.dCoefficient_CPAH);
  }

  Date dS = LireDate(sDateDeb_Situation);
  const Date dEntree = LireDate(s.sDateDebut);
  if (dEntree > dS) dS = dEntree;
  Date dE = dDernier;
  if (!sDateFin_Situation.empty()) {
    dE = LireDate(sDateFin_Situation);
    if (!s.sDateFin.empty() && LireDate(s.sDateFin) < dE) dE = LireDate(s.sDateFin);
  }

  Int16 d1 = JourDe(dS);
  Int16 d2 = JourDe(dE);
  if (dS < dPeriode) d1 = 1;
  if (dE > dDernier && (!bCalendaire || d1 == 1)) d2 = 30;
  if (!bCalendaire && d1 > 30) d1 = 30;
  if (d2 > 30 && (!bCalendaire || d1 == 1)) d2 = 30;
  // Unlike the first and last paid days, this February rule ignores calendar pay.
  if (Mois(dPeriode) == 2 && !sSituation.empty()) {
    if (d1 > Jour(dDernier)) d1 = 30;
    if (d2 >= Jour(dDernier)) d2 = 30;
  }
  return JoursSituation{dS, d1, d2};
}

void MethodeCalculG_Nouv::CalculNombreJour_Situation(const std::string& sSituation,
                                                     const std::string& sDateDeb_Situation,
                                                     const std::string& sDateFin_Situation,
                                                     VarCalculSalarie& InfosSalaries,
                                                     Int16& iNbj_IATA, Int16& iNbj_IATN,
                                                     Int16& iNbj_INTA, Int16& iNbj_INTN) {
  VarCalculSalarie& s = InfosSalaries;
  const auto j = periode::JoursDeLaSituation(gPeriodeEncours, s, sSituation, sDateDeb_Situation,
                                             sDateFin_Situation);
  if (j) {
    if (EstDetachement(sSituation)) {
      iNbj_INTN = iNbj_INTN + j->d2 - j->d1 + 1;
      if (iNbj_INTN > s.iNBJ_Presence_Total) iNbj_INTN = s.iNBJ_Presence_Total;
      return;
    }
    RepartitQuadrants(s, j->dS, j->d1, j->d2, iNbj_IATA, iNbj_IATN, iNbj_INTA, iNbj_INTN);
  }

  if (EstDetachement(sSituation)) return;
  if (iNbj_INTN > s.iNBJ_PresenceINTN) iNbj_INTN = s.iNBJ_PresenceINTN;
  if (iNbj_INTA > s.iNBJ_PresenceINTA) iNbj_INTA = s.iNBJ_PresenceINTA;
  if (iNbj_IATN > s.iNBJ_PresenceIATN) iNbj_IATN = s.iNBJ_PresenceIATN;
  if (iNbj_IATA > s.iNBJ_PresenceIATA) iNbj_IATA = s.iNBJ_PresenceIATA;
}

}  // namespace orvalis
