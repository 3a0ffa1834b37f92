// The family supplement of a month split by quadrant: each quadrant pays its share of the
// amount on its days present, less end-of-activity days, at the treatment coefficient of
// its hours.
#ifndef ORVALIS_SALARY_SUPPLEMENT_FAMILIAL_SITUATION_H_
#define ORVALIS_SALARY_SUPPLEMENT_FAMILIAL_SITUATION_H_

#include <vector>

#include "orvalis/VarCalculSalarie.h"
#include "salary/traitement_outils.h"

namespace orvalis::indemnites {

// dMontant x T x C x (N - CFA) / (C x 30) when N and C are not 0; otherwise 0. Despite its
// name it does not round.
inline double dSupplementFamilialArrondi(double dMontant, double T, double C, Int16 N,
                                         Int16 CFA) {
  if (N == 0 || C == 0) return 0;
  const Int16 iJours = N - CFA;
  return dMontant * T * C * iJours / (C * 30);
}

// The cells in their order, each at the treatment coefficient of its hours.
inline double dSupplementFamilialSituation(const std::vector<salaire::Quart>& cellules,
                                           double dMontant) {
  double d = 0;
  for (const salaire::Quart& q : cellules)
    d = d + dSupplementFamilialArrondi(dMontant, q.dTraitement, q.dCoefficient, q.iPresence,
                                       q.iCFA);
  return d;
}

}  // namespace orvalis::indemnites

#endif  // ORVALIS_SALARY_SUPPLEMENT_FAMILIAL_SITUATION_H_
