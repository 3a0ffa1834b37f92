// The special duties allowance and the Corsica transport allowance, through the
// calculation entry.
#include "salary/salaire_test_outils.h"

namespace orvalis::salaire_test {
namespace {

class Sujetions : public PaieSalaire {
 protected:
  Sujetions() {
    s.dBase_HSN = 23629.36;  // Arrondi(400 x 59.0734, 2)
    s.dBase_HSA = 21620.86;  // Arrondi(366 x 59.0734, 2)
    s.dCoefficient_INTN = 1;
    s.iNBJ_PresenceINTN = 30;
    LigneDuHote();
  }
  // The index changed on the 11th: 10 days on the old one, 20 on the new.
  void IndiceLe11() {
    s.dCoefficient_IATN = 10 / 30.0;
    s.dCoefficient_INTN = 20 / 30.0;
    s.iNBJ_PresenceIATN = 10;
    s.iNBJ_PresenceINTN = 20;
  }
};

TEST_F(Sujetions, UnMoisSurLeNouvelIndice) {
  ASSERT_TRUE(Calcul("SUJETIONS SPECIALES"));
  Ligne(23629.36, 0, 1969.11);  // Arrondi(23629.36 / 12 - 0.0049, 2) = Arrondi(1969.1084, 2)
}

TEST_F(Sujetions, UnChangementDIndiceLe11) {
  IndiceLe11();
  ASSERT_TRUE(Calcul("SUJETIONS SPECIALES"));
  // 23629.36 x 20 / 30 + 21620.86 x 10 / 30 = 15752.9067 + 7206.9533 = 22959.86;
  // Arrondi(22959.86 / 12 - 0.0049, 2) = Arrondi(1913.3168, 2)
  Ligne(22959.86, 0, 1913.32);
}

TEST_F(Sujetions, LesJoursDeFinDActiviteEtDeFormationNeComptentPas) {
  IndiceLe11();
  s.iNBJ_CFAINTN = 3;
  s.iNBJ_CongeFormationINTA = 2;
  ASSERT_TRUE(Calcul("SUJETIONS SPECIALES"));
  // new: 23629.36 x 20 / 30 x (20 - 5) / 20 = 11814.68; old 7206.9533; sum 19021.6333;
  // Arrondi(19021.6333 / 12 - 0.0049, 2) = Arrondi(1585.1312, 2)
  Ligne(11814.68 + 21620.86 / 3, 0, 1585.13);
}

TEST_F(Sujetions, SansPresence) {
  s.iNBJ_PresenceINTN = 0;
  ASSERT_TRUE(Calcul("SUJETIONS SPECIALES"));
  Ligne(0, 0, 0);  // Arrondi(-0.0049, 2) is 0
}

class TransportCorse : public PaieSalaire {
 protected:
  TransportCorse() {
    BaseAutreLigne(2000);
    Constante("TXTRANCOR3", 0.05);
    LigneDuHote();
  }
};

TEST_F(TransportCorse, SansBornes) {
  ASSERT_TRUE(Calcul("INDEMNITE TRANSPORT CORSE"));
  Ligne(2000, 0.05, 100);  // 2000 x 0.05
}

TEST_F(TransportCorse, ReleveAuPlancher) {
  Constante("INDTRANCOR1", 500.0);
  Constante("TXTRANCOR1", 0.3);
  Constante("INDTRANCOR2", 1000.0);
  Constante("TXTRANCOR2", 0.2);
  ASSERT_TRUE(Calcul("INDEMNITE TRANSPORT CORSE"));
  Ligne(2000, 0.05, 150);  // 100 < 500 x 0.3
}

TEST_F(TransportCorse, RameneAuPlafond) {
  Constante("INDTRANCOR2", 1000.0);
  Constante("TXTRANCOR2", 0.08);
  ASSERT_TRUE(Calcul("INDEMNITE TRANSPORT CORSE"));
  Ligne(2000, 0.05, 80);  // 100 > 1000 x 0.08
}

TEST_F(TransportCorse, SansBaseLaLigneResteDuHote) {
  BaseAutreLigne(0);
  ASSERT_TRUE(Calcul("INDEMNITE TRANSPORT CORSE"));
  LigneDuHoteIntacte();
}

}  // namespace
}  // namespace orvalis::salaire_test
