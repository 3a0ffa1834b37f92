// Overtime and complementary hours of the historic engine: the shared bodies.
#include "orvalis/MethodeCalculG.h"
#include "salary/heures_supp.h"

namespace orvalis {

void MethodeCalculG::CalculRubrique_HS_Moins14(VarCalculSalarie& InfosSalaries,
                                               SalarieCalculRubrique& Rubrique,
                                               const RsRef& RsVarSalaries) {
  heures::HS_Moins14(*this, InfosSalaries, Rubrique, RsVarSalaries);
}

void MethodeCalculG::CalculRubrique_HS_Plus14(VarCalculSalarie& InfosSalaries,
                                              SalarieCalculRubrique& Rubrique,
                                              const RsRef& RsVarSalaries) {
  heures::HS_Plus14(*this, InfosSalaries, Rubrique, RsVarSalaries);
}

void MethodeCalculG::CalculRubrique_HS_Nuit(VarCalculSalarie& InfosSalaries,
                                            SalarieCalculRubrique& Rubrique,
                                            const RsRef& RsVarSalaries) {
  heures::HS_Nuit(*this, InfosSalaries, Rubrique, RsVarSalaries);
}

void MethodeCalculG::CalculRubrique_HS_Ferie(VarCalculSalarie& InfosSalaries,
                                             SalarieCalculRubrique& Rubrique,
                                             const RsRef& RsVarSalaries) {
  heures::HS_Ferie(*this, InfosSalaries, Rubrique, RsVarSalaries);
}

void MethodeCalculG::CalculRubrique_HS_NuitFeriePlus14(VarCalculSalarie& InfosSalaries,
                                                       SalarieCalculRubrique& Rubrique,
                                                       const RsRef& RsVarSalaries,
                                                       const std::string& sNomcalcul) {
  heures::HS_NuitFeriePlus14(*this, InfosSalaries, Rubrique, RsVarSalaries, sNomcalcul);
}

void MethodeCalculG::CalculRubrique_HS_Moins14Prec(VarCalculSalarie& InfosSalaries,
                                                   SalarieCalculRubrique& Rubrique,
                                                   const RsRef& RsVarSalaries,
                                                   const RsRef& /*RsVarSalariesHisto*/) {
  heures::HS_Moins14Prec(*this, InfosSalaries, Rubrique, RsVarSalaries);
}

void MethodeCalculG::CalculRubrique_HS_Plus14Prec(VarCalculSalarie& InfosSalaries,
                                                  SalarieCalculRubrique& Rubrique,
                                                  const RsRef& RsVarSalaries,
                                                  const RsRef& /*RsVarSalariesHisto*/) {
  heures::HS_Plus14Prec(*this, InfosSalaries, Rubrique, RsVarSalaries);
}

void MethodeCalculG::CalculRubrique_HS_NuitPrec(VarCalculSalarie& InfosSalaries,
                                                SalarieCalculRubrique& Rubrique,
                                                const RsRef& RsVarSalaries,
                                                const RsRef& /*RsVarSalariesHisto*/) {
  heures::HS_NuitPrec(*this, InfosSalaries, Rubrique, RsVarSalaries);
}

void MethodeCalculG::CalculRubrique_HS_FeriePrec(VarCalculSalarie& InfosSalaries,
                                                 SalarieCalculRubrique& Rubrique,
                                                 const RsRef& RsVarSalaries,
                                                 const RsRef& /*RsVarSalariesHisto*/) {
  heures::HS_FeriePrec(*this, InfosSalaries, Rubrique, RsVarSalaries);
}

void MethodeCalculG::CalculRubrique_HS_NuitFeriePlus14Prec(
    VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique, const RsRef& RsVarSalaries,
    const RsRef& /*RsVarSalariesHisto*/, const std::string& sNomcalcul) {
  heures::HS_NuitFeriePlus14Prec(*this, InfosSalaries, Rubrique, RsVarSalaries, sNomcalcul);
}

void MethodeCalculG::CalculRubrique_HeuresComplementaires(VarCalculSalarie& InfosSalaries,
                                                          SalarieCalculRubrique& Rubrique,
                                                          const RsRef& RsVarSalaries) {
  heures::HeuresComplementaires(*this, InfosSalaries, Rubrique, RsVarSalaries);
}

void MethodeCalculG::CalculRubrique_HeuresComplementairesPrec(VarCalculSalarie& InfosSalaries,
                                                              SalarieCalculRubrique& Rubrique,
                                                              const RsRef& RsVarSalaries,
                                                              const RsRef& RsVarSalariesHisto) {
  heures::HeuresComplementairesPrec(*this, InfosSalaries, Rubrique, RsVarSalaries,
                                    RsVarSalariesHisto);
}

void MethodeCalculG::CalculRubrique_ComplementDifferentiel35H(VarCalculSalarie& /*InfosSalaries*/,
                                                              SalarieCalculRubrique& Rubrique,
                                                              const RsRef& RsVarSalaries) {
  heures::ComplementDifferentiel35H(*this, Rubrique, RsVarSalaries);
}

}  // namespace orvalis
