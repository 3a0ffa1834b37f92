// The officials' fixed index of the historic engine beside the current one.
#include "historic/historique_test_outils.h"

namespace orvalis::historique_test {
namespace {

class IndiceElusHistoriqueTest : public DeuxMoteurs {
 protected:
  IndiceElusHistoriqueTest() {
    n.gRsConstantesFixesHistorique = NouveauRecordset({"Mois", "Point"});
    h.gRsConstantesFixesHistorique = n.gRsConstantesFixesHistorique;
    for (const char* mois : {"200610", "200611", "202403"}) {
      n.gRsConstantesFixesHistorique->AddNew();
      n.gRsConstantesFixesHistorique->SetField("Mois", mois);
      n.gRsConstantesFixesHistorique->SetField("Point", 54.0);
    }
    Constante("INDMAJELU", 1027.0);
  }
  double Historique(const std::string& sPeriode, double dTaux) {
    double d = 0;
    return h.dRechercheIndMajEluPeriode(s, sPeriode, "0", d, dTaux);
  }
  double Courant(const std::string& sPeriode, double dTaux) {
    double d = 0;
    return n.dRechercheIndMajEluPeriode(s, sPeriode, "0", d, dTaux);
  }
};

// October 2006: 820 x 54 = 44280 a year, 3690.00 a month, half of it 1845.00.
// November 2006: 821 x 54 = 44334, 3694.50 a month, half 1847.25.
TEST_F(IndiceElusHistoriqueTest, FixedIndexOnEitherSideOfNovember2006) {
  EXPECT_DOUBLE_EQ(Historique("01/10/2006", 0.5), 1845.0);
  EXPECT_DOUBLE_EQ(Historique("01/11/2006", 0.5), 1847.25);
  EXPECT_DOUBLE_EQ(Courant("01/10/2006", 0.5), 1845.0);
}

// In 2024 the current engine reads "INDMAJELU" (1027 x 54 = 55458, 4621.50 a month); the
// historic one keeps 821: 3694.50.
TEST_F(IndiceElusHistoriqueTest, ConstantNotReadHere) {
  EXPECT_DOUBLE_EQ(Courant("01/03/2024", 1), 4621.5);
  EXPECT_DOUBLE_EQ(Historique("01/03/2024", 1), 3694.5);
}

// Without a rate, the month's treatment coefficient, not the mayor's rate: 40 % here.
TEST_F(IndiceElusHistoriqueTest, NoRateGivenTakesTheTreatmentCoefficient) {
  s.dTauxMaire = 90;
  s.dCoefficient_Traitement = 0.4;
  EXPECT_NEAR(Historique("01/11/2006", -1), 1477.8, 1e-9);  // 3694.50 x 0.4
  EXPECT_NEAR(Courant("01/11/2006", -1), 3325.05, 1e-9);    // 3694.50 x 0.9
}

}  // namespace
}  // namespace orvalis::historique_test
