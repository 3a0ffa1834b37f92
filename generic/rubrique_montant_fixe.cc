// Pay lines whose "rates" are amounts or day counts: "MONTANT FIXE", "MONTANT FIXE ANNUEL"
// and the two "BASE PRORATISEE SELON NB JOURS / 30".
#include "generic/lecture_ligne.h"
#include "generic/rubriques_generiques.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"

namespace orvalis {

namespace {

// Steps 1 to 3 of both fixed amounts: the base, its coefficient, and the two rate
// designations standing for the amounts themselves. Gives the coefficient.
double MontantsFixes(const LectureLigne& l) {
  l.Rubrique.dBase = l.Base();
  const double K = l.Coefficient();
  std::string sType;
  l.Rubrique.dMontantSalarial = l.TauxSalarial(sType);
  l.Rubrique.dMontantPatronal = l.TauxPatronal(sType);
  return K;
}

// Days times the base over 30: the employee "rate" is a number of days.
double Prorata30(const LectureLigne& l) {
  const double B = l.Base();
  l.Rubrique.dBase = B * l.Coefficient();
  std::string sType;
  l.Rubrique.dTauxSalarial = l.TauxSalarial(sType);
  return l.Rubrique.dTauxSalarial * l.Rubrique.dBase / 30;
}

}  // namespace

void RubriqueMontantFixe(const LectureLigne& l) {
  SalarieCalculRubrique& Rubrique = l.Rubrique;
  const double K = MontantsFixes(l);
  // With neither amount, the base (times its coefficient, when the line names one) is paid.
  if (Rubrique.dMontantSalarial == 0 && Rubrique.dMontantPatronal == 0) {
    if (!Rubrique.sCoeffBase.empty()) {
      Rubrique.dTauxSalarial = Arrondi(K, 4);
      Rubrique.dMontantSalarial = Rubrique.dTauxSalarial * Rubrique.dBase;
    } else {
      Rubrique.dTauxSalarial = 0;
      Rubrique.dMontantSalarial = Rubrique.dBase;
      Rubrique.dBase = 0;
    }
  }
}

void RubriqueMontantFixeAnnuel(const LectureLigne& l) {
  SalarieCalculRubrique& Rubrique = l.Rubrique;
  const double K = MontantsFixes(l);
  // With neither amount, a twelfth of the yearly base is paid.
  if (Rubrique.dMontantSalarial == 0 && Rubrique.dMontantPatronal == 0) {
    Rubrique.dTauxSalarial = 0;
    if (!Rubrique.sCoeffBase.empty()) {
      Rubrique.dMontantSalarial = Rubrique.dBase / 12 * Arrondi(K, 4);
    } else {
      Rubrique.dMontantSalarial = Rubrique.dBase / 12;
    }
    Rubrique.dBase = 0;
    Rubrique.dMontantPatronal = Rubrique.dMontantPatronal / 12;
  }
}

void RubriqueBaseProrata30(const LectureLigne& l) { l.Rubrique.dMontantSalarial = Prorata30(l); }

void RubriqueBaseProrata30ADeduire(const LectureLigne& l) {
  l.Rubrique.dMontantSalarial = -Prorata30(l);
}

void MoteurCalcul::CalculRubrique_MontantFixe(VarCalculSalarie& InfosSalaries,
                                                     const RsRef& RsVarSalaries,
                                                     const RsRef& RsVarSalariesHisto,
                                                     SalarieCalculRubrique& Rubrique,
                                                     const RsRef& RsSalariesHisto) {
  RubriqueMontantFixe(
      {*this, InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique, RsSalariesHisto});
}

void MoteurCalcul::CalculRubrique_MontantFixeAnnuel(VarCalculSalarie& InfosSalaries,
                                                           const RsRef& RsVarSalaries,
                                                           const RsRef& RsVarSalariesHisto,
                                                           SalarieCalculRubrique& Rubrique,
                                                           const RsRef& RsSalariesHisto) {
  RubriqueMontantFixeAnnuel(
      {*this, InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique, RsSalariesHisto});
}

void MoteurCalcul::CalculRubrique_BaseProrata30(VarCalculSalarie& InfosSalaries,
                                                       const RsRef& RsVarSalaries,
                                                       const RsRef& RsVarSalariesHisto,
                                                       SalarieCalculRubrique& Rubrique,
                                                       const RsRef& RsSalariesHisto) {
  RubriqueBaseProrata30(
      {*this, InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique, RsSalariesHisto});
}

void MoteurCalcul::CalculRubrique_BaseProrata30ADeduire(VarCalculSalarie& InfosSalaries,
                                                               const RsRef& RsVarSalaries,
                                                               const RsRef& RsVarSalariesHisto,
                                                               SalarieCalculRubrique& Rubrique,
                                                               const RsRef& RsSalariesHisto) {
  RubriqueBaseProrata30ADeduire(
      {*this, InfosSalaries, RsVarSalaries, RsVarSalariesHisto, Rubrique, RsSalariesHisto});
}

}  // namespace orvalis
