// The gross of one month in the employee's pay history, shared by both engine classes.
#ifndef ORVALIS_ABSENCES_MONTANT_BRUT_MOIS_H_
#define ORVALIS_ABSENCES_MONTANT_BRUT_MOIS_H_

#include <string>

#include "orvalis/Recordset.h"

namespace orvalis {

// MtBrut of the first row of the month of sDate ("dd/mm/yyyy") in RsSalariesHisto, rounded
// to 2 places; 0 when the history is empty or holds no row for that month. A null MtBrut
// is a fault, not a zero; so is a missing history.
double dMontantBrutMois(const RsRef& RsSalariesHisto, const std::string& sDate);

// The month key yyyymm of a "dd/mm/yyyy" text: its last four characters, then the two first
// of its last seven.
std::string CleMoisHistorique(const std::string& sDate);

}  // namespace orvalis

#endif  // ORVALIS_ABSENCES_MONTANT_BRUT_MOIS_H_
