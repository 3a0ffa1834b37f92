// What the treatment lines share: the index actually paid, the full month salary of an
// index, and one quadrant of the month seen as its share, its day counts and its salaries.
#ifndef ORVALIS_SALARY_TRAITEMENT_OUTILS_H_
#define ORVALIS_SALARY_TRAITEMENT_OUTILS_H_

#include "orvalis/MoteurCalcul.h"

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

// One cell of the month in the employee's record: a quadrant of the current engine (IATA,
// IATN, INTA or INTN) or a cell of the historic one (old or new index), with its share of
// the month, the treatment coefficient of its hours, the full year of its index, its day
// counts and its salaries. The historic cells have no 90 % nor two-thirds days: 0 there.
struct Quart {
  double& dCoefficient;
  const double& dTraitement;
  const double& dAnnuelPlein;
  const Int16& iPresence;
  const Int16& iDemiTraitement;
  const Int16& iCFA;
  const Int16& iCPA;
  const Int16& iDispoOffice;
  const Int16& iCongeFormation;
  const Int16& iCongeMaternite;
  const Int16& i90PourCent;
  const Int16& i2Tiers;
  double& dPlein;
  double& dReel;
  double& dMensuel;
};
Quart IATA(VarCalculSalarie& s);
Quart IATN(VarCalculSalarie& s);
Quart INTA(VarCalculSalarie& s);
Quart INTN(VarCalculSalarie& s);
// The two cells of the historic month, both on dCoefficient_Traitement.
Quart CelluleAncienne(VarCalculSalarie& s);
Quart CelluleNouvelle(VarCalculSalarie& s);

// The month's totals of days, as the engine keeps them: the _Total fields of the current
// engine, the sum of the two cells in the historic one.
struct TotauxDuMois {
  Int16 iPresence;
  Int16 iDemiTraitement;
  Int16 iCFA;
  Int16 iDispoOffice;
  Int16 iCongeFormation;
  Int16 iCongeMaternite;
};
TotauxDuMois TotauxQuatreQuarts(const VarCalculSalarie& s);
TotauxDuMois TotauxDeuxCellules(const VarCalculSalarie& s);

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
