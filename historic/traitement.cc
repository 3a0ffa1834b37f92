// The indexed treatment, half pay and the index bonus of the historic engine: the current
// engine's bodies over the two cells of the month (old index, new index), both at the one
// treatment coefficient.
#include "orvalis/MethodeCalculG.h"
#include "salary/elements_cellules.h"

namespace orvalis {

using salaire::CelluleAncienne;
using salaire::CelluleNouvelle;

namespace {

// The two cells, old index first, for the half-pay lines.
salaire::DemiMois DeuxCellules(MethodeCalculG& m, VarCalculSalarie& s) {
  return {m, s, {CelluleAncienne(s), CelluleNouvelle(s)},
          s.iNBJ_DemiTraitementA + s.iNBJ_DemiTraitementN};
}

// One group of hours: the whole month; the bonus goes into the new index's salaries.
salaire::Heures MoisEntier(VarCalculSalarie& s) {
  return {{CelluleAncienne(s), CelluleNouvelle(s)}, CelluleNouvelle(s), CelluleNouvelle(s)};
}

}  // namespace

// The new index's cell, with the month's unpaid other absences.
void MethodeCalculG::CalculRubrique_TraitementIndiciaireMois(VarCalculSalarie& InfosSalaries,
                                                             SalarieCalculRubrique& Rubrique) {
  VarCalculSalarie& s = InfosSalaries;
  salaire::RubriqueTraitementIndice(*this, s.dIndiceMajoreM, s.dSalarie_AnnuelPlein,
                                    {CelluleNouvelle(s)}, s.dNBJ_AutreAbsenceNS, Rubrique);
}

void MethodeCalculG::CalculRubrique_TraitementIndiciaireMoisPrecedent(
    VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique) {
  VarCalculSalarie& s = InfosSalaries;
  salaire::RubriqueTraitementIndice(*this, s.dIndiceMajoreA, s.dSalarie_AnnuelPleinA,
                                    {CelluleAncienne(s)}, 0, Rubrique);
}

// The whole month of the index, both cells, into the new index's salaries.
void MethodeCalculG::CalculRubrique_Traitement_Indiciaire_Hebdo_Multiple(
    VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique) {
  VarCalculSalarie& s = InfosSalaries;
  salaire::RubriqueHebdoMultiple(*this, s, Rubrique,
                                 s.dCoefficient_IAncien + s.dCoefficient_INouveau,
                                 CelluleNouvelle(s));
}

void MethodeCalculG::CalculRubrique_TraitementBaseParticulier(
    VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries, const RsRef& RsVarSalariesHisto,
    SalarieCalculRubrique& Rubrique, const RsRef& RsSalariesHisto) {
  salaire::RubriqueTraitementBaseParticulier(
      {*this, InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique, RsSalariesHisto},
      {CelluleNouvelle(InfosSalaries)});
}

void MethodeCalculG::CalculCoefficientDemiTraitement(VarCalculSalarie& InfosSalaries,
                                                     const std::string& sType) {
  const salaire::DemiMois d = DeuxCellules(*this, InfosSalaries);
  salaire::CoefficientDemiTraitement(*this, InfosSalaries, sType, d.iDemiTraitementTotal,
                                     d.cellules);
}

void MethodeCalculG::dCoefficientIndemnitaireDemiTraitement(VarCalculSalarie& InfosSalaries,
                                                            Int16& iNbj_A, Int16& iNbj_N,
                                                            const std::string& sType,
                                                            const std::string& sCodeRubrique) {
  iNbj_A = 0;
  iNbj_N = 0;
  const std::vector<Int16> N = DeuxCellules(*this, InfosSalaries).Jours(sType, sCodeRubrique);
  iNbj_A = N[0];
  iNbj_N = N[1];
}

std::optional<double> MethodeCalculG::dMontantProratiseSuivantDemiTraitement(
    VarCalculSalarie& InfosSalaries, double dMntInitial) {
  return salaire::MontantProratise(InfosSalaries, salaire::TotauxDeuxCellules(InfosSalaries),
                                   dMntInitial);
}

void MethodeCalculG::CalculRubrique_DemiTraitementIndiciaire(VarCalculSalarie& InfosSalaries,
                                                             SalarieCalculRubrique& Rubrique,
                                                             const std::string& sVariante) {
  salaire::RubriqueDemiTraitement(DeuxCellules(*this, InfosSalaries), Rubrique, sVariante);
}

void MethodeCalculG::CalculRubrique_BonificationIndiciaire(VarCalculSalarie& InfosSalaries,
                                                           SalarieCalculRubrique& Rubrique) {
  salaire::RubriqueBonification(*this, InfosSalaries, Rubrique, {MoisEntier(InfosSalaries)},
                                salaire::TotauxDeuxCellules(InfosSalaries));
}

void MethodeCalculG::CalculRubrique_DemiTraitementBonification(VarCalculSalarie& InfosSalaries,
                                                               SalarieCalculRubrique& Rubrique,
                                                               const std::string& sVariante) {
  salaire::RubriqueDemiTraitementBonification(DeuxCellules(*this, InfosSalaries), Rubrique,
                                              sVariante, {MoisEntier(InfosSalaries)});
}

void MethodeCalculG::CalculRubrique_SupplementFamilialIC(VarCalculSalarie& InfosSalaries,
                                                         SalarieCalculRubrique& Rubrique,
                                                         const std::string& sVariante) {
  salaire::RubriqueSupplementFamilialIC(DeuxCellules(*this, InfosSalaries), Rubrique, sVariante,
                                        InfosSalaries.iNBJ_DispoOfficeA +
                                            InfosSalaries.iNBJ_DispoOfficeN);
}

void MethodeCalculG::CalculRubrique_IndemniteCoordination(VarCalculSalarie& InfosSalaries,
                                                          SalarieCalculRubrique& Rubrique,
                                                          const std::string& sVariante) {
  salaire::RubriqueIndemniteCoordination(DeuxCellules(*this, InfosSalaries), Rubrique, sVariante);
}

}  // namespace orvalis
