// The coefficient designations of a pay line, shared by the engines: each engine resolves
// through the same rows, the historic one through those it knows.
#ifndef ORVALIS_GENERIC_COEFFICIENT_H_
#define ORVALIS_GENERIC_COEFFICIENT_H_

#include <string>

#include "orvalis/MoteurCalcul.h"

namespace orvalis {

// The coefficient named sCoeffBase, 1 when no row of the table matches; with bHistorique
// only the rows the historic engine knows.
double ResoudCoefficient(MoteurCalcul& m, VarCalculSalarie& InfosSalaries,
                         const RsRef& RsVarSalaries, Int32 lIdCoeffBase,
                         const std::string& sCoeffBase, SalarieCalculRubrique& Rubrique,
                         bool bHistorique);

}  // namespace orvalis

#endif  // ORVALIS_GENERIC_COEFFICIENT_H_
