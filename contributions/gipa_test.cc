// The GIPA of a real year, and each step of its amount.
#include <gtest/gtest.h>

#include "generic/paie_test_util.h"
#include "orvalis/MethodeCalculG_Nouv.h"

namespace orvalis {
namespace {

// The GIPA of 2019: period 2014-2018, annual point 55.5635 at the start and 56.2323 at the
// end, inflation 2.85 %.
class Gipa : public ::testing::Test {
 protected:
  Gipa() {
    m.gRsConstantes = NouveauRecordset({"CodeConstante", "IdConstante", "Valeur", "TauxMontant"});
    paie_test::AjouteConstante(m.gRsConstantes, "GIPAVI2014", 55.5635, 1, "M");
    paie_test::AjouteConstante(m.gRsConstantes, "GIPAVI2018", 56.2323, 2, "M");
    paie_test::AjouteConstante(m.gRsConstantes, "TXINFL2019", 2.85, 3, "T");
    // Neighbouring years the 2019 amount must not read.
    paie_test::AjouteConstante(m.gRsConstantes, "GIPAVI2015", 55.5635, 4, "M");
    paie_test::AjouteConstante(m.gRsConstantes, "TXINFL2018", 1.7, 5, "T");
    s.sGipaAnnee = "2019";
    s.dGipaIM_Debut = 514;
    s.dGipaIM_Fin = 514;
    r.dBase = 7;
    r.dTauxSalarial = 8;
  }
  bool Calcul() { return m.Appel_Methode_Calcul_General("GIPA", s, r); }
  double Montant(double imDebut, double imFin, double hrs = 0, double tp = 0) {
    return *m.dMontantGIPA(s, imDebut, 55.5635, imFin, 56.2323, 2.85, hrs, tp);
  }

  MethodeCalculG_Nouv m;
  VarCalculSalarie s;
  SalarieCalculRubrique r;
};

// 1.0285 x 514 x 55.5635 - 514 x 56.2323 = 470.1865115 -> 470.19. Only the amount is written.
TEST_F(Gipa, Index514In2019) {
  ASSERT_TRUE(Calcul());
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 470.19);
  EXPECT_EQ(r.dBase, 7.0);
  EXPECT_EQ(r.dTauxSalarial, 8.0);
}

// Half time at 17.5 hours a week: 470.1865115 x 17.5 / 35 = 235.0932558 -> 235.09; at 80 %
// part time also: x 80 / 100 = 188.0746046 -> 188.07.
TEST_F(Gipa, WeeklyHoursAndPartTime) {
  s.dGipaHrsHebdo = 17.5;
  ASSERT_TRUE(Calcul());
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 235.09);
  s.dGipaTauxTempsPartiel = 80;
  ASSERT_TRUE(Calcul());
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 188.07);
}

// Hours of 0 or negative are no reduction to zero: the step is skipped.
TEST_F(Gipa, ZeroOrNegativeHoursAreSkipped) {
  EXPECT_DOUBLE_EQ(Montant(514, 514, 0, 0), 470.19);
  EXPECT_DOUBLE_EQ(Montant(514, 514, -10, -50), 470.19);
}

// Several employers for 40 hours, no legal week: x 35 / 40 = 411.4131976 -> 411.41.
// With a legal week of 40 the cap is reached exactly and nothing is shared.
TEST_F(Gipa, CumulatedHoursAboveTheLegalWeek) {
  s.dHeuresCumulsHebdo = 40;
  EXPECT_DOUBLE_EQ(Montant(514, 514), 411.41);
  s.dDureeHebdoLegale = 40;
  EXPECT_DOUBLE_EQ(Montant(514, 514), 470.19);
  s.dDureeHebdoLegale = 35;
  s.dHeuresCumulsHebdo = 35;
  EXPECT_DOUBLE_EQ(Montant(514, 514), 470.19);
}

// A promotion to index 530 overtakes the inflated start: 514 x 57.1470598 = 29373.59 is
// below 530 x 56.2323 = 29803.12; no GIPA, whatever the hours.
TEST_F(Gipa, FinalValueAboveInflatedStartGivesNothing) {
  s.dGipaIM_Fin = 530;
  s.dHeuresCumulsHebdo = 40;
  s.dGipaHrsHebdo = 17.5;
  ASSERT_TRUE(Calcul());
  EXPECT_EQ(r.dMontantSalarial, 0.0);
}

// G exactly 0: the same index, the same point, no inflation.
TEST_F(Gipa, ShortfallOfZero) {
  EXPECT_EQ(*m.dMontantGIPA(s, 514, 56.2323, 514, 56.2323, 0, 0, 0), 0.0);
}

// A negative legal week is the cap all the same: 0 cumulated hours are above it, and the
// share by 0 hours faults.
TEST_F(Gipa, NegativeLegalWeekWithoutHoursFaults) {
  s.dDureeHebdoLegale = -5;
  r.dMontantSalarial = 5;
  EXPECT_FALSE(Calcul());
  EXPECT_EQ(r.dMontantSalarial, 5.0);
  // With 10 hours: 470.1865115 x -5 / 10 = -235.09.
  s.dHeuresCumulsHebdo = 10;
  ASSERT_TRUE(Calcul());
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, -235.09);
}

TEST_F(Gipa, NoYearNoGipa) {
  s.sGipaAnnee = "";
  r.dMontantSalarial = 5;
  ASSERT_TRUE(Calcul());
  EXPECT_EQ(r.dMontantSalarial, 0.0);
}

// A year with no constants reads 0 points: nothing due.
TEST_F(Gipa, YearWithoutConstants) {
  s.sGipaAnnee = "2031";
  ASSERT_TRUE(Calcul());
  EXPECT_EQ(r.dMontantSalarial, 0.0);
}

TEST_F(Gipa, YearThatIsNoNumberFaults) {
  s.sGipaAnnee = "deux mille";
  r.dMontantSalarial = 5;
  EXPECT_FALSE(Calcul());
  EXPECT_EQ(r.dMontantSalarial, 5.0);
}

}  // namespace
}  // namespace orvalis
