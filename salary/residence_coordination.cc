// The coordination allowance: the residence allowance of the days of availability and of
// the cessation schemes, paid at the half-pay coefficient.
#include "orvalis/MethodeCalculG_Nouv.h"
#include "salary/demi_traitement_outils.h"

namespace orvalis {

void MethodeCalculG_Nouv::CalculRubrique_IndemniteCoordination(VarCalculSalarie& InfosSalaries,
                                                               SalarieCalculRubrique& Rubrique,
                                                               const std::string& sVariante) {
  VarCalculSalarie& s = InfosSalaries;
  if (s.iNBJ_DispoOfficeIATA == 0 && s.iNBJ_DispoOfficeIATN == 0 && s.iNBJ_DispoOfficeINTA == 0 &&
      s.iNBJ_DispoOfficeINTN == 0) {
    return;
  }
  const salaire::JoursParQuart N = salaire::JoursDeLaLigne(*this, s, sVariante, Rubrique);
  const Int16 iJours = N.iata + N.iatn + N.inta + N.intn + s.iNBJ_CFAIATA + s.iNBJ_CFAIATN +
                       s.iNBJ_CFAINTA + s.iNBJ_CFAINTN + s.iNBJ_CPAIATA + s.iNBJ_CPAIATN +
                       s.iNBJ_CPAINTA + s.iNBJ_CPAINTN;
  Rubrique.dMontantSalarial = iJours * s.dIndResTotale / 30 * s.dCoefficient_DemiTraitement;
  Rubrique.dBase = s.dIndResTotale;
  Rubrique.dTauxSalarial = N.Total();
  salaire::SansPartPatronale(Rubrique);
}

}  // namespace orvalis
