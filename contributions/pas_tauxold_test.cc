// Income tax at source: the former rate, kept for the hosts.
#include <gtest/gtest.h>

#include "contributions/pas_test_util.h"

namespace orvalis {
namespace {

using pas_test::Bareme;
using pas_test::BaremeMensuel;

class PasTauxold : public ::testing::Test {
 protected:
  void SetUp() override {
    m.gPeriodeEncours = "01/03/2024";
    m.gRsBaremeTauxPAS = BaremeMensuel();
    m.gRsConstantes = pas_test::Constantes({{"DEMISMIC", 800.0}, {"SMICANNUEL", 1000.0}});
    m.gRsCumuls = pas_test::Cumuls({{"NETIMPOS", 1300.0}});
    s.dTauxPAS = -1;
    s.sTypeBareme = "M";
    s.dMontantBase_PAS = 123.0;
  }
  double Tauxold(double& dBase) { return m.CalculPrelevementALaSource_Tauxold(s, dBase, sDesignation); }

  MethodeCalculG_Nouv m;
  VarCalculSalarie s;
  std::string sDesignation = "Prélèvement à la source";
};

TEST_F(PasTauxold, IndividualRateWhateverItsValidity) {
  m.gRsBaremeTauxPAS = nullptr;
  s.dTauxPAS = 0.03;
  s.bTauxPasValide = false;
  s.bContratCourt = true;
  double dBase = -1500.0;
  EXPECT_DOUBLE_EQ(Tauxold(dBase), 0.03);
  EXPECT_DOUBLE_EQ(dBase, -1500.0);
  EXPECT_EQ(sDesignation, "Prélèvement à la source");
  EXPECT_DOUBLE_EQ(s.dMontantBase_PAS, 123.0);
}

TEST_F(PasTauxold, EmptyScaleGivesZero) {
  m.gRsBaremeTauxPAS = Bareme({});
  double dBase = -1500.0;
  EXPECT_DOUBLE_EQ(Tauxold(dBase), 0.0);
  EXPECT_DOUBLE_EQ(dBase, -1500.0);
}

TEST_F(PasTauxold, ScaleWithNoSourceIsAFault) {
  m.gRsBaremeTauxPAS = nullptr;
  double dBase = -1500.0;
  EXPECT_THROW(Tauxold(dBase), Fault);
}

TEST_F(PasTauxold, NeutralRateMarksTheLabel) {
  s.bUtiliseTauxNeutre = false;
  double dBase = -1650.0;
  EXPECT_DOUBLE_EQ(Tauxold(dBase), 0.005);
  EXPECT_DOUBLE_EQ(dBase, -1650.0);
  EXPECT_EQ(sDesignation, "Prélèvement à la source - Taux neutre");
  EXPECT_DOUBLE_EQ(s.dMontantBase_PAS, 123.0);
  EXPECT_FALSE(s.bUtiliseTauxNeutre);
  EXPECT_EQ(m.gRsBaremeTauxPAS->RecordCount(), 5);
}

TEST_F(PasTauxold, ShortContractOnANeutralRateTakesOffTheAllowanceAfterTheBracket) {
  // The bracket is found on 1650 (second one), then 1650 - 800 = 850.
  s.bContratCourt = true;
  double dBase = -1650.0;
  EXPECT_DOUBLE_EQ(Tauxold(dBase), 0.005);
  EXPECT_DOUBLE_EQ(dBase, -850.0);
  EXPECT_DOUBLE_EQ(s.dMontantBase_PAS, 850.0);
}

TEST_F(PasTauxold, ShortContractAllowanceStopsAtZero) {
  m.gRsConstantes = pas_test::Constantes({{"DEMISMIC", 1700.0}});
  s.bContratCourt = true;
  double dBase = -1650.0;
  Tauxold(dBase);
  EXPECT_DOUBLE_EQ(dBase, 0.0);
  EXPECT_DOUBLE_EQ(s.dMontantBase_PAS, 0.0);
}

TEST_F(PasTauxold, NoBracketNoLabelNoAllowance) {
  s.bContratCourt = true;
  double dBase = -2000.0;
  EXPECT_DOUBLE_EQ(Tauxold(dBase), 0.0);
  EXPECT_DOUBLE_EQ(dBase, -2000.0);
  EXPECT_EQ(sDesignation, "Prélèvement à la source");
  EXPECT_DOUBLE_EQ(s.dMontantBase_PAS, 123.0);
}

TEST_F(PasTauxold, TypeWithNoRowGivesZero) {
  s.sTypeBareme = "A";
  double dBase = -1650.0;
  EXPECT_DOUBLE_EQ(Tauxold(dBase), 0.0);
  EXPECT_EQ(m.gRsBaremeTauxPAS->RecordCount(), 5);
}

TEST_F(PasTauxold, ProratedScaleTakesThePresenceAloneWithoutRecall) {
  // 15 days of presence, the 15 days of recall left out: bounds halved, 820 in 810-841.50.
  s.sTypeBareme = "MM";
  s.iNBJ_Presence_Total = 15;
  s.iNBJ_Presence_Total_Rappel = 15;
  double dBase = -820.0;
  EXPECT_DOUBLE_EQ(Tauxold(dBase), 0.005);
}

TEST_F(PasTauxold, ProratedScaleOfAnOfficialPaidHalfYearly) {
  s.sTypeBareme = "MM";
  s.sCodeCategorie = "ELUS";
  s.sEluPeriodicite = "3";
  s.iNBJ_Presence_Total = 30;
  s.iNBJ_Presence_Total_Periode_Elus = 15;
  double dBase = -820.0;
  EXPECT_DOUBLE_EQ(Tauxold(dBase), 0.005);
}

TEST_F(PasTauxold, NoPresenceHasNoFallbackToTheRecall) {
  s.sTypeBareme = "MM";
  s.sDateDebut = "01/01/2020";
  s.sDateDebutRappel = "01/01/2024";
  s.sDateFinRappel = "15/02/2024";
  double dBase = -10.0;
  EXPECT_DOUBLE_EQ(Tauxold(dBase), 0.0);
  EXPECT_EQ(sDesignation, "Prélèvement à la source");
  dBase = 0.0;
  Tauxold(dBase);
  EXPECT_EQ(sDesignation, "Prélèvement à la source - Taux neutre");
}

TEST_F(PasTauxold, ApprenticeBaseIsTheThresholdNegated) {
  // 1300 of taxable net this year (no history) less 1000 exempt.
  s.sCodeCategorie = "APPRENTI";
  s.dTauxPAS = 0.01;
  double dBase = -1500.0;
  EXPECT_DOUBLE_EQ(Tauxold(dBase), 0.01);
  EXPECT_DOUBLE_EQ(dBase, -300.0);
}

TEST_F(PasTauxold, TraineeOnShortContractEndsOnTheThreshold) {
  s.sCodeModele = "STAGIAIRE";
  s.bContratCourt = true;
  double dBase = -1650.0;
  EXPECT_DOUBLE_EQ(Tauxold(dBase), 0.005);
  EXPECT_DOUBLE_EQ(s.dMontantBase_PAS, 850.0);
  EXPECT_DOUBLE_EQ(dBase, -300.0);
}

TEST_F(PasTauxold, BaseArrivingPositiveLeavesNegative) {
  double dBase = 1650.0;
  EXPECT_DOUBLE_EQ(Tauxold(dBase), 0.005);
  EXPECT_DOUBLE_EQ(dBase, -1650.0);
}

}  // namespace
}  // namespace orvalis
