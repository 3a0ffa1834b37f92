// One period of daily benefits spread over the calendar months it touches: the detail
// table of the pay line and the running totals of the employee.
#ifndef ORVALIS_ABSENCES_INDEMNITES_JOURNALIERES_PERIODE_H_
#define ORVALIS_ABSENCES_INDEMNITES_JOURNALIERES_PERIODE_H_

#include <string>

#include "orvalis/MoteurCalcul.h"

namespace orvalis::ij {

// One benefit period: its type ("M", "MP", "AT"), first and last day ("dd/mm/yyyy"), the
// sum received for all of it, and the number written in NumIJ.
struct PeriodeIJ {
  std::string sType;
  std::string sDateDebut;
  std::string sDateFin;
  double dPercu = 0;
  Int16 NumIJ = 0;
};

// The new, empty detail table of the daily benefits, with its columns in their order.
RsRef CreationTableIJ();

// Slot i (1 to 3) of the employee record as a period.
PeriodeIJ EmplacementIJ(const VarCalculSalarie& InfosSalaries, int i);

// One slot of the older generation: the month's divisor is the length of the calendar
// month, and an unknown type is a work accident.
void CalculIJ_Periode(MoteurCalcul& m, VarCalculSalarie& InfosSalaries,
                      const RsRef& RsSalariesHisto, const PeriodeIJ& periode,
                      SalarieCalculRubrique& Rubrique);

// One row of rsIndemnitesJournalieres: the month's divisor is the calendar days of the
// contract in it, an unknown type is sickness, and a non-subrogated period feeds its own
// total.
void CalculIJ_Periode_NouvelleMethode(MoteurCalcul& m, const PeriodeIJ& periode,
                                      VarCalculSalarie& InfosSalaries, const RsRef& RsSalariesHisto,
                                      SalarieCalculRubrique& Rubrique, bool bIJSubrogees);

}  // namespace orvalis::ij

#endif  // ORVALIS_ABSENCES_INDEMNITES_JOURNALIERES_PERIODE_H_
