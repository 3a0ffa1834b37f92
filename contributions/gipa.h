// The GIPA line with one body for both engines; each engine brings its own dMontantGIPA.
#pragma once

#include "orvalis/MoteurCalcul.h"

namespace orvalis {

struct DonneesGipa {
  double dIM_Debut = 0, dPoint_Debut = 0, dIM_Fin = 0, dPoint_Fin = 0;
  double dTauxInflation = 0, dHrsHebdo = 0, dTauxTempsPartiel = 0;
};

// The figures of the guarantee from the employee's GIPA year; without a year all stay 0.
DonneesGipa LitDonneesGipa(MoteurCalcul& m, const VarCalculSalarie& InfosSalaries);

// The guarantee before any sharing among employers, not rounded: the shortfall of the end
// value against the start value raised by inflation, by the hours and the part-time rate;
// 0 when there is none.
double GarantieGipa(double dIM_Debut, double dPoint_Debut, double dIM_Fin, double dPoint_Fin,
                    double dTauxInflation, double dHrsHebdo, double dTauxTempsPartiel);

template <typename Moteur>
void RubriqueGipa(Moteur& m, VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique) {
  const DonneesGipa d = LitDonneesGipa(m, InfosSalaries);
  Rubrique.dMontantSalarial =
      *m.dMontantGIPA(InfosSalaries, d.dIM_Debut, d.dPoint_Debut, d.dIM_Fin, d.dPoint_Fin,
                      d.dTauxInflation, d.dHrsHebdo, d.dTauxTempsPartiel);
}

}  // namespace orvalis
