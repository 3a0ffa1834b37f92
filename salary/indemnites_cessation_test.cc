// The progressive end of activity and the end of activity, through the calculation entry.
#include <algorithm>

#include "salary/salaire_test_outils.h"

namespace orvalis::salaire_test {
namespace {

class Cessation : public PaieSalaire {
 protected:
  Cessation() {
    s.sTypeModele = "INDTIT";
    s.iNBJ_Presence_Total = 30;
    s.dSalaire_MensuelReelINTA = 1000;
    s.dSalaire_MensuelReelINTN = 2000;
    Fixe("Point", 59.0734);
    Fixe("IndMinRemuneration", 366.0);
    LigneDuHote();
  }
};

TEST_F(Cessation, CpaSansJoursOuHorsModeleIndiciaire) {
  ASSERT_TRUE(Calcul("CPA"));
  LigneDuHoteIntacte();
  s.iNBJ_CPAINTN = 30;
  s.sTypeModele = "HORAIR";
  ASSERT_TRUE(Calcul("CPA"));
  LigneDuHoteIntacte();
  s.sTypeModele = "INDNTI";
  s.iNBJ_Presence_Total = 0;
  ASSERT_TRUE(Calcul("CPA"));
  LigneDuHoteIntacte();
}

TEST_F(Cessation, CpaAuProrataDuDemiTraitement) {
  s.iNBJ_CPAINTA = 10;
  s.iNBJ_CPAINTN = 20;
  s.iNBJ_DemiTraitement_Total = 10;
  s.dCoefficient_DemiTraitement = 0.5;
  ASSERT_TRUE(Calcul("CPA"));
  // (1000 x 10 + 2000 x 20) / 30 = 1666.666...; prorated (30 - 10) x it / 30
  // + 10 x it x 0.5 / 30 = it x 25 / 30
  const double dMontant = 50000.0 / 30;
  Ligne(dMontant, 0, dMontant * 25 / 30);
}

TEST_F(Cessation, CfaAuMoinsLIndiceMinimum) {
  s.iNBJ_CFAINTA = 10;
  s.iNBJ_CFAINTN = 5;
  ASSERT_TRUE(Calcul("CFA"));
  // (1000 x 10 + 2000 x 5) / 30 = 666.67 < the minimum month Arrondi(Arrondi(366 x 59.0734,
  // 2) / 12 - 0.0049, 2) = Arrondi(1801.7334, 2) = 1801.73, for 15 days of 30: 900.865
  Ligne(20000.0 / 30, 0, 900.865);
}

TEST_F(Cessation, CfaAuDessusDuMinimum) {
  s.dSalaire_MensuelReelINTN = 3000;
  s.iNBJ_CFAINTN = 30;
  ASSERT_TRUE(Calcul("CFA"));
  Ligne(3000, 0, 3000);  // 3000 x 30 / 30 > 1801.73
}

TEST_F(Cessation, CfaSansIndiceMinimum) {
  Fixe("IndMinRemuneration", "");
  s.iNBJ_CFAIATN = 15;
  s.dSalaire_MensuelReelIATN = 600;
  ASSERT_TRUE(Calcul("CFA"));
  Ligne(300, 0, 300);  // 600 x 15 / 30
}

TEST_F(Cessation, CfaSansJoursOuHorsModeleIndiciaire) {
  ASSERT_TRUE(Calcul("CFA"));
  LigneDuHoteIntacte();
  s.iNBJ_CFAINTN = 30;
  s.sTypeModele = "CONTRA";
  ASSERT_TRUE(Calcul("CFA"));
  LigneDuHoteIntacte();
}

}  // namespace
}  // namespace orvalis::salaire_test
