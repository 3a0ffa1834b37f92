// The reduction of the CSG and CRDS on short-time pay, so that the net stays at the
// minimum wage of the hours of the month.
#include <string>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "orvalis/ModOutilsSpec.h"

namespace orvalis {

void MethodeCalculG_Nouv::CalculRubrique_ReductionCsgChomage(VarCalculSalarie& InfosSalaries,
                                                             SalarieCalculRubrique& Rubrique,
                                                             const std::string& sCode) {
  const double F = Arrondi(InfosSalaries.dHeuresMois * ConstanteFixe("SmicHor"), 2);
  // What the net lacks to reach the floor, less what earlier reductions already gave back.
  const double E = F - InfosSalaries.dNetAPayer_AavantEcretement_chomage -
                   InfosSalaries.dTotalEcretementCotisationChomagePartiel;
  if (E <= 0) return;
  const double C = dRechercheValeurCumul(sCode, "S");
  const double X = C < E ? C : E;
  InfosSalaries.dTotalEcretementCotisationChomagePartiel =
      InfosSalaries.dTotalEcretementCotisationChomagePartiel + X;
  Rubrique.dBase = 0;
  Rubrique.dTauxSalarial = 0;
  // A second run on the same line adds its reduction to the first.
  Rubrique.dMontantSalarial = Rubrique.dMontantSalarial - Arrondi(X, 2);
  Rubrique.dTauxPatronal = 0;
  Rubrique.dMontantPatronal = 0;
}

}  // namespace orvalis
