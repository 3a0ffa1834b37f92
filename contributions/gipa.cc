// The individual guarantee of purchasing power (GIPA): the shortfall of the index's value at
// the end of a four-year period against its value at the start raised by inflation.
#include <string>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "orvalis/value.h"

namespace orvalis {

void MethodeCalculG_Nouv::CalculRubrique_Gipa(VarCalculSalarie& InfosSalaries,
                                              SalarieCalculRubrique& Rubrique) {
  double dIM_Debut = 0, dPoint_Debut = 0, dIM_Fin = 0, dPoint_Fin = 0;
  double dTauxInflation = 0, dHrsHebdo = 0, dTauxTempsPartiel = 0;
  // Without a year there is no GIPA: every figure stays 0 and so does the amount.
  if (!InfosSalaries.sGipaAnnee.empty()) {
    const double Y = Value(InfosSalaries.sGipaAnnee).Nombre();
    dPoint_Debut = dRechercheValeur_Constantes(gRsConstantes, "GIPAVI" + TexteNombre(Y - 5));
    dPoint_Fin = dRechercheValeur_Constantes(gRsConstantes, "GIPAVI" + TexteNombre(Y - 1));
    dTauxInflation = dRechercheValeur_Constantes(gRsConstantes, "TXINFL" + TexteNombre(Y));
    dIM_Debut = InfosSalaries.dGipaIM_Debut;
    dIM_Fin = InfosSalaries.dGipaIM_Fin;
    dHrsHebdo = InfosSalaries.dGipaHrsHebdo;
    dTauxTempsPartiel = InfosSalaries.dGipaTauxTempsPartiel;
  }
  Rubrique.dMontantSalarial =
      *dMontantGIPA(InfosSalaries, dIM_Debut, dPoint_Debut, dIM_Fin, dPoint_Fin, dTauxInflation,
                    dHrsHebdo, dTauxTempsPartiel);
}

std::optional<double> MethodeCalculG_Nouv::dMontantGIPA(VarCalculSalarie& InfosSalaries,
                                                        double dIM_Debut, double dPoint_Debut,
                                                        double dIM_Fin, double dPoint_Fin,
                                                        double dTauxInflation, double dHrsHebdo,
                                                        double dTauxTempsPartiel) {
  double G = (1 + dTauxInflation / 100) * dIM_Debut * dPoint_Debut - dIM_Fin * dPoint_Fin;
  if (G <= 0) return 0.0;
  if (dHrsHebdo > 0) G = G * dHrsHebdo / 35;
  if (dTauxTempsPartiel > 0) G = G * dTauxTempsPartiel / 100;
  // An agent of several employers above the legal week shares the guarantee among them.
  const double K = InfosSalaries.dDureeHebdoLegale != 0 ? InfosSalaries.dDureeHebdoLegale : 35;
  if (InfosSalaries.dHeuresCumulsHebdo > K) G = Div(G * K, InfosSalaries.dHeuresCumulsHebdo);
  return Arrondi(G, 2);
}

}  // namespace orvalis
