// The officials' allowances on the reference index 830 at the point of 59.0734:
// a year of 830 x 59.0734 = 49030.92, a full month Round2(49030.92 / 12 - 0.0049) = 4085.91,
// and at the mayor's 51.6 % a month of 4085.91 x 0.516 = 2108.32956.
#include <gtest/gtest.h>

#include "salary/indemnites_test_outils.h"

namespace orvalis {
namespace {

constexpr double kPlein = 4085.91;
constexpr double kMois = 2108.32956;  // 4085.91 x 0.516

class TraitementElus : public indemnites_test::PaieIndemnites {
 protected:
  TraitementElus() {
    Maire();
    PointHistorique(202301, 202306, 58.2004);
    PointHistorique(202307, 202402, indemnites_test::kPoint);
  }
};

TEST_F(TraitementElus, MonthlyFullMonth) {
  ASSERT_TRUE(Calcule("TRAITEMENT INDICIAIRE ELUS"));
  Ligne(kPlein, 830, kMois);  // 30 x 2108.32956 / (30 - 0)
  EXPECT_EQ(s.dIndiceMajoreM, 830);
  EXPECT_EQ(s.dSalarie_AnnuelPlein, 49030.92);
  EXPECT_EQ(s.dSalarie_MensuelPleinN, kPlein);
  EXPECT_NEAR(s.dSalarie_MensuelReelN, kMois, 1e-9);
  EXPECT_EQ(s.dCoefficient_INouveau, 1);
}

TEST_F(TraitementElus, OtherModelKeepsTheSharesItHas) {
  // No split of the month by rate and no change date for a model other than "ELUS".
  s.sTypeModele = "INDTIT";
  s.dCoefficient_INouveau = 0.5;
  ASSERT_TRUE(Calcule("TRAITEMENT INDICIAIRE ELUS"));
  Ligne(kPlein, 830, kMois / 2);  // 0.5 x 4085.91 x 0.516 x 30 / 30
  EXPECT_EQ(s.sDateChangementTauxElus, "");
}

TEST_F(TraitementElus, DayCountOverflowFaults) {
  s.iNBJ_PresenceA = -32767;  // 30 - (-32767) is past 16 bits
  EXPECT_FALSE(Calcule("TRAITEMENT INDICIAIRE ELUS"));
}

TEST_F(TraitementElus, NullPointReadsZero) {
  Fixe("Point", Value());
  ASSERT_TRUE(Calcule("TRAITEMENT INDICIAIRE ELUS"));
  Ligne(0, 830, 0);  // Round2(0 / 12 - 0.0049) = -0.00 -> 0
}

TEST_F(TraitementElus, QuarterlyOutsideTheQuarterEndWritesNothing) {
  m.gPeriodeEncours = "01/02/2024";
  s.sEluPeriodicite = "2";
  s.dSalarie_MensuelN = 7;
  ASSERT_TRUE(Calcule("TRAITEMENT INDICIAIRE ELUS"));
  LigneIntacte();
  EXPECT_EQ(s.dSalarie_MensuelN, 7);
  EXPECT_EQ(s.dIndiceMajoreM, 0);
}

TEST_F(TraitementElus, QuarterlyInMarchAddsJanuaryAndFebruary) {
  s.sEluPeriodicite = "2";
  ASSERT_TRUE(Calcule("TRAITEMENT INDICIAIRE ELUS"));
  Ligne(kPlein, 830, 3 * kMois);  // 2108.32956 x 3 = 6324.98868
  EXPECT_NEAR(s.dSalarie_MensuelN, 6324.98868, 1e-9);
  // The month's days are counted again for the lines that follow.
  EXPECT_EQ(s.iNBJ_PresenceN, 30);
  EXPECT_EQ(s.iNBJ_PresenceA, 0);
}

TEST_F(TraitementElus, QuarterlyMandateEndingInFebruaryPaysFebruaryAndJanuary) {
  m.gPeriodeEncours = "01/02/2024";
  s.sEluPeriodicite = "2";
  s.sDateFin = "15/02/2024";
  s.iNBJ_PresenceN = 15;
  ASSERT_TRUE(Calcule("TRAITEMENT INDICIAIRE ELUS"));
  // February 15 x 2108.32956 / 30 = 1054.16478, January 2108.32956.
  Ligne(kPlein, 830, 3162.49434);
  EXPECT_EQ(s.iNBJ_PresenceN, 15);  // 1 to 15 February, counted again
}

TEST_F(TraitementElus, QuarterlyMandateEndingOnTheFirstMonthOfTheQuarterAddsNothing) {
  m.gPeriodeEncours = "01/01/2024";
  s.sEluPeriodicite = "2";
  s.sDateFin = "31/01/2024";
  ASSERT_TRUE(Calcule("TRAITEMENT INDICIAIRE ELUS"));
  Ligne(kPlein, 830, kMois);
}

TEST_F(TraitementElus, HalfYearlyPaidInJuneOnly) {
  s.sEluPeriodicite = "3";
  ASSERT_TRUE(Calcule("TRAITEMENT INDICIAIRE ELUS"));  // March
  LigneIntacte();
  m.gPeriodeEncours = "01/06/2024";
  PointHistorique(202403, 202405, indemnites_test::kPoint);
  ASSERT_TRUE(Calcule("TRAITEMENT INDICIAIRE ELUS"));
  Ligne(kPlein, 830, 6 * kMois);  // 12649.97736
}

TEST_F(TraitementElus, YearlyInDecemberAtEachMonthsPoint) {
  m.gPeriodeEncours = "01/12/2023";
  s.sEluPeriodicite = "4";
  ASSERT_TRUE(Calcule("TRAITEMENT INDICIAIRE ELUS"));
  // January to June at 58.2004: 830 x 58.2004 = 48306.33, Round2(48306.33 / 12 - 0.0049)
  // = 4025.52, x 0.516 = 2077.16832; July to December 2108.32956.
  // 6 x 2077.16832 + 6 x 2108.32956 = 12463.00992 + 12649.97736 = 25112.98728.
  Ligne(kPlein, 830, 25112.98728);
}

TEST_F(TraitementElus, MonthWithoutPointInTheHistoryAddsNothing) {
  s.sEluPeriodicite = "2";
  m.gRsConstantesFixesHistorique = NouveauRecordset({"Mois", "Point"});
  ASSERT_TRUE(Calcule("TRAITEMENT INDICIAIRE ELUS"));
  Ligne(kPlein, 830, kMois);
}

TEST_F(TraitementElus, AmountGivenByTheHostStandsAndSkipsEarlierMonths) {
  s.sEluPeriodicite = "2";
  s.dTraitementEluNonMensuel = 5000;
  ASSERT_TRUE(Calcule("TRAITEMENT INDICIAIRE ELUS"));
  Ligne(kPlein, 830, 5000);
  EXPECT_NEAR(s.dSalarie_MensuelN, kMois, 1e-9);  // the month alone
}

// The rate changes on 11 February: the quarter pays March whole, the 20 days of February
// from the 11th on the new rate, January on the former rate alone.
class ChangementTauxElus : public TraitementElus {
 protected:
  ChangementTauxElus() {
    s.sEluPeriodicite = "2";
    s.sDateChangementTauxElus = "11/02/2024";
    s.dTauxMairePrecedent = 40.3;
  }
};

TEST_F(ChangementTauxElus, NewRateFromTheMonthOfTheChange) {
  ASSERT_TRUE(Calcule("TRAITEMENT INDICIAIRE ELUS"));
  // February: 2108.32956 x 20/30 x 20 / (30 - 10) = 1405.55304. January is before.
  Ligne(kPlein, 830, kMois + 1405.55304);
  // March's shares and days again.
  EXPECT_EQ(s.dCoefficient_INouveau, 1);
  EXPECT_EQ(s.dCoefficient_IAncien, 0);
  EXPECT_EQ(s.iNBJ_PresenceN, 30);
  EXPECT_EQ(s.iNBJ_PresenceA, 0);
}

TEST_F(ChangementTauxElus, ChangeOnThe31stOfJanuaryLeavesJanuaryOnTheFormerRate) {
  s.sDateChangementTauxElus = "31/01/2024";
  ASSERT_TRUE(Calcule("TRAITEMENT INDICIAIRE ELUS"));
  // January: 30 days before the 31st, 0 after: 2108.32956 x 0/30; 30 - 30 leaves it.
  Ligne(kPlein, 830, 2 * kMois);
  s.dSalarie_MensuelA = 0;
  ASSERT_TRUE(Calcule("TRAITEMENT INDICIAIRE ELUS PRECEDENT"));
  // January: 1646.62173 x 30/30 x 30 / (30 - 0).
  Ligne(kPlein, 830, 1646.62173);
}

TEST_F(ChangementTauxElus, FormerRateUpToTheChange) {
  s.dSalarie_MensuelA = 0;
  ASSERT_TRUE(Calcule("TRAITEMENT INDICIAIRE ELUS PRECEDENT"));
  // The former rate 40.3 %: a month of 4085.91 x 0.403 = 1646.62173. March is on the new
  // rate (0 x ...; 30 - 30 days leaves the month's amount at 0). February 10/30 of it,
  // x 10 / (30 - 20): 548.87391. January whole.
  Ligne(kPlein, 830, 548.87391 + 1646.62173);
  EXPECT_EQ(s.dSalarie_MensuelPleinA, kPlein);
  EXPECT_EQ(s.dSalarie_MensuelReelA, 0);
}

TEST_F(ChangementTauxElus, FormerRateAddsNoMonthBeforeTheEntry) {
  s.sDateDebut = "15/01/2024";
  s.dSalarie_MensuelA = 0;
  ASSERT_TRUE(Calcule("TRAITEMENT INDICIAIRE ELUS PRECEDENT"));
  Ligne(kPlein, 830, 548.87391 + 1646.62173);  // January is the month of entry
  s.sDateDebut = "01/02/2024";
  s.dSalarie_MensuelA = 0;  // a month without former-rate days leaves the field as it stood
  ASSERT_TRUE(Calcule("TRAITEMENT INDICIAIRE ELUS PRECEDENT"));
  Ligne(kPlein, 830, 548.87391);
}

TEST_F(ChangementTauxElus, FormerRateKeepsTheEndOfMandateOutOfItsGate) {
  m.gPeriodeEncours = "01/02/2024";
  s.sDateFin = "29/02/2024";
  ASSERT_TRUE(Calcule("TRAITEMENT INDICIAIRE ELUS PRECEDENT"));
  LigneIntacte();
  ASSERT_TRUE(Calcule("TRAITEMENT INDICIAIRE ELUS"));
  EXPECT_NE(r.dMontantSalarial, -1);
}

TEST_F(ChangementTauxElus, FormerRateAmountGivenByTheHost) {
  s.dTraitementEluNonMensuelPrecedent = 1234.5;
  ASSERT_TRUE(Calcule("TRAITEMENT INDICIAIRE ELUS PRECEDENT"));
  Ligne(kPlein, 830, 1234.5);
}

TEST_F(TraitementElus, MonthLineOfAnOfficialEnteredOnTheSixteenth) {
  s.sDateDebut = "16/03/2024";
  s.sEluPeriodicite = "2";  // not read by the month's line
  s.iNBJ_PresenceN = 15;
  ASSERT_TRUE(Calcule("TRAITEMENT INDICIAIRE ELUS MOIS"));
  Ligne(kPlein, 830, 1054.16478);  // 15 x 2108.32956 / 30
}

TEST_F(TraitementElus, MonthLineReadsTheIndexOfItsMonth) {
  m.gPeriodeEncours = "01/12/2016";
  ASSERT_TRUE(Calcule("TRAITEMENT INDICIAIRE ELUS MOIS"));
  // 821 before 2017: 821 x 59.0734 = 48499.26, Round2(48499.26 / 12 - 0.0049) = 4041.60,
  // x 0.516 = 2085.4656.
  Ligne(4041.60, 821, 2085.4656);
}

TEST_F(TraitementElus, FormerRateMonthLine) {
  s.sDateChangementTauxElus = "11/03/2024";
  s.dTauxMairePrecedent = 40.3;
  s.dTauxEPCIPrecedent = 0;
  ASSERT_TRUE(Calcule("TRAITEMENT INDICIAIRE ELUS PRECEDENT MOIS"));
  // 10 days of 30 on the former rate: 10/30 x 4085.91 x 0.403 = 548.87391.
  Ligne(kPlein, 830, 548.87391);
  EXPECT_NEAR(s.dSalarie_MensuelA, 548.87391, 1e-9);
  EXPECT_EQ(s.dSalarie_MensuelPleinA, kPlein);
}

TEST_F(TraitementElus, FormerRateMonthLineWithAnIntercommunalRate) {
  s.sDateChangementTauxElus = "01/04/2024";  // later this year: the whole month on the former rate
  s.dTauxMairePrecedent = 40.3;
  s.dTauxEPCIPrecedent = 50;
  ASSERT_TRUE(Calcule("TRAITEMENT INDICIAIRE ELUS PRECEDENT MOIS"));
  Ligne(kPlein, 830, 823.310865);  // 4085.91 x 0.403 x 0.5
}

TEST_F(TraitementElus, ReferenceIndexByMonth) {
  double d = 0;
  EXPECT_EQ(m.dRechercheIndMajElu(d, "01/12/2006", "1"), 821);  // 200611
  d = 0;
  EXPECT_EQ(m.dRechercheIndMajElu(d, "01/12/2006", "2"), 820);  // 200610
  d = 0;
  EXPECT_EQ(m.dRechercheIndMajElu(d, "01/01/2017", "1"), 821);  // 201612
  d = 0;
  EXPECT_EQ(m.dRechercheIndMajElu(d, "01/01/2017", "0"), 830);  // 201701: the constant
  EXPECT_EQ(d, 830);
  d = 999;
  EXPECT_EQ(m.dRechercheIndMajElu(d, "01/01/2005", "0"), 999);  // a value given stands
}

TEST_F(TraitementElus, PeriodThatIsNotADateFaults) {
  m.gPeriodeEncours = "pas une date";
  EXPECT_FALSE(Calcule("TRAITEMENT INDICIAIRE ELUS MOIS"));
}

TEST_F(TraitementElus, AllowanceOfAnEarlierMonth) {
  s.dTauxEPCI = 50;
  double d = 0;
  // The mandate's rate: 51.6 % x 50 % = 0.258; 4085.91 x 0.258 = 1054.16478.
  EXPECT_NEAR(m.dRechercheIndMajEluPeriode(s, "01/03/2024", "1", d, -1), 1054.16478, 1e-9);
  EXPECT_NEAR(d, 1054.16478, 1e-9);
  // A rate given: 4085.91 x 0.403 = 1646.62173.
  EXPECT_NEAR(m.dRechercheIndMajEluPeriode(s, "01/03/2024", "1", d, 0.403), 1646.62173, 1e-9);
  // A month before the history: no point, 0.
  EXPECT_EQ(m.dRechercheIndMajEluPeriode(s, "01/03/2024", "36", d, -1), 0);
}

TEST_F(TraitementElus, RateChangeLaterInTheYearLeavesTheMonthOnTheFormerRate) {
  s.sDateChangementTauxElus = "01/05/2024";
  s.iNBJ_PresenceN = 0;
  s.iNBJ_PresenceA = 30;
  s.dSalarie_MensuelN = 0;
  ASSERT_TRUE(Calcule("TRAITEMENT INDICIAIRE ELUS"));
  // 0 x 4085.91 x 0.516 = 0; 30 - 30 days: the month's amount is left at 0.
  Ligne(kPlein, 830, 0);
}

}  // namespace
}  // namespace orvalis
