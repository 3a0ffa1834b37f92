// One period of daily benefits spread over the calendar months it touches: the detail
// table of the pay line and the running totals of the employee.
#ifndef ORVALIS_ABSENCES_INDEMNITES_JOURNALIERES_PERIODE_H_
#define ORVALIS_ABSENCES_INDEMNITES_JOURNALIERES_PERIODE_H_

#include <functional>
#include <string>

#include "orvalis/MoteurCalcul.h"
#include "orvalis/dates.h"

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

// The columns of the detail table: all of them, or the historic engine's, without IJPAS and
// the three columns of the table-driven generation.
enum class ColonnesIJ { kToutes, kHistoriques };

// The new, empty detail table of the daily benefits, with its columns in their order.
RsRef CreationTableIJ(ColonnesIJ colonnes = ColonnesIJ::kToutes);

// The gross of the cursor's month (its text "dd/mm/yyyy" and its date) that the daily
// benefit is compared with.
using BrutDuMoisIJ = std::function<double(const std::string& sCurseur, Date dCurseur)>;

// One slot spread over its months against the gross brutDuMois gives: uncapped when
// bNonPlafonnee, else the benefit retained never exceeds the salary of the month.
void CalculIJ_PeriodeEmplacement(VarCalculSalarie& InfosSalaries, const PeriodeIJ& periode,
                                 SalarieCalculRubrique& Rubrique, bool bNonPlafonnee,
                                 const BrutDuMoisIJ& brutDuMois);

// The slot-driven generation: a new table when a slot has a sum received, each such slot
// through calculePeriode, and with the method "E" the line of the benefits retained.
void IndemnitesEmplacements(VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique,
                            ColonnesIJ colonnes,
                            const std::function<void(Int16 NumIJ)>& calculePeriode);

// Slot i (1 to 3) of the employee record as a period.
PeriodeIJ EmplacementIJ(const VarCalculSalarie& InfosSalaries, int i);

// One slot of the older generation: the month's divisor is the length of the calendar
// month, and an unknown type is a work accident.
void CalculIJ_Periode(MoteurCalcul& m, VarCalculSalarie& InfosSalaries,
                      const RsRef& RsSalariesHisto, const PeriodeIJ& periode,
                      SalarieCalculRubrique& Rubrique);

// A subrogated line that the host has already calculated under a method of its own (other
// than "E"), and not for the first time: the engine leaves it alone.
inline bool LigneDeLHote(const VarCalculSalarie& s) {
  return s.sMethodeCalculIJ != "E" && !s.bPremierCalculIJ && s.bCalculIJ;
}

// The pay line of the benefits: the sums received, the benefits retained taken back.
void EcritDeduction(SalarieCalculRubrique& Rubrique, double dBase, double dMontant);

// One row of rsIndemnitesJournalieres: the month's divisor is the calendar days of the
// contract in it, an unknown type is sickness, and a non-subrogated period feeds its own
// total.
void CalculIJ_Periode_NouvelleMethode(MoteurCalcul& m, const PeriodeIJ& periode,
                                      VarCalculSalarie& InfosSalaries, const RsRef& RsSalariesHisto,
                                      SalarieCalculRubrique& Rubrique, bool bIJSubrogees);

}  // namespace orvalis::ij

#endif  // ORVALIS_ABSENCES_INDEMNITES_JOURNALIERES_PERIODE_H_
