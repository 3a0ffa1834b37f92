// What the half-pay lines share: whether the month has days of half pay or availability,
// the days of a line by quadrant, and the allocation lines.
#ifndef ORVALIS_SALARY_DEMI_TRAITEMENT_OUTILS_H_
#define ORVALIS_SALARY_DEMI_TRAITEMENT_OUTILS_H_

#include <string>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "salary/traitement_outils.h"

namespace orvalis::salaire {

// Any of the eight quadrant counts of half pay and availability is not 0.
inline bool ADesJoursDeDemiTraitement(const VarCalculSalarie& s) {
  for (Int16 n : {s.iNBJ_DemiTraitementIATA, s.iNBJ_DemiTraitementIATN, s.iNBJ_DemiTraitementINTA,
                  s.iNBJ_DemiTraitementINTN, s.iNBJ_DispoOfficeIATA, s.iNBJ_DispoOfficeIATN,
                  s.iNBJ_DispoOfficeINTA, s.iNBJ_DispoOfficeINTN}) {
    if (n != 0) return true;
  }
  return false;
}

struct JoursParQuart {
  Int16 iata = 0, iatn = 0, inta = 0, intn = 0;
  double Total() const { return iata + iatn + inta + intn; }
};

// The line's days by quadrant, the half-pay coefficient set on the way.
inline JoursParQuart JoursDeLaLigne(MethodeCalculG_Nouv& m, VarCalculSalarie& s,
                                    const std::string& sType,
                                    const SalarieCalculRubrique& Rubrique) {
  JoursParQuart N;
  m.dCoefficientIndemnitaireDemiTraitement(s, N.iata, N.iatn, N.inta, N.intn, sType,
                                           Rubrique.sCodeRubrique);
  return N;
}

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
