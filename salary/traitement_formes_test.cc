// The hourly monthly treatment, the weekly schedules, the daily treatment on the index and
// the daily treatment on the SMIC.
#include <gtest/gtest.h>

#include "orvalis/ModOutilsSpec.h"
#include "salary/traitement_test_outils.h"

namespace orvalis::salaire_test {
namespace {

class TraitementFormesTest : public PaieJuillet {
 protected:
  void Horaire(const std::string& sModele) {
    s.sTypeModele = sModele;
    s.dHeuresMois = 151.67;
    s.dNB_Jours_Max_Decalage_Mois = -1;
  }
};

TEST_F(TraitementFormesTest, HourlyStaffAtTheirOwnRate) {
  Horaire("HORAIR");
  paie_test::AjouteVariable(vars, "TXHEURES", 12.34567, 1, "01/01/2023", "M");
  ASSERT_TRUE(Ligne("TRAITEMENT HORAIRE MOIS"));
  EXPECT_EQ(r.dTauxSalarial, 12.3457);  // read to 4 places
  EXPECT_DOUBLE_EQ(r.dBase, 151.67);    // 30 x 151.67 / 30
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 151.67 * 12.3457);  // 1872.472319
  EXPECT_DOUBLE_EQ(s.dHeuresMois, 151.67);
  EXPECT_EQ(r.dMontantPatronal, 0);
}

TEST_F(TraitementFormesTest, HourlyEntryInTheMonthRewritesTheHours) {
  Horaire("HORAIR");
  paie_test::AjouteVariable(vars, "TXHEURES", 12, 1, "01/01/2023", "M");
  s.iNBJ_Presence_Total = 20;
  ASSERT_TRUE(Ligne("TRAITEMENT HORAIRE MOIS"));
  EXPECT_DOUBLE_EQ(r.dBase, 101.11);  // 20 x 151.67 / 30 = 101.113333
  EXPECT_DOUBLE_EQ(s.dHeuresMois, 101.11);
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 101.11 * 12);
}

TEST_F(TraitementFormesTest, HourlySickPayDaysComeOff) {
  Horaire("HORAIR");
  paie_test::AjouteVariable(vars, "TXHEURES", 12, 1, "01/01/2023", "M");
  s.iNBJ_90PourCentTraitement_Total = 3;
  s.iNBJ_2TiersTraitement_Total = 2;
  ASSERT_TRUE(Ligne("TRAITEMENT HORAIRE MOIS"));
  EXPECT_DOUBLE_EQ(r.dBase, 126.39);  // 25 x 151.67 / 30 = 126.391667
  EXPECT_DOUBLE_EQ(s.dHeuresMois, 151.67);
}

TEST_F(TraitementFormesTest, HourlyPeriodNotProrated) {
  Horaire("HORAIR");
  paie_test::AjouteVariable(vars, "TXHEURES", 12, 1, "01/01/2023", "M");
  s.bPeriodeNonProratisee = true;
  s.dNB_Jours_Max_Decalage_Mois = 12;
  s.iNBJ_Presence_Total = 12;
  s.iNBJ_90PourCentTraitement_Total = 3;
  ASSERT_TRUE(Ligne("TRAITEMENT HORAIRE MOIS"));
  EXPECT_DOUBLE_EQ(r.dBase, 113.75);  // (12 - 3) x 151.67 / 12 = 113.7525
  EXPECT_EQ(s.dHeuresMois, 151.67);   // not rewritten
}

TEST_F(TraitementFormesTest, HourlyRateFromTheMonthsBase) {
  Cumul("BASE", 2000);
  Cumul("BASERAPPEL", 100);
  Horaire("HORAIR");
  ASSERT_TRUE(Ligne("TRAITEMENT HORAIRE MOIS"));
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 1900.0 / 30);  // 1900 / (30 x 151.67 / 151.67)

  Horaire("INDTIT");
  ASSERT_TRUE(Ligne("TRAITEMENT HORAIRE MOIS"));
  EXPECT_DOUBLE_EQ(r.dTauxSalarial, 1900 / 151.67);  // 1900 / (30 x 151.67 / 30) = 12.527197
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 151.67 * (1900 / 151.67));

  Horaire("CONTRA");  // other models: no rate
  ASSERT_TRUE(Ligne("TRAITEMENT HORAIRE MOIS"));
  EXPECT_EQ(r.dTauxSalarial, 0);
  EXPECT_DOUBLE_EQ(r.dBase, 151.67);
  EXPECT_EQ(r.dMontantSalarial, 0);

  Horaire("INDNTI");
  s.dHeuresMois = 0;  // no hours: the rate stays 0
  ASSERT_TRUE(Ligne("TRAITEMENT HORAIRE MOIS"));
  EXPECT_EQ(r.dTauxSalarial, 0);
  EXPECT_EQ(r.dBase, 0);
}

TEST_F(TraitementFormesTest, HourlyWithAZeroDayShiftIsAFault) {
  Horaire("CONTRA");
  s.dNB_Jours_Max_Decalage_Mois = 0;
  EXPECT_FALSE(Ligne("TRAITEMENT HORAIRE MOIS"));
}

class HebdoMultipleTest : public TraitementFormesTest {
 protected:
  HebdoMultipleTest() {
    s.RsHeuresHebdoMultiples = NouveauRecordset(
        {"HeureHebdo1", "HebdoDebut1", "HebdoFin1", "NbJoursTravailles1", "HeureHebdo0"});
    s.RsHeuresHebdoMultiples->AddNew();
    s.RsHeuresHebdoMultiples->SetField("HeureHebdo1", 17.5);
    s.RsHeuresHebdoMultiples->SetField("HebdoDebut1", "01/07/2023");
    s.RsHeuresHebdoMultiples->SetField("HebdoFin1", "15/07/2023");
    s.RsHeuresHebdoMultiples->SetField("NbJoursTravailles1", 15);
    s.RsHeuresHebdoMultiples->SetField("HeureHebdo0", 0);
    s.dIndiceMajoreM = 400;
  }
};

TEST_F(HebdoMultipleTest, OneScheduleOfTheMonth) {
  Prepare();
  ASSERT_TRUE(Ligne("TRAITEMENT INDICIAIRE HEBDO MULTIPLE", "TRAITINDH1"));
  EXPECT_EQ(r.sDesignation, "Traitement indiciaire du 01/07/2023 au 15/07/2023 (17.5 h./ 35 h.)");
  EXPECT_DOUBLE_EQ(r.dBase, 1969.11);
  EXPECT_EQ(r.dTauxSalarial, 400);
  // 15 x (1969.11 x 17.5 / 35) / 30 = 492.2775.
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 492.2775);
  EXPECT_DOUBLE_EQ(s.dSalaire_MensuelReelINTN, 492.2775);
  EXPECT_DOUBLE_EQ(s.dSalaire_MensuelINTN, 492.2775);
  ASSERT_TRUE(Ligne("TRAITEMENT INDICIAIRE HEBDO MULTIPLE", "TRAITINDH1"));
  EXPECT_DOUBLE_EQ(s.dSalaire_MensuelINTN, 2 * 492.2775);  // each line adds its schedule
}

TEST_F(HebdoMultipleTest, MinimumIndexAbove200WhateverTheConstant) {
  Constante("INDNONIMR", 350);
  s.dIndiceMajoreM = 300;
  Prepare();
  ASSERT_TRUE(Ligne("TRAITEMENT INDICIAIRE HEBDO MULTIPLE", "TRAITINDH1"));
  EXPECT_EQ(r.dTauxSalarial, 361);
  EXPECT_DOUBLE_EQ(s.dSalarie_AnnuelPlein, 21325.50);  // 361 x 59.0734 = 21325.4974
}

TEST_F(HebdoMultipleTest, OtherCodeReadsSchedule0AndAnAbsentColumnIsAFault) {
  Prepare();
  s.dSalaire_MensuelINTN = 10;
  ASSERT_TRUE(Ligne("TRAITEMENT INDICIAIRE HEBDO MULTIPLE", "TRAITINDH"));
  EXPECT_EQ(r.sDesignation, "");
  EXPECT_EQ(r.dMontantSalarial, 0);
  EXPECT_EQ(s.dSalaire_MensuelINTN, 10);
  EXPECT_FALSE(Ligne("TRAITEMENT INDICIAIRE HEBDO MULTIPLE", "TRAITINDH2"));
}

TEST_F(TraitementFormesTest, DailyTreatmentOnTheIndex) {
  Constante("C7", 1.5, 7, "M");
  s.dIndiceMajoreM = 400;
  Prepare();
  r = SalarieCalculRubrique();
  r.sValeurTauxSalarial = "CONSTANTE";
  r.lIdValeurTauxSalarial = 7;
  ASSERT_TRUE(m.Appel_Methode_Calcul_General("TRAITEMENT INDICIAIRE JOURNALIER", s, r, vars));
  EXPECT_DOUBLE_EQ(r.dBase, 1969.11);
  EXPECT_EQ(r.dTauxSalarial, 1.5);
  // A day 1969.11 x 7 / 151.67 = 90.880003; 1.5 days 136.320004 -> 136.32.
  EXPECT_EQ(r.dMontantSalarial, 136.32);
}

TEST_F(TraitementFormesTest, DailyTreatmentOnTheSmic) {
  Constante("C8", 12, 8, "M");   // 12 days
  Constante("C9", 50, 9, "T");   // 50 % of the hourly SMIC
  Constante("C10", 0.5, 10, "M");
  r = SalarieCalculRubrique();
  r.sValeurBase = "CONSTANTE";
  r.lIdValeurBase = 8;
  r.sValeurTauxSalarial = "CONSTANTE";
  r.lIdValeurTauxSalarial = 9;
  r.dValeurCoefficient = 3;
  r.dTauxPatronal = 4;
  ASSERT_TRUE(m.Appel_Methode_Calcul_General("TRAITEMENT JOURNALIER SMIC", s, r, vars));
  EXPECT_EQ(r.dBase, 12);
  EXPECT_EQ(r.dTauxSalarial, 576);                   // 50 x 11.52
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 69.12);       // 576 x 12 / 100
  EXPECT_EQ(r.dValeurCoefficient, 0);
  EXPECT_EQ(r.dTauxPatronal, 0);

  r.lIdValeurTauxSalarial = 10;
  ASSERT_TRUE(m.Appel_Methode_Calcul_General("TRAITEMENT JOURNALIER SMIC", s, r, vars));
  EXPECT_EQ(r.dTauxSalarial, 5.76);                  // 0.5 x 11.52
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 5.76 * 12);   // 69.12
}

}  // namespace
}  // namespace orvalis::salaire_test
