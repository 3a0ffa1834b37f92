// What the treatment lines share: the index actually paid, the full month salary of an
// index, and one quadrant of the month seen as its share, its day counts and its salaries.
#ifndef ORVALIS_SALARY_TRAITEMENT_OUTILS_H_
#define ORVALIS_SALARY_TRAITEMENT_OUTILS_H_

#include "orvalis/MethodeCalculG_Nouv.h"

namespace orvalis::salaire {

// The statutory minimum index of the month, 0 when the column is null or empty.
double IndiceMinimum(MoteurCalcul& m);

// The index paid for a stored index: the minimum when the index is below it and above the
// threshold; an index at or below the threshold is paid as it stands.
double IndiceRetenu(double dIndice, double dMinimum, double dSeuil);

// The full month salary of an index: the yearly amount (index x yearly point, to the cent)
// into dAnnuelPlein, and its twelfth less 0.0049, to the cent, as the result.
double MensuelPlein(MoteurCalcul& m, double dIndice, double& dAnnuelPlein);

// A twelfth of a yearly amount, kept from rounding up by a cent.
double DouziemeArrondi(double dAnnuel);

// One quadrant of the month (IATA, IATN, INTA or INTN) in the employee's record.
struct Quart {
  double& dCoefficient;
  Int16& iPresence;
  Int16& iDemiTraitement;
  Int16& iCFA;
  Int16& iCPA;
  Int16& iDispoOffice;
  Int16& iCongeFormation;
  Int16& iCongeMaternite;
  Int16& i90PourCent;
  Int16& i2Tiers;
  double& dPlein;
  double& dReel;
  double& dMensuel;
};
Quart IATA(VarCalculSalarie& s);
Quart IATN(VarCalculSalarie& s);
Quart INTA(VarCalculSalarie& s);
Quart INTN(VarCalculSalarie& s);

// The real salary of the quadrant for its days: (presence - (C x dAbsenceNS + iAbsents)) x
// real salary / (C x 30). The caller checks that C is not 0.
double SalaireDesJours(const Quart& q, double dAbsenceNS, Int16 iAbsents);

// The employer's side of a salary line is empty.
inline void SansPartPatronale(SalarieCalculRubrique& Rubrique) {
  Rubrique.dTauxPatronal = 0;
  Rubrique.dMontantPatronal = 0;
}

}  // namespace orvalis::salaire

#endif  // ORVALIS_SALARY_TRAITEMENT_OUTILS_H_
