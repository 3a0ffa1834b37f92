// The ZRR exemption of December 2024 (hourly minimum 11.88): full, degressive or none.
#include <gtest/gtest.h>

#include "contributions/reductions_test_util.h"

namespace orvalis {
namespace {

class ExonerationZrr : public reductions_test::AnneeDePaie {
 protected:
  ExonerationZrr() {
    s.dTauxExoZRRCotSS = 0.28;
    s.dTauxExoZRRFnal = 0.005;
    s.dTauxExoZRRTransport = 0.0175;
    // A line that held figures before: every one is written again.
    r.dBase = 9;
    r.dTauxSalarial = 9;
    r.dMontantSalarial = 9;
    r.dTauxPatronal = 9;
  }
  void Totaux(double assurs, double fnal, double heures = 151.67) {
    Cumul("ASSURSTOT", assurs);
    Cumul("ASSFNALCAL", fnal);
    Cumul("HEURES", heures);
  }
  bool Zrr(const char* code, Int16 type) {
    r.sCodeRubrique = code;
    s.iTypeExoZRR = type;
    return m.Appel_Methode_Calcul_General("EXONERATION ZRR", s, r);
  }
  void LigneEcrite() {
    EXPECT_EQ(r.dBase, 0.0);
    EXPECT_EQ(r.dTauxSalarial, 0.0);
    EXPECT_EQ(r.dMontantSalarial, 0.0);
    EXPECT_EQ(r.dTauxPatronal, 0.0);
  }
};

// Full rate: 2000 x -28 / 100 = -560.00.
TEST_F(ExonerationZrr, FullRateOnSocialSecurity) {
  Totaux(2000, 1800);
  ASSERT_TRUE(Zrr("REDCOTZRRC", 1));
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, -560.0);
  LigneEcrite();
}

// The housing fund on its capped base: 1800 x -0.5 / 100 = -9.00; transport 2000 x -1.75 %.
TEST_F(ExonerationZrr, FullRateOnHousingFundAndTransport) {
  Totaux(2000, 1800);
  ASSERT_TRUE(Zrr("REDCOTZRRF", 0));
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, -9.0);
  ASSERT_TRUE(Zrr("REDCOTZRRT", 1));
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, -35.0);
}

// Any type but 2 and 3 is the full rate, down to the ends of the 16-bit range.
TEST_F(ExonerationZrr, ExtremeTypesAreTheFullRate) {
  Totaux(2000, 1800);
  for (Int16 type : {Int16(-32768), Int16(0), Int16(4), Int16(32767)}) {
    r.dMontantPatronal = 9;
    ASSERT_TRUE(Zrr("REDCOTZRRC", type));
    EXPECT_DOUBLE_EQ(r.dMontantPatronal, -560.0);
  }
}

TEST_F(ExonerationZrr, OtherCodeHasNoRate) {
  Totaux(2000, 1800);
  r.dMontantPatronal = 9;
  ASSERT_TRUE(Zrr("REDCOTZRRX", 1));
  EXPECT_EQ(r.dMontantPatronal, 0.0);
}

TEST_F(ExonerationZrr, NoExemptionStillWritesTheLine) {
  Totaux(2000, 1800);
  r.dMontantPatronal = 9;
  ASSERT_TRUE(Zrr("REDCOTZRRC", 3));
  EXPECT_EQ(r.dMontantPatronal, 0.0);
  LigneEcrite();
}

// Degressive, hourly model: Q = 151.67 x 11.88 = 1801.8396; U = 0.3025;
// E = U / 0.9 x (1801.8396 x 3.6 / 2000 - 1.5) = 0.3361111 x 1.7433113 = 0.585946 -> 0.586;
// T = 0.28 x 0.586 / 0.3025 = 0.5424132; 2000 x -54.24132 % = -1084.83.
TEST_F(ExonerationZrr, DegressiveOnPaidHours) {
  Totaux(2000, 1800);
  ASSERT_TRUE(Zrr("REDCOTZRRC", 2));
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, -1084.83);
  ASSERT_TRUE(Zrr("REDCOTZRRT", 2));
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, -67.8);  // 2000 x 0.0175 x 0.586 / 0.3025 = 67.80
}

// The housing fund: the factor on ASSURSTOT (0.586 as above), the amount on ASSFNALCAL:
// 1800 x 0.005 x 0.586 / 0.3025 = 17.4347 -> -17.43.
TEST_F(ExonerationZrr, DegressiveHousingFundFactorOnTheSocialSecurityBase) {
  Totaux(2000, 1800);
  ASSERT_TRUE(Zrr("REDCOTZRRF", 2));
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, -17.43);
}

// Index model at 80 %: Q = 11.88 x 151.67 x (1 x 0.8) = 1441.47168, no rounding;
// E = 0.3361111 x (1441.47168 x 3.6 / 1600 - 1.5) -> 0.586; 1600 x -54.24132 % = -867.86.
TEST_F(ExonerationZrr, DegressiveIndexModelFromQuadrants) {
  Totaux(1600, 1600, 0);
  s.sTypeModele = "INDTIT";
  s.dCoefficient_IATA = 1;
  s.dCoefficient_TraitementTA = 0.8;
  ASSERT_TRUE(Zrr("REDCOTZRRC", 2));
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, -867.86);
}

// Index change mid-month and a legal week of 39 hours: H = 11.88 x 35 / 39 = 10.6615385;
// Q = H x 151.67 x ((0 + 0.5) x 0.9 + (0.5 + 0) x 1) = 1536.1837615;
// E = 0.3361111 x (1536.1837615 x 3.6 / 1600 - 1.5) = 0.657975 -> 0.658;
// T = 0.28 x 0.658 / 0.3025 = 0.6090579; 1600 x -60.90579 % = -974.49.
TEST_F(ExonerationZrr, DegressiveNonTitularQuadrantsAndLegalWeek) {
  Totaux(1600, 1600, 0);
  s.sTypeModele = "INDNTI";
  s.dDureeHebdoLegale = 39;
  s.dCoefficient_IATA = 0.5;
  s.dCoefficient_INTN = 0.5;
  s.dCoefficient_TraitementTA = 1;
  s.dCoefficient_TraitementTN = 0.9;
  ASSERT_TRUE(Zrr("REDCOTZRRC", 2));
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, -974.49);
}

// Pay well above the minimum turns the factor negative, and the exemption into a charge:
// E = 0.3361111 x (1801.8396 x 3.6 / 5000 - 1.5) = -0.068; 5000 x 0.28 x 0.068 / 0.3025 x 100 %
// = 314.71.
TEST_F(ExonerationZrr, DegressiveFactorIsNotBounded) {
  Totaux(5000, 3000);
  ASSERT_TRUE(Zrr("REDCOTZRRC", 2));
  EXPECT_DOUBLE_EQ(r.dMontantPatronal, 314.71);
}

TEST_F(ExonerationZrr, DegressiveWithoutBaseFaults) {
  Totaux(0, 0);
  r.dMontantPatronal = 9;
  EXPECT_FALSE(Zrr("REDCOTZRRC", 2));
  EXPECT_EQ(r.dMontantPatronal, 9.0);
}

TEST_F(ExonerationZrr, DegressiveWithoutRatesFaults) {
  Totaux(2000, 1800);
  s.dTauxExoZRRCotSS = 0;
  s.dTauxExoZRRFnal = 0;
  s.dTauxExoZRRTransport = 0;
  EXPECT_FALSE(Zrr("REDCOTZRRC", 2));
  // Without degression no rate is no exemption, and no fault.
  EXPECT_TRUE(Zrr("REDCOTZRRC", 1));
  EXPECT_EQ(r.dMontantPatronal, 0.0);
}

}  // namespace
}  // namespace orvalis
