// The cross-border worker's tax at source: allowance of 10 %, limits 1500 and 3000 a month
// (50 a day for the first), rates 5 %, 10 % and 20 %.
#include <gtest/gtest.h>

#include "contributions/pas_test_util.h"

namespace orvalis {
namespace {

using pas_test::Constantes;
using pas_test::Cumuls;

class Frontalier : public ::testing::Test {
 protected:
  Frontalier() {
    m.gRsConstantes = Constantes({{"FRONTAB10", 10.0},
                                  {"FRONTTR1J", 50.0},
                                  {"FRONTTR1M", 1500.0},
                                  {"FRONTTR2M", 3000.0},
                                  {"FRONTTX1", 5.0},
                                  {"FRONTTX2", 10.0},
                                  {"FRONTTX3", 20.0}});
    s.iNBJ_Presence_Total = 30;
    r.dTauxPatronal = 9;
    r.dMontantPatronal = 9;
  }
  bool Calcul(double brut, double deductions, double redHS = 0) {
    m.gRsCumuls = Cumuls({{"BRUT", brut}, {"TOTDEDUCT", deductions}, {"ASSREDHS", redHS}});
    return m.Appel_Methode_Calcul_General("RETENUE A LA SOURCE FRONTALIER", s, r);
  }
  void Abattement(double d) {
    m.gRsConstantes->MoveFirst();
    m.gRsConstantes->SetField("Valeur", d);
  }

  MethodeCalculG_Nouv m;
  VarCalculSalarie s;
  SalarieCalculRubrique r;
};

// A full month: N = (4000 - 800) x 90 % = 2880, in the second band: 10 % of 1380 = 138.
TEST_F(Frontalier, FullMonthSecondBand) {
  ASSERT_TRUE(Calcul(4000, 800));
  EXPECT_DOUBLE_EQ(r.dBase, 1380.0);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 10.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 138.0);
  EXPECT_EQ(r.dTauxPatronal, 0.0);
  EXPECT_EQ(r.dMontantPatronal, 0.0);
}

// N = 4000.55 x 90 % = 3600.495: 10 % of 2100.495 = 210.0495 -> 210, then
// 210 + 20 % of 600.495 = 330.099 -> 330.10; the base is N less the first limit.
TEST_F(Frontalier, FullMonthThirdBand) {
  ASSERT_TRUE(Calcul(5000.55, 1000));
  EXPECT_NEAR(r.dBase, 2100.495, 1e-9);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 20.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 330.1);
}

// Below the first limit: (1500 - 300) x 90 % = 1080; the rate is shown, nothing is due.
TEST_F(Frontalier, BelowTheFirstLimitShowsTheRate) {
  r.dBase = 7;
  ASSERT_TRUE(Calcul(1500, 300));
  EXPECT_EQ(r.dBase, 0.0);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 5.0);
  EXPECT_EQ(r.dMontantSalarial, 0.0);
}

// 20 days: first limit 20 x 50 = 1000, the second 20 x 3000 = 60000 (the monthly figure
// times the days): 2880 - 1000 = 1880 at 10 % = 188.
TEST_F(Frontalier, MonthNotWorkedInFull) {
  s.iNBJ_Presence_Total = 20;
  ASSERT_TRUE(Calcul(4000, 800));
  EXPECT_DOUBLE_EQ(r.dBase, 1880.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 188.0);
}

// 29 days is not a full month: 29 x 50 = 1450 and 29 x 3000 = 87000; 2880 - 1450 = 1430 at
// 10 % = 143. 31 days is: the monthly limits, 138.
TEST_F(Frontalier, DaysAroundAFullMonth) {
  s.iNBJ_Presence_Total = 29;
  ASSERT_TRUE(Calcul(4000, 800));
  EXPECT_DOUBLE_EQ(r.dBase, 1430.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 143.0);
  s.iNBJ_Presence_Total = 31;
  ASSERT_TRUE(Calcul(4000, 800));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 138.0);
}

// The day count is multiplied as a number, never in 16 bits: the lowest count gives limits of
// -32768 x 50 = -1638400 and -32768 x 3000 = -98304000, and the whole net is in the third band:
// 10 % of 1641280 = 164128, + 20 % of 98306880 = 19825504.
TEST_F(Frontalier, LowestDayCountDoesNotOverflow) {
  s.iNBJ_Presence_Total = -32768;
  ASSERT_TRUE(Calcul(4000, 800));
  EXPECT_DOUBLE_EQ(r.dBase, 1641280.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 19825504.0);
}

// No day of presence: both limits 0, all in the third band:
// 10 % of 2880 = 288, + 20 % of 2880 = 864.
TEST_F(Frontalier, NoDayOfPresence) {
  s.iNBJ_Presence_Total = 0;
  ASSERT_TRUE(Calcul(4000, 800));
  EXPECT_DOUBLE_EQ(r.dBase, 2880.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 864.0);
}

// Allowance of 20 %: N = 1875 x 80 % = 1500, the first limit exactly: second band, nothing
// above it. N = 3750 x 80 % = 3000, the second limit exactly: third band, 10 % of 1500 = 150.
TEST_F(Frontalier, LimitsReachedExactly) {
  Abattement(20);
  ASSERT_TRUE(Calcul(1875, 0));
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 10.0);
  EXPECT_EQ(r.dBase, 0.0);
  EXPECT_EQ(r.dMontantSalarial, 0.0);
  ASSERT_TRUE(Calcul(3750, 0));
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 20.0);
  EXPECT_DOUBLE_EQ(r.dBase, 1500.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 150.0);
}

// A half euro rounds away: N = 3606.25 x 80 % = 2885; 10 % of 1385 = 138.5 -> 139.
TEST_F(Frontalier, HalfEuroRoundsAway) {
  Abattement(20);
  ASSERT_TRUE(Calcul(3606.25, 0));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 139.0);
}

// Overtime relieved of tax leaves the net: (4000 - 800 - 200) x 90 % = 2700; 10 % of 1200.
// Without the flag the total is not read.
TEST_F(Frontalier, OvertimeRelief) {
  s.bCalculReductionSurHS = true;
  ASSERT_TRUE(Calcul(4000, 800, 200));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 120.0);
  s.bCalculReductionSurHS = false;
  ASSERT_TRUE(Calcul(4000, 800, 200));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 138.0);
}

// Deductions above the gross: a negative net is below the first limit.
TEST_F(Frontalier, NegativeNet) {
  ASSERT_TRUE(Calcul(100, 300));
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 5.0);
  EXPECT_EQ(r.dMontantSalarial, 0.0);
}

TEST_F(Frontalier, EmptyTotalsAndConstants) {
  m.gRsConstantes = Constantes({});
  m.gRsCumuls = Cumuls({});
  ASSERT_TRUE(m.Appel_Methode_Calcul_General("RETENUE A LA SOURCE FRONTALIER", s, r));
  EXPECT_EQ(r.dBase, 0.0);
  EXPECT_EQ(r.dMontantSalarial, 0.0);
}

}  // namespace
}  // namespace orvalis
