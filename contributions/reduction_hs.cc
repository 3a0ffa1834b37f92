// The reduction of employee contributions on overtime pay, its recall for earlier months,
// and the degressive rate.
#include <string>

#include "generic/lecture_ligne.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"

namespace orvalis {

void MethodeCalculG_Nouv::CalculRubrique_ReductionHS(VarCalculSalarie& InfosSalaries,
                                                     SalarieCalculRubrique& Rubrique,
                                                     const RsRef& RsVarSalaries) {
  Rubrique.dBase = RechercheValeurBase(InfosSalaries, RsVarSalaries, Rubrique);
  // Without a base of its own, each family falls back on the other family's total.
  const bool bNonDeductible = Rubrique.sValeurBase == "BASE REDUCTION SUR HS NON DEDUCTIBLE";
  double R = 0;
  if (bNonDeductible) {
    if (Rubrique.dBase == 0) Rubrique.dBase = dRechercheValeurCumul("ASSREDHS", "S");
    R = InfosSalaries.dTauxReductionNonDeductible;
  } else {
    if (Rubrique.dBase == 0) Rubrique.dBase = dRechercheValeurCumul("ASSREDHSN", "S");
    R = InfosSalaries.dTauxReduction;
  }
  // The rate is capped by "TXREDHSMAX", which has no default: absent, the rate is 0.
  const double M = dRechercheValeur_Constantes(gRsConstantes, "TXREDHSMAX");
  Rubrique.dTauxSalarial = M <= R ? -M : -R;

  const double A = Rubrique.dTauxSalarial * Rubrique.dBase / 100;
  Rubrique.dMontantSalarial = A;
  Rubrique.dMontantPatronal = 0;
  Rubrique.dTauxPatronal = 0;
  if (bNonDeductible) {
    InfosSalaries.dMtReductionHSNonDeductible = Arrondi(A * -1, 2);
  } else {
    InfosSalaries.dMtReductionHS = Arrondi(A * -1, 2);
  }
}

void MethodeCalculG_Nouv::CalculRubrique_RappelReductionHS(VarCalculSalarie& InfosSalaries,
                                                           SalarieCalculRubrique& Rubrique,
                                                           const RsRef& RsVarSalaries,
                                                           const RsRef& RsVarSalariesHisto,
                                                           const RsRef& RsSalariesHisto) {
  const LectureLigne l{*this,    InfosSalaries,  RsVarSalaries, RsVarSalariesHisto,
                       Rubrique, RsSalariesHisto};
  Rubrique.dBase = l.Base();
  Rubrique.dTauxSalarial = 0;
  // The employee "rate" of a recall is its amount.
  std::string sType;
  Rubrique.dMontantSalarial = l.TauxSalarial(sType);
  Rubrique.dMontantPatronal = 0;
  Rubrique.dTauxPatronal = 0;
  // The rate of the recalled reduction: the general regime's, or the public additional
  // pension's.
  if (Rubrique.sCodeRubrique == "HSRAPASSRG") {
    InfosSalaries.dTauxReductionRappel = dRechercheValeurTaux("URSRGVEU") +
                                         dRechercheValeurTaux("URSRGVIEP") +
                                         dRechercheValeurTaux("IRCTRA");
  } else {
    InfosSalaries.dTauxReductionRappel = dRechercheValeurTaux("RAFP");
  }
}

void MethodeCalculG_Nouv::CalculRubrique_Degressivite(VarCalculSalarie& InfosSalaries,
                                                      const RsRef& RsVarSalaries,
                                                      const RsRef& RsSalariesHisto,
                                                      const RsRef& RsVarSalariesHisto,
                                                      SalarieCalculRubrique& Rubrique) {
  const LectureLigne l{*this,    InfosSalaries,  RsVarSalaries, RsVarSalariesHisto,
                       Rubrique, RsSalariesHisto};
  Rubrique.dBase = l.Base();
  std::string sType;
  Rubrique.dTauxSalarial = Arrondi(l.TauxSalarial(sType) * -1, 4);
  // The employer's side of the line is left as it stands.
  Rubrique.dMontantSalarial = Rubrique.dTauxSalarial * Rubrique.dBase / 100;
}

}  // namespace orvalis
