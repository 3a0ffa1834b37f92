// The historic payroll tax and GIPA; the retroactive pension and the officials' withholding
// of the historic method shared as they are.
#include "contributions/contributions_partagees.h"
#include "contributions/gipa.h"
#include "contributions/retenue_source_elus.h"
#include "orvalis/MethodeCalculG.h"
#include "orvalis/ModOutilsSpec.h"

namespace orvalis {

// The tax bands are taken on the month's gross "BRUT", with no coefficient of the line.
void MethodeCalculG::CalculRubrique_TaxeSalaire_Taux1(VarCalculSalarie& InfosSalaries,
                                                      SalarieCalculRubrique& Rubrique,
                                                      const RsRef& RsVarSalaries,
                                                      const RsRef& RsVarSalariesHisto,
                                                      const RsRef& RsSalariesHisto) {
  TaxeSalaireBande(
      {*this, InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique, RsSalariesHisto},
      BandeTaxeSalaire::Taux1, dRechercheValeurCumul("BRUT", "S"), false);
}

void MethodeCalculG::CalculRubrique_TaxeSalaire_Taux2(VarCalculSalarie& InfosSalaries,
                                                      SalarieCalculRubrique& Rubrique,
                                                      const RsRef& RsVarSalaries,
                                                      const RsRef& RsVarSalariesHisto,
                                                      const RsRef& RsSalariesHisto) {
  TaxeSalaireBande(
      {*this, InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique, RsSalariesHisto},
      BandeTaxeSalaire::Taux2, dRechercheValeurCumul("BRUT", "S"), false);
}

void MethodeCalculG::CalculRubrique_Gipa(VarCalculSalarie& InfosSalaries,
                                         SalarieCalculRubrique& Rubrique) {
  RubriqueGipa(*this, InfosSalaries, Rubrique);
}

std::optional<double> MethodeCalculG::dMontantGIPA(VarCalculSalarie& /*InfosSalaries*/,
                                                   double dIM_Debut, double dPoint_Debut,
                                                   double dIM_Fin, double dPoint_Fin,
                                                   double dTauxInflation, double dHrsHebdo,
                                                   double dTauxTempsPartiel) {
  return Arrondi(GarantieGipa(dIM_Debut, dPoint_Debut, dIM_Fin, dPoint_Fin, dTauxInflation,
                              dHrsHebdo, dTauxTempsPartiel),
                 2);
}

}  // namespace orvalis
