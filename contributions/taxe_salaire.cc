// The payroll tax on the bands of gross pay: rate 1 on the pay between the two limits, rate
// 2 on the pay above the second, compared month by month ("M") or on the year so far ("A").
#include <string>

#include "contributions/contributions_partagees.h"
#include "generic/lecture_ligne.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"

namespace orvalis {

namespace {

// The two limits of the bands: yearly statutory values, a twelfth of each for a monthly
// comparison, rounded to the euro.
struct Limites {
  double S1;
  double S2;
};

Limites LimitesDesTranches(MoteurCalcul& m, bool bMensuel) {
  const double d = bMensuel ? 12 : 1;
  return {Arrondi(m.ConstanteFixe("TxSalaire1") / d, 0),
          Arrondi(m.ConstanteFixe("TxSalaire2") / d, 0)};
}

double BaseTaux1Mensuelle(double B, const Limites& l) {
  if (B <= l.S1) return 0;
  if (B <= l.S2) return B - l.S1;
  return l.S2 - l.S1;
}

// K is the gross of the year before this month.
double BaseTaux1Annuelle(double K, double B, const Limites& l) {
  if (K >= l.S2 || K + B < l.S1) return 0;
  if (K + B > l.S2) return l.S2 - K;
  if (K > l.S1) return B;
  return K + B - l.S1;
}

double BaseTaux2Mensuelle(double B, const Limites& l) { return B > l.S2 ? B - l.S2 : 0; }

double BaseTaux2Annuelle(double K, double B, const Limites& l) {
  if (K > l.S2) return B;
  if (K + B >= l.S2) return K + B - l.S2;
  return 0;
}

// A rate "T" is a percentage; any other kind multiplies the base as it is.
double Montant(double dTaux, double dBase, const std::string& sType) {
  return sType == "T" ? dTaux * dBase / 100 : dTaux * dBase;
}

// The rates and amounts of both bands once the line's base is set. The employer's amount is
// taken on the base weighted by its coefficient (when the engine applies one) and rounded,
// the employee's on the one before.
void TaxeSurLaBase(const LectureLigne& l, bool bCoefficient) {
  SalarieCalculRubrique& r = l.Rubrique;
  std::string sType;
  r.dTauxSalarial = l.TauxSalarial(sType);
  r.dMontantSalarial = Montant(r.dTauxSalarial, r.dBase, sType);
  r.dTauxSalarial = Arrondi(r.dTauxSalarial, 2);
  r.dTauxPatronal = l.TauxPatronal(sType);
  r.dBase = Arrondi(bCoefficient ? r.dBase * l.Coefficient() : r.dBase, 2);
  r.dMontantPatronal = Montant(r.dTauxPatronal, r.dBase, sType);
  r.dTauxPatronal = Arrondi(r.dTauxPatronal, 2);
}

}  // namespace

void TaxeSalaireBande(const LectureLigne& l, BandeTaxeSalaire bande, double B,
                      bool bCoefficient) {
  const double K = l.InfosSalaries.dCumul_Brut;
  const std::string& sMode = l.InfosSalaries.sBaseTaxeSalaire;
  const bool bTaux1 = bande == BandeTaxeSalaire::Taux1;
  // Any other mode leaves the line's base as it stands.
  if (sMode == "M") {
    const Limites lim = LimitesDesTranches(l.m, true);
    l.Rubrique.dBase = bTaux1 ? BaseTaux1Mensuelle(B, lim) : BaseTaux2Mensuelle(B, lim);
  } else if (sMode == "A") {
    const Limites lim = LimitesDesTranches(l.m, false);
    l.Rubrique.dBase = bTaux1 ? BaseTaux1Annuelle(K, B, lim) : BaseTaux2Annuelle(K, B, lim);
  }
  TaxeSurLaBase(l, bCoefficient);
}

void MethodeCalculG_Nouv::CalculRubrique_TaxeSalaire_Taux1(VarCalculSalarie& InfosSalaries,
                                                           SalarieCalculRubrique& Rubrique,
                                                           const RsRef& RsVarSalaries,
                                                           const RsRef& RsVarSalariesHisto,
                                                           const RsRef& RsSalariesHisto) {
  const LectureLigne l{*this,    InfosSalaries,  RsVarSalaries, RsVarSalariesHisto,
                       Rubrique, RsSalariesHisto};
  TaxeSalaireBande(l, BandeTaxeSalaire::Taux1, l.Base(), true);
}

void MethodeCalculG_Nouv::CalculRubrique_TaxeSalaire_Taux2(VarCalculSalarie& InfosSalaries,
                                                           SalarieCalculRubrique& Rubrique,
                                                           const RsRef& RsVarSalaries,
                                                           const RsRef& RsVarSalariesHisto,
                                                           const RsRef& RsSalariesHisto) {
  const LectureLigne l{*this,    InfosSalaries,  RsVarSalaries, RsVarSalariesHisto,
                       Rubrique, RsSalariesHisto};
  TaxeSalaireBande(l, BandeTaxeSalaire::Taux2, l.Base(), true);
}

}  // namespace orvalis
