// Allowances and deductions of the historic engine with the current engine's bodies. The
// MGEN line reads the treatment of the month in two cells.
#include "orvalis/MethodeCalculG.h"
#include "salary/indemnites_partagees.h"

namespace orvalis {

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
