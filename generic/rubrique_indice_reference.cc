// Pay lines on a reference index: the employee's increased index at most the reference
// takes the first amount, above it the second.
#include "generic/lecture_ligne.h"
#include "generic/rubriques_generiques.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"

namespace orvalis {

// The two amounts of the fund's rate row named sCode1 (index at most the reference) or
// sCode2 (above it).
void RubriqueIndiceReferenceCAS(const LectureLigne& l, const char* sCode1, const char* sCode2) {
  MoteurCalcul& m = l.m;
  VarCalculSalarie& InfosSalaries = l.InfosSalaries;
  SalarieCalculRubrique& Rubrique = l.Rubrique;
  const double I = l.Base();
  Rubrique.dMontantSalarial = 0;
  Rubrique.dMontantPatronal = 0;
  const std::string sCode = InfosSalaries.dIndiceMajoreM <= I ? sCode1 : sCode2;

  Recordset& rs = Source(m.gRsTaux, "gRsTaux");
  rs.Filter("IdOrganisme = " + std::to_string(Rubrique.lIdOrganisme.value()) +
            " And CodeTaux = '" + sCode + "'");
  if (rs.RecordCount() > 0) {
    Rubrique.dMontantSalarial = rs.Field("PartSalariale").NombreOuZero();
    Rubrique.dMontantPatronal = rs.Field("PartPatronale").NombreOuZero();
  }
  rs.ClearFilter();
  Rubrique.dBase = 0;
  Rubrique.dTauxSalarial = 0;
  Rubrique.dTauxPatronal = 0;
}

void RubriqueIndiceReference(const LectureLigne& l) {
  VarCalculSalarie& InfosSalaries = l.InfosSalaries;
  SalarieCalculRubrique& Rubrique = l.Rubrique;
  const double I = l.Base();
  const double K = l.Coefficient();
  std::string sType;
  if (InfosSalaries.dIndiceMajoreM <= I) {
    Rubrique.dTauxSalarial = l.TauxSalarial(sType);
    Rubrique.dBase = Rubrique.dTauxSalarial;
  } else {
    Rubrique.dTauxPatronal = l.TauxPatronal(sType);
    Rubrique.dBase = Rubrique.dTauxPatronal;
  }
  Rubrique.dMontantSalarial = Arrondi(Rubrique.dBase * K, 2);
  Rubrique.dTauxSalarial = 0;
  Rubrique.dTauxPatronal = 0;
  Rubrique.dMontantPatronal = 0;
}

void MoteurCalcul::CalculRubrique_Indice_Reference(VarCalculSalarie& InfosSalaries,
                                                          const RsRef& RsVarSalaries,
                                                          const RsRef& RsVarSalariesHisto,
                                                          SalarieCalculRubrique& Rubrique,
                                                          const RsRef& RsSalariesHisto) {
  RubriqueIndiceReference(
      {*this, InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique, RsSalariesHisto});
}

void MoteurCalcul::CalculRubrique_Indice_Reference_CAS(VarCalculSalarie& InfosSalaries,
                                                              const RsRef& RsVarSalaries,
                                                              const RsRef& RsVarSalariesHisto,
                                                              SalarieCalculRubrique& Rubrique) {
  const RsRef aucune;
  RubriqueIndiceReferenceCAS(
      {*this, InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique, aucune}, "CAS1", "CAS2");
}

void MoteurCalcul::CalculRubrique_Indice_Reference_CAS_Communal(
    VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries,
    const RsRef& RsVarSalariesHisto, SalarieCalculRubrique& Rubrique) {
  const RsRef aucune;
  RubriqueIndiceReferenceCAS(
      {*this, InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique, aucune}, "CASC1",
      "CASC2");
}

}  // namespace orvalis
