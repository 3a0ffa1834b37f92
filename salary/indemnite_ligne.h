// Two steps of the allowances of the statutory pay: the full month on a yearly amount, and a
// line with no employer part.
#ifndef ORVALIS_SALARY_INDEMNITE_LIGNE_H_
#define ORVALIS_SALARY_INDEMNITE_LIGNE_H_

#include "orvalis/ModOutilsSpec.h"
#include "orvalis/SalarieCalculRubrique.h"

namespace orvalis::indemnites {

// A full month of a yearly amount on an index: Round2(annual / 12 - 0.0049).
inline double MensuelPlein(double dAnnuel) { return Arrondi(dAnnuel / 12 - 0.0049, 2); }

// The employee part of a line; the employer part is 0.
inline void Ligne(SalarieCalculRubrique& r, double dBase, double dTaux, double dMontant) {
  r.dBase = dBase;
  r.dTauxSalarial = dTaux;
  r.dMontantSalarial = dMontant;
  r.dTauxPatronal = 0;
  r.dMontantPatronal = 0;
}

}  // namespace orvalis::indemnites

#endif  // ORVALIS_SALARY_INDEMNITE_LIGNE_H_
