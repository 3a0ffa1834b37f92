// The tax withheld at source from a cross-border worker: three bands of the net taxable pay
// after a flat allowance.
#include <string>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"

namespace orvalis {

void MethodeCalculG_Nouv::CalculRubrique_Imposition_a_la_source_Frontalier(
    VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
    const RsRef& /*RsVariablesSalaries*/) {
  const auto C = [this](const char* sCode) {
    return dRechercheValeur_Constantes(gRsConstantes, sCode);
  };
  double N = dRechercheValeurCumul("BRUT", "S") - dRechercheValeurCumul("TOTDEDUCT", "S");
  if (InfosSalaries.bCalculReductionSurHS) N = N - dRechercheValeurCumul("ASSREDHS", "S");
  N = (100 - C("FRONTAB10")) * N / 100;

  // The limits of a month; a month not worked in full takes its days at the daily first
  // limit, and at the monthly second limit.
  double T1 = 0;
  double T2 = 0;
  if (InfosSalaries.iNBJ_Presence_Total >= 30) {
    T1 = C("FRONTTR1M");
    T2 = C("FRONTTR2M");
  } else {
    T1 = Arrondi(InfosSalaries.iNBJ_Presence_Total * C("FRONTTR1J"), 0);
    T2 = Arrondi(InfosSalaries.iNBJ_Presence_Total * C("FRONTTR2M"), 0);
  }

  double R = 0;
  double D = 0;
  double dMontant = 0;
  if (N < T1) {
    R = C("FRONTTX1");
  } else if (N < T2) {
    R = C("FRONTTX2");
    D = N - T1;
    dMontant = Arrondi(R * D / 100, 0);
  } else {
    dMontant = Arrondi(C("FRONTTX2") * (N - T1) / 100, 0);
    R = C("FRONTTX3");
    dMontant = Arrondi(dMontant + R * (N - T2) / 100, 2);
    D = N - T1;
  }
  Rubrique.dBase = D;
  Rubrique.dTauxSalarial = R;
  Rubrique.dMontantSalarial = dMontant;
  Rubrique.dTauxPatronal = 0;
  Rubrique.dMontantPatronal = 0;
}

}  // namespace orvalis
