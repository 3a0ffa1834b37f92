// The compensation of the CSG rise. Its amount goes through the half-pay proration of the
// salary elements: until that lands, these tests are skipped rather than faulting.
#include <algorithm>

#include "generic/taux_test_util.h"

namespace orvalis::taux_test {
namespace {

// An agent paid 30000 in 2017 with 120 of contributions to subtract, present the whole month:
// C = (30000 x 1.6702 % - 120) x 1.1053 / 12 = 381.06 x 1.1053 / 12 = 35.0988015.
class CompensationHausseCsg : public PaieTaux {
 protected:
  void SetUp() override {
    m.gPeriodeEncours = "01/03/2018";
    Variable(vars, "R2017", 30000.0);
    Variable(vars, "C2017", 120.0);
    s.iNBJ_Presence_Total = 30;
    s.sTypeModele = "INDTIT";
    s.dCoefficient_IATA = 1;
    s.dCoefficient_TraitementTA = 1;
    s.dCoefficient_TraitementTN = 1;
  }
  bool Compensation() { return Calcul("COMPENSATION HAUSSE CSG"); }
};

TEST_F(CompensationHausseCsg, FullMonthFrom2017Pay) {
  r.dTauxPatronal = 9;
  r.dMontantPatronal = 9;
  ASSERT_TRUE(Compensation());
  EXPECT_DOUBLE_EQ(r.dBase, 35.1);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 35.1);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 1.0);
  EXPECT_DOUBLE_EQ(r.dCoefficientVariationTempsCompensationCSG, 1.0);
  EXPECT_EQ(r.dTauxPatronal, 0.0);
  EXPECT_EQ(r.dMontantPatronal, 0.0);
}

// 2019 exactly: raised by 31000 / 30000 (36.27), not yet by 2019's pay; 2020: also by
// 32000 / 31000 (37.44).
TEST_F(CompensationHausseCsg, RaisedByLaterYears) {
  Variable(vars, "R2018", 31000.0);
  Variable(vars, "R2019", 32000.0);
  m.gPeriodeEncours = "01/01/2019";
  ASSERT_TRUE(Compensation());
  EXPECT_DOUBLE_EQ(r.dBase, 36.27);
  m.gPeriodeEncours = "01/01/2020";
  ASSERT_TRUE(Compensation());
  EXPECT_DOUBLE_EQ(r.dBase, 37.44);
}

// 2018 pay not above 2017's: no raise in 2019; in 2020 the raise by 32000 / 29000 still
// applies (38.73).
TEST_F(CompensationHausseCsg, NoRaiseWhen2018IsNotAbove2017) {
  Variable(vars, "R2018", 29000.0);
  Variable(vars, "R2019", 32000.0);
  m.gPeriodeEncours = "01/06/2019";
  ASSERT_TRUE(Compensation());
  EXPECT_DOUBLE_EQ(r.dBase, 35.1);
  m.gPeriodeEncours = "01/06/2020";
  ASSERT_TRUE(Compensation());
  EXPECT_DOUBLE_EQ(r.dBase, 38.73);
}

// A sum given directly replaces the whole calculation.
TEST_F(CompensationHausseCsg, SumGivenDirectly) {
  Variable(vars, "R2018", 31000.0);
  Variable(vars, "MTICCSG", 40.0);
  m.gPeriodeEncours = "01/01/2020";
  ASSERT_TRUE(Compensation());
  EXPECT_DOUBLE_EQ(r.dBase, 40.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 40.0);
}

// Without 2017 pay: 0.76 % of the 2018 base, 25000 x 0.76 % = 190.
TEST_F(CompensationHausseCsg, Without2017PayFrom2018Base) {
  vars = paie_test::NouvellesVariables();
  Variable(vars, "ICCSG2018", 25000.0);
  ASSERT_TRUE(Compensation());
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 190.0);
}

TEST_F(CompensationHausseCsg, NothingToCompensate) {
  vars = paie_test::NouvellesVariables();
  ASSERT_TRUE(Compensation());
  EXPECT_EQ(r.dBase, 0.0);
  EXPECT_EQ(r.dMontantSalarial, 0.0);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 1.0);
}

// A coefficient of 0.8 (read to 4 places: 0.80004 is 0.8): 0.8 x 35.0988015 = 28.08; the
// base stays the sum before it.
TEST_F(CompensationHausseCsg, CoefficientOfTheAgent) {
  Variable(varsHisto, "ICCSGCOEF", 0.80004);
  ASSERT_TRUE(Compensation());
  EXPECT_DOUBLE_EQ(r.dBase, 35.1);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 28.08);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 0.8);
  EXPECT_DOUBLE_EQ(r.dCoefficientVariationTempsCompensationCSG, 0.8);
}

// 15 days of half pay at 0.5: (30 - 15) / 30 + 15 x 0.5 / 30 = 0.75 of C = 26.32.
TEST_F(CompensationHausseCsg, HalfPayDays) {
  s.iNBJ_DemiTraitement_Total = 15;
  s.dCoefficient_DemiTraitement = 0.5;
  ASSERT_TRUE(Compensation());
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 26.32);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 0.75);
}

// 10 days of full-time maternity leave: out of the presence share (20 / 30) and back at one
// thirtieth a day: the whole sum.
TEST_F(CompensationHausseCsg, MaternityDaysKeepTheSum) {
  s.iNBJ_CongeMaterniteTempsComplet_Total = 10;
  ASSERT_TRUE(Compensation());
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 35.1);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 1.0);
}

// Hours cut from 35 to 28 on 16 March 2024, with an index change the same day:
// (0 + 0.5) x 0.8 / 1 + 0 + 0.5 = 0.9 of C = 31.59; W = 0.8 x 1 / 1.
TEST_F(CompensationHausseCsg, HoursChangedSince2018) {
  m.gPeriodeEncours = "01/03/2024";
  s.sDateChangementHeures = "16/03/2024";
  s.dCoefficient_IATA = 0.5;
  s.dCoefficient_IATN = 0.5;
  s.dCoefficient_TraitementTN = 0.8;
  ASSERT_TRUE(Compensation());
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 31.59);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 0.8);
  EXPECT_DOUBLE_EQ(r.dCoefficientVariationTempsCompensationCSG, 0.8);
}

// No change of hours: the default date of 31/12/2017 is before 2018, so an hourly agent
// follows last month's hours: V = 130 / 151.67 = 0.8571240; 35.0988015 x V = 30.08.
TEST_F(CompensationHausseCsg, HourlyAgentFollowsLastMonthsHours) {
  s.sTypeModele = "HORAIR";
  s.dCoefficient_TraitementTA = 0;
  s.dHeuresMensMoisPrec = 130;
  s.dHeuresMois = 151.67;
  ASSERT_TRUE(Compensation());
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 30.08);
  EXPECT_NEAR(r.dTauxSalarial, 130 / 151.67, 1e-12);
  EXPECT_DOUBLE_EQ(r.dCoefficientVariationTempsCompensationCSG, 1.0);
}

TEST_F(CompensationHausseCsg, HourlyAgentWithoutHoursFaults) {
  s.sTypeModele = "HORAIR";
  s.dHeuresMensMoisPrec = 130;
  s.dHeuresMois = 0;
  EXPECT_FALSE(Compensation());
}

}  // namespace
}  // namespace orvalis::taux_test
