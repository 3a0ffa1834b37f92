// Small helpers shared by the salary elements: a statutory value that may be left empty,
// and the writing of the five values of a pay line.
#ifndef ORVALIS_SALARY_SALAIRE_OUTILS_H_
#define ORVALIS_SALARY_SALAIRE_OUTILS_H_

#include "orvalis/MethodeCalculG_Nouv.h"

namespace orvalis::salaire {

// A value of the statutory row that the host may leave null or empty: 0 then.
inline double FixeOuZero(MoteurCalcul& m, const char* sChamp) {
  const Value v = Source(m.gRsConstantesFixes, "gRsConstantesFixes").Field(sChamp);
  if (v.EstNull() || (v.EstTexte() && v.Chaine().empty())) return 0;
  return v.Nombre();
}

// An employee line: base, rate and amount, the employer's side at 0.
inline void EcritLigne(SalarieCalculRubrique& Rubrique, double dBase, double dTaux,
                       double dMontant) {
  Rubrique.dBase = dBase;
  Rubrique.dTauxSalarial = dTaux;
  Rubrique.dMontantSalarial = dMontant;
  Rubrique.dTauxPatronal = 0;
  Rubrique.dMontantPatronal = 0;
}

}  // namespace orvalis::salaire

#endif  // ORVALIS_SALARY_SALAIRE_OUTILS_H_
