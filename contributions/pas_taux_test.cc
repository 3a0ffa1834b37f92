// Income tax at source: the rate, individual or neutral from the scale.
#include <gtest/gtest.h>

#include "contributions/pas_test_util.h"

namespace orvalis {
namespace {

using pas_test::Bareme;
using pas_test::BaremeMensuel;
using pas_test::IndemnitesJournalieres;
using pas_test::NbLignes;

class PasTaux : public ::testing::Test {
 protected:
  void SetUp() override {
    m.gPeriodeEncours = "01/03/2024";
    m.gRsBaremeTauxPAS = BaremeMensuel();
    s.dTauxPAS = -1;
    s.sTypeBareme = "M";
    s.rsIndemnitesJournalieres = IndemnitesJournalieres({});
  }
  double Taux(double dBasePAS) {
    s.dMontantBase_PAS = dBasePAS;
    return m.CalculPrelevementALaSource_Taux(s);
  }
  // The filter of the scale never outlives a call.
  void ExpectFiltreLeve() { EXPECT_EQ(m.gRsBaremeTauxPAS->RecordCount(), 5); }

  MethodeCalculG_Nouv m;
  VarCalculSalarie s;
};

TEST_F(PasTaux, ValidRateOfZeroIsARealRateAndNoScaleIsRead) {
  m.gRsBaremeTauxPAS = nullptr;
  s.dTauxPAS = 0;
  s.bTauxPasValide = true;
  s.bUtiliseTauxNeutre = true;
  EXPECT_DOUBLE_EQ(Taux(1650.0), 0.0);
  EXPECT_FALSE(s.bUtiliseTauxNeutre);
}

TEST_F(PasTaux, ValidIndividualRate) {
  s.dTauxPAS = 0.029;
  s.bTauxPasValide = true;
  EXPECT_DOUBLE_EQ(Taux(1650.0), 0.029);
  EXPECT_FALSE(s.bUtiliseTauxNeutre);
}

TEST_F(PasTaux, ScaleWithNoSourceIsAFaultWhenTheNeutralRateIsNeeded) {
  m.gRsBaremeTauxPAS = nullptr;
  EXPECT_THROW(Taux(1650.0), Fault);
}

TEST_F(PasTaux, EmptyScaleGivesTheRateAsItStands) {
  m.gRsBaremeTauxPAS = Bareme({});
  s.rsIndemnitesJournalieres = nullptr;  // not read before the scale is
  EXPECT_DOUBLE_EQ(Taux(1650.0), 0.0);
  EXPECT_FALSE(s.bUtiliseTauxNeutre);
  s.dTauxPAS = 0.05;
  EXPECT_DOUBLE_EQ(Taux(1650.0), 0.05);
}

TEST_F(PasTaux, NeutralRateOfTheBracket) {
  s.bUtiliseTauxNeutre = false;
  EXPECT_DOUBLE_EQ(Taux(1650.0), 0.005);
  EXPECT_TRUE(s.bUtiliseTauxNeutre);
  EXPECT_DOUBLE_EQ(Taux(1700.0), 0.013);
  ExpectFiltreLeve();
}

TEST_F(PasTaux, DailyBenefitsJoinTheBase) {
  EXPECT_DOUBLE_EQ(Taux(1600.0), 0.0);
  s.rsIndemnitesJournalieres = IndemnitesJournalieres({30.0, Value(), 20.0});
  EXPECT_DOUBLE_EQ(Taux(1600.0), 0.005);
}

TEST_F(PasTaux, SharedBoundGoesToTheFirstRow) {
  EXPECT_DOUBLE_EQ(Taux(1620.0), 0.0);
  EXPECT_TRUE(s.bUtiliseTauxNeutre);
  EXPECT_DOUBLE_EQ(Taux(1620.01), 0.005);
  EXPECT_DOUBLE_EQ(Taux(1683.0), 0.005);
  EXPECT_DOUBLE_EQ(Taux(1683.01), 0.013);
}

TEST_F(PasTaux, UpperBoundReachedExactlyAndPassed) {
  EXPECT_DOUBLE_EQ(Taux(1791.0), 0.013);
  EXPECT_TRUE(s.bUtiliseTauxNeutre);
  EXPECT_DOUBLE_EQ(Taux(1791.01), 0.0);
  EXPECT_FALSE(s.bUtiliseTauxNeutre);
  ExpectFiltreLeve();
}

TEST_F(PasTaux, NegativeRateAndNoMatchingRowGivesZero) {
  EXPECT_DOUBLE_EQ(Taux(-10.0), 0.0);
  EXPECT_FALSE(s.bUtiliseTauxNeutre);
}

TEST_F(PasTaux, RateNotValidatedAndNoMatchingRowKeepsTheRate) {
  VarCalculSalarie& e = s;
  e.dTauxPAS = 0.05;
  e.bTauxPasValide = false;
  SalarieCalculRubrique r;
  double dBase = 5000.0;
  m.CalculPrelevementALaSource_Assiette(e, dBase, r);
  EXPECT_TRUE(e.bUtiliseTauxNeutre);
  EXPECT_DOUBLE_EQ(m.CalculPrelevementALaSource_Taux(e), 0.05);
  EXPECT_FALSE(e.bUtiliseTauxNeutre);
}

TEST_F(PasTaux, RateNotValidatedTakesTheNeutralRateOnAMatch) {
  s.dTauxPAS = 0.05;
  EXPECT_DOUBLE_EQ(Taux(1650.0), 0.005);
  EXPECT_TRUE(s.bUtiliseTauxNeutre);
}

TEST_F(PasTaux, RateReadsTheBaseLeftByTheAssessmentBase) {
  // Short contract: 2450 - 800 = 1650, in the second bracket.
  m.gRsConstantes = pas_test::Constantes({{"DEMISMIC", 800.0}});
  s.bContratCourt = true;
  SalarieCalculRubrique r;
  double dBase = 2450.0;
  m.CalculPrelevementALaSource_Assiette(s, dBase, r);
  EXPECT_DOUBLE_EQ(m.CalculPrelevementALaSource_Taux(s), 0.005);
}

TEST_F(PasTaux, TypeWithNoRowGivesTheRateAsItStands) {
  s.sTypeBareme = "A";
  s.dTauxPAS = 0.02;
  EXPECT_DOUBLE_EQ(Taux(1650.0), 0.02);
  EXPECT_FALSE(s.bUtiliseTauxNeutre);
  ExpectFiltreLeve();
}

TEST_F(PasTaux, OtherTypeReadsOnlyItsRowsWithoutProration) {
  s.sTypeBareme = "T";
  s.iNBJ_Presence_Total = 15;
  EXPECT_DOUBLE_EQ(Taux(1650.0), 0.5);
  EXPECT_DOUBLE_EQ(Taux(4900.0), 0.007);
  ExpectFiltreLeve();
}

TEST_F(PasTaux, NullBoundNeverMatches) {
  m.gRsBaremeTauxPAS = Bareme({{"M", Value(), 2000.0, 0.09},
                               {"M", 0.0, Value(), 0.08},
                               {"M", 1000.0, 2000.0, 0.03}});
  EXPECT_DOUBLE_EQ(Taux(1650.0), 0.03);
}

TEST_F(PasTaux, NullNeutralRateOfTheMatchingRowIsAFault) {
  m.gRsBaremeTauxPAS = Bareme({{"M", 0.0, 2000.0, Value()}});
  EXPECT_THROW(Taux(1650.0), Fault);
  EXPECT_EQ(m.gRsBaremeTauxPAS->RecordCount(), 1);
}

// ---- Monthly scale prorated ("MM") -------------------------------------------------------

TEST_F(PasTaux, ProratedScaleReadsTheMonthlyRows) {
  m.gRsBaremeTauxPAS = Bareme({{"MM", 0.0, 5000.0, 0.25},
                               {"M", 0.0, 1620.0, 0.0},
                               {"M", 1620.0, 1683.0, 0.005}});
  s.sTypeBareme = "MM";
  s.iNBJ_Presence_Total = 30;
  EXPECT_DOUBLE_EQ(Taux(1650.0), 0.005);
}

TEST_F(PasTaux, HalfMonthHalvesTheBounds) {
  // 15 days: brackets 0-810, 810-841.50, 841.50-895.50.
  s.sTypeBareme = "MM";
  s.iNBJ_Presence_Total = 15;
  EXPECT_DOUBLE_EQ(Taux(820.0), 0.005);
  EXPECT_DOUBLE_EQ(Taux(810.0), 0.0);
  EXPECT_DOUBLE_EQ(Taux(841.5), 0.005);
  EXPECT_DOUBLE_EQ(Taux(841.51), 0.013);
  EXPECT_DOUBLE_EQ(Taux(895.5), 0.013);
  EXPECT_DOUBLE_EQ(Taux(895.51), 0.0);
  EXPECT_FALSE(s.bUtiliseTauxNeutre);
  ExpectFiltreLeve();
}

TEST_F(PasTaux, RecallDaysJoinThePresence) {
  s.sTypeBareme = "MM";
  s.iNBJ_Presence_Total = 10;
  s.iNBJ_Presence_Total_Rappel = 5;
  EXPECT_DOUBLE_EQ(Taux(820.0), 0.005);
  s.iNBJ_Presence_Total_Rappel = 20;
  EXPECT_DOUBLE_EQ(Taux(820.0), 0.0);
  EXPECT_DOUBLE_EQ(Taux(1650.0), 0.005);
}

TEST_F(PasTaux, PresenceSumOverflowIsAFault) {
  s.sTypeBareme = "MM";
  s.iNBJ_Presence_Total = 32767;
  s.iNBJ_Presence_Total_Rappel = 1;
  EXPECT_THROW(Taux(820.0), Fault);
  ExpectFiltreLeve();
}

TEST_F(PasTaux, OfficialPaidQuarterlyIsProratedOnTheDaysOfThePeriod) {
  s.sTypeBareme = "MM";
  s.sCodeCategorie = "ELUS";
  s.sEluPeriodicite = "2";
  s.iNBJ_Presence_Total = 30;
  s.iNBJ_Presence_Total_Periode_Elus = 15;
  EXPECT_DOUBLE_EQ(Taux(820.0), 0.005);
}

TEST_F(PasTaux, OfficialWithEmptyPeriodicityCountsAsMonthly) {
  s.sTypeBareme = "MM";
  s.sCodeCategorie = "ELUS";
  s.sEluPeriodicite = "";
  s.iNBJ_Presence_Total = 15;
  s.iNBJ_Presence_Total_Periode_Elus = 90;
  EXPECT_DOUBLE_EQ(Taux(820.0), 0.005);
  s.sEluPeriodicite = "1";
  EXPECT_DOUBLE_EQ(Taux(820.0), 0.005);
}

TEST_F(PasTaux, PeriodicityNotANumberIsAFault) {
  s.sTypeBareme = "MM";
  s.sCodeCategorie = "ELUS";
  s.sEluPeriodicite = "T";
  s.iNBJ_Presence_Total = 30;
  EXPECT_THROW(Taux(820.0), Fault);
  ExpectFiltreLeve();
}

TEST_F(PasTaux, NoPresenceAndNoRecallMatchesOnlyAZeroBase) {
  s.sTypeBareme = "MM";
  EXPECT_DOUBLE_EQ(Taux(0.0), 0.0);
  EXPECT_TRUE(s.bUtiliseTauxNeutre);
  EXPECT_DOUBLE_EQ(Taux(10.0), 0.0);
  EXPECT_FALSE(s.bUtiliseTauxNeutre);
  s.sDateDebutRappel = "01/01/2024";  // one date alone is no recall
  EXPECT_DOUBLE_EQ(Taux(10.0), 0.0);
  EXPECT_FALSE(s.bUtiliseTauxNeutre);
}

class PasTauxRappel : public PasTaux {
 protected:
  void SetUp() override {
    PasTaux::SetUp();
    s.sTypeBareme = "MM";
    s.sDateDebut = "01/01/2020";
  }
};

TEST_F(PasTauxRappel, NoPresenceTakesThePresenceOfTheMonthBefore) {
  // Present the whole of February (coefficients never set: a full month), not in March.
  s.sDateFin = "29/02/2024";
  s.sDateDebutRappel = "01/02/2024";
  s.sDateFinRappel = "10/02/2024";
  EXPECT_DOUBLE_EQ(Taux(1650.0), 0.005);
  EXPECT_DOUBLE_EQ(Taux(820.0), 0.0);
}

TEST_F(PasTauxRappel, NoPresenceInEitherMonthTakesTheRecallLength) {
  s.sDateFin = "31/01/2024";
  s.sDateDebutRappel = "01/01/2024";
  s.sDateFinRappel = "15/02/2024";  // 45 days: a whole month
  EXPECT_DOUBLE_EQ(Taux(1650.0), 0.005);
  s.sDateFinRappel = "31/01/2024";  // 30 days, the last one not added: a whole month
  EXPECT_DOUBLE_EQ(Taux(1650.0), 0.005);
  // 29 days: 29/30 of 1620 and 1683, brackets 1566 and 1626.90.
  s.sDateFinRappel = "30/01/2024";
  EXPECT_DOUBLE_EQ(Taux(1600.0), 0.005);
  EXPECT_DOUBLE_EQ(Taux(1566.0), 0.0);
  EXPECT_DOUBLE_EQ(Taux(1626.91), 0.013);
}

TEST_F(PasTauxRappel, RecallDatesThatAreNotDatesAreAFault) {
  s.sDateFin = "31/01/2024";
  s.sDateDebutRappel = "01/01/2024";
  s.sDateFinRappel = "fin janvier";
  EXPECT_THROW(Taux(1650.0), Fault);
  ExpectFiltreLeve();
}

TEST_F(PasTauxRappel, RecallEndingBeforeItBeginsMatchesNoBracket) {
  // -30 days give a prorata of -1: every bracket turns upside down and holds nothing.
  s.sDateFin = "31/01/2024";
  s.sDateDebutRappel = "31/01/2024";
  s.sDateFinRappel = "01/01/2024";
  EXPECT_DOUBLE_EQ(Taux(0.0), 0.0);
  EXPECT_FALSE(s.bUtiliseTauxNeutre);
  EXPECT_DOUBLE_EQ(Taux(-1650.0), 0.0);
  EXPECT_FALSE(s.bUtiliseTauxNeutre);
  s.dTauxPAS = 0.05;
  EXPECT_DOUBLE_EQ(Taux(0.0), 0.05);
}

TEST_F(PasTauxRappel, PresenceThisMonthNeedsNoFallback) {
  s.iNBJ_Presence_Total = 15;
  s.sDateFin = "31/01/2024";
  s.sDateDebutRappel = "01/01/2024";
  s.sDateFinRappel = "15/02/2024";
  EXPECT_DOUBLE_EQ(Taux(820.0), 0.005);
}

}  // namespace
}  // namespace orvalis
