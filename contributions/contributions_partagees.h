// Contribution lines with one body for both engines, each reading its line through the
// LectureLigne it is given.
#pragma once

#include "generic/lecture_ligne.h"

namespace orvalis {

// "CNRACL Rétroactive".
void RubriqueCnraclRetroactive(const LectureLigne& l);

enum class BandeTaxeSalaire { Taux1, Taux2 };

// One band of the payroll tax on the pay B; with bCoefficient the employer's base is
// weighted by the line's coefficient.
void TaxeSalaireBande(const LectureLigne& l, BandeTaxeSalaire bande, double B, bool bCoefficient);

}  // namespace orvalis
