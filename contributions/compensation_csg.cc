// The compensation of the 2018 rise of the CSG: a monthly sum worked out once from the
// agent's remuneration of 2017, raised by the later years' remunerations, then followed
// over time by a coefficient and the month's presence and hours.
#include <string>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "orvalis/dates.h"

namespace orvalis {

namespace {

// The monthly sum before any coefficient, from the variables of the agent.
double SommeMensuelle(MoteurCalcul& m, const RsRef& RsVarSalaries, int iAnnee) {
  const double R2017 = m.dRechercheValeur_Variable(RsVarSalaries, "R2017");
  const double C2017 = m.dRechercheValeur_Variable(RsVarSalaries, "C2017");
  const double ICCSG2018 = m.dRechercheValeur_Variable(RsVarSalaries, "ICCSG2018");
  const double R2018 = m.dRechercheValeur_Variable(RsVarSalaries, "R2018");
  const double R2019 = m.dRechercheValeur_Variable(RsVarSalaries, "R2019");
  const double MTICCSG = m.dRechercheValeur_Variable(RsVarSalaries, "MTICCSG");

  if (MTICCSG != 0) return MTICCSG;
  if (R2017 == 0) return ICCSG2018 * 0.76 / 100;
  double C = (R2017 * 1.6702 / 100 - C2017) * 1.1053 / 12;
  if (iAnnee >= 2019 && R2018 != 0 && R2018 > R2017) C = (R2018 / R2017) * C;
  if (iAnnee > 2019 && R2018 != 0 && R2019 != 0 && R2019 > R2018) C = (R2019 / R2018) * C;
  return C;
}

}  // namespace

void MethodeCalculG_Nouv::CalculRubrique_CompensationHausseCsg(VarCalculSalarie& InfosSalaries,
                                                               const RsRef& RsVarSalaries,
                                                               const RsRef& RsVarSalariesHisto,
                                                               SalarieCalculRubrique& Rubrique) {
  const VarCalculSalarie& s = InfosSalaries;
  double C = SommeMensuelle(*this, RsVarSalaries, Annee(LireDate(gPeriodeEncours)));
  Rubrique.dBase = Arrondi(C, 2);

  double W = dRechercheValeur_Variable(RsVarSalariesHisto, "ICCSGCOEF", Int16(4));
  if (W == 0) W = 1;
  C = W * C;
  double V = 1;

  // The days of half pay; an absent result counts as nothing.
  double P = dMontantProratiseSuivantDemiTraitement(InfosSalaries, C).value_or(0);
  // Full-time maternity leave keeps the whole sum for its days.
  if (s.iNBJ_CongeMaterniteTempsComplet_Total != 0) {
    P = P + s.iNBJ_CongeMaterniteTempsComplet_Total * C / 30;
  }
  if (C != 0) {
    V = P / C;
    P = C * V;
  }

  // Hours changed since 2018: the month's share of each quadrant of hours. Otherwise an
  // hourly agent follows last month's hours.
  const std::string D = s.sDateChangementHeures.empty() ? "31/12/2017" : s.sDateChangementHeures;
  if (LireDate(D) >= DateSerial(2018, 1, 1) && s.dCoefficient_TraitementTA != 0) {
    P = P * ((s.dCoefficient_INTN + s.dCoefficient_IATN) * s.dCoefficient_TraitementTN /
                 s.dCoefficient_TraitementTA +
             s.dCoefficient_INTA + s.dCoefficient_IATA);
  } else if (s.sTypeModele == "HORAIR" && s.dHeuresMensMoisPrec != 0) {
    V = Div(s.dHeuresMensMoisPrec, s.dHeuresMois);
    P = V * P;
  }
  if (s.dCoefficient_TraitementTA != 0) {
    W = s.dCoefficient_TraitementTN * W / s.dCoefficient_TraitementTA;
  }

  Rubrique.dTauxSalarial = W * V;
  Rubrique.dMontantSalarial = Arrondi(P, 2);
  Rubrique.dTauxPatronal = 0;
  Rubrique.dMontantPatronal = 0;
  Rubrique.dCoefficientVariationTempsCompensationCSG = W;
}

}  // namespace orvalis
