// The generic pay lines that combine a base with the two rates: "BASE x TAUX" (and its
// detachment variant), "BASE / TAUX", "BASE x TAUX (CHOIX)", "BASE x POURCENTAGE SMIC".
//
// A rate of kind "T" is a percentage of the base; any other kind is a factor. Amounts are
// computed on the rate as resolved; the rate written on the line is rounded to 4 places.
#include <array>
#include <cmath>
#include <string_view>

#include "generic/lecture_ligne.h"
#include "generic/rubriques_generiques.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"

namespace orvalis {

namespace {

double Applique(double dTaux, const std::string& sType, double dBase) {
  return sType == "T" ? dTaux * dBase / 100 : dTaux * dBase;
}

double Divise(double dBase, const std::string& sType, double dTaux) {
  return sType == "T" ? Div(dBase, dTaux / 100) : Div(dBase, dTaux);
}

void MontantParProduit(double& dMontant, double dTaux, const std::string& sType, double dBase) {
  dMontant = Applique(dTaux, sType, dBase);
}

// Under the threshold the amount is not written: it keeps what the line came with.
void MontantParDivision(double& dMontant, double dTaux, const std::string& sType, double dBase) {
  if (std::abs(dTaux) > 0.000001) dMontant = Divise(dBase, sType, dTaux);
}

using EcritMontant = void (*)(double& dMontant, double dTaux, const std::string& sType,
                              double dBase);

// Once dBase holds the base times K: each rate in turn, the employee's first, its amount
// written on the rate as resolved, then the rate rounded.
void DeuxMontants(const LectureLigne& l, EcritMontant ecrit, double K) {
  SalarieCalculRubrique& Rubrique = l.Rubrique;
  std::string sTypeS;
  Rubrique.dTauxSalarial = l.TauxSalarial(sTypeS);
  ecrit(Rubrique.dMontantSalarial, Rubrique.dTauxSalarial, sTypeS, Rubrique.dBase);
  Rubrique.dTauxSalarial = Arrondi(Rubrique.dTauxSalarial, 4);

  std::string sTypeP;
  Rubrique.dTauxPatronal = l.TauxPatronal(sTypeP);
  ecrit(Rubrique.dMontantPatronal, Rubrique.dTauxPatronal, sTypeP, Rubrique.dBase);
  Rubrique.dTauxPatronal = Arrondi(Rubrique.dTauxPatronal, 4);

  Rubrique.dValeurCoefficient = K;
}

struct TypesDesTaux {
  std::string sTypeS;
  std::string sTypeP;
};

// The lines with a single amount read the base times its coefficient and both rates, the
// employee's first, before they write the amount.
TypesDesTaux BaseEtDeuxTaux(const LectureLigne& l) {
  const double B = l.Base();
  l.Rubrique.dBase = B * l.Coefficient();
  TypesDesTaux t;
  l.Rubrique.dTauxSalarial = l.TauxSalarial(t.sTypeS);
  l.Rubrique.dTauxPatronal = l.TauxPatronal(t.sTypeP);
  return t;
}

}  // namespace

void RubriqueBaseTaux(const LectureLigne& l) {
  const double K = l.BaseFoisCoefficient();
  DeuxMontants(l, MontantParProduit, K);
}

void RubriqueBaseTauxChoix(const LectureLigne& l) {
  SalarieCalculRubrique& Rubrique = l.Rubrique;
  const TypesDesTaux t = BaseEtDeuxTaux(l);
  // One amount, on the employee side: the employer rate wins when there is one.
  if (Rubrique.dTauxPatronal != 0) {
    Rubrique.dMontantSalarial = Applique(Rubrique.dTauxPatronal, t.sTypeP, Rubrique.dBase);
    Rubrique.dTauxSalarial = Arrondi(Rubrique.dTauxPatronal, 4);
  } else {
    Rubrique.dMontantSalarial = Applique(Rubrique.dTauxSalarial, t.sTypeS, Rubrique.dBase);
    Rubrique.dTauxSalarial = Arrondi(Rubrique.dTauxSalarial, 4);
  }
  Rubrique.dTauxPatronal = 0;
}

void RubriqueBaseTauxSmic(const LectureLigne& l) {
  SalarieCalculRubrique& Rubrique = l.Rubrique;
  const TypesDesTaux t = BaseEtDeuxTaux(l);
  const double dSmicHoraire = l.m.ConstanteFixe("SmicHor");
  if (t.sTypeS == "T") {
    Rubrique.dMontantSalarial = Rubrique.dBase * dSmicHoraire * Rubrique.dTauxSalarial / 100;
  } else {
    Rubrique.dMontantSalarial = Rubrique.dBase * dSmicHoraire * Rubrique.dTauxSalarial;
  }
  Rubrique.dTauxSalarial = Arrondi(Rubrique.dTauxSalarial, 4);
  Rubrique.dTauxPatronal = 0;
}

void MoteurCalcul::CalculRubrique_BaseTaux(VarCalculSalarie& InfosSalaries,
                                                  const RsRef& RsVarSalaries,
                                                  const RsRef& RsVarSalariesHisto,
                                                  SalarieCalculRubrique& Rubrique,
                                                  const RsRef& RsSalariesHisto) {
  RubriqueBaseTaux(
      {*this, InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique, RsSalariesHisto});
}

void MethodeCalculG_Nouv::CalculRubrique_BaseTaux_Detachement(VarCalculSalarie& InfosSalaries,
                                                              const RsRef& RsVarSalaries,
                                                              const RsRef& RsVarSalariesHisto,
                                                              SalarieCalculRubrique& Rubrique,
                                                              const RsRef& RsSalariesHisto) {
  // The first detachment's lines take its share of the days; the "...20" lines the second's.
  static constexpr std::array<std::string_view, 4> kPremierDetachement = {
      "CNRDETACH", "CNRBONIFDE", "CIVSURCOTP", "CIVSURBONP"};
  const LectureLigne l{*this,    InfosSalaries, RsVarSalaries, RsVarSalariesHisto,
                       Rubrique, RsSalariesHisto};
  Rubrique.dBase = l.Base();
  const Int16 iJours = InfosSalaries.iNBJ_DETACHEMENT + InfosSalaries.iNBJ_DETACHEMENT2;
  bool bPremier = false;
  for (auto code : kPremierDetachement) bPremier = bPremier || Rubrique.sCodeRubrique == code;
  const double K = bPremier ? InfosSalaries.iNBJ_DETACHEMENT / iJours
                            : InfosSalaries.iNBJ_DETACHEMENT2 / iJours;
  Rubrique.dBase = Rubrique.dBase * K;
  DeuxMontants(l, MontantParProduit, K);
}

void MethodeCalculG_Nouv::CalculRubrique_BaseDivTaux(VarCalculSalarie& InfosSalaries,
                                                     const RsRef& RsVarSalaries,
                                                     const RsRef& RsVarSalariesHisto,
                                                     SalarieCalculRubrique& Rubrique,
                                                     const RsRef& RsSalariesHisto) {
  const LectureLigne l{*this,    InfosSalaries, RsVarSalaries, RsVarSalariesHisto,
                       Rubrique, RsSalariesHisto};
  const double K = l.BaseFoisCoefficient();
  DeuxMontants(l, MontantParDivision, K);
}

void MoteurCalcul::CalculRubrique_BaseTauxChoix(VarCalculSalarie& InfosSalaries,
                                                       const RsRef& RsVarSalaries,
                                                       const RsRef& RsVarSalariesHisto,
                                                       SalarieCalculRubrique& Rubrique,
                                                       const RsRef& RsSalariesHisto) {
  RubriqueBaseTauxChoix(
      {*this, InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique, RsSalariesHisto});
}

void MoteurCalcul::CalculRubrique_BaseTauxSmic(VarCalculSalarie& InfosSalaries,
                                                      const RsRef& RsVarSalaries,
                                                      const RsRef& RsVarSalariesHisto,
                                                      SalarieCalculRubrique& Rubrique,
                                                      const RsRef& RsSalariesHisto) {
  RubriqueBaseTauxSmic(
      {*this, InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique, RsSalariesHisto});
}

}  // namespace orvalis
