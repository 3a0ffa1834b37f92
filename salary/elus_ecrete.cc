// An official's allowance capped so that his allowances stay within the ceiling set on the
// parliamentary allowance.
#include <algorithm>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"
#include "salary/elus_outils.h"

namespace orvalis {

namespace {

// The contributions on the allowances of the period: the supplementary pension on T by its
// two tranches (B up to 8 ceilings), and the general scheme on U when the allowances pay it.
double CotisationsElu(MethodeCalculG_Nouv& m, const VarCalculSalarie& s, double T, double U,
                      double dPlafond) {
  const double dTauxA = m.dRechercheValeurTaux("IRCTRA");
  const double dTauxB = m.dRechercheValeurTaux("IRCTRB");
  const double W = m.dRechercheValeurTaux("URSRGVEU") + m.dRechercheValeurTaux("URSRGMAL") +
                   m.dRechercheValeurTaux("URSRGVIEP");
  const double dTrancheA = std::clamp(T, 0.0, dPlafond);
  const double dTrancheB = std::clamp(T - dPlafond, 0.0, 7 * dPlafond);
  double C = dTrancheA * dTauxA / 100 + dTrancheB * dTauxB / 100;
  if (s.bIndemniteEluCotiseUrssaf) C += U * W / 100;
  return Arrondi(C, 2);
}

}  // namespace

void MethodeCalculG_Nouv::CalculRubrique_TraitementIndiciaireElusEcrete(
    VarCalculSalarie& InfosSalaries, SalarieCalculRubrique& Rubrique) {
  VarCalculSalarie& s = InfosSalaries;
  // A month that closes no paid period leaves the line as it stood (chosen).
  if (!elus::MoisPaye(s, gPeriodeEncours, true)) return;
  CalculRubrique_TraitementIndiciaireElus(s, Rubrique);
  const double T = s.dMontantTotalIndemnites + Rubrique.dMontantSalarial;
  const double U = Rubrique.dMontantSalarial + s.dMontantTotalIndemnitesSoumisesUrssaf;
  const int iMois = elus::MoisParPeriode(s);
  const double dPlafond = ConstanteFixe("PlafSecu") * iMois;
  const double C = CotisationsElu(*this, s, T, U, dPlafond);

  // The base parliamentary allowance: the mean of the two ends of the scale above the
  // grades (chosen), a month of it for each month of the period.
  const double dIndices = dRechercheValeur_Constantes(gRsConstantes, "INDPARL1") +
                          dRechercheValeur_Constantes(gRsConstantes, "INDPARL2");
  const double L = Arrondi(ConstanteFixe("Point") * dIndices / 2 / 12, 2) * iMois;

  const double E = (T + L) - dRechercheValeur_Constantes(gRsConstantes, "COEFPLAFEC") * L;
  if (!(E > 0)) return;
  // Without the general scheme the excess takes its share of the contributions with it.
  double X = E;
  if (!s.bIndemniteEluCotiseUrssaf && T != 0) X = E + E * C / T;
  Rubrique.dMontantSalarial = std::max(0.0, Rubrique.dMontantSalarial - Arrondi(X, 2));
}

}  // namespace orvalis
