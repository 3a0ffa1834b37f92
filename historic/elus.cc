// The elected officials' reference treatment of the historic engine: a fixed index.
#include "orvalis/MethodeCalculG.h"
#include "orvalis/ModOutilsSpec.h"
#include "salary/elus_outils.h"

namespace orvalis {

// 820 before November 2006, 821 from then on; the constant "INDMAJELU" is not read. With no
// rate given, the month's treatment coefficient applies (the mayor's rate is not read here).
double MethodeCalculG::dRechercheIndMajEluPeriode(VarCalculSalarie& InfosSalaries,
                                                  const std::string& sPeriode,
                                                  const std::string& sDecalage,
                                                  double& dResultat, double dTaux) {
  const Int32 K = CLng(Value(sDecalage).Nombre());
  double P = 0;
  dRecherchePointHistorique(P, sPeriode, std::to_string(-K));
  const double I = elus::CleMoisAnterieur(sPeriode, K) < "200611" ? 820 : 821;
  const double R = dTaux == -1 ? InfosSalaries.dCoefficient_Traitement : dTaux;
  dResultat = elus::MensuelPlein(Arrondi(P * I, 2)) * R;
  return dResultat;
}

}  // namespace orvalis
