// The value of one worked day for the arbitration of paid leave.
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "orvalis/dates.h"

namespace orvalis {

double MethodeCalculG_Nouv::dArbitrageJours(VarCalculSalarie& InfosSalaries,
                                            const RsRef& RsVarSalaries,
                                            SalarieCalculRubrique& Rubrique) {
  const Int16 N =
      iNbJoursOuvresAnnee(std::to_string(Annee(LireDate(gPeriodeEncours))), false, false);
  if (N == 0) return 0;
  const double C = RechercheValeurCoefficient(InfosSalaries, RsVarSalaries, Rubrique.lIdCoeffBase,
                                              Rubrique.sCoeffBase, Rubrique);
  return Arrondi(C / (N / 12), 2);
}

}  // namespace orvalis
