// What the two withholding rules of elected officials share beyond the engine's interface.
#ifndef ORVALIS_CONTRIBUTIONS_RETENUE_SOURCE_ELUS_H_
#define ORVALIS_CONTRIBUTIONS_RETENUE_SOURCE_ELUS_H_

#include <optional>

#include "orvalis/MoteurCalcul.h"

namespace orvalis::elus {

// The tranche of the officials' tax scale for a net taxable amount of the period.
void Bareme(MoteurCalcul& m, const VarCalculSalarie& InfosSalaries, double dNetImposable,
            double dPeriodesAn, double& dTauxTranche, double& dTrancheBasse,
            double& dTrancheHaute, double& dConstante);

// A new, empty detail table of the historic withholding (rsRetenueALaSource).
RsRef NouveauDetailRetenueSource();

// "RETENUE A LA SOURCE": the withholding of the historic method, with its detail table.
void RetenueALaSource(MoteurCalcul& m, VarCalculSalarie& InfosSalaries,
                      SalarieCalculRubrique& Rubrique, const RsRef& RsVariablesSalaries);

// The coefficient that turns a constant of the tax scale, expressed in the periodicity coded
// by sEluBaremeImpot (1 monthly, 2 quarterly, 5 half-yearly, 3 yearly), into one of a payment
// period of dMoisPeriode months: the months of the payment period over those of the scale's.
// A code out of that list gives no coefficient.
std::optional<double> CoefBareme(double dMoisPeriode, double dCodeBareme);

}  // namespace orvalis::elus

#endif  // ORVALIS_CONTRIBUTIONS_RETENUE_SOURCE_ELUS_H_
