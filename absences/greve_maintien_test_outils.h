// Checks of the pay lines the strike, waiting-day and maintained-pay handlers write.
#ifndef ORVALIS_ABSENCES_GREVE_MAINTIEN_TEST_OUTILS_H_
#define ORVALIS_ABSENCES_GREVE_MAINTIEN_TEST_OUTILS_H_

#include <gtest/gtest.h>

#include "orvalis/SalarieCalculRubrique.h"

namespace orvalis::absences_test {

// The five values of the line; nothing on the employer's side.
inline void VerifieLigne(const SalarieCalculRubrique& r, double dBase, double dTauxSalarial,
                         double dMontantSalarial) {
  EXPECT_DOUBLE_EQ(r.dBase, dBase);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, dTauxSalarial);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, dMontantSalarial);
  EXPECT_EQ(r.dTauxPatronal, 0.0);
  EXPECT_EQ(r.dMontantPatronal, 0.0);
}

// Marks the five values, to see that a call leaves the line as it was.
inline void Marque(SalarieCalculRubrique& r) {
  r.dBase = 5;
  r.dTauxSalarial = 6;
  r.dMontantSalarial = 7;
  r.dTauxPatronal = 8;
  r.dMontantPatronal = 9;
}

inline void VerifieMarque(const SalarieCalculRubrique& r) {
  EXPECT_EQ(r.dBase, 5.0);
  EXPECT_EQ(r.dTauxSalarial, 6.0);
  EXPECT_EQ(r.dMontantSalarial, 7.0);
  EXPECT_EQ(r.dTauxPatronal, 8.0);
  EXPECT_EQ(r.dMontantPatronal, 9.0);
}

}  // namespace orvalis::absences_test

#endif  // ORVALIS_ABSENCES_GREVE_MAINTIEN_TEST_OUTILS_H_
