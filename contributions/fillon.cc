// The Fillon reduction: computed on the year so far and paid as the month's regularisation.
#include <cmath>
#include <string>

#include "contributions/smic_horaire.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"

namespace orvalis {

void MethodeCalculG_Nouv::CalculRubrique_ReductionFillon(VarCalculSalarie& InfosSalaries,
                                                         SalarieCalculRubrique& Rubrique,
                                                         const std::string& sNomcalcul) {
  double D = 0;
  RechercheDonneesPourCalculExonerationAllocFamOuFillon(InfosSalaries, D, true, false);
  const double A = InfosSalaries.dAssietteCotAnnuelle;
  const double S = InfosSalaries.dSmicAnnuelFillon;

  double C = 0;
  double F = 0;
  if (A > 0) {
    F = reductions::ConstanteOuDefaut(*this, "FILLONSMIC", 1.6);
    const double R = Div(S, A) * F - 1;
    double T = sNomcalcul == "REDUCTION FILLON (> 19 AGENTS)"
                   ? reductions::ConstanteOuDefaut(*this, "FILLON+20", 0.2835)
                   : reductions::ConstanteOuDefaut(*this, "FILLON-20", 0.2795);
    T = T / reductions::ConstanteOuDefaut(*this, "FILLONDIV", 0.6);
    // No upper bound on the coefficient.
    C = Arrondi(R * T, 3);
  }
  double Y = A * C;
  // Pay above the ceiling gives no reduction at all.
  if (S * F < A) Y = 0;
  InfosSalaries.dMontantReductionFillonAnnee = Y;

  // The month bears what the year's reduction adds to what earlier months took: either way.
  Rubrique.dBase = std::fabs(Y - D);
  Rubrique.dTauxSalarial = 0;
  Rubrique.dMontantSalarial = 0;
  Rubrique.dTauxPatronal = 0;
  Rubrique.dMontantPatronal = (Y - D) * -1;
}

}  // namespace orvalis
