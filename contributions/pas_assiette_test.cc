// Income tax at source: assessment base, apprentices' threshold, taxable daily benefits and
// net pay before the tax.
#include <gtest/gtest.h>

#include "contributions/pas_test_util.h"

namespace orvalis {
namespace {

using pas_test::Constantes;
using pas_test::Cumuls;
using pas_test::CumulsHistorique;
using pas_test::IndemnitesJournalieres;

class PasAssiette : public ::testing::Test {
 protected:
  void SetUp() override {
    m.gPeriodeEncours = "01/03/2024";
    m.gRsConstantes = Constantes({{"DEMISMIC", 800.0}, {"SMICANNUEL", 3000.0}});
    m.gRsCumuls = Cumuls({{"NETIMPOS", 1300.0}});
    // Employee 7: January and February; employee 8 must never be read.
    m.gRsCumulsHistoriqueSal = CumulsHistorique({{7, "202401", "NETIMPOS", 1000.0},
                                                 {7, "202402", "NETIMPOS", 1200.0},
                                                 {8, "202402", "NETIMPOS", 9999.0},
                                                 {7, "202312", "NETIMPOS", 5000.0}});
    s.lIdSalarie = 7;
    s.dTauxPAS = 0.05;
    s.bTauxPasValide = true;
  }
  MethodeCalculG_Nouv m;
  VarCalculSalarie s;
  SalarieCalculRubrique r;
};

TEST_F(PasAssiette, ValidIndividualRateKeepsTheBase) {
  s.bUtiliseTauxNeutre = true;
  double dBase = 1500.0;
  EXPECT_DOUBLE_EQ(m.CalculPrelevementALaSource_Assiette(s, dBase, r), 1500.0);
  EXPECT_DOUBLE_EQ(dBase, 1500.0);
  EXPECT_DOUBLE_EQ(s.dMontantBase_PAS, 1500.0);
  EXPECT_FALSE(s.bUtiliseTauxNeutre);
}

TEST_F(PasAssiette, NegativeRateMeansNeutralRate) {
  s.dTauxPAS = -1;
  double dBase = 1500.0;
  m.CalculPrelevementALaSource_Assiette(s, dBase, r);
  EXPECT_TRUE(s.bUtiliseTauxNeutre);
  EXPECT_DOUBLE_EQ(dBase, 1500.0);
}

TEST_F(PasAssiette, RateNotValidatedMeansNeutralRate) {
  s.bTauxPasValide = false;
  double dBase = 1500.0;
  m.CalculPrelevementALaSource_Assiette(s, dBase, r);
  EXPECT_TRUE(s.bUtiliseTauxNeutre);
}

TEST_F(PasAssiette, ShortContractOnNeutralRateTakesOffTheAllowance) {
  s.dTauxPAS = -0.01;
  s.bContratCourt = true;
  double dBase = 1500.0;
  EXPECT_DOUBLE_EQ(m.CalculPrelevementALaSource_Assiette(s, dBase, r), 700.0);
  EXPECT_DOUBLE_EQ(dBase, 700.0);
  EXPECT_DOUBLE_EQ(s.dMontantBase_PAS, 700.0);
}

TEST_F(PasAssiette, ShortContractWithRateNotValidatedTakesOffTheAllowance) {
  s.bTauxPasValide = false;
  s.bContratCourt = true;
  double dBase = 1500.25;
  EXPECT_DOUBLE_EQ(m.CalculPrelevementALaSource_Assiette(s, dBase, r), 700.25);
}

TEST_F(PasAssiette, ShortContractWithValidRateKeepsTheBase) {
  s.bContratCourt = true;
  double dBase = 1500.0;
  EXPECT_DOUBLE_EQ(m.CalculPrelevementALaSource_Assiette(s, dBase, r), 1500.0);
}

TEST_F(PasAssiette, ShortContractAllowanceNeverGoesBelowZero) {
  s.dTauxPAS = -1;
  s.bContratCourt = true;
  double dBase = 799.99;
  EXPECT_DOUBLE_EQ(m.CalculPrelevementALaSource_Assiette(s, dBase, r), 0.0);
  dBase = 800.0;
  EXPECT_DOUBLE_EQ(m.CalculPrelevementALaSource_Assiette(s, dBase, r), 0.0);
  dBase = 800.01;
  EXPECT_NEAR(m.CalculPrelevementALaSource_Assiette(s, dBase, r), 0.01, 1e-9);
}

TEST_F(PasAssiette, ApprenticeBaseIsTheThresholdEvenOnShortContract) {
  // 1000 + 1200 + 1300 = 3500 taxable this year, 3000 exempt, 200 already taxed: 300.
  s.sCodeCategorie = "APPRENTI";
  s.dTauxPAS = -1;
  s.bContratCourt = true;
  s.dMontantBaseDejaCotise_PAS = 200.0;
  double dBase = 1500.0;
  EXPECT_DOUBLE_EQ(m.CalculPrelevementALaSource_Assiette(s, dBase, r), 300.0);
  EXPECT_DOUBLE_EQ(s.dMontantBase_PAS, 300.0);
}

TEST_F(PasAssiette, TraineeBaseIsTheThreshold) {
  s.sCodeModele = "STAGIAIRE";
  double dBase = 1500.0;
  EXPECT_DOUBLE_EQ(m.CalculPrelevementALaSource_Assiette(s, dBase, r), 500.0);
}

TEST_F(PasAssiette, ElectedOfficialBaseLessTheMandateAllowance) {
  // One monthly mandate: 1000 x 6 x 10 % / 12 = 50, all of it borne by the principal.
  m.gRsConstantes = Constantes({{"INDMAJELU", 1000.0}});
  m.gRsConstantesFixes = pas_test::Table({"Point", "EluTxFrais"}, {{6.0, 10.0}});
  m.gRsCumuls = Cumuls({{"BRUT", 2000.0}});
  s.sCodeCategorie = "ELUS";
  s.sEluPeriodicite = "1";
  s.sDateDebut = "01/01/2020";
  s.rsAutresIndemnites = NouveauRecordset({"Salaire", "EluNonEligibleAbatFraisEmploi",
                                           "Designation", "DateDebut", "DateFin",
                                           "MontantRemunerationBrute"});
  double dBase = 1500.0;
  EXPECT_DOUBLE_EQ(m.CalculPrelevementALaSource_Assiette(s, dBase, r), 1450.0);
  EXPECT_DOUBLE_EQ(s.dMontantBase_PAS, 1450.0);
  ASSERT_TRUE(r.rsPrelevementSourceElus);
  EXPECT_EQ(pas_test::NbLignes(r.rsPrelevementSourceElus), 1u);

  dBase = 30.0;
  EXPECT_DOUBLE_EQ(m.CalculPrelevementALaSource_Assiette(s, dBase, r), 0.0);
  EXPECT_DOUBLE_EQ(s.dMontantBase_PAS, 0.0);
}

TEST_F(PasAssiette, OtherCategoriesNeverReadTheMandates) {
  s.sCodeCategorie = "INSTITUT";
  double dBase = 1500.0;
  EXPECT_DOUBLE_EQ(m.CalculPrelevementALaSource_Assiette(s, dBase, r), 1500.0);
  EXPECT_FALSE(r.rsPrelevementSourceElus);
}

// ---- Threshold of apprentices and trainees --------------------------------------------

TEST_F(PasAssiette, ThresholdAddsTheEarlierMonthsOfTheYear) {
  EXPECT_DOUBLE_EQ(m.dSeuilPrelevementSource(s), 500.0);
}

TEST_F(PasAssiette, ThresholdInJanuaryReadsOnlyTheCurrentTotal) {
  m.gPeriodeEncours = "01/01/2024";
  m.gRsConstantes = Constantes({{"SMICANNUEL", 1000.0}});
  // 202312 holds 5000 for this employee: not of this year.
  EXPECT_DOUBLE_EQ(m.dSeuilPrelevementSource(s), 300.0);
}

TEST_F(PasAssiette, ThresholdInDecemberReadsElevenMonths) {
  m.gPeriodeEncours = "01/12/2023";
  m.gRsCumuls = Cumuls({{"NETIMPOS", 100.0}});
  m.gRsCumulsHistoriqueSal = CumulsHistorique(
      {{7, "202301", "NETIMPOS", 100.0}, {7, "202302", "NETIMPOS", 100.0},
       {7, "202303", "NETIMPOS", 100.0}, {7, "202304", "NETIMPOS", 100.0},
       {7, "202305", "NETIMPOS", 100.0}, {7, "202306", "NETIMPOS", 100.0},
       {7, "202307", "NETIMPOS", 100.0}, {7, "202308", "NETIMPOS", 100.0},
       {7, "202309", "NETIMPOS", 100.0}, {7, "202310", "NETIMPOS", 100.0},
       {7, "202311", "NETIMPOS", 100.0}, {7, "202312", "NETIMPOS", 7000.0},
       {7, "202212", "NETIMPOS", 7000.0}, {7, "202311", "BRUT", 7000.0}});
  m.gRsConstantes = Constantes({{"SMICANNUEL", 1000.0}});
  // 11 x 100 + 100 = 1200.
  EXPECT_DOUBLE_EQ(m.dSeuilPrelevementSource(s), 200.0);
}

TEST_F(PasAssiette, ThresholdBelowTheAnnualSmicIsZero) {
  m.gRsConstantes = Constantes({{"SMICANNUEL", 3500.01}});
  s.dMontantBaseDejaCotise_PAS = -100.0;
  EXPECT_DOUBLE_EQ(m.dSeuilPrelevementSource(s), 0.0);
}

TEST_F(PasAssiette, ThresholdReachedExactlyIsNotBoundedBelow) {
  m.gRsConstantes = Constantes({{"SMICANNUEL", 3500.0}});
  EXPECT_DOUBLE_EQ(m.dSeuilPrelevementSource(s), 0.0);
  s.dMontantBaseDejaCotise_PAS = 50.0;
  EXPECT_DOUBLE_EQ(m.dSeuilPrelevementSource(s), -50.0);
}

TEST_F(PasAssiette, ThresholdWithoutHistoryReadsTheCurrentTotal) {
  m.gRsCumulsHistoriqueSal = NouveauRecordset(
      {"IDSALARIE", "Mois", "CodeCumul", "IdCumul", "PartSalariale", "PartPatronale"});
  m.gRsConstantes = Constantes({{"SMICANNUEL", 1000.0}});
  EXPECT_DOUBLE_EQ(m.dSeuilPrelevementSource(s), 300.0);
}

// ---- Taxable daily benefits -------------------------------------------------------------

TEST_F(PasAssiette, DailyBenefitsSumLeavesNullsOut) {
  s.rsIndemnitesJournalieres = IndemnitesJournalieres({100.5, Value(), 20.25});
  EXPECT_DOUBLE_EQ(m.dMtIJImposable(s), 120.75);
}

TEST_F(PasAssiette, DailyBenefitsWithNoRowsGiveZero) {
  s.rsIndemnitesJournalieres = IndemnitesJournalieres({});
  EXPECT_DOUBLE_EQ(m.dMtIJImposable(s), 0.0);
  s.rsIndemnitesJournalieres = IndemnitesJournalieres({Value(), Value()});
  EXPECT_DOUBLE_EQ(m.dMtIJImposable(s), 0.0);
}

TEST_F(PasAssiette, DailyBenefitsTakeEveryRowWhateverItsDates) {
  // Periods from the 1st to the 31st, and one of the month before: the sum reads no date.
  s.rsIndemnitesJournalieres = pas_test::Table(
      {"IJDateDebut", "IJDateFin", "IJPAS"},
      {{"01/03/2024", "01/03/2024", 10.0}, {"31/03/2024", "31/03/2024", 20.0},
       {"29/02/2024", "29/02/2024", 30.0}, {"01/03/2024", "31/03/2024", -5.0}});
  EXPECT_DOUBLE_EQ(m.dMtIJImposable(s), 55.0);
}

TEST_F(PasAssiette, DailyBenefitsWithNoSourceIsAFault) {
  EXPECT_THROW(m.dMtIJImposable(s), Fault);
}

TEST_F(PasAssiette, DailyBenefitsNotNumericIsAFault) {
  s.rsIndemnitesJournalieres = IndemnitesJournalieres({10.0, "abc"});
  EXPECT_THROW(m.dMtIJImposable(s), Fault);
}

// ---- Net pay before the tax -------------------------------------------------------------

TEST_F(PasAssiette, NetBeforeTaxOutsideTheTrialIsZero) {
  m.gRsCumuls = Cumuls({{"TOTPASPREF", 150.25}, {"NETPAYER", 1849.75}});
  EXPECT_DOUBLE_EQ(m.dNetAPayerAvantPAS(s), 0.0);
}

TEST_F(PasAssiette, NetBeforeTaxAddsTheTrialTaxBack) {
  m.gRsCumuls = Cumuls({{"TOTPASPREF", 150.25}, {"NETPAYER", 1849.70}});
  s.bCollectiviteUtilisePrefigurationPAS = true;
  EXPECT_DOUBLE_EQ(m.dNetAPayerAvantPAS(s), 1999.95);
}

TEST_F(PasAssiette, NetBeforeTaxWithAMissingTotal) {
  m.gRsCumuls = Cumuls({{"NETPAYER", 1849.75}});
  s.bCollectiviteUtilisePrefigurationPAS = true;
  EXPECT_DOUBLE_EQ(m.dNetAPayerAvantPAS(s), 1849.75);
}

}  // namespace
}  // namespace orvalis
