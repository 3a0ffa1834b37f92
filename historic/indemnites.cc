// The residence allowance, the family supplement and the other allowances of the historic
// engine: the current engine's bodies over the two cells of the month.
#include "orvalis/MethodeCalculG.h"
#include "salary/elements_cellules.h"

namespace orvalis {

using salaire::CelluleAncienne;
using salaire::CelluleNouvelle;

// One group of hours; the real salaries old index first, the salaries of the days new index
// first, as in the four quadrants.
void MethodeCalculG::CalculRubrique_IndemniteResidence(VarCalculSalarie& InfosSalaries,
                                                       SalarieCalculRubrique& Rubrique) {
  VarCalculSalarie& s = InfosSalaries;
  salaire::RubriqueIndemniteResidence(*this, s, Rubrique,
                                      {{{CelluleAncienne(s), CelluleNouvelle(s)}},
                                       {CelluleAncienne(s), CelluleNouvelle(s)},
                                       {CelluleNouvelle(s), CelluleAncienne(s)},
                                       salaire::TotauxDeuxCellules(s),
                                       true});
}

void MethodeCalculG::CalculRubrique_SupplementFamilial(VarCalculSalarie& InfosSalaries,
                                                       SalarieCalculRubrique& Rubrique) {
  VarCalculSalarie& s = InfosSalaries;
  salaire::RubriqueSupplementFamilial(*this, s, Rubrique,
                                      {{CelluleAncienne(s), CelluleNouvelle(s)},
                                       {CelluleAncienne(s), CelluleNouvelle(s)},
                                       salaire::TotauxDeuxCellules(s)});
}

void MethodeCalculG::CalculRubrique_CPA(VarCalculSalarie& InfosSalaries,
                                        SalarieCalculRubrique& Rubrique) {
  VarCalculSalarie& s = InfosSalaries;
  salaire::RubriqueCPA(s, Rubrique, {CelluleAncienne(s), CelluleNouvelle(s)},
                       salaire::TotauxDeuxCellules(s));
}

void MethodeCalculG::CalculRubrique_CFA(VarCalculSalarie& InfosSalaries,
                                        SalarieCalculRubrique& Rubrique) {
  VarCalculSalarie& s = InfosSalaries;
  salaire::RubriqueCFA(*this, s, Rubrique, {CelluleAncienne(s), CelluleNouvelle(s)},
                       s.iNBJ_PresenceA + s.iNBJ_PresenceN);
}

void MethodeCalculG::CalculRubrique_Iat(VarCalculSalarie& InfosSalaries,
                                        SalarieCalculRubrique& Rubrique,
                                        const RsRef& RsVarSalaries) {
  salaire::RubriqueIat(*this, Rubrique, RsVarSalaries, salaire::TotauxDeuxCellules(InfosSalaries));
}

// The new index on its cell, the old one on its own; training leave as the cell's
// iNBJ_Formation.
void MethodeCalculG::CalculRubrique_SujetionsSpeciales(VarCalculSalarie& InfosSalaries,
                                                       SalarieCalculRubrique& Rubrique) {
  const VarCalculSalarie& s = InfosSalaries;
  salaire::RubriqueSujetionsSpeciales(
      Rubrique, {{s.dBase_HSN, s.dCoefficient_INouveau, s.iNBJ_PresenceN,
                  s.iNBJ_CFAN + s.iNBJ_FormationN},
                 {s.dBase_HSA, s.dCoefficient_IAncien, s.iNBJ_PresenceA,
                  s.iNBJ_CFAA + s.iNBJ_FormationA}});
}

void MethodeCalculG::CalculRubrique_IndemniteFormation(VarCalculSalarie& InfosSalaries,
                                                       const RsRef& /*RsVarSalaries*/,
                                                       SalarieCalculRubrique& Rubrique) {
  salaire::RubriqueIndemniteFormation(*this, InfosSalaries, Rubrique);
}

}  // namespace orvalis
