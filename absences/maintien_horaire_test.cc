// Maintained pay of hourly employees and apprentices.
#include <gtest/gtest.h>

#include <string>

#include "absences/greve_maintien_test_outils.h"
#include "generic/base_test_util.h"

namespace orvalis::test {
namespace {

// March 2024, an hourly employee of 151.67 hours a month, present 30 days, 10 days at 90 %.
class MaintienHoraireTest : public PaieDeMars {
 protected:
  MaintienHoraireTest() {
    s.sTypeModele = "HORAIR";
    s.dHeuresMois = 151.67;
    s.iNBJ_Presence_Total = 30;
    s.iNBJ_90PourCentTraitementINTN = 10;
    r.sCodeRubrique = "MAINTIEN90";
  }

  bool Ligne(const std::string& sNom = "MAINTIEN SALAIRE 90%") {
    return m.Appel_Methode_Calcul_General(sNom, s, r, vars);
  }

  void VerifieLigne(double dBase, double dTaux, double dMontant) {
    absences_test::VerifieLigne(r, dBase, dTaux, dMontant);
  }
};

TEST_F(MaintienHoraireTest, TheHourlyRateOfTheFile) {
  Variable("TXHEURES", 12.5);
  m.gRsCumuls = nullptr;  // a rate found: the month's totals are not read
  ASSERT_TRUE(Ligne());
  // Hours 151.67 x 10 / 30 = 50.5567, to 50.56; rate 12.5 x 0.9 = 11.25.
  VerifieLigne(50.56, 11.25, 568.8);
}

TEST_F(MaintienHoraireTest, APercentageOfTheMinimumWageAtTwoThirds) {
  Fixe("SmicHor", 11.65);
  Variable("TXSMIC", 120);
  Variable("TXHEURES", 99);  // not read when the percentage is above 0
  s.iNBJ_2TiersTraitementIATA = 2;
  s.iNBJ_2TiersTraitementINTN = 4;
  s.dHeuresMois = 120;
  r.sCodeRubrique = "MAINTIEN66";
  ASSERT_TRUE(Ligne("MAINTIEN SALAIRE 2/3"));
  // Hours 120 x 6 / 30 = 24; rate 11.65 x 120 / 100 = 13.98, x 2 / 3 = 9.32.
  VerifieLigne(24, 9.32, 223.68);
}

TEST_F(MaintienHoraireTest, WithoutARateTheMonthsTreatmentGivesIt) {
  Cumul("BASE", 1600);
  Cumul("BASERAPPEL", 100);
  s.iNBJ_Presence_Total = 20;
  s.iNBJ_90PourCentTraitementINTN = 5;
  ASSERT_TRUE(Ligne());
  // Rate (1600 - 100) / (20 x 151.67 / 151.67) = 75, x 0.9 = 67.5.
  // Hours 151.67 x 5 / 20 = 37.9175, to 37.92.
  VerifieLigne(37.92, 67.5, 2559.6);
}

TEST_F(MaintienHoraireTest, WithoutARateNorHoursNothingIsPaid) {
  Cumul("BASE", 1600);
  s.dHeuresMois = 0;
  ASSERT_TRUE(Ligne());
  VerifieLigne(0, 0, 0);
}

TEST_F(MaintienHoraireTest, NoPresenceWithMaintainedDaysFaults) {
  Variable("TXHEURES", 12.5);
  s.iNBJ_Presence_Total = 0;
  r.dMontantSalarial = 7;
  EXPECT_FALSE(Ligne());
  EXPECT_EQ(r.dMontantSalarial, 7.0);
  Cumul("BASE", 1600);  // the fall-back rate divides by the presence first
  vars = paie_test::NouvellesVariables();
  EXPECT_FALSE(Ligne());
  EXPECT_EQ(r.dMontantSalarial, 7.0);
}

TEST_F(MaintienHoraireTest, NoMaintainedDayLeavesTheLine) {
  s.iNBJ_90PourCentTraitementINTN = 0;
  s.iNBJ_Presence_Total = 0;
  r.dBase = 5;
  r.dMontantSalarial = 7;
  ASSERT_TRUE(Ligne());
  EXPECT_EQ(r.dBase, 5.0);
  EXPECT_EQ(r.dMontantSalarial, 7.0);
}

TEST_F(MaintienHoraireTest, TwoThirdsLineOfAMonthWithOnlyNinetyPercentDays) {
  Variable("TXHEURES", 12.5);
  r.sCodeRubrique = "MAINTIEN66";
  ASSERT_TRUE(Ligne("MAINTIEN SALAIRE 2/3"));
  VerifieLigne(0, 12.5 * 2 / 3, 0);  // no day of its own: 0 hours
}

TEST_F(MaintienHoraireTest, IndexedEmployeesTakeTheTreatmentOverTheHours) {
  s.sTypeModele = "INDTIT";
  s.dHeuresMois = 150;
  Variable("TXHEURES", 12.5);  // not read for an indexed employee
  Cumul("BASE", 1600);
  Cumul("BASERAPPEL", 100);
  m.CalculRubrique_MaintienSalaireHoraire(s, vars, r, 90);
  // Rate 1500 / (30 x 150 / 30) = 10, x 0.9 = 9; hours 150 x 10 / 30 = 50.
  VerifieLigne(50, 9, 450);
  s.sTypeModele = "INDNTI";
  r.sCodeRubrique = "MAINTIEN66";
  s.iNBJ_2TiersTraitementIATN = 3;
  m.CalculRubrique_MaintienSalaireHoraire(s, vars, r, 66);
  VerifieLigne(15, 10 * 2 / 3.0, 100);  // 150 x 3 / 30 = 15 hours at 6.67
}

TEST_F(MaintienHoraireTest, AnyOtherModelHasNoRate) {
  s.sTypeModele = "CONTRA";
  Variable("TXHEURES", 12.5);
  m.gRsCumuls = nullptr;
  m.CalculRubrique_MaintienSalaireHoraire(s, vars, r, 90);
  VerifieLigne(50.56, 0, 0);
}

TEST_F(MaintienHoraireTest, ApprenticeOnHisShareOfTheMonthlyMinimumWage) {
  s.sCodeCategorie = "APPRENTI";
  s.dHeuresMois = 150;
  m.gdSmicMensuel = 1500;
  Variable("TXSMICAPP", 50.4);  // read to the unit: 50
  Variable("TXHEURES", 99);     // not read
  m.gRsCumuls = nullptr;
  ASSERT_TRUE(Ligne());
  // Rate 50 x 1500 / 100 / 150 x 0.9 = 4.5; hours 150 x 10 / 30 = 50.
  VerifieLigne(50, 4.5, 225);
}

TEST_F(MaintienHoraireTest, ApprenticeWithoutHoursIsShownTheShare) {
  s.sCodeCategorie = "APPRENTI";
  s.dHeuresMois = 0;
  s.iNBJ_Presence_Total = 0;  // not divided by
  m.gdSmicMensuel = 1500;
  Variable("TXSMICAPP", 50);
  ASSERT_TRUE(Ligne());
  // Base 50 x 1500 / 100 x 10 / 30 = 250, not rounded; rate 0.9.
  VerifieLigne(250, 0.9, 225);
}

TEST_F(MaintienHoraireTest, ApprenticeBeforeTheMinimumWageIsKnown) {
  s.sCodeCategorie = "APPRENTI";
  Variable("TXSMICAPP", 50);
  ASSERT_TRUE(Ligne());
  VerifieLigne(50.56, 0, 0);  // gdSmicMensuel is 0 until a base computes it
}

TEST_F(MaintienHoraireTest, SixteenBitDaySumOverflowFaults) {
  s.iNBJ_90PourCentTraitementIATA = 30000;
  s.iNBJ_90PourCentTraitementINTN = 2768;
  r.dBase = 5;
  EXPECT_FALSE(Ligne());
  EXPECT_EQ(r.dBase, 5.0);
}

}  // namespace
}  // namespace orvalis::test
