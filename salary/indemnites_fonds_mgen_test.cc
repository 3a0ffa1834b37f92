// The solidarity fund and the MGEN contribution, through the calculation entry.
#include "salary/salaire_test_outils.h"

namespace orvalis::salaire_test {
namespace {

// Threshold: Arrondi(59.07 x 287 / 12 - 0.0049, 2) = Arrondi(1412.7526, 2) = 1412.75.
class FondsSolidarite : public PaieSalaire {
 protected:
  FondsSolidarite() {
    s.bSoumisFondsSolidarite = true;
    Fixe("Point", 59.0734);
    Fixe("IndFndSol", 287.0);
    Cumul("ASSFNDSOL", 2000.456);  // read to the cent: 2000.46
    Taux("FDS", 1.0, Value(), 7);
    r.lIdTaux = 7;
    LigneDuHote();
  }
};

TEST_F(FondsSolidarite, AuDessusDuSeuil) {
  Cumul("SEUILFONDS", 1412.76);
  ASSERT_TRUE(Calcul("FONDS DE SOLIDARITE"));
  EXPECT_DOUBLE_EQ(r.dBase, 2000.46);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 1.0);
  EXPECT_NEAR(r.dMontantSalarial, 20.0046, 1e-12);  // 2000.46 x 1 / 100, not rounded
  EXPECT_EQ(r.dTauxPatronal, 0.0);                  // a null rate
  EXPECT_EQ(r.dMontantPatronal, 0.0);
}

TEST_F(FondsSolidarite, LeSeuilAtteintNeSuffitPas) {
  Cumul("SEUILFONDS", 1412.75);
  ASSERT_TRUE(Calcul("FONDS DE SOLIDARITE"));
  LigneDuHoteIntacte();
}

TEST_F(FondsSolidarite, LesTauxAQuatreDecimalesLesMontantsSurLeTauxLu) {
  Cumul("SEUILFONDS", 5000.0);
  Taux("FDS2", 1.23456, 0.5, 8);
  r.lIdTaux = 8;
  ASSERT_TRUE(Calcul("FONDS DE SOLIDARITE"));
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 1.2346);
  EXPECT_NEAR(r.dMontantSalarial, 24.696878976, 1e-9);  // 2000.46 x 1.23456 / 100
  EXPECT_DOUBLE_EQ(r.dTauxPatronal, 0.5);
  EXPECT_NEAR(r.dMontantPatronal, 10.0023, 1e-12);  // 2000.46 x 0.5 / 100
}

TEST_F(FondsSolidarite, NonSoumis) {
  s.bSoumisFondsSolidarite = false;
  Cumul("SEUILFONDS", 5000.0);
  ASSERT_TRUE(Calcul("FONDS DE SOLIDARITE"));
  LigneDuHoteIntacte();
}

// Base 2500 from another line, rate 2.5 %, month treatment 2000.
class Mgen : public PaieSalaire {
 protected:
  Mgen() {
    BaseAutreLigne(2500);
    TauxSalarialConstante("TXMGEN", 2.5, "T");
    s.dSalaire_MensuelINTN = 1500;
    s.dSalaire_MensuelIATN = 500;
    Constante("COTMINMGEN", 10.0);
    Constante("COTMAXMGEN", 100.0);
    Constante("COTMINMG30", 15.0);
    Constante("COTMAXMG30", 40.0);
    LigneDuHote();
  }
};

TEST_F(Mgen, LeTraitementSortDeLaBase) {
  Cumul("ASSMGEN", 2500.0);
  ASSERT_TRUE(Calcul("MGEN"));
  Ligne(500, 2.5, 12.5);  // (2500 - 2000) x 2.5 / 100
}

TEST_F(Mgen, UnTotalQuiNeDepassePasLeTraitement) {
  Cumul("ASSMGEN", 2000.0);
  ASSERT_TRUE(Calcul("MGEN"));
  Ligne(2500, 2.5, 62.5);  // 2500 x 2.5 / 100
}

TEST_F(Mgen, SousLeMinimum) {
  Cumul("ASSMGEN", 2500.0);
  ASSERT_TRUE(Calcul("MGEN (-30 ans)"));
  Ligne(0, 0, 15);  // 12.5 < 15, the minimum under 30
}

TEST_F(Mgen, AuDessusDuMaximum) {
  ASSERT_TRUE(Calcul("MGEN (-30 ans)"));
  Ligne(0, 0, 40);  // 62.5 > 40
  ASSERT_TRUE(Calcul("MGEN"));
  Ligne(2500, 2.5, 62.5);  // within 10 and 100
}

TEST_F(Mgen, SansMaximumPasDePlafond) {
  m.gRsConstantes = NouveauRecordset({"CodeConstante", "IdConstante", "Valeur", "TauxMontant"});
  TauxSalarialConstante("TXMGEN", 2.5, "T");
  ASSERT_TRUE(Calcul("MGEN"));
  Ligne(2500, 2.5, 62.5);
}

}  // namespace
}  // namespace orvalis::salaire_test
