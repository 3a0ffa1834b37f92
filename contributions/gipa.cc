// The individual guarantee of purchasing power (GIPA): the shortfall of the index's value at
// the end of a four-year period against its value at the start raised by inflation.
#include "contributions/gipa.h"

#include <string>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "orvalis/value.h"

namespace orvalis {

DonneesGipa LitDonneesGipa(MoteurCalcul& m, const VarCalculSalarie& InfosSalaries) {
  DonneesGipa d;
  // Without a year there is no GIPA: every figure stays 0 and so does the amount.
  if (!InfosSalaries.sGipaAnnee.empty()) {
    const double Y = Value(InfosSalaries.sGipaAnnee).Nombre();
    d.dPoint_Debut = m.dRechercheValeur_Constantes(m.gRsConstantes, "GIPAVI" + TexteNombre(Y - 5));
    d.dPoint_Fin = m.dRechercheValeur_Constantes(m.gRsConstantes, "GIPAVI" + TexteNombre(Y - 1));
    d.dTauxInflation = m.dRechercheValeur_Constantes(m.gRsConstantes, "TXINFL" + TexteNombre(Y));
    d.dIM_Debut = InfosSalaries.dGipaIM_Debut;
    d.dIM_Fin = InfosSalaries.dGipaIM_Fin;
    d.dHrsHebdo = InfosSalaries.dGipaHrsHebdo;
    d.dTauxTempsPartiel = InfosSalaries.dGipaTauxTempsPartiel;
  }
  return d;
}

double GarantieGipa(double dIM_Debut, double dPoint_Debut, double dIM_Fin, double dPoint_Fin,
                    double dTauxInflation, double dHrsHebdo, double dTauxTempsPartiel) {
  double G = (1 + dTauxInflation / 100) * dIM_Debut * dPoint_Debut - dIM_Fin * dPoint_Fin;
  if (G <= 0) return 0.0;
  if (dHrsHebdo > 0) G = G * dHrsHebdo / 35;
  if (dTauxTempsPartiel > 0) G = G * dTauxTempsPartiel / 100;
  return G;
}

void MethodeCalculG_Nouv::CalculRubrique_Gipa(VarCalculSalarie& InfosSalaries,
                                              SalarieCalculRubrique& Rubrique) {
  RubriqueGipa(*this, InfosSalaries, Rubrique);
}

std::optional<double> MethodeCalculG_Nouv::dMontantGIPA(VarCalculSalarie& InfosSalaries,
                                                        double dIM_Debut, double dPoint_Debut,
                                                        double dIM_Fin, double dPoint_Fin,
                                                        double dTauxInflation, double dHrsHebdo,
                                                        double dTauxTempsPartiel) {
  double G = GarantieGipa(dIM_Debut, dPoint_Debut, dIM_Fin, dPoint_Fin, dTauxInflation,
                          dHrsHebdo, dTauxTempsPartiel);
  // An agent of several employers above the legal week shares the guarantee among them.
  const double K = InfosSalaries.dDureeHebdoLegale != 0 ? InfosSalaries.dDureeHebdoLegale : 35;
  if (InfosSalaries.dHeuresCumulsHebdo > K) G = Div(G * K, InfosSalaries.dHeuresCumulsHebdo);
  return Arrondi(G, 2);
}

}  // namespace orvalis
