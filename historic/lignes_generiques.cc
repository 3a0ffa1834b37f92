// The generic pay lines of the historic engine: the shared bodies, read through this
// engine's resolvers.
#include "generic/rubriques_generiques.h"
#include "orvalis/MethodeCalculG.h"

namespace orvalis {

void MethodeCalculG::CalculRubrique_BaseTaux(VarCalculSalarie& InfosSalaries,
                                             const RsRef& RsVarSalaries,
                                             const RsRef& RsVarSalariesHisto,
                                             SalarieCalculRubrique& Rubrique,
                                             const RsRef& RsSalariesHisto) {
  RubriqueBaseTaux(
      {*this, InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique, RsSalariesHisto});
}

void MethodeCalculG::CalculRubrique_BaseTauxChoix(VarCalculSalarie& InfosSalaries,
                                                  const RsRef& RsVarSalaries,
                                                  const RsRef& RsVarSalariesHisto,
                                                  SalarieCalculRubrique& Rubrique,
                                                  const RsRef& RsSalariesHisto) {
  RubriqueBaseTauxChoix(
      {*this, InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique, RsSalariesHisto});
}

void MethodeCalculG::CalculRubrique_BaseTauxSmic(VarCalculSalarie& InfosSalaries,
                                                 const RsRef& RsVarSalaries,
                                                 const RsRef& RsVarSalariesHisto,
                                                 SalarieCalculRubrique& Rubrique,
                                                 const RsRef& RsSalariesHisto) {
  RubriqueBaseTauxSmic(
      {*this, InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique, RsSalariesHisto});
}

void MethodeCalculG::CalculRubrique_MontantFixe(VarCalculSalarie& InfosSalaries,
                                                const RsRef& RsVarSalaries,
                                                const RsRef& RsVarSalariesHisto,
                                                SalarieCalculRubrique& Rubrique,
                                                const RsRef& RsSalariesHisto) {
  RubriqueMontantFixe(
      {*this, InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique, RsSalariesHisto});
}

void MethodeCalculG::CalculRubrique_MontantFixeAnnuel(VarCalculSalarie& InfosSalaries,
                                                      const RsRef& RsVarSalaries,
                                                      const RsRef& RsVarSalariesHisto,
                                                      SalarieCalculRubrique& Rubrique,
                                                      const RsRef& RsSalariesHisto) {
  RubriqueMontantFixeAnnuel(
      {*this, InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique, RsSalariesHisto});
}

void MethodeCalculG::CalculRubrique_BaseProrata30(VarCalculSalarie& InfosSalaries,
                                                  const RsRef& RsVarSalaries,
                                                  const RsRef& RsVarSalariesHisto,
                                                  SalarieCalculRubrique& Rubrique,
                                                  const RsRef& RsSalariesHisto) {
  RubriqueBaseProrata30(
      {*this, InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique, RsSalariesHisto});
}

void MethodeCalculG::CalculRubrique_BaseProrata30ADeduire(VarCalculSalarie& InfosSalaries,
                                                          const RsRef& RsVarSalaries,
                                                          const RsRef& RsVarSalariesHisto,
                                                          SalarieCalculRubrique& Rubrique,
                                                          const RsRef& RsSalariesHisto) {
  RubriqueBaseProrata30ADeduire(
      {*this, InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique, RsSalariesHisto});
}

void MethodeCalculG::CalculRubrique_Indice_Reference(VarCalculSalarie& InfosSalaries,
                                                     const RsRef& RsVarSalaries,
                                                     const RsRef& RsVarSalariesHisto,
                                                     SalarieCalculRubrique& Rubrique,
                                                     const RsRef& RsSalariesHisto) {
  RubriqueIndiceReference(
      {*this, InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique, RsSalariesHisto});
}

void MethodeCalculG::CalculRubrique_Indice_Reference_CAS(VarCalculSalarie& InfosSalaries,
                                                         const RsRef& RsVarSalaries,
                                                         const RsRef& RsVarSalariesHisto,
                                                         SalarieCalculRubrique& Rubrique) {
  const RsRef aucune;
  RubriqueIndiceReferenceCAS(
      {*this, InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique, aucune}, "CAS1", "CAS2");
}

void MethodeCalculG::CalculRubrique_Indice_Reference_CAS_Communal(
    VarCalculSalarie& InfosSalaries, const RsRef& RsVarSalaries, const RsRef& RsVarSalariesHisto,
    SalarieCalculRubrique& Rubrique) {
  const RsRef aucune;
  RubriqueIndiceReferenceCAS(
      {*this, InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique, aucune}, "CASC1",
      "CASC2");
}

}  // namespace orvalis
