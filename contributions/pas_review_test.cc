// Income tax at source, checked rule by rule: assessment base, rate (individual or neutral),
// former rate, taxable daily benefits, net before the tax, and the elected officials' mandate
// allowance with its detail table. Amounts are worked out by hand in the comments.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "contributions/pas_test_util.h"
#include "orvalis/dates.h"

namespace orvalis {
namespace {

using pas_test::Bareme;
using pas_test::Constantes;
using pas_test::Cumuls;
using pas_test::CumulsHistorique;
using pas_test::IndemnitesJournalieres;
using pas_test::Mandats;
using pas_test::NbLignes;


// Scale in fractions. The "T" and "MM" rows must never be read by a monthly employee: "MM"
// reads the rows "M", prorated.
RsRef BaremeRevue() {
  return Bareme({{"T", 0.0, 4860.0, 0.5},
                 {"M", 0.0, 1620.0, 0.0},
                 {"M", 1620.0, 1683.0, 0.005},
                 {"M", 1683.0, 1791.0, 0.013},
                 {"MM", 0.0, 99999.0, 0.9},
                 {"M", 1791.0, 1911.0, 0.021}});
}
constexpr long kLignesBareme = 6;

class PasReviewTest : public ::testing::Test {
 protected:
  void SetUp() override {
    m.gPeriodeEncours = "01/03/2024";
    m.gRsConstantes = Constantes({{"DEMISMIC", 800.0},
                                  {"SMICANNUEL", 21000.0},
                                  {"INDMAJELU", 1000.0},
                                  {"ELUABTFISC", 0.0}});
    // One mandate allowance: 1000 x 6 x (10 / 100) / 12 = 50; several: 75.
    m.gRsConstantesFixes = pas_test::Table({"Point", "EluTxFrais"}, {{6.0, 10.0}});
    m.gRsCumuls = Cumuls({{"NETIMPOS", 7000.0}, {"BRUT", 2000.0}});
    // Employee 7 in January and February 2024; December 2023, employee 8 and the total
    // "BRUT" must never be read by the threshold.
    m.gRsCumulsHistoriqueSal = CumulsHistorique({{7, "202401", "NETIMPOS", 9000.0},
                                                 {7, "202402", "NETIMPOS", 8000.0},
                                                 {7, "202312", "NETIMPOS", 100000.0},
                                                 {8, "202401", "NETIMPOS", 50000.0},
                                                 {7, "202402", "BRUT", 40000.0}});
    m.gRsBaremeTauxPAS = BaremeRevue();
    s.lIdSalarie = 7;
    s.dTauxPAS = -1;
    s.sTypeBareme = "M";
    s.sDateDebut = "01/01/2020";
    s.sEluPeriodicite = "1";
    s.rsIndemnitesJournalieres = IndemnitesJournalieres({});
    s.rsAutresIndemnites = Mandats({});
  }

  double Assiette(double dBase) { return m.CalculPrelevementALaSource_Assiette(s, dBase, r); }
  double Taux(double dBasePAS) {
    s.dMontantBase_PAS = dBasePAS;
    return m.CalculPrelevementALaSource_Taux(s);
  }
  double Abattement() { return m.CalculPrelevementALaSource_CasParticulierElu(s, r); }
  void ExpectBaremeSansFiltre() { EXPECT_EQ(m.gRsBaremeTauxPAS->RecordCount(), kLignesBareme); }

  Value Detail(std::size_t ligne, const std::string& colonne) {
    return pas_test::Colonne(r.rsPrelevementSourceElus, ligne, colonne);
  }

  MethodeCalculG_Nouv m;
  VarCalculSalarie s;
  SalarieCalculRubrique r;
};

// ---- Assessment base ------------------------------------------------------------------------

TEST_F(PasReviewTest, NeutralFlagFollowsTheRateAndItsValidity) {
  s.dTauxPAS = -0.01;
  s.bUtiliseTauxNeutre = false;
  EXPECT_DOUBLE_EQ(Assiette(1500.0), 1500.0);
  EXPECT_TRUE(s.bUtiliseTauxNeutre);
  EXPECT_DOUBLE_EQ(s.dMontantBase_PAS, 1500.0);

  s.dTauxPAS = 0;
  s.bTauxPasValide = true;
  EXPECT_DOUBLE_EQ(Assiette(1500.0), 1500.0);
  EXPECT_FALSE(s.bUtiliseTauxNeutre);

  s.bTauxPasValide = false;
  Assiette(1500.0);
  EXPECT_TRUE(s.bUtiliseTauxNeutre);
}

TEST_F(PasReviewTest, ShortContractAllowanceOnlyOnTheNeutralRate) {
  s.bContratCourt = true;
  EXPECT_DOUBLE_EQ(Assiette(2000.0), 1200.0);  // 2000 - 800
  EXPECT_DOUBLE_EQ(s.dMontantBase_PAS, 1200.0);
  EXPECT_DOUBLE_EQ(Assiette(800.0), 0.0);      // exactly the allowance
  EXPECT_DOUBLE_EQ(Assiette(799.99), 0.0);     // -0.01 becomes 0
  EXPECT_DOUBLE_EQ(s.dMontantBase_PAS, 0.0);

  s.dTauxPAS = 0.03;  // a rate not validated is still the neutral case
  EXPECT_DOUBLE_EQ(Assiette(2000.0), 1200.0);
  s.bTauxPasValide = true;
  EXPECT_DOUBLE_EQ(Assiette(2000.0), 2000.0);
}

TEST_F(PasReviewTest, ApprenticeOnShortContractEndsOnTheThreshold) {
  // January 9000 + February 8000 + current 7000 = 24000; 24000 - 21000 - 1000 = 2000.
  s.sCodeCategorie = "APPRENTI";
  s.bContratCourt = true;
  s.dMontantBaseDejaCotise_PAS = 1000.0;
  EXPECT_DOUBLE_EQ(Assiette(5000.0), 2000.0);
  EXPECT_DOUBLE_EQ(s.dMontantBase_PAS, 2000.0);
  s.sCodeCategorie = "apprenti";  // codes are compared exactly
  EXPECT_DOUBLE_EQ(Assiette(5000.0), 4200.0);
}

TEST_F(PasReviewTest, TraineeOfficialTakesTheThresholdThenTheMandateAllowance) {
  // Threshold 24000 - 21000 - 0 = 3000, then less the monthly allowance of 50.
  s.sCodeModele = "STAGIAIRE";
  s.sCodeCategorie = "ELUS";
  EXPECT_DOUBLE_EQ(Assiette(100.0), 2950.0);
  EXPECT_TRUE(r.rsPrelevementSourceElus);
}

TEST_F(PasReviewTest, ThresholdReachedExactlyGivesANegativeBase) {
  m.gPeriodeEncours = "01/01/2024";  // January: December 2023 is not read
  m.gRsCumuls = Cumuls({{"NETIMPOS", 21000.0}});
  s.sCodeModele = "STAGIAIRE";
  s.dMontantBaseDejaCotise_PAS = 500.0;
  EXPECT_DOUBLE_EQ(Assiette(3000.0), -500.0);  // 21000 - 21000 - 500, not bounded below
  EXPECT_DOUBLE_EQ(s.dMontantBase_PAS, -500.0);
  m.gRsCumuls = Cumuls({{"NETIMPOS", 20999.99}});
  EXPECT_DOUBLE_EQ(Assiette(3000.0), 0.0);
}

TEST_F(PasReviewTest, ThresholdInDecemberReadsJanuaryToNovember) {
  m.gPeriodeEncours = "01/12/2024";
  m.gRsCumuls = Cumuls({{"NETIMPOS", 2000.0}});
  m.gRsCumulsHistoriqueSal = CumulsHistorique({{7, "202401", "NETIMPOS", 2000.0},
                                               {7, "202402", "NETIMPOS", 2000.0},
                                               {7, "202403", "NETIMPOS", 2000.0},
                                               {7, "202404", "NETIMPOS", 2000.0},
                                               {7, "202405", "NETIMPOS", 2000.0},
                                               {7, "202406", "NETIMPOS", 2000.0},
                                               {7, "202407", "NETIMPOS", 2000.0},
                                               {7, "202408", "NETIMPOS", 2000.0},
                                               {7, "202409", "NETIMPOS", 2000.0},
                                               {7, "202410", "NETIMPOS", 2000.0},
                                               {7, "202411", "NETIMPOS", 2000.0},
                                               {7, "202412", "NETIMPOS", 99999.0},
                                               {7, "202312", "NETIMPOS", 99999.0}});
  // 11 x 2000 + 2000 = 24000; 24000 - 21000 = 3000.
  EXPECT_DOUBLE_EQ(m.dSeuilPrelevementSource(s), 3000.0);
}

TEST_F(PasReviewTest, OfficialBaseLessTheAllowanceNeverBelowZero) {
  s.sCodeCategorie = "ELUS";
  EXPECT_DOUBLE_EQ(Assiette(1000.0), 950.0);
  ASSERT_TRUE(r.rsPrelevementSourceElus);
  EXPECT_EQ(NbLignes(r.rsPrelevementSourceElus), 1u);
  EXPECT_DOUBLE_EQ(Assiette(40.0), 0.0);
  EXPECT_DOUBLE_EQ(s.dMontantBase_PAS, 0.0);
  // Short contract first, then the mandate: 1000 - 800 - 50.
  s.bContratCourt = true;
  EXPECT_DOUBLE_EQ(Assiette(1000.0), 150.0);
  s.bEluNonEligibleAbatFraisEmploi = true;
  EXPECT_DOUBLE_EQ(Assiette(1000.0), 200.0);
}

TEST_F(PasReviewTest, OtherCategoriesLeaveTheLineWithoutDetail) {
  s.sCodeCategorie = "INSTITUT";
  s.rsAutresIndemnites = nullptr;
  EXPECT_DOUBLE_EQ(Assiette(1000.0), 1000.0);
  EXPECT_FALSE(r.rsPrelevementSourceElus);
}

// ---- Rate -----------------------------------------------------------------------------------

TEST_F(PasReviewTest, ValidRateIsReturnedWithoutReadingAnything) {
  m.gRsBaremeTauxPAS = nullptr;
  s.rsIndemnitesJournalieres = nullptr;
  s.dTauxPAS = 0.029;
  s.bTauxPasValide = true;
  s.bUtiliseTauxNeutre = true;
  EXPECT_DOUBLE_EQ(Taux(1650.0), 0.029);
  EXPECT_FALSE(s.bUtiliseTauxNeutre);
  s.dTauxPAS = 0;
  EXPECT_DOUBLE_EQ(Taux(1650.0), 0.0);
}

TEST_F(PasReviewTest, ScaleWithNoSourceFaultsWhenTheNeutralRateIsNeeded) {
  m.gRsBaremeTauxPAS = nullptr;
  EXPECT_THROW(Taux(1650.0), Fault);
  s.dTauxPAS = 0.05;  // given but not validated: the scale is needed
  EXPECT_THROW(Taux(1650.0), Fault);
}

TEST_F(PasReviewTest, EmptyScaleGivesTheRateAsItStands) {
  m.gRsBaremeTauxPAS = Bareme({});
  s.rsIndemnitesJournalieres = nullptr;  // step 4 comes after the empty test
  s.bUtiliseTauxNeutre = true;
  EXPECT_DOUBLE_EQ(Taux(1650.0), 0.0);
  EXPECT_FALSE(s.bUtiliseTauxNeutre);
  s.dTauxPAS = 0.05;
  EXPECT_DOUBLE_EQ(Taux(1650.0), 0.05);
  EXPECT_FALSE(s.bUtiliseTauxNeutre);
}

TEST_F(PasReviewTest, BothBoundsInclusiveAndTheFirstRowWins) {
  EXPECT_DOUBLE_EQ(Taux(1683.0), 0.005);  // upper bound of the 2nd bracket, lower of the 3rd
  EXPECT_TRUE(s.bUtiliseTauxNeutre);
  EXPECT_DOUBLE_EQ(Taux(1683.01), 0.013);
  EXPECT_DOUBLE_EQ(Taux(1911.0), 0.021);
  EXPECT_DOUBLE_EQ(Taux(1911.01), 0.0);  // above every bracket
  EXPECT_FALSE(s.bUtiliseTauxNeutre);
  EXPECT_DOUBLE_EQ(Taux(-0.01), 0.0);
  EXPECT_FALSE(s.bUtiliseTauxNeutre);
  ExpectBaremeSansFiltre();
}

TEST_F(PasReviewTest, RecordsetOrderDecidesOnASharedBound) {
  m.gRsBaremeTauxPAS = Bareme({{"M", 1620.0, 1683.0, 0.005}, {"M", 0.0, 1620.0, 0.001}});
  EXPECT_DOUBLE_EQ(Taux(1620.0), 0.005);
}

TEST_F(PasReviewTest, NullBoundNeverMatches) {
  m.gRsBaremeTauxPAS = Bareme({{"M", Value(), 2000.0, 0.7},
                               {"M", 0.0, Value(), 0.8},
                               {"M", 0.0, 2000.0, 0.01}});
  EXPECT_DOUBLE_EQ(Taux(1000.0), 0.01);
}

TEST_F(PasReviewTest, RateNotValidatedIsKeptWhenNoBracketHoldsTheBase) {
  s.dTauxPAS = 0.05;
  Assiette(5000.0);
  EXPECT_TRUE(s.bUtiliseTauxNeutre);
  EXPECT_DOUBLE_EQ(m.CalculPrelevementALaSource_Taux(s), 0.05);
  EXPECT_FALSE(s.bUtiliseTauxNeutre);
  Assiette(1700.0);
  EXPECT_DOUBLE_EQ(m.CalculPrelevementALaSource_Taux(s), 0.013);
  EXPECT_TRUE(s.bUtiliseTauxNeutre);
}

TEST_F(PasReviewTest, TaxableDailyBenefitsJoinTheBaseOfTheScale) {
  EXPECT_DOUBLE_EQ(Taux(1600.0), 0.0);
  // 1600 + 50 + 33.5 = 1683.5, the null left out.
  s.rsIndemnitesJournalieres = IndemnitesJournalieres({50.0, Value(), 33.5});
  EXPECT_DOUBLE_EQ(Taux(1600.0), 0.013);
}

TEST_F(PasReviewTest, OtherTypeOfScaleReadsItsOwnRowsUnprorated) {
  s.sTypeBareme = "T";
  s.iNBJ_Presence_Total = 15;
  EXPECT_DOUBLE_EQ(Taux(4000.0), 0.5);
  s.sTypeBareme = "X";  // no row of that type: the rate as it stands
  s.dTauxPAS = 0.04;
  EXPECT_DOUBLE_EQ(Taux(4000.0), 0.04);
  EXPECT_FALSE(s.bUtiliseTauxNeutre);
  ExpectBaremeSansFiltre();
}

TEST_F(PasReviewTest, MonthlyProratedScaleOnHalfAMonth) {
  // "MM" reads the rows "M" at 15/30: 0-810, 810-841.50, 841.50-895.50, 895.50-955.50.
  s.sTypeBareme = "MM";
  s.iNBJ_Presence_Total = 15;
  EXPECT_DOUBLE_EQ(Taux(841.5), 0.005);
  EXPECT_DOUBLE_EQ(Taux(900.0), 0.021);
  EXPECT_DOUBLE_EQ(Taux(1000.0), 0.0);
  EXPECT_FALSE(s.bUtiliseTauxNeutre);
  // The recall days join the presence: 10 + 5 = 15.
  s.iNBJ_Presence_Total = 10;
  s.iNBJ_Presence_Total_Rappel = 5;
  EXPECT_DOUBLE_EQ(Taux(841.5), 0.005);
  ExpectBaremeSansFiltre();
}

TEST_F(PasReviewTest, OfficialPaidQuarterlyIsProratedOnThePeriodDaysOnly) {
  s.sTypeBareme = "MM";
  s.sCodeCategorie = "ELUS";
  s.sEluPeriodicite = "2";
  s.iNBJ_Presence_Total_Periode_Elus = 15;
  s.iNBJ_Presence_Total = 30;
  EXPECT_DOUBLE_EQ(Taux(841.5), 0.005);
  // The monthly days are not added on this path: their sum can't overflow here.
  s.iNBJ_Presence_Total = 32767;
  s.iNBJ_Presence_Total_Rappel = 1;
  EXPECT_DOUBLE_EQ(Taux(841.5), 0.005);
  // On the monthly path the same 16-bit sum is a fault, and the filter is lifted.
  s.sEluPeriodicite = "1";
  EXPECT_THROW(Taux(841.5), Fault);
  ExpectBaremeSansFiltre();
}

TEST_F(PasReviewTest, PeriodicityCountsOnlyForOfficials) {
  s.sTypeBareme = "MM";
  s.sCodeCategorie = "INSTITUT";
  s.sEluPeriodicite = "3";
  s.iNBJ_Presence_Total = 30;
  s.iNBJ_Presence_Total_Periode_Elus = 15;
  EXPECT_DOUBLE_EQ(Taux(841.5), 0.0);  // full month: first bracket 0-1620
  s.sCodeCategorie = "ELUS";
  s.sEluPeriodicite = "";  // empty counts as monthly
  EXPECT_DOUBLE_EQ(Taux(841.5), 0.0);
}

TEST_F(PasReviewTest, NoPresenceTakesTheMonthBeforeWhenARecallIsGiven) {
  // February 2024 for an employee who began on the 16th, new index and hours:
  // INTN = 30 - 16 + 1 = 15, a prorata of one half.
  s.sTypeBareme = "MM";
  s.sDateDebut = "16/02/2024";
  s.dCoefficient_INTN = 1;
  s.sDateDebutRappel = "01/02/2024";
  s.sDateFinRappel = "10/02/2024";
  EXPECT_DOUBLE_EQ(Taux(841.5), 0.005);
  EXPECT_DOUBLE_EQ(Taux(1650.0), 0.0);
  EXPECT_FALSE(s.bUtiliseTauxNeutre);
}

TEST_F(PasReviewTest, NoPresenceInEitherMonthTakesTheRecallLength) {
  s.sTypeBareme = "MM";
  s.sDateFin = "31/01/2024";  // gone before February: no presence there either
  s.sDateDebutRappel = "01/01/2024";
  s.sDateFinRappel = "15/02/2024";  // 45 days: 1
  EXPECT_DOUBLE_EQ(Taux(1650.0), 0.005);
  s.sDateFinRappel = "31/01/2024";  // 30 days, the end not added: 1
  EXPECT_DOUBLE_EQ(Taux(1650.0), 0.005);
  // 29 days: 29/30 turns 1620, 1683, 1791 into 1566, 1626.90, 1731.30.
  s.sDateFinRappel = "30/01/2024";
  EXPECT_DOUBLE_EQ(Taux(1600.0), 0.005);
  EXPECT_DOUBLE_EQ(Taux(1650.0), 0.013);
}

TEST_F(PasReviewTest, NoPresenceAndNoRecallMatchesTheFirstRowOnAZeroBase) {
  // Every bound times 0 is 0: the first "M" row in order holds a base of 0, whatever its bounds.
  m.gRsBaremeTauxPAS = Bareme({{"M", 1620.0, 1683.0, 0.005}, {"M", 0.0, 1620.0, 0.001}});
  s.sTypeBareme = "MM";
  EXPECT_DOUBLE_EQ(Taux(0.0), 0.005);
  EXPECT_TRUE(s.bUtiliseTauxNeutre);
  EXPECT_DOUBLE_EQ(Taux(0.01), 0.0);
  EXPECT_FALSE(s.bUtiliseTauxNeutre);
  s.sDateFinRappel = "31/01/2024";  // one date alone is no recall
  EXPECT_DOUBLE_EQ(Taux(0.01), 0.0);
}

TEST_F(PasReviewTest, FaultInTheWalkLeavesNoFilter) {
  m.gRsBaremeTauxPAS = Bareme({{"T", 0.0, 1.0, 0.5}, {"M", 0.0, 2000.0, Value()}});
  EXPECT_THROW(Taux(1000.0), Fault);
  EXPECT_EQ(m.gRsBaremeTauxPAS->RecordCount(), 2);
}

// ---- Former rate ----------------------------------------------------------------------------

TEST_F(PasReviewTest, FormerRateTakesAnyIndividualRate) {
  m.gRsBaremeTauxPAS = nullptr;
  s.dTauxPAS = 0.02;
  s.bTauxPasValide = false;
  double dBase = -1000.0;
  std::string sLibelle = "PAS";
  EXPECT_DOUBLE_EQ(m.CalculPrelevementALaSource_Tauxold(s, dBase, sLibelle), 0.02);
  EXPECT_DOUBLE_EQ(dBase, -1000.0);
  EXPECT_EQ(sLibelle, "PAS");
}

TEST_F(PasReviewTest, FormerRateFindsTheBracketBeforeTheShortContractAllowance) {
  s.bContratCourt = true;
  s.dMontantBase_PAS = 123.0;
  double dBase = -1700.0;  // 1700 lies in 1683-1791; then 1700 - 800 = 900
  std::string sLibelle = "PAS";
  EXPECT_DOUBLE_EQ(m.CalculPrelevementALaSource_Tauxold(s, dBase, sLibelle), 0.013);
  EXPECT_EQ(sLibelle, "PAS - Taux neutre");
  EXPECT_DOUBLE_EQ(dBase, -900.0);
  EXPECT_DOUBLE_EQ(s.dMontantBase_PAS, 900.0);
  ExpectBaremeSansFiltre();

  dBase = -5000.0;  // no bracket: no label, no allowance
  sLibelle = "PAS";
  s.dMontantBase_PAS = 123.0;
  EXPECT_DOUBLE_EQ(m.CalculPrelevementALaSource_Tauxold(s, dBase, sLibelle), 0.0);
  EXPECT_EQ(sLibelle, "PAS");
  EXPECT_DOUBLE_EQ(dBase, -5000.0);
  EXPECT_DOUBLE_EQ(s.dMontantBase_PAS, 123.0);
}

TEST_F(PasReviewTest, FormerRateWithAnEmptyScaleIsZero) {
  m.gRsBaremeTauxPAS = Bareme({});
  double dBase = -1700.0;
  std::string sLibelle;
  EXPECT_DOUBLE_EQ(m.CalculPrelevementALaSource_Tauxold(s, dBase, sLibelle), 0.0);
  EXPECT_EQ(sLibelle, "");
  EXPECT_DOUBLE_EQ(dBase, -1700.0);
}

TEST_F(PasReviewTest, FormerRateProratesOnThePresenceAlone) {
  // 15 days without the 15 days of recall: 895.50-955.50 holds 900 (a whole month would not).
  s.sTypeBareme = "MM";
  s.iNBJ_Presence_Total = 15;
  s.iNBJ_Presence_Total_Rappel = 15;
  double dBase = -900.0;
  std::string sLibelle;
  EXPECT_DOUBLE_EQ(m.CalculPrelevementALaSource_Tauxold(s, dBase, sLibelle), 0.021);
  // No presence and a recall: no fallback, a prorata of 0 holds no base above 0.
  s.iNBJ_Presence_Total = 0;
  s.sDateDebutRappel = "01/01/2024";
  s.sDateFinRappel = "15/02/2024";
  dBase = -1650.0;
  sLibelle.clear();
  EXPECT_DOUBLE_EQ(m.CalculPrelevementALaSource_Tauxold(s, dBase, sLibelle), 0.0);
  EXPECT_EQ(sLibelle, "");
}

TEST_F(PasReviewTest, FormerRateApprenticeBaseIsTheThresholdNegated) {
  s.sCodeCategorie = "APPRENTI";
  s.dTauxPAS = 0.02;
  s.dMontantBaseDejaCotise_PAS = 1000.0;
  double dBase = -500.0;
  std::string sLibelle;
  EXPECT_DOUBLE_EQ(m.CalculPrelevementALaSource_Tauxold(s, dBase, sLibelle), 0.02);
  EXPECT_DOUBLE_EQ(dBase, -2000.0);  // 24000 - 21000 - 1000
}

// ---- Daily benefits and net before the tax --------------------------------------------------

TEST_F(PasReviewTest, TaxableDailyBenefits) {
  EXPECT_DOUBLE_EQ(m.dMtIJImposable(s), 0.0);
  s.rsIndemnitesJournalieres = IndemnitesJournalieres({10.5, Value(), 20.25, -5.0});
  EXPECT_DOUBLE_EQ(m.dMtIJImposable(s), 25.75);
}

TEST_F(PasReviewTest, NetBeforeTaxOnlyForTheTrial) {
  m.gRsCumuls = Cumuls({{"TOTPASPREF", 45.5}, {"NETPAYER", 1500.25}});
  EXPECT_DOUBLE_EQ(m.dNetAPayerAvantPAS(s), 0.0);
  s.bCollectiviteUtilisePrefigurationPAS = true;
  EXPECT_DOUBLE_EQ(m.dNetAPayerAvantPAS(s), 1545.75);
  m.gRsCumuls = Cumuls({{"TOTPASPREF", 10.125}});  // totals are read to the cent: 10.13
  EXPECT_DOUBLE_EQ(m.dNetAPayerAvantPAS(s), 10.13);
}

// ---- Elected officials ----------------------------------------------------------------------

TEST_F(PasReviewTest, OfficialDetailColumnsAndPrincipalRow) {
  s.sDateFin = "31/12/2026";
  s.bEluNonEligibleAbatFraisEmploi = false;
  EXPECT_DOUBLE_EQ(Abattement(), 50.0);
  ASSERT_TRUE(r.rsPrelevementSourceElus);
  EXPECT_EQ(r.rsPrelevementSourceElus->Columns(),
            (std::vector<std::string>{"NumeroOrdre", "DesignationMandat", "DateDebut", "DateFin",
                                      "RemunerationBrute", "IndiceMajore",
                                      "FraisEmploiMandatUnique",
                                      "EluNonEligibleAbatFraisEmploi"}));
  ASSERT_EQ(NbLignes(r.rsPrelevementSourceElus), 1u);
  EXPECT_EQ(Detail(0, "NumeroOrdre"), Value(1));
  EXPECT_EQ(Detail(0, "DesignationMandat"), Value("Indemnité principale"));
  EXPECT_EQ(Detail(0, "DateDebut"), Value("01/01/2020"));
  EXPECT_EQ(Detail(0, "DateFin"), Value("31/12/2026"));
  EXPECT_EQ(Detail(0, "RemunerationBrute"), Value(2000.0));
  EXPECT_EQ(Detail(0, "IndiceMajore"), Value(1000.0));
  EXPECT_EQ(Detail(0, "FraisEmploiMandatUnique"), Value(50.0));
  EXPECT_EQ(Detail(0, "EluNonEligibleAbatFraisEmploi"), Value(false));
}

TEST_F(PasReviewTest, QuarterlyOfficialOutsideTheQuarterEnd) {
  m.gPeriodeEncours = "01/05/2024";
  s.sEluPeriodicite = "2";
  EXPECT_DOUBLE_EQ(Abattement(), 0.0);
  ASSERT_TRUE(r.rsPrelevementSourceElus);
  EXPECT_EQ(NbLignes(r.rsPrelevementSourceElus), 0u);
  s.sDateFin = "20/05/2025";  // another year: "05/2025" is not "05/2024"
  EXPECT_DOUBLE_EQ(Abattement(), 0.0);
  // Leaving this month: treated, a whole quarter (began in 2020): 3 x 50.
  s.sDateFin = "20/05/2024";
  EXPECT_DOUBLE_EQ(Abattement(), 150.0);
}

TEST_F(PasReviewTest, HalfYearlyAndYearlyPeriodEnds) {
  s.sEluPeriodicite = "3";
  m.gPeriodeEncours = "01/09/2024";
  EXPECT_DOUBLE_EQ(Abattement(), 0.0);
  m.gPeriodeEncours = "01/12/2024";
  EXPECT_DOUBLE_EQ(Abattement(), 300.0);  // 6 x 50
  s.sEluPeriodicite = "4";
  m.gPeriodeEncours = "01/06/2024";
  EXPECT_DOUBLE_EQ(Abattement(), 0.0);
  // Yearly, begun 15/04/2024: D = 8 months to December, 9 months x 50.
  m.gPeriodeEncours = "01/12/2024";
  s.sDateDebut = "15/04/2024";
  EXPECT_DOUBLE_EQ(Abattement(), 450.0);
}

TEST_F(PasReviewTest, QuarterlyMonthsFromTheMandateStart) {
  s.sEluPeriodicite = "2";
  s.sDateDebut = "10/02/2024";  // D = 1: 2 months
  EXPECT_DOUBLE_EQ(Abattement(), 100.0);
  s.sDateDebut = "31/03/2024";  // D = 0: 1 month
  EXPECT_DOUBLE_EQ(Abattement(), 50.0);
  s.sDateDebut = "15/04/2024";  // D = -1: the whole quarter
  EXPECT_DOUBLE_EQ(Abattement(), 150.0);
  s.sDateDebut = "01/12/2023";  // another year: the whole quarter
  EXPECT_DOUBLE_EQ(Abattement(), 150.0);
}

TEST_F(PasReviewTest, QuarterWithAnotherMandateInJanuaryOnly) {
  // Multiple month: January. (3 - 1) x 50 + 1 x 75 = 175; 2000 / 2500 x 175 = 140.
  s.sEluPeriodicite = "2";
  s.rsAutresIndemnites =
      Mandats({{false, false, "Syndicat", "01/01/2024", "31/01/2024", 500.0}});
  EXPECT_DOUBLE_EQ(Abattement(), 140.0);
  ASSERT_EQ(NbLignes(r.rsPrelevementSourceElus), 2u);
  EXPECT_EQ(Detail(1, "NumeroOrdre"), Value(2));
  EXPECT_EQ(Detail(1, "DesignationMandat"), Value("Syndicat"));
  EXPECT_EQ(Detail(1, "DateDebut"), Value("01/01/2024"));
  EXPECT_EQ(Detail(1, "DateFin"), Value("31/01/2024"));
  EXPECT_EQ(Detail(1, "RemunerationBrute"), Value(500.0));
  EXPECT_EQ(Detail(1, "IndiceMajore"), Value(1000.0));
  EXPECT_EQ(Detail(1, "FraisEmploiMandatUnique"), Value(75.0));
  EXPECT_EQ(Detail(1, "EluNonEligibleAbatFraisEmploi"), Value(false));
}

TEST_F(PasReviewTest, QuarterWindowKeepsAMandateEndedTheMonthBefore) {
  // Ended in December 2023: no multiple month, but in the period's mandates:
  // 3 x 50 = 150; 2000 / 2500 x 150 = 120. Ended in November: not in the period.
  s.sEluPeriodicite = "2";
  s.rsAutresIndemnites =
      Mandats({{false, false, "Syndicat", "01/06/2023", "31/12/2023", 500.0},
                        {false, false, "Office", "01/06/2023", "30/11/2023", 700.0}});
  EXPECT_DOUBLE_EQ(Abattement(), 120.0);
  ASSERT_EQ(NbLignes(r.rsPrelevementSourceElus), 2u);
  EXPECT_EQ(Detail(1, "FraisEmploiMandatUnique"), Value(50.0));
}

TEST_F(PasReviewTest, MonthlyWindowKeepsAMandateEndedLastMonth) {
  // Ended in February: single allowance 50, borne 2000 / 2500: 40.
  s.rsAutresIndemnites =
      Mandats({{false, false, "Syndicat", "01/01/2023", "29/02/2024", 500.0}});
  EXPECT_DOUBLE_EQ(Abattement(), 40.0);
  EXPECT_EQ(Detail(1, "FraisEmploiMandatUnique"), Value(50.0));
}

TEST_F(PasReviewTest, MonthlyWithAnotherMandateRunning) {
  // 75 x 2000 / 2500 = 60; two running mandates count the month once: 75 x 2000 / 3000 = 50.
  s.rsAutresIndemnites =
      Mandats({{false, false, "Syndicat", "01/01/2023", "31/12/2026", 500.0}});
  EXPECT_DOUBLE_EQ(Abattement(), 60.0);
  s.rsAutresIndemnites =
      Mandats({{false, false, "Syndicat", "01/01/2023", "31/12/2026", 500.0},
                        {false, false, "Office", "01/03/2024", "31/03/2024", 500.0}});
  EXPECT_DOUBLE_EQ(Abattement(), 50.0);
  ASSERT_EQ(NbLignes(r.rsPrelevementSourceElus), 3u);
  EXPECT_EQ(Detail(2, "NumeroOrdre"), Value(3));
  EXPECT_EQ(Detail(2, "FraisEmploiMandatUnique"), Value(75.0));
}

TEST_F(PasReviewTest, NonEligibleAndSalaryRows) {
  // Not eligible: in the detail, out of the gross and of the multiple months.
  // A salary row: nowhere, and takes no number.
  s.rsAutresIndemnites =
      Mandats({{true, false, "Salaire", "01/01/2023", "31/12/2026", 3000.0},
                        {false, true, "Office", "01/01/2023", "31/12/2026", 500.0},
                        {false, false, "Syndicat", "01/01/2023", "31/01/2024", 400.0}});
  EXPECT_DOUBLE_EQ(Abattement(), 50.0);
  ASSERT_EQ(NbLignes(r.rsPrelevementSourceElus), 2u);
  EXPECT_EQ(Detail(1, "NumeroOrdre"), Value(2));
  EXPECT_EQ(Detail(1, "DesignationMandat"), Value("Office"));
  EXPECT_EQ(Detail(1, "EluNonEligibleAbatFraisEmploi"), Value(true));
  EXPECT_EQ(Detail(1, "FraisEmploiMandatUnique"), Value(50.0));
}

TEST_F(PasReviewTest, NullEndDateCountsNeitherWay) {
  s.rsAutresIndemnites =
      Mandats({{false, false, "Syndicat", "01/01/2023", Value(), 500.0}});
  EXPECT_DOUBLE_EQ(Abattement(), 50.0);
  EXPECT_EQ(NbLignes(r.rsPrelevementSourceElus), 1u);
}

TEST_F(PasReviewTest, OfficialNotEligibleHasAFullDetailAndNoAllowance) {
  s.bEluNonEligibleAbatFraisEmploi = true;
  m.gRsCumuls = Cumuls({{"BRUT", 0.0}});  // no division is made
  s.rsAutresIndemnites =
      Mandats({{false, false, "Syndicat", "01/01/2023", "31/12/2026", 0.0}});
  EXPECT_DOUBLE_EQ(Abattement(), 0.0);
  ASSERT_EQ(NbLignes(r.rsPrelevementSourceElus), 2u);
  EXPECT_EQ(Detail(0, "EluNonEligibleAbatFraisEmploi"), Value(true));
  EXPECT_EQ(Detail(1, "FraisEmploiMandatUnique"), Value(75.0));
}

TEST_F(PasReviewTest, FlatTaxAllowanceReplacesBothAllowances) {
  m.gRsConstantes = Constantes({{"INDMAJELU", 1000.0}, {"ELUABTFISC", 120.0}});
  s.rsAutresIndemnites =
      Mandats({{false, false, "Syndicat", "01/01/2023", "31/12/2026", 500.0}});
  EXPECT_DOUBLE_EQ(Abattement(), 60.0);  // flag off: 75 x 0.8
  s.bAbattementFiscalElu = true;
  EXPECT_DOUBLE_EQ(Abattement(), 96.0);  // 120 x 0.8
  EXPECT_EQ(Detail(0, "FraisEmploiMandatUnique"), Value(120.0));
  EXPECT_EQ(Detail(1, "FraisEmploiMandatUnique"), Value(120.0));
  m.gRsConstantes = Constantes({{"INDMAJELU", 1000.0}, {"ELUABTFISC", 0.0}});
  EXPECT_DOUBLE_EQ(Abattement(), 60.0);
}

TEST_F(PasReviewTest, NoGrossAtAllIsAZeroDivisor) {
  m.gRsCumuls = Cumuls({{"BRUT", 0.0}});
  EXPECT_THROW(Abattement(), Fault);
  s.rsAutresIndemnites =
      Mandats({{false, false, "Syndicat", "01/01/2023", "31/12/2026", 500.0}});
  EXPECT_DOUBLE_EQ(Abattement(), 0.0);  // 0 / 500 x 75
}

TEST_F(PasReviewTest, PeriodicityOutsideTheListHasNoMonthsAndNoAllowance) {
  // Neither monthly nor a known period: the period-end test passes, the months of the
  // period are P = 0, so no month is counted and the allowance is 0, given before the
  // division (which would be 0 / 0 here).
  s.sEluPeriodicite = "5";
  m.gRsCumuls = Cumuls({{"BRUT", 0.0}});
  s.rsAutresIndemnites =
      Mandats({{false, false, "Syndicat", "01/01/2023", "31/12/2026", 0.0},
                        {false, false, "Office", "01/01/2023", "29/02/2024", 500.0}});
  EXPECT_DOUBLE_EQ(Abattement(), 0.0);
  // The window starts at the pay month itself: the mandate ended in February is out.
  ASSERT_EQ(NbLignes(r.rsPrelevementSourceElus), 2u);
  EXPECT_EQ(Detail(1, "DesignationMandat"), Value("Syndicat"));
  EXPECT_EQ(Detail(1, "FraisEmploiMandatUnique"), Value(50.0));
}

// ---- Through the entry point ----------------------------------------------------------------

TEST_F(PasReviewTest, TaxLineThroughTheEntryPoint) {
  m.gRsCumuls = Cumuls({{"NETIMPOS", 1700.0}});
  r.sValeurBase = "SALAIRE IMPOSABLE ABATTU";
  r.sValeurTauxSalarial = "TAUX PAS";
  ASSERT_TRUE(m.Appel_Methode_Calcul_General("BASE x TAUX", s, r));
  EXPECT_DOUBLE_EQ(r.dBase, 1700.0);
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 0.013);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 0.013 * 1700.0);
  EXPECT_DOUBLE_EQ(s.dMontantBase_PAS, 1700.0);
  EXPECT_TRUE(s.bUtiliseTauxNeutre);

  m.gRsBaremeTauxPAS = nullptr;
  EXPECT_FALSE(m.Appel_Methode_Calcul_General("BASE x TAUX", s, r));
}

TEST_F(PasReviewTest, OfficialTaxLineThroughTheEntryPoint) {
  m.gRsCumuls = Cumuls({{"NETIMPOS", 1000.0}, {"BRUT", 2000.0}});
  s.sCodeCategorie = "ELUS";
  s.dTauxPAS = 0.02;
  s.bTauxPasValide = true;
  r.sValeurBase = "SALAIRE IMPOSABLE ABATTU";
  r.sValeurTauxSalarial = "TAUX PAS";
  ASSERT_TRUE(m.Appel_Methode_Calcul_General("BASE x TAUX", s, r));
  EXPECT_DOUBLE_EQ(r.dBase, 950.0);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 0.02 * 950.0);
  ASSERT_TRUE(r.rsPrelevementSourceElus);
  EXPECT_EQ(NbLignes(r.rsPrelevementSourceElus), 1u);
}

}  // namespace
}  // namespace orvalis
