// What both engines' strike lines share: the counters of a strike, the hours of the month
// and the amount taken back from a base.
#ifndef ORVALIS_ABSENCES_GREVE_H_
#define ORVALIS_ABSENCES_GREVE_H_

#include "orvalis/MoteurCalcul.h"

namespace orvalis::greve {

// Days, half days and hours of one absence, read from the employee record.
struct Compteurs {
  double T = 0;  // days
  double H = 0;  // half days
  double U = 0;  // hours
};

// The strike counters of the month, or of the month before.
Compteurs CompteursGreve(const VarCalculSalarie& s, bool bMoisPrecedent);

// Hours of the month the counters belong to, with the variable "HEURESA": of the pay
// history and the variables of the month before, or of the record and this month's.
double HeuresDuMois(MoteurCalcul& m, const VarCalculSalarie& s, bool bMoisPrecedent,
                    const RsRef& RsVarSalaries, const RsRef& RsSalariesHisto,
                    const RsRef& RsVarSalariesHisto);

// B / 30 a day, B / 60 a half day, B / M an hour (when there are hours of the month).
double MontantRetenu(const Compteurs& c, double B, double M);

// The line: the base B shown, the amount A taken back.
void EcritRetenue(SalarieCalculRubrique& Rubrique, double B, double A);

}  // namespace orvalis::greve

#endif  // ORVALIS_ABSENCES_GREVE_H_
