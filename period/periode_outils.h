// Small helpers shared by the period preparations: months of date texts, and the walk of
// the employee's exceptional situations.
#ifndef ORVALIS_PERIOD_PERIODE_OUTILS_H_
#define ORVALIS_PERIOD_PERIODE_OUTILS_H_

#include <functional>
#include <string>
#include <vector>

#include "orvalis/Recordset.h"
#include "orvalis/VarCalculSalarie.h"
#include "orvalis/dates.h"
#include "orvalis/numeric.h"

namespace orvalis::periode {

// Same year and same month.
inline bool MemeMois(Date a, Date b) { return Annee(a) == Annee(b) && Mois(a) == Mois(b); }

// The day of the month of a date text, as a day count.
inline Int16 JourDe(const std::string& sDate) { return Int16(Jour(LireDate(sDate))); }
inline Int16 JourDe(Date d) { return Int16(Jour(d)); }

// "CodeSituationExceptionnelle = 'A' OR CodeSituationExceptionnelle = 'B' ...".
std::string FiltreCodes(const std::vector<std::string>& codes);

// The columns of one exceptional situation; an absent end (null or empty) means no end.
struct Situation {
  std::string sCode;
  std::string sDateDebut;
  std::string sDateFin;
};
Situation LitSituation(Recordset& rs);

// Walks the rows of rsSituationsExceptionnelles that pass sCritere, in order, then clears
// the filter. Nothing is done when the source holds no row. A missing source is a fault.
void ParcourtSituations(VarCalculSalarie& InfosSalaries, const std::string& sCritere,
                        const std::function<void(Recordset&)>& pourChaque);

}  // namespace orvalis::periode

#endif  // ORVALIS_PERIOD_PERIODE_OUTILS_H_
