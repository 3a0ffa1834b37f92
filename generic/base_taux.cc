// The generic pay lines that combine a base with the two rates: "BASE x TAUX" (and its
// detachment variant), "BASE / TAUX", "BASE x TAUX (CHOIX)", "BASE x POURCENTAGE SMIC".
//
// A rate of kind "T" is a percentage of the base; any other kind is a factor. Amounts are
// computed on the rate as resolved; the rate written on the line is rounded to 4 places.
#include <array>
#include <cmath>
#include <string_view>

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

// Steps common to "BASE x TAUX" and its detachment variant, once dBase holds the base
// times its coefficient.
void TauxSurBase(MethodeCalculG_Nouv& m, VarCalculSalarie& InfosSalaries,
                 const RsRef& RsVarSalaries, const RsRef& RsVarSalariesHisto,
                 SalarieCalculRubrique& Rubrique, const RsRef& RsSalariesHisto, double K) {
  std::string sTypeS;
  Rubrique.dTauxSalarial = m.RechercheValeurTauxSalarial(InfosSalaries, RsVarSalaries,
                                                         RsVarSalariesHisto, Rubrique, sTypeS,
                                                         RsSalariesHisto);
  Rubrique.dMontantSalarial = Applique(Rubrique.dTauxSalarial, sTypeS, Rubrique.dBase);
  Rubrique.dTauxSalarial = Arrondi(Rubrique.dTauxSalarial, 4);

  std::string sTypeP;
  Rubrique.dTauxPatronal =
      m.RechercheValeurTauxPatronal(InfosSalaries, RsVarSalaries, Rubrique, sTypeP, "");
  Rubrique.dMontantPatronal = Applique(Rubrique.dTauxPatronal, sTypeP, Rubrique.dBase);
  Rubrique.dTauxPatronal = Arrondi(Rubrique.dTauxPatronal, 4);

  Rubrique.dValeurCoefficient = K;
}

}  // namespace

void MethodeCalculG_Nouv::CalculRubrique_BaseTaux(VarCalculSalarie& InfosSalaries,
                                                  const RsRef& RsVarSalaries,
                                                  const RsRef& RsVarSalariesHisto,
                                                  SalarieCalculRubrique& Rubrique,
                                                  const RsRef& RsSalariesHisto) {
  Rubrique.dBase = RechercheValeurBase(InfosSalaries, RsVarSalaries, Rubrique);
  const double K = RechercheValeurCoefficient(InfosSalaries, RsVarSalaries, Rubrique.lIdCoeffBase,
                                              Rubrique.sCoeffBase, Rubrique);
  Rubrique.dBase = Rubrique.dBase * K;
  TauxSurBase(*this, InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique, RsSalariesHisto,
              K);
}

void MethodeCalculG_Nouv::CalculRubrique_BaseTaux_Detachement(VarCalculSalarie& InfosSalaries,
                                                              const RsRef& RsVarSalaries,
                                                              const RsRef& RsVarSalariesHisto,
                                                              SalarieCalculRubrique& Rubrique,
                                                              const RsRef& RsSalariesHisto) {
  // The first detachment's lines take its share of the days; the "...20" lines the second's.
  static constexpr std::array<std::string_view, 4> kPremierDetachement = {
      "CNRDETACH", "CNRBONIFDE", "CIVSURCOTP", "CIVSURBONP"};
  Rubrique.dBase = RechercheValeurBase(InfosSalaries, RsVarSalaries, Rubrique);
  const Int16 iJours = InfosSalaries.iNBJ_DETACHEMENT + InfosSalaries.iNBJ_DETACHEMENT2;
  bool bPremier = false;
  for (auto code : kPremierDetachement) bPremier = bPremier || Rubrique.sCodeRubrique == code;
  const double K = bPremier ? InfosSalaries.iNBJ_DETACHEMENT / iJours
                            : InfosSalaries.iNBJ_DETACHEMENT2 / iJours;
  Rubrique.dBase = Rubrique.dBase * K;
  TauxSurBase(*this, InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique, RsSalariesHisto,
              K);
}

void MethodeCalculG_Nouv::CalculRubrique_BaseDivTaux(VarCalculSalarie& InfosSalaries,
                                                     const RsRef& RsVarSalaries,
                                                     const RsRef& RsVarSalariesHisto,
                                                     SalarieCalculRubrique& Rubrique,
                                                     const RsRef& RsSalariesHisto) {
  Rubrique.dBase = RechercheValeurBase(InfosSalaries, RsVarSalaries, Rubrique);
  const double K = RechercheValeurCoefficient(InfosSalaries, RsVarSalaries, Rubrique.lIdCoeffBase,
                                              Rubrique.sCoeffBase, Rubrique);
  Rubrique.dBase = Rubrique.dBase * K;

  // Under the threshold the amount is not written: it keeps what the line came with.
  std::string sTypeS;
  Rubrique.dTauxSalarial = RechercheValeurTauxSalarial(InfosSalaries, RsVarSalaries,
                                                       RsVarSalariesHisto, Rubrique, sTypeS,
                                                       RsSalariesHisto);
  if (std::abs(Rubrique.dTauxSalarial) > 0.000001)
    Rubrique.dMontantSalarial = Divise(Rubrique.dBase, sTypeS, Rubrique.dTauxSalarial);
  Rubrique.dTauxSalarial = Arrondi(Rubrique.dTauxSalarial, 4);

  std::string sTypeP;
  Rubrique.dTauxPatronal =
      RechercheValeurTauxPatronal(InfosSalaries, RsVarSalaries, Rubrique, sTypeP, "");
  if (std::abs(Rubrique.dTauxPatronal) > 0.000001)
    Rubrique.dMontantPatronal = Divise(Rubrique.dBase, sTypeP, Rubrique.dTauxPatronal);
  Rubrique.dTauxPatronal = Arrondi(Rubrique.dTauxPatronal, 4);

  Rubrique.dValeurCoefficient = K;
}

void MethodeCalculG_Nouv::CalculRubrique_BaseTauxChoix(VarCalculSalarie& InfosSalaries,
                                                       const RsRef& RsVarSalaries,
                                                       const RsRef& RsVarSalariesHisto,
                                                       SalarieCalculRubrique& Rubrique,
                                                       const RsRef& RsSalariesHisto) {
  const double B = RechercheValeurBase(InfosSalaries, RsVarSalaries, Rubrique);
  Rubrique.dBase = B * RechercheValeurCoefficient(InfosSalaries, RsVarSalaries,
                                                  Rubrique.lIdCoeffBase, Rubrique.sCoeffBase,
                                                  Rubrique);
  std::string sTypeS;
  Rubrique.dTauxSalarial = RechercheValeurTauxSalarial(InfosSalaries, RsVarSalaries,
                                                       RsVarSalariesHisto, Rubrique, sTypeS,
                                                       RsSalariesHisto);
  std::string sTypeP;
  Rubrique.dTauxPatronal =
      RechercheValeurTauxPatronal(InfosSalaries, RsVarSalaries, Rubrique, sTypeP, "");

  // One amount, on the employee side: the employer rate wins when there is one.
  if (Rubrique.dTauxPatronal != 0) {
    Rubrique.dMontantSalarial = Applique(Rubrique.dTauxPatronal, sTypeP, Rubrique.dBase);
    Rubrique.dTauxSalarial = Arrondi(Rubrique.dTauxPatronal, 4);
  } else {
    Rubrique.dMontantSalarial = Applique(Rubrique.dTauxSalarial, sTypeS, Rubrique.dBase);
    Rubrique.dTauxSalarial = Arrondi(Rubrique.dTauxSalarial, 4);
  }
  Rubrique.dTauxPatronal = 0;
}

void MethodeCalculG_Nouv::CalculRubrique_BaseTauxSmic(VarCalculSalarie& InfosSalaries,
                                                      const RsRef& RsVarSalaries,
                                                      const RsRef& RsVarSalariesHisto,
                                                      SalarieCalculRubrique& Rubrique,
                                                      const RsRef& RsSalariesHisto) {
  const double B = RechercheValeurBase(InfosSalaries, RsVarSalaries, Rubrique);
  Rubrique.dBase = B * RechercheValeurCoefficient(InfosSalaries, RsVarSalaries,
                                                  Rubrique.lIdCoeffBase, Rubrique.sCoeffBase,
                                                  Rubrique);
  std::string sTypeS;
  Rubrique.dTauxSalarial = RechercheValeurTauxSalarial(InfosSalaries, RsVarSalaries,
                                                       RsVarSalariesHisto, Rubrique, sTypeS,
                                                       RsSalariesHisto);
  std::string sTypeP;
  Rubrique.dTauxPatronal =
      RechercheValeurTauxPatronal(InfosSalaries, RsVarSalaries, Rubrique, sTypeP, "");

  const double dSmicHoraire = ConstanteFixe("SmicHor");
  if (sTypeS == "T") {
    Rubrique.dMontantSalarial = Rubrique.dBase * dSmicHoraire * Rubrique.dTauxSalarial / 100;
  } else {
    Rubrique.dMontantSalarial = Rubrique.dBase * dSmicHoraire * Rubrique.dTauxSalarial;
  }
  Rubrique.dTauxSalarial = Arrondi(Rubrique.dTauxSalarial, 4);
  Rubrique.dTauxPatronal = 0;
}

}  // namespace orvalis
