// Allowances and deductions of the historic engine with the current engine's bodies. The
// MGEN line reads the treatment of the month in two cells.
#include "orvalis/MethodeCalculG.h"
#include "salary/indemnites_partagees.h"

namespace orvalis {

void MethodeCalculG::CalculRubrique_PrimeInformatique(VarCalculSalarie& /*InfosSalaries*/,
                                                      SalarieCalculRubrique& Rubrique,
                                                      const RsRef& RsVarSalaries) {
  indemnites::PrimeInformatique(*this, Rubrique, RsVarSalaries);
}

void MethodeCalculG::CalculRubrique_FondsSolidarite(VarCalculSalarie& InfosSalaries,
                                                    SalarieCalculRubrique& Rubrique) {
  indemnites::FondsSolidarite(*this, InfosSalaries, Rubrique);
}

void MethodeCalculG::CalculRubrique_CreditMunicipal(VarCalculSalarie& /*InfosSalaries*/,
                                                    SalarieCalculRubrique& Rubrique,
                                                    const RsRef& RsVarSalaries) {
  indemnites::CreditMunicipal(*this, Rubrique, RsVarSalaries);
}

void MethodeCalculG::CalculRubrique_MontantReference(VarCalculSalarie& /*InfosSalaries*/,
                                                     SalarieCalculRubrique& Rubrique,
                                                     const RsRef& RsVarSalaries) {
  indemnites::MontantReference(*this, Rubrique, RsVarSalaries);
}

void MethodeCalculG::CalculRubrique_AllocationFormation(VarCalculSalarie& InfosSalaries,
                                                        const RsRef& RsVarSalaries,
                                                        SalarieCalculRubrique& Rubrique) {
  indemnites::AllocationFormation(*this, InfosSalaries, RsVarSalaries, Rubrique);
}

double MethodeCalculG::dBaremeKilometrique(Int32 lKmParcouru, Int32 lKmPuissance,
                                           Int32 lKmCumule, double& dTaux1, double& dTaux2,
                                           Int32& lKm1, Int32& lKm2, double& dMontant) {
  return indemnites::BaremeKilometrique(*this, lKmParcouru, lKmPuissance, lKmCumule, dTaux1,
                                        dTaux2, lKm1, lKm2, dMontant);
}

void MethodeCalculG::CalculRubrique_IndemniteKilometrique(VarCalculSalarie& InfosSalaries,
                                                          SalarieCalculRubrique& Rubrique) {
  indemnites::IndemniteKilometrique(*this, InfosSalaries, Rubrique);
}

// The treatment of the month: the former index's cell and the new one's.
void MethodeCalculG::CalculRubrique_Mgen(VarCalculSalarie& InfosSalaries,
                                         SalarieCalculRubrique& Rubrique,
                                         const RsRef& RsVarSalaries,
                                         const RsRef& RsVarSalariesHisto,
                                         const RsRef& RsSalariesHisto, bool bOption) {
  indemnites::Mgen(
      {*this, InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique, RsSalariesHisto},
      InfosSalaries.dSalarie_MensuelA + InfosSalaries.dSalarie_MensuelN, bOption);
}

}  // namespace orvalis
