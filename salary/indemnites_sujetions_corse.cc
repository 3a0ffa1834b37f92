// Two allowances on a yearly or a line base: the special duties allowance, a month of the
// overtime reference salary for the days on duty, and the Corsica transport allowance, a
// rate of the line's base between a floor and a ceiling.
#include <algorithm>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "salary/elements_cellules.h"
#include "salary/salaire_outils.h"

namespace orvalis {

void salaire::RubriqueSujetionsSpeciales(SalarieCalculRubrique& Rubrique,
                                         const std::vector<PartIndice>& parts) {
  double dBase = 0;
  for (const PartIndice& p : parts) {
    if (p.iPresence == 0) continue;
    dBase = dBase + p.dReference * p.dCoefficients * (p.iPresence - p.iHorsService).value() /
                        p.iPresence.value();
  }
  // A month of the yearly base, as a month salary: the cent goes downward.
  salaire::EcritLigne(Rubrique, dBase, 0, salaire::DouziemeArrondi(dBase));
}

void MethodeCalculG_Nouv::CalculRubrique_SujetionsSpeciales(VarCalculSalarie& InfosSalaries,
                                                            SalarieCalculRubrique& Rubrique) {
  const VarCalculSalarie& s = InfosSalaries;
  // Each index pays on its own quadrants' share of the month; the days of end of activity
  // and of training leave are not on duty.
  salaire::RubriqueSujetionsSpeciales(
      Rubrique,
      {{s.dBase_HSN, s.dCoefficient_INTA + s.dCoefficient_INTN,
        s.iNBJ_PresenceINTA + s.iNBJ_PresenceINTN,
        s.iNBJ_CFAINTA + s.iNBJ_CFAINTN + s.iNBJ_CongeFormationINTA + s.iNBJ_CongeFormationINTN},
       {s.dBase_HSA, s.dCoefficient_IATA + s.dCoefficient_IATN,
        s.iNBJ_PresenceIATA + s.iNBJ_PresenceIATN,
        s.iNBJ_CFAIATA + s.iNBJ_CFAIATN + s.iNBJ_CongeFormationIATA + s.iNBJ_CongeFormationIATN}});
}

void MethodeCalculG_Nouv::CalculRubrique_Indemnite_transport_Corse(VarCalculSalarie& InfosSalaries,
                                                                   const RsRef& RsVarSalaries,
                                                                   SalarieCalculRubrique& Rubrique) {
  const double B = RechercheValeurBase(InfosSalaries, RsVarSalaries, Rubrique);
  if (B == 0) return;
  const auto C = [&](const char* sCode) { return dRechercheValeur_Constantes(gRsConstantes, sCode); };
  const double dTaux = C("TXTRANCOR3");
  double A = B * dTaux;
  // The floor and the ceiling are each an amount at its rate, like the allowance itself; a
  // bound that comes to 0 is not set.
  const double dPlancher = C("INDTRANCOR1") * C("TXTRANCOR1");
  const double dPlafond = C("INDTRANCOR2") * C("TXTRANCOR2");
  if (dPlancher > 0) A = std::max(A, dPlancher);
  if (dPlafond > 0) A = std::min(A, dPlafond);
  salaire::EcritLigne(Rubrique, B, dTaux, A);
}

}  // namespace orvalis
