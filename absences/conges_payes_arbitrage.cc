// Paid leave arbitration: the value of the days by the worked-day rate, or by the gross of
// the reference year over the days earned; the larger one is paid.
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "orvalis/dates.h"

namespace orvalis {

namespace {
// The kind of the employer rate that moves the reference year one year on.
constexpr const char* kJoursCongesPayesAnneeEnCours = "NBJCONPAYT";
}  // namespace

void MethodeCalculG_Nouv::CalculRubrique_ArbitrageCongesPayes(VarCalculSalarie& InfosSalaries,
                                                              const RsRef& RsVarSalaries,
                                                              const RsRef& RsSalariesHisto,
                                                              const RsRef& RsVarSalariesHisto,
                                                              SalarieCalculRubrique& Rubrique) {
  const double B = RechercheValeurBase(InfosSalaries, RsVarSalaries, Rubrique);
  std::string K;
  const double Z = RechercheValeurTauxPatronal(InfosSalaries, RsVarSalaries, Rubrique, K, "");
  const double J = dArbitrageJours(InfosSalaries, RsVarSalaries, Rubrique);
  const double V1 = J * B;

  std::string sTypeSalarial;
  double G = RechercheValeurTauxSalarial(InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique,
                                         sTypeSalarial, RsSalariesHisto);
  if (G == 0) {
    // The reference year runs from June to June, both included: 13 months of gross.
    const int a = K == kJoursCongesPayesAnneeEnCours ? 0 : 1;
    const Date dPeriode = LireDate(gPeriodeEncours);
    const int Y = Annee(dPeriode);
    const Date D0 = DateSerial(Mois(dPeriode) <= 5 ? Y - (a + 1) : Y - a, 6, 1);
    const Date dFinReference = AjouteMois(D0, 12);
    for (Date M = D0; DiffJours(M, dFinReference) >= 0; M = AjouteMois(M, 1)) {
      double dCumul = 0;
      G += dRechercheValeurCumulHistorique(InfosSalaries.lIdSalarie, gPeriodeEncours, "", dCumul,
                                           TexteDate(M), "S", Rubrique.lIdCoeffBase);
    }
  }
  const double R = Z != 0 ? Arrondi(G / Z, 2) : 0;
  const double V2 = B * R;

  Rubrique.dBase = B;
  if (V1 >= V2) {
    Rubrique.dTauxSalarial = J;
    Rubrique.dMontantSalarial = V1;
  } else {
    Rubrique.dTauxSalarial = R;
    Rubrique.dMontantSalarial = V2;
  }
}

}  // namespace orvalis
