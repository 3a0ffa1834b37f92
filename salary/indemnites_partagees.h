// Allowances and deductions with one body for both engines: each engine's member calls the
// line of its name here, with what differs between them passed in.
#ifndef ORVALIS_SALARY_INDEMNITES_PARTAGEES_H_
#define ORVALIS_SALARY_INDEMNITES_PARTAGEES_H_

#include "generic/lecture_ligne.h"
#include "orvalis/MoteurCalcul.h"

namespace orvalis::indemnites {

void PrimeInformatique(MoteurCalcul& m, SalarieCalculRubrique& r, const RsRef& RsVarSalaries);
void CreditMunicipal(MoteurCalcul& m, SalarieCalculRubrique& r, const RsRef& RsVarSalaries);
void MontantReference(MoteurCalcul& m, SalarieCalculRubrique& r, const RsRef& RsVarSalaries);
void FondsSolidarite(MoteurCalcul& m, const VarCalculSalarie& s, SalarieCalculRubrique& r);
// "MGEN" (bOption false) and "MGEN (-30 ans)"; dTraitementDuMois is the sum of the month's
// cells of treatment, as each engine splits its month.
void Mgen(const LectureLigne& l, double dTraitementDuMois, bool bOption);
void AllocationFormation(MoteurCalcul& m, const VarCalculSalarie& s, const RsRef& RsVarSalaries,
                         SalarieCalculRubrique& r);
double BaremeKilometrique(MoteurCalcul& m, Int32 lKmParcouru, Int32 lKmPuissance,
                          Int32 lKmCumule, double& dTaux1, double& dTaux2, Int32& lKm1,
                          Int32& lKm2, double& dMontant);
void IndemniteKilometrique(MoteurCalcul& m, const VarCalculSalarie& s, SalarieCalculRubrique& r);

}  // namespace orvalis::indemnites

#endif  // ORVALIS_SALARY_INDEMNITES_PARTAGEES_H_
