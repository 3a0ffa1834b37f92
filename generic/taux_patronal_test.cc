// Rate designations of the employer side, the employer rate lookup and the rate of the CET
// designations.
#include "generic/taux_test_util.h"

namespace orvalis::taux_test {
namespace {

using TauxPatronal = PaieTaux;

TEST_F(TauxPatronal, RechercheTauxPatronalLitPartPatronaleArrondie) {
  Taux("URSAT1", 9.99, 1.234);
  Taux("URSAT2", 9.99, 2.345);
  Taux("URSAT3", 9.99, Value());
  EXPECT_DOUBLE_EQ(m.dRechercheTauxPatronal("URSAT1"), 1.23);
  EXPECT_DOUBLE_EQ(m.dRechercheTauxPatronal("URSAT2"), 2.35);  // half away from zero
  EXPECT_DOUBLE_EQ(m.dRechercheTauxPatronal("URSAT3"), 0.0);   // null
  EXPECT_DOUBLE_EQ(m.dRechercheTauxPatronal("URSAT4"), 0.0);   // no row
}

TEST_F(TauxPatronal, RechercheTauxPatronalSourceVide) {
  EXPECT_DOUBLE_EQ(m.dRechercheTauxPatronal("URSAT1"), 0.0);
}

TEST_F(TauxPatronal, AccidentDeTravailSelonLeTauxUtilise) {
  Taux("URSAT1", 0.0, 1.1);
  Taux("URSAT2", 0.0, 2.2);
  Taux("URSAT3", 0.0, 3.3);
  s.iTauxAtUtilise = 1;
  EXPECT_DOUBLE_EQ(TauxP("TAUX ACCIDENT DE TRAVAIL"), 1.1);
  EXPECT_EQ(type, "T");
  s.iTauxAtUtilise = 2;
  EXPECT_DOUBLE_EQ(TauxP("TAUX ACCIDENT DE TRAVAIL"), 2.2);
  s.iTauxAtUtilise = 3;
  EXPECT_DOUBLE_EQ(TauxP("TAUX ACCIDENT DE TRAVAIL"), 3.3);
  s.iTauxAtUtilise = 0;
  EXPECT_DOUBLE_EQ(TauxP("TAUX ACCIDENT DE TRAVAIL"), 0.0);
  s.iTauxAtUtilise = 4;
  EXPECT_DOUBLE_EQ(TauxP("TAUX ACCIDENT DE TRAVAIL"), 0.0);
}

class TauxCsgProfessionnel : public PaieTaux {
 protected:
  TauxCsgProfessionnel() {
    Constante("~TXCSGPROF", 0.9825);
    Taux("URSDCSG", 6.8, 0.0);
    Taux("URSCSG", 2.4, 0.0);
    Taux("URSRDS", 0.5, 0.0);
  }
};

TEST_F(TauxCsgProfessionnel, ProduitDuCoefficientEtDesTroisTaux) {
  double dTaux = -1;
  EXPECT_TRUE(m.bTauxCsgProfessionnel(dTaux));
  // 0.9825 x (6.8 + 2.4 + 0.5)
  EXPECT_NEAR(dTaux, 9.53025, 1e-12);
}

TEST_F(TauxCsgProfessionnel, RafpCetPatronal) {
  EXPECT_NEAR(TauxP("TAUX COTISATION RAFP CET PATRONAL"), 90.46975, 1e-12);
  EXPECT_EQ(type, "T");
}

TEST_F(TauxCsgProfessionnel, RafpCetSalarial) {
  EXPECT_NEAR(TauxS("TAUX COTISATION RAFP CET SALARIAL"), 90.46975, 1e-12);
  EXPECT_EQ(type, "T");
}

TEST_F(TauxCsgProfessionnel, TotalRachatCet) {
  EXPECT_NEAR(TauxS("TOTAL COTISATIONS RACHAT CET"), 190.46975, 1e-12);
  EXPECT_EQ(type, "T");
}

TEST_F(TauxPatronal, CetSansConstanteNiTaux) {
  double dTaux = -1;
  EXPECT_TRUE(m.bTauxCsgProfessionnel(dTaux));
  EXPECT_DOUBLE_EQ(dTaux, 0.0);
  EXPECT_DOUBLE_EQ(TauxP("TAUX COTISATION RAFP CET PATRONAL"), 100.0);
  EXPECT_DOUBLE_EQ(TauxS("TOTAL COTISATIONS RACHAT CET"), 200.0);
}

}  // namespace
}  // namespace orvalis::taux_test
