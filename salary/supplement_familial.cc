// The family supplement: a fixed amount by number of children and a percentage of the
// treatment, the treatment held between the floor and the ceiling indexes.
#include <algorithm>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "salary/indemnite_ligne.h"
#include "salary/supplement_familial_situation.h"

namespace orvalis {

namespace {

// The supplement on a treatment for n children: the scale's fixed part and percentage,
// truncated to the cent, then each child past the third, then rounded.
double Bareme(MethodeCalculG_Nouv& m, Int16 n, double dTraitement) {
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
double SupplementDuMois(const VarCalculSalarie& s, double A, double L, Int16 W) {
  const Int16 n = s.iEnfant_ACharge;
  if (s.sTypeCPA == "PD" || s.sTypeCPA == "PF") return W * AuMoinsLePlancher(s.dCoefficient_CPA, A, L) / 30;
  if (s.sOccupationPoste == "P") {
    return std::max(indemnites::dSupplementFamilialSituation(s, A), W * L / 30);
  }
  if (s.sOccupationPoste == "T") {
    if (n > 1) {
      A = s.dCoefficientTraitementTNCAvantTP * A;
      L = s.dCoefficientTraitementTNCAvantTP * L;
    }
    return W * AuMoinsLePlancher(s.dCoefficientTraitementTPSiTNC, A, L) / 30;
  }
  // A full-time post ("N", "C" and any other value, chosen).
  if (n > 1) return indemnites::dSupplementFamilialSituation(s, A);
  return W * A / 30;
}

}  // namespace

void MethodeCalculG_Nouv::CalculRubrique_SupplementFamilial(VarCalculSalarie& InfosSalaries,
                                                            SalarieCalculRubrique& Rubrique) {
  VarCalculSalarie& s = InfosSalaries;
  const Int16 n = s.iEnfant_ACharge;
  if (!(n > 0)) return;

  const double P = Arrondi(ConstanteFixe("Point"), 4);
  const double MinI = Arrondi(ConstanteFixe("IndMinSF"), 2);
  const double MaxI = Arrondi(ConstanteFixe("IndMaxSF"), 2);
  const double TMin = Arrondi(P * MinI / 12 - 0.0049, 2);
  const double TMax = Arrondi(P * MaxI / 12 - 0.0049, 2);

  const double T = s.dSalaire_MensuelPleinIATA + s.dSalaire_MensuelPleinIATN +
                   s.dSalaire_MensuelPleinINTA + s.dSalaire_MensuelPleinINTN;
  const double X = T < TMin ? TMin : std::min(T, TMax);
  const double A = Bareme(*this, n, X);
  const double L = Bareme(*this, n, TMin);

  const Int16 W = s.iNBJ_Presence_Total - s.iNBJ_CFA_Total;
  double dMontant = SupplementDuMois(s, A, L, W);

  // Several posts: the supplement of the legal duration shared by the hours of all posts.
  const double H = s.dDureeHebdoLegale == 0 ? 35 : s.dDureeHebdoLegale;
  if (s.dHeuresCumulsHebdo > H && n > 1) dMontant = Div(H * dMontant, s.dHeuresCumulsHebdo);
  // Children whose supplement another parent receives.
  if (s.dEnfantsNonACharges > 0) dMontant = (n - s.dEnfantsNonACharges) * dMontant / n;
  s.dMontant_SFT = dMontant;

  if (s.iNBJ_DispoOffice_Total > 0) {
    dMontant = (s.iNBJ_Presence_Total - s.iNBJ_DispoOffice_Total) * dMontant / 30;
  }
  indemnites::Ligne(Rubrique, X, n, dMontant);
}

}  // namespace orvalis
