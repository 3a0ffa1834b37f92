// The pay run of the tests of the salary elements: the generic run of March 2024, with the
// statutory columns of overtime and of the indexed allowances, an employee on a legal week
// of 35 hours, and a check of the five values of a pay line.
#ifndef ORVALIS_SALARY_SALAIRE_TEST_OUTILS_H_
#define ORVALIS_SALARY_SALAIRE_TEST_OUTILS_H_

#include <gtest/gtest.h>

#include <string>

#include "generic/taux_test_util.h"

namespace orvalis::salaire_test {

class PaieSalaire : public taux_test::PaieTaux {
 protected:
  PaieSalaire() {
    for (const char* c : {"HSBorne", "IndMinRemuneration", "IndResid", "IndInform", "IndFndSol"}) {
      m.gRsConstantesFixes->AjouteColonne(c);
      m.gRsConstantesFixesHistorique->AjouteColonne(c);
    }
    s.dDureeHebdoLegale = 35;
  }

  void Var(const std::string& code, const Value& valeur) { Variable(vars, code, valeur); }

  // The five values of the line, to the cent.
  void Ligne(double dBase, double dTaux, double dMontant) const {
    EXPECT_NEAR(r.dBase, dBase, 1e-9);
    EXPECT_NEAR(r.dTauxSalarial, dTaux, 1e-9);
    EXPECT_NEAR(r.dMontantSalarial, dMontant, 1e-9);
    EXPECT_EQ(r.dTauxPatronal, 0.0);
    EXPECT_EQ(r.dMontantPatronal, 0.0);
  }

  // A line the host passed with values of its own, to see what a handler leaves.
  void LigneDuHote() {
    r.dBase = 1;
    r.dTauxSalarial = 2;
    r.dMontantSalarial = 3;
    r.dTauxPatronal = 4;
    r.dMontantPatronal = 5;
  }
  void LigneDuHoteIntacte() const {
    EXPECT_EQ(r.dBase, 1.0);
    EXPECT_EQ(r.dTauxSalarial, 2.0);
    EXPECT_EQ(r.dMontantSalarial, 3.0);
    EXPECT_EQ(r.dTauxPatronal, 4.0);
    EXPECT_EQ(r.dMontantPatronal, 5.0);
  }
};

}  // namespace orvalis::salaire_test

#endif  // ORVALIS_SALARY_SALAIRE_TEST_OUTILS_H_
