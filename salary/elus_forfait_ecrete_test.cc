// Officials paid a fixed amount, and the allowance capped on the parliamentary allowance.
#include <gtest/gtest.h>

#include "salary/indemnites_test_outils.h"

namespace orvalis {
namespace {

class ForfaitElus : public indemnites_test::PaieIndemnites {
 protected:
  ForfaitElus() {
    Maire();
    s.dEluForfait = 500;
    s.dIndiceMajoreM = 830;
  }
};

TEST_F(ForfaitElus, MonthlyFullMonth) {
  ASSERT_TRUE(Calcule("TRAITEMENT FORFAITAIRE ELUS"));
  Ligne(500, 0, 500);  // 30 x 500 / 30
  EXPECT_EQ(s.dSalarie_MensuelReelN, 500);
  EXPECT_EQ(s.dSalarie_AnnuelPlein, 49030.92);  // 830 x 59.0734
  EXPECT_EQ(s.dSalarie_MensuelPleinN, 4085.91);
}

TEST_F(ForfaitElus, MonthlyTwentyDays) {
  s.iNBJ_PresenceN = 20;
  ASSERT_TRUE(Calcule("TRAITEMENT FORFAITAIRE ELUS"));
  Ligne(1000.0 / 3, 0, 1000.0 / 3);  // 20 x 500 / 30
}

TEST_F(ForfaitElus, QuarterlyHalfYearlyYearly) {
  s.sEluPeriodicite = "2";
  ASSERT_TRUE(Calcule("TRAITEMENT FORFAITAIRE ELUS"));
  Ligne(1500, 0, 1500);  // 500 + 2 x 500
  s.sEluPeriodicite = "3";
  ASSERT_TRUE(Calcule("TRAITEMENT FORFAITAIRE ELUS"));  // March closes no half-year
  Ligne(1500, 0, 1500);
  m.gPeriodeEncours = "01/12/2024";
  ASSERT_TRUE(Calcule("TRAITEMENT FORFAITAIRE ELUS"));
  Ligne(3000, 0, 3000);  // 500 + 5 x 500
  s.sEluPeriodicite = "4";
  ASSERT_TRUE(Calcule("TRAITEMENT FORFAITAIRE ELUS"));
  Ligne(6000, 0, 6000);  // 500 + 11 x 500
}

TEST_F(ForfaitElus, QuarterlyInFebruaryWritesNothing) {
  m.gPeriodeEncours = "01/02/2024";
  s.sEluPeriodicite = "2";
  ASSERT_TRUE(Calcule("TRAITEMENT FORFAITAIRE ELUS"));
  LigneIntacte();
}

TEST_F(ForfaitElus, MandateEndingOnTheFifteenthOfFebruary) {
  m.gPeriodeEncours = "01/02/2024";
  s.sEluPeriodicite = "2";
  s.sDateFin = "15/02/2024";
  s.iNBJ_PresenceN = 15;
  ASSERT_TRUE(Calcule("TRAITEMENT FORFAITAIRE ELUS"));
  Ligne(750, 0, 750);  // (2 - 1) x 500 + 15 x 500 / 30
}

TEST_F(ForfaitElus, AmountGivenByTheHost) {
  s.sEluPeriodicite = "2";
  s.dTraitementEluForfaitNonMensuel = 1200;
  ASSERT_TRUE(Calcule("TRAITEMENT FORFAITAIRE ELUS"));
  Ligne(1500, 0, 1200);
}

TEST_F(ForfaitElus, MonthLine) {
  s.sEluPeriodicite = "4";  // not read
  s.iNBJ_PresenceN = 20;
  s.dSalarie_MensuelPleinN = 4085.91;
  ASSERT_TRUE(Calcule("TRAITEMENT FORFAITAIRE ELUS MOIS"));
  Ligne(4085.91, 830, 1000.0 / 3);  // 20 x 500 / 30
  EXPECT_EQ(s.dCoefficient_INouveau, 1);
}

// The capped allowance: a mayor at 51.6 % of 830 (2108.32956 a month). The ceiling of the
// month L = Round2(59.0734 x (1070 + 1270) / 2 / 12) = 5759.66, excess (T + L) - 2.5 x L.
class EcreteElus : public indemnites_test::PaieIndemnites {
 protected:
  EcreteElus() {
    Constante("INDPARL1", 1070);
    Constante("INDPARL2", 1270);
    Constante("COEFPLAFEC", 2.5);
    Fixe("PlafSecu", 3864);
    Taux("IRCTRA", 2.8);
    Taux("IRCTRB", 6.95);
    Taux("URSRGVEU", 0.4);
    Taux("URSRGMAL", 0.0);
    Taux("URSRGVIEP", 6.9);
    Maire();
  }
};

TEST_F(EcreteElus, WithinTheCeilingTheLineStands) {
  s.dMontantTotalIndemnites = 6000;
  ASSERT_TRUE(Calcule("TRAITEMENT INDICIAIRE ELUS ECRETE"));
  // E = 8108.32956 + 5759.66 - 14399.15 = -531.16: nothing taken.
  Ligne(4085.91, 830, 2108.32956);
}

TEST_F(EcreteElus, ExcessTakenWithItsShareOfContributions) {
  s.dMontantTotalIndemnites = 7000;
  ASSERT_TRUE(Calcule("TRAITEMENT INDICIAIRE ELUS ECRETE"));
  // T = 9108.32956. Contributions: 3864 x 2.8 % + (9108.32956 - 3864) x 6.95 % = 108.192
  // + 364.4809 = 472.67. E = 9108.32956 - 1.5 x 5759.66 = 468.83956.
  // X = 468.83956 + 468.83956 x 472.67 / 9108.32956 = 493.1696 -> 493.17.
  Ligne(4085.91, 830, 2108.32956 - 493.17);
}

TEST_F(EcreteElus, ExcessAloneWhenTheAllowancesPayTheGeneralScheme) {
  s.dMontantTotalIndemnites = 7000;
  s.bIndemniteEluCotiseUrssaf = true;
  ASSERT_TRUE(Calcule("TRAITEMENT INDICIAIRE ELUS ECRETE"));
  Ligne(4085.91, 830, 2108.32956 - 468.84);  // E = 468.83956 -> 468.84
}

TEST_F(EcreteElus, ExcessAboveTheLineLeavesZero) {
  s.dMontantTotalIndemnites = 20000;
  ASSERT_TRUE(Calcule("TRAITEMENT INDICIAIRE ELUS ECRETE"));
  Ligne(4085.91, 830, 0);
}

TEST_F(EcreteElus, ExcessExactlyZeroTakesNothing) {
  // T + L - 2.5 L = 0 when T = 1.5 x 5759.66 = 8639.49.
  s.dMontantTotalIndemnites = 8639.49 - 2108.32956;
  ASSERT_TRUE(Calcule("TRAITEMENT INDICIAIRE ELUS ECRETE"));
  EXPECT_NEAR(r.dMontantSalarial, 2108.32956, 1e-6);
}

TEST_F(EcreteElus, QuarterlyCeilingsAreThoseOfTheQuarter) {
  s.sEluPeriodicite = "2";
  PointHistorique(202401, 202402, indemnites_test::kPoint);
  s.dMontantTotalIndemnites = 3 * 7000;
  ASSERT_TRUE(Calcule("TRAITEMENT INDICIAIRE ELUS ECRETE"));
  // The line 3 x 2108.32956 = 6324.98868, T = 27324.98868, L = 3 x 5759.66 = 17278.98,
  // E = 27324.98868 - 1.5 x 17278.98 = 1406.51868. Ceiling 3 x 3864 = 11592:
  // 11592 x 2.8 % + 15732.98868 x 6.95 % = 324.576 + 1093.4427 = 1418.02.
  // X = 1406.51868 + 1406.51868 x 1418.02 / 27324.98868 = 1479.5090 -> 1479.51.
  EXPECT_NEAR(r.dMontantSalarial, 6324.98868 - 1479.51, 1e-6);
}

TEST_F(EcreteElus, MonthOutsideThePeriodWritesNothing) {
  m.gPeriodeEncours = "01/02/2024";
  s.sEluPeriodicite = "2";
  s.dMontantTotalIndemnites = 20000;
  ASSERT_TRUE(Calcule("TRAITEMENT INDICIAIRE ELUS ECRETE"));
  LigneIntacte();
}

}  // namespace
}  // namespace orvalis
