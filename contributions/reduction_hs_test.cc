// The reduction on overtime pay, its recall and the degressive rate, through the entry.
#include "generic/taux_test_util.h"

namespace orvalis::taux_test {
namespace {

class ReductionHS : public PaieTaux {
 protected:
  ReductionHS() {
    Constante("TXREDHSMAX", 11.31);
    s.dTauxReduction = 21.5;
    s.dTauxReductionNonDeductible = 5;
  }
  bool Reduction() { return Calcul("REDUCTION SUR HS"); }
};

// Overtime pay of 500, a rate of 21.5 % capped at 11.31 %: 500 x -11.31 % = -56.55. The
// line's own base is there, so the total "ASSREDHSN" is not read.
TEST_F(ReductionHS, RateCappedByTheCeiling) {
  BaseAutreLigne(500);
  Cumul("ASSREDHSN", 999.0);
  ASSERT_TRUE(Reduction());
  EXPECT_DOUBLE_EQ(r.dBase, 500.0);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, -11.31);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, -56.55);
  EXPECT_EQ(r.dMontantPatronal, 0.0);
  EXPECT_EQ(r.dTauxPatronal, 0.0);
  EXPECT_DOUBLE_EQ(s.dMtReductionHS, 56.55);
  EXPECT_EQ(s.dMtReductionHSNonDeductible, 0.0);
}

// Below the ceiling the employee's rate: 500 x -9.21 % = -46.05; at it exactly, the ceiling.
TEST_F(ReductionHS, RateBelowAndAtTheCeiling) {
  BaseAutreLigne(500);
  s.dTauxReduction = 9.21;
  ASSERT_TRUE(Reduction());
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, -9.21);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, -46.05);
  s.dTauxReduction = 11.31;
  ASSERT_TRUE(Reduction());
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, -11.31);
}

// No ceiling: the rate is 0, whatever the employee's rate.
TEST_F(ReductionHS, NoCeilingNoReduction) {
  m.gRsConstantes = NouveauRecordset({"CodeConstante", "IdConstante", "Valeur", "TauxMontant"});
  BaseAutreLigne(500);
  s.dMtReductionHS = 7;
  ASSERT_TRUE(Reduction());
  EXPECT_EQ(r.dTauxSalarial, 0.0);
  EXPECT_EQ(r.dMontantSalarial, 0.0);
  EXPECT_EQ(s.dMtReductionHS, 0.0);
}

// A negative rate is below any ceiling and turns the reduction into a charge:
// 500 x 5 % = 25.
TEST_F(ReductionHS, NegativeRate) {
  BaseAutreLigne(500);
  s.dTauxReduction = -5;
  ASSERT_TRUE(Reduction());
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 25.0);
  EXPECT_DOUBLE_EQ(s.dMtReductionHS, -25.0);
}

// Deductible family without a base: the total "ASSREDHSN"; 250 x -11.31 % = -28.275, kept
// whole on the line and rounded half away to 28.28 in the employee's record.
TEST_F(ReductionHS, DeductibleWithoutBaseReadsTheOtherTotal) {
  r.sValeurBase = "BASE REDUCTION SUR HS";
  Cumul("ASSREDHSN", 250.0);
  ASSERT_TRUE(Reduction());
  EXPECT_DOUBLE_EQ(r.dBase, 250.0);
  EXPECT_NEAR(r.dMontantSalarial, -28.275, 1e-12);
  EXPECT_DOUBLE_EQ(s.dMtReductionHS, 28.28);
}

// Non-deductible family: its base designation reads "ASSREDHSN" (300 x -5 % = -15); at 0
// the line falls back on "ASSREDHS" (400 x -5 % = -20).
TEST_F(ReductionHS, NonDeductibleFamily) {
  r.sValeurBase = "BASE REDUCTION SUR HS NON DEDUCTIBLE";
  Cumul("ASSREDHSN", 300.0);
  Cumul("ASSREDHS", 400.0);
  ASSERT_TRUE(Reduction());
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, -15.0);
  EXPECT_DOUBLE_EQ(s.dMtReductionHSNonDeductible, 15.0);
  EXPECT_EQ(s.dMtReductionHS, 0.0);
}

TEST_F(ReductionHS, NonDeductibleWithoutBaseReadsTheOtherTotal) {
  r.sValeurBase = "BASE REDUCTION SUR HS NON DEDUCTIBLE";
  Cumul("ASSREDHS", 400.0);
  ASSERT_TRUE(Reduction());
  EXPECT_DOUBLE_EQ(r.dBase, 400.0);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, -5.0);
  EXPECT_DOUBLE_EQ(s.dMtReductionHSNonDeductible, 20.0);
}

TEST_F(ReductionHS, EmptyTotalsGiveZero) {
  r.sValeurBase = "BASE REDUCTION SUR HS";
  ASSERT_TRUE(Reduction());
  EXPECT_EQ(r.dBase, 0.0);
  EXPECT_EQ(r.dMontantSalarial, 0.0);
}

class RappelReductionHS : public PaieTaux {
 protected:
  RappelReductionHS() {
    BaseAutreLigne(300);
    TauxSalarialConstante("RAPHS", 42.17, "M");
    Taux("URSRGVEU", 6.9, 8.55);
    Taux("URSRGVIEP", 0.4, 2.02);
    Taux("IRCTRA", 3.15, 4.72);
    Taux("RAFP", 5.004, 5.0);
  }
};

// The employee "rate" is the amount; the recalled rate of the general regime sums three
// employee rates: 6.90 + 0.40 + 3.15 = 10.45.
TEST_F(RappelReductionHS, GeneralRegime) {
  r.sCodeRubrique = "HSRAPASSRG";
  r.dTauxPatronal = 3;
  ASSERT_TRUE(Calcul("RAPPEL REDUCTION SUR HS"));
  EXPECT_DOUBLE_EQ(r.dBase, 300.0);
  EXPECT_EQ(r.dTauxSalarial, 0.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 42.17);
  EXPECT_EQ(r.dMontantPatronal, 0.0);
  EXPECT_EQ(r.dTauxPatronal, 0.0);
  EXPECT_NEAR(s.dTauxReductionRappel, 10.45, 1e-12);
}

// Any other code: the additional pension's rate alone, 5.004 read at 2 places = 5.00.
TEST_F(RappelReductionHS, OtherCodeTakesTheAdditionalPensionRate) {
  r.sCodeRubrique = "HSRAPRAFP";
  ASSERT_TRUE(Calcul("RAPPEL REDUCTION SUR HS"));
  EXPECT_DOUBLE_EQ(s.dTauxReductionRappel, 5.0);
}

// A rate of 0.12345 % is negated and rounded half away: -0.1235; 2000 x -0.1235 % = -2.47.
// The employer's side stays as it was.
class Degressivite : public PaieTaux {};

TEST_F(Degressivite, RateNegatedAndRounded) {
  BaseAutreLigne(2000);
  TauxSalarialConstante("DEGR", 0.12345, "T");
  r.dTauxPatronal = 3;
  r.dMontantPatronal = 7;
  ASSERT_TRUE(Calcul("DEGRESSIVITE"));
  EXPECT_DOUBLE_EQ(r.dBase, 2000.0);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, -0.1235);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, -2.47);
  EXPECT_EQ(r.dTauxPatronal, 3.0);
  EXPECT_EQ(r.dMontantPatronal, 7.0);
}

// Short-time pay in March 2024: floor 151.67 h x 11.65 = 1766.9555 -> 1766.96.
class ReductionCsgChomage : public PaieTaux {
 protected:
  ReductionCsgChomage() {
    Fixe("SmicHor", 11.65);
    s.dHeuresMois = 151.67;
    s.dNetAPayer_AavantEcretement_chomage = 1700;
    Cumul("URSCSGDCHO", 80.5);
    Cumul("URSCSGNCHO", 25.3);
    Cumul("URSRDSDCHO", 5.27);
  }
  void LigneRemplie() {
    r.dBase = 1;
    r.dTauxSalarial = 2;
    r.dMontantSalarial = 3;
    r.dTauxPatronal = 4;
    r.dMontantPatronal = 5;
  }
};

// E = 1766.96 - 1700 = 66.96, below the total of 80.50: the reduction is E.
TEST_F(ReductionCsgChomage, DeductibleCsgUpToTheFloor) {
  ASSERT_TRUE(Calcul("REDUCTION SUR CSG DED. CHOMAGE"));
  EXPECT_NEAR(r.dMontantSalarial, -66.96, 1e-9);
  EXPECT_NEAR(s.dTotalEcretementCotisationChomagePartiel, 66.96, 1e-9);
  EXPECT_EQ(r.dBase, 0.0);
  EXPECT_EQ(r.dMontantPatronal, 0.0);
}

// Both totals below E: 25.30, then 5.27 of the 41.66 left; the line holds both, -30.57, and
// the rest of E stays for a later line.
TEST_F(ReductionCsgChomage, DoubleRunTakesBothTotals) {
  ASSERT_TRUE(Calcul("REDUCTION SUR CSG/RDS NON DED. CHOMAGE"));
  EXPECT_NEAR(r.dMontantSalarial, -30.57, 1e-9);
  EXPECT_NEAR(s.dTotalEcretementCotisationChomagePartiel, 30.57, 1e-9);
}

// Net of 1750: E = 16.96, all taken by the CSG (25.30); the CRDS run finds nothing left.
TEST_F(ReductionCsgChomage, FirstRunTakesAll) {
  s.dNetAPayer_AavantEcretement_chomage = 1750;
  ASSERT_TRUE(Calcul("REDUCTION SUR CSG/RDS NON DED. CHOMAGE"));
  EXPECT_NEAR(r.dMontantSalarial, -16.96, 1e-9);
  EXPECT_NEAR(s.dTotalEcretementCotisationChomagePartiel, 16.96, 1e-9);
}

// An earlier line gave back 40: E = 66.96 - 40 = 26.96.
TEST_F(ReductionCsgChomage, EarlierReductionsCount) {
  s.dTotalEcretementCotisationChomagePartiel = 40;
  ASSERT_TRUE(Calcul("REDUCTION SUR CSG DED. CHOMAGE"));
  EXPECT_NEAR(r.dMontantSalarial, -26.96, 1e-9);
  EXPECT_NEAR(s.dTotalEcretementCotisationChomagePartiel, 66.96, 1e-9);
}

// Net at the floor exactly, or above it: the line keeps every field.
TEST_F(ReductionCsgChomage, NetAtOrAboveTheFloorLeavesTheLine) {
  for (double net : {1766.96, 1800.0}) {
    s.dNetAPayer_AavantEcretement_chomage = net;
    LigneRemplie();
    ASSERT_TRUE(Calcul("REDUCTION SUR CSG DED. CHOMAGE"));
    EXPECT_EQ(r.dBase, 1.0);
    EXPECT_EQ(r.dTauxSalarial, 2.0);
    EXPECT_EQ(r.dMontantSalarial, 3.0);
    EXPECT_EQ(r.dTauxPatronal, 4.0);
    EXPECT_EQ(r.dMontantPatronal, 5.0);
    EXPECT_EQ(s.dTotalEcretementCotisationChomagePartiel, 0.0);
  }
}

// One cent below the floor: a reduction of one cent, and the line is written.
TEST_F(ReductionCsgChomage, OneCentBelowTheFloor) {
  s.dNetAPayer_AavantEcretement_chomage = 1766.95;
  LigneRemplie();
  ASSERT_TRUE(Calcul("REDUCTION SUR CSG DED. CHOMAGE"));
  EXPECT_EQ(r.dBase, 0.0);
  EXPECT_EQ(r.dTauxSalarial, 0.0);
  EXPECT_EQ(r.dMontantPatronal, 0.0);
  EXPECT_NEAR(r.dMontantSalarial, 2.99, 1e-9);  // 3 - 0.01
}

// No total of the contribution: nothing to take, the line is written with 0 taken.
TEST_F(ReductionCsgChomage, AbsentTotalTakesNothing) {
  m.gRsCumuls = NouveauRecordset({"CodeCumul", "Idcumul", "PartSalariale", "PartPatronale"});
  LigneRemplie();
  ASSERT_TRUE(Calcul("REDUCTION SUR CSG DED. CHOMAGE"));
  EXPECT_EQ(r.dBase, 0.0);
  EXPECT_EQ(r.dMontantSalarial, 3.0);
  EXPECT_EQ(s.dTotalEcretementCotisationChomagePartiel, 0.0);
}

}  // namespace
}  // namespace orvalis::taux_test
