// The family supplement of a month split by quadrant: each quadrant pays its share of the
// amount on its days present, less end-of-activity days, at the treatment coefficient of
// its hours.
#ifndef ORVALIS_SALARY_SUPPLEMENT_FAMILIAL_SITUATION_H_
#define ORVALIS_SALARY_SUPPLEMENT_FAMILIAL_SITUATION_H_

#include "orvalis/VarCalculSalarie.h"

namespace orvalis::indemnites {

// dMontant x T x C x (N - CFA) / (C x 30) when N and C are not 0; otherwise 0. Despite its
// name it does not round.
inline double dSupplementFamilialArrondi(double dMontant, double T, double C, Int16 N,
                                         Int16 CFA) {
  if (N == 0 || C == 0) return 0;
  const Int16 iJours = N - CFA;
  return dMontant * T * C * iJours / (C * 30);
}

// The four quadrants, old hours on dCoefficient_TraitementTA, new hours on
// dCoefficient_TraitementTN.
inline double dSupplementFamilialSituation(const VarCalculSalarie& s, double dMontant) {
  return dSupplementFamilialArrondi(dMontant, s.dCoefficient_TraitementTA, s.dCoefficient_IATA,
                                    s.iNBJ_PresenceIATA, s.iNBJ_CFAIATA) +
         dSupplementFamilialArrondi(dMontant, s.dCoefficient_TraitementTA, s.dCoefficient_INTA,
                                    s.iNBJ_PresenceINTA, s.iNBJ_CFAINTA) +
         dSupplementFamilialArrondi(dMontant, s.dCoefficient_TraitementTN, s.dCoefficient_IATN,
                                    s.iNBJ_PresenceIATN, s.iNBJ_CFAIATN) +
         dSupplementFamilialArrondi(dMontant, s.dCoefficient_TraitementTN, s.dCoefficient_INTN,
                                    s.iNBJ_PresenceINTN, s.iNBJ_CFAINTN);
}

}  // namespace orvalis::indemnites

#endif  // ORVALIS_SALARY_SUPPLEMENT_FAMILIAL_SITUATION_H_
