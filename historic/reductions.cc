// The historic reductions: on overtime and its recall, and the Fillon reduction of the month.
#include <cmath>
#include <string>

#include "generic/lecture_ligne.h"
#include "orvalis/MethodeCalculG.h"
#include "orvalis/ModOutilsSpec.h"

namespace orvalis {

namespace {

bool CategorieSansPlafond(const std::string& sCodeCategorie) {
  return sCodeCategorie == "EXTER" || sCodeCategorie == "INSTHOR" ||
         sCodeCategorie == "INSTITUT";
}

}  // namespace

void MethodeCalculG::CalculRubrique_ReductionHS(VarCalculSalarie& InfosSalaries,
                                                SalarieCalculRubrique& Rubrique,
                                                const RsRef& RsVarSalaries) {
  Rubrique.dBase = RechercheValeurBase(InfosSalaries, RsVarSalaries, Rubrique);
  const double M = dRechercheValeur_Constantes(gRsConstantes, "TXREDHSMAX");
  Rubrique.dTauxSalarial =
      M > InfosSalaries.dTauxReduction ? -InfosSalaries.dTauxReduction : -M;
  const double A = Rubrique.dTauxSalarial * Rubrique.dBase / 100;
  if (!InfosSalaries.bRegineFonctionnaire && !CategorieSansPlafond(InfosSalaries.sCodeCategorie)) {
    // Capped by the contributions of the month.
    const double dUrssaf = dRechercheValeurCumul("URSSAFTOT", "S");
    Rubrique.dMontantSalarial = std::abs(A) > dUrssaf ? -dUrssaf : A;
  } else if (CategorieSansPlafond(InfosSalaries.sCodeCategorie)) {
    Rubrique.dMontantSalarial = -dRechercheValeurCumul("TOTDEDUCT", "S");
  } else {
    Rubrique.dMontantSalarial = A;
  }
  Rubrique.dMontantPatronal = 0;
  Rubrique.dTauxPatronal = 0;
}

void MethodeCalculG::CalculRubrique_RappelReductionHS(VarCalculSalarie& InfosSalaries,
                                                      SalarieCalculRubrique& Rubrique,
                                                      const RsRef& RsVarSalaries,
                                                      const RsRef& RsVarSalariesHisto,
                                                      const RsRef& RsSalariesHisto) {
  const LectureLigne l{*this,    InfosSalaries,  RsVarSalaries, RsVarSalariesHisto,
                       Rubrique, RsSalariesHisto};
  // The base of a recall is its coefficient, and its amount the base designation.
  Rubrique.dBase = l.Coefficient();
  Rubrique.dTauxSalarial = 0;
  Rubrique.dMontantSalarial = l.Base();
  Rubrique.dMontantPatronal = 0;
  Rubrique.dTauxPatronal = 0;
  std::string sType;
  const double dSalarial = l.TauxSalarial(sType);
  const double dPatronal = l.TauxPatronal(sType);
  if (Rubrique.sCodeRubrique == "HSRAPASSRG") {
    InfosSalaries.dTauxReductionRappel =
        dPatronal > 0 ? Arrondi(dSalarial / dPatronal, 4) * 100 : 0;
  } else {
    InfosSalaries.dTauxReductionRappel = -dSalarial;
  }
}

void MethodeCalculG::CalculRubrique_ReductionFillon(VarCalculSalarie& InfosSalaries,
                                                    SalarieCalculRubrique& Rubrique,
                                                    const std::string& sNomcalcul) {
  const double dBrut = InfosSalaries.bRegineFonctionnaire
                           ? dRechercheValeurCumul("BASE", "S")
                           : dRechercheValeurCumul("BRUT", "S") -
                                 dRechercheValeurCumul("HEURESUPP", "S");
  const double dHeures = Arrondi(ConstanteFixe("HrsMois"), 2);
  const double dSmicMois =
      Arrondi(dHeures * ConstanteFixe("SmicHor") * InfosSalaries.dCoefficient_Traitement, 4);
  double dTaux = 0;
  double dMontant = 0;
  double dPlafond = 0;
  if (dBrut > 0) {
    const double dCoef = dSmicMois / dBrut * 1.6 - 1;
    if (sNomcalcul == "REDUCTION FILLON (> 19 AGENTS)") {
      dTaux = 0.2835 / 0.6 * dCoef;
      dPlafond = 28.35 / 100 * dBrut;
    } else {
      dTaux = 0.2795 / 0.6 * dCoef;
      dPlafond = 27.95 / 100 * dBrut;
    }
    dTaux = Arrondi(dTaux, 4);
    dMontant = dBrut * dTaux;
  }
  Rubrique.dBase = dRechercheValeurCumul("ASSURSTOT", "S");
  Rubrique.dTauxSalarial = 0;
  Rubrique.dMontantSalarial = 0;
  if (dMontant > dPlafond) {
    dMontant = dPlafond;
    Rubrique.dTauxPatronal = Arrondi(-dPlafond / dBrut, 4);
  } else {
    Rubrique.dTauxPatronal = Arrondi(-dTaux, 4);
  }
  Rubrique.dMontantPatronal = -dMontant;
}

}  // namespace orvalis
