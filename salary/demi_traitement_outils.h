// What the half-pay lines share: the allocation lines and the payment of a half-pay line.
#ifndef ORVALIS_SALARY_DEMI_TRAITEMENT_OUTILS_H_
#define ORVALIS_SALARY_DEMI_TRAITEMENT_OUTILS_H_

#include "orvalis/SalarieCalculRubrique.h"
#include "orvalis/VarCalculSalarie.h"
#include "salary/traitement_outils.h"

namespace orvalis::salaire {

// An allocation line pays what the half-pay line left when the coefficient is above a half
// (or any coefficient but 0 and a half).
inline void LigneAllocation(const VarCalculSalarie& s, SalarieCalculRubrique& Rubrique,
                            double dAllocation) {
  Rubrique.dBase = 0;
  Rubrique.dTauxSalarial = 0;
  const double C = s.dCoefficient_DemiTraitement;
  Rubrique.dMontantSalarial = (C == 0 || C == 0.5) ? 0 : dAllocation;
  SansPartPatronale(Rubrique);
}

// A half-pay line pays the whole coefficient when it is a half, otherwise the half alone and
// keeps the rest for its allocation line.
inline void PaieLaMoitie(SalarieCalculRubrique& Rubrique, double C, double M1, double M2,
                         double& dAllocationSiMoitie, double& dAllocation) {
  if (C == 0.5) {
    Rubrique.dMontantSalarial = M1;
    dAllocationSiMoitie = 0;
  } else {
    Rubrique.dMontantSalarial = M2;
    dAllocation = M1 - M2;
  }
  SansPartPatronale(Rubrique);
}

}  // namespace orvalis::salaire

#endif  // ORVALIS_SALARY_DEMI_TRAITEMENT_OUTILS_H_
