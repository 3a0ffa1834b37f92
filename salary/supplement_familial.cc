// The family supplement: a fixed amount by number of children and a percentage of the
// treatment, the treatment held between the floor and the ceiling indexes.
#include <algorithm>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "salary/elements_cellules.h"
#include "salary/indemnite_ligne.h"
#include "salary/supplement_familial_situation.h"

namespace orvalis {

namespace {

// The supplement on a treatment for n children: the scale's fixed part and percentage,
// truncated to the cent, then each child past the third, then rounded.
double Bareme(MoteurCalcul& m, Int16 n, double dTraitement) {
  double A;
  if (n == 1) {
    A = m.ConstanteFixe("SFFixe1");
  } else if (n == 2) {
    A = m.ConstanteFixe("SFFixe2") + dTraitement * m.ConstanteFixe("SFvar2") / 100;
  } else {
    A = m.ConstanteFixe("SFFixe3") + dTraitement * m.ConstanteFixe("SFvar3") / 100;
  }
  A = dTronqueDecimales(A, 2);
  if (n > 3) {
    A = A + (n - 3) * (m.ConstanteFixe("SFFixeSup") + dTraitement * m.ConstanteFixe("SFvarsup") / 100);
  }
  return Arrondi(A, 2);
}

// A, or L when A times the coefficient falls below it.
double AuMoinsLePlancher(double dCoefficient, double A, double L) {
  const double dProduit = dCoefficient * A;
  return dProduit < L ? L : dProduit;
}

// The month's supplement by the post and the progressive end of activity; W days paid.
double SupplementDuMois(const VarCalculSalarie& s, const std::vector<salaire::Quart>& situation,
                        double A, double L, Int16 W) {
  const Int16 n = s.iEnfant_ACharge;
  if (s.sTypeCPA == "PD" || s.sTypeCPA == "PF") return W * AuMoinsLePlancher(s.dCoefficient_CPA, A, L) / 30;
  if (s.sOccupationPoste == "P") {
    return std::max(indemnites::dSupplementFamilialSituation(situation, A), W * L / 30);
  }
  if (s.sOccupationPoste == "T") {
    if (n > 1) {
      A = s.dCoefficientTraitementTNCAvantTP * A;
      L = s.dCoefficientTraitementTNCAvantTP * L;
    }
    return W * AuMoinsLePlancher(s.dCoefficientTraitementTPSiTNC, A, L) / 30;
  }
  // A full-time post ("N", "C" and any other value, chosen).
  if (n > 1) return indemnites::dSupplementFamilialSituation(situation, A);
  return W * A / 30;
}

}  // namespace

void salaire::RubriqueSupplementFamilial(MoteurCalcul& m, VarCalculSalarie& s,
                                         SalarieCalculRubrique& Rubrique,
                                         const MoisSupplementFamilial& mois) {
  const Int16 n = s.iEnfant_ACharge;
  if (!(n > 0)) return;

  const double P = Arrondi(m.ConstanteFixe("Point"), 4);
  const double MinI = Arrondi(m.ConstanteFixe("IndMinSF"), 2);
  const double MaxI = Arrondi(m.ConstanteFixe("IndMaxSF"), 2);
  const double TMin = Arrondi(P * MinI / 12 - 0.0049, 2);
  const double TMax = Arrondi(P * MaxI / 12 - 0.0049, 2);

  double T = 0;
  for (const salaire::Quart& q : mois.pleins) T = T + q.dPlein;
  const double X = T < TMin ? TMin : std::min(T, TMax);
  const double A = Bareme(m, n, X);
  const double L = Bareme(m, n, TMin);

  const Int16 W = mois.t.iPresence - mois.t.iCFA;
  double dMontant = SupplementDuMois(s, mois.situation, A, L, W);

  // Several posts: the supplement of the legal duration shared by the hours of all posts.
  const double H = s.dDureeHebdoLegale == 0 ? 35 : s.dDureeHebdoLegale;
  if (s.dHeuresCumulsHebdo > H && n > 1) dMontant = Div(H * dMontant, s.dHeuresCumulsHebdo);
  // Children whose supplement another parent receives.
  if (s.dEnfantsNonACharges > 0) dMontant = (n - s.dEnfantsNonACharges) * dMontant / n;
  s.dMontant_SFT = dMontant;

  if (mois.t.iDispoOffice > 0) {
    dMontant = (mois.t.iPresence - mois.t.iDispoOffice) * dMontant / 30;
  }
  indemnites::Ligne(Rubrique, X, n, dMontant);
}

void MethodeCalculG_Nouv::CalculRubrique_SupplementFamilial(VarCalculSalarie& InfosSalaries,
                                                            SalarieCalculRubrique& Rubrique) {
  VarCalculSalarie& s = InfosSalaries;
  using namespace salaire;
  // The full salaries in the quadrants' order; the share by quadrant, old hours first.
  RubriqueSupplementFamilial(*this, s, Rubrique,
                             {{IATA(s), IATN(s), INTA(s), INTN(s)},
                              {IATA(s), INTA(s), IATN(s), INTN(s)},
                              TotauxQuatreQuarts(s)});
}

}  // namespace orvalis
