// The two engines side by side on the lines of the salary elements: the employee's
// variables, and a check that both wrote the same employee line.
#ifndef ORVALIS_HISTORIC_LIGNES_TEST_OUTILS_H_
#define ORVALIS_HISTORIC_LIGNES_TEST_OUTILS_H_

#include <string>

#include "historic/historique_test_outils.h"

namespace orvalis::historique_test {

class DeuxLignes : public DeuxMoteurs {
 protected:
  void Var(const std::string& code, double valeur) {
    paie_test::AjouteVariable(vars, code, valeur, 0, Value(), "M");
  }
  // Both engines wrote this employee line and no employer part.
  void MemeLigne(double dBase, double dTaux, double dMontant) {
    for (const SalarieCalculRubrique* l : {&rN, &rH}) {
      EXPECT_NEAR(l->dBase, dBase, 1e-9);
      EXPECT_NEAR(l->dTauxSalarial, dTaux, 1e-9);
      EXPECT_NEAR(l->dMontantSalarial, dMontant, 1e-9);
      EXPECT_EQ(l->dTauxPatronal, 0.0);
      EXPECT_EQ(l->dMontantPatronal, 0.0);
    }
  }
};

}  // namespace orvalis::historique_test

#endif  // ORVALIS_HISTORIC_LIGNES_TEST_OUTILS_H_
