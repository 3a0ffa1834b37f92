// Maintained pay at 90 % and two thirds, and non-subrogated therapeutic part-time.
#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "absences/greve_maintien_test_outils.h"
#include "orvalis/MethodeCalculG_Nouv.h"
#include "period/mois_test_outils.h"

namespace orvalis {
namespace {

// Old index 18000 a year, new 21600; old rate 0.5, new rate 0.8. A day of a 30-day month is
// worth 18000 x 0.5 / 12 / 30 = 25 in IATA, 18000 x 0.8 / 12 / 30 = 40 in IATN,
// 21600 x 0.5 / 12 / 30 = 30 in INTA and 21600 x 0.8 / 12 / 30 = 48 in INTN.
void Salaires(VarCalculSalarie& s) {
  s.dSalarie_AnnuelPleinA = 18000;
  s.dSalarie_AnnuelPlein = 21600;
  s.dCoefficient_TraitementTA = 0.5;
  s.dCoefficient_TraitementTN = 0.8;
  s.dSalaire_MensuelReelIATA = 100;
  s.dSalaire_MensuelReelIATN = 200;
  s.dSalaire_MensuelReelINTA = 300;
  s.dSalaire_MensuelReelINTN = 400;
}

class MaintienSalaireTest : public ::testing::Test {
 protected:
  MaintienSalaireTest() {
    s.sTypeModele = "INDTIT";
    Salaires(s);
    r.sCodeRubrique = "MAINTIEN90";
  }

  void Jours90(int a, int b, int c, int d) {
    s.iNBJ_90PourCentTraitementIATA = a;
    s.iNBJ_90PourCentTraitementIATN = b;
    s.iNBJ_90PourCentTraitementINTA = c;
    s.iNBJ_90PourCentTraitementINTN = d;
  }
  void Jours66(int a, int b, int c, int d) {
    s.iNBJ_2TiersTraitementIATA = a;
    s.iNBJ_2TiersTraitementIATN = b;
    s.iNBJ_2TiersTraitementINTA = c;
    s.iNBJ_2TiersTraitementINTN = d;
  }
  void Marque() { absences_test::Marque(r); }
  void VerifieMarque() { absences_test::VerifieMarque(r); }
  void VerifieLigne(double dBase, double dJours, double dMontant) {
    absences_test::VerifieLigne(r, dBase, dJours, dMontant);
  }

  MethodeCalculG_Nouv m;
  VarCalculSalarie s;
  SalarieCalculRubrique r;
};

TEST_F(MaintienSalaireTest, TheDaysOfTheLineFollowItsCode) {
  Jours90(1, 2, 3, 4);
  Jours66(5, 6, 7, 8);
  Int16 a = 9, b = 9, c = 9, d = 9;
  m.dMaintienSalaireCoefficient(s, a, b, c, d, "MAINTIEN90");
  EXPECT_EQ((periode_test::Quadrants{a, b, c, d}), (periode_test::Quadrants{1, 2, 3, 4}));
  m.dMaintienSalaireCoefficient(s, a, b, c, d, "MAINTIEN66");
  EXPECT_EQ((periode_test::Quadrants{a, b, c, d}), (periode_test::Quadrants{5, 6, 7, 8}));
  for (const char* code : {"MAINTIEN", "maintien90", "MAINTIEN90 ", ""}) {
    SCOPED_TRACE(code);
    a = b = c = d = 9;
    m.dMaintienSalaireCoefficient(s, a, b, c, d, code);
    EXPECT_EQ((periode_test::Quadrants{a, b, c, d}), (periode_test::Quadrants{0, 0, 0, 0}));
  }
}

TEST_F(MaintienSalaireTest, NinetyPercentOfEachCombination) {
  Jours90(2, 3, 4, 5);
  m.CalculRubrique_MaintienSalaire(s, r, 90);
  // (2 x 25 + 3 x 40 + 4 x 30 + 5 x 48) x 0.9 = (50 + 120 + 120 + 240) x 0.9
  VerifieLigne(1000, 14, 477);
}

TEST_F(MaintienSalaireTest, SixtySixIsTwoThirds) {
  Jours66(2, 3, 4, 5);
  r.sCodeRubrique = "MAINTIEN66";
  m.CalculRubrique_MaintienSalaire(s, r, 66);
  VerifieLigne(1000, 14, 530 * 2 / 3.0);  // 353.33, not 530 x 0.66 = 349.80
  EXPECT_NEAR(r.dMontantSalarial, 353.3333333, 1e-6);
}

TEST_F(MaintienSalaireTest, AnyOtherPercentageIsAHundredth) {
  Jours90(0, 0, 0, 10);
  m.CalculRubrique_MaintienSalaire(s, r, 50);
  VerifieLigne(1000, 10, 240);  // 10 x 48 x 0.5
}

TEST_F(MaintienSalaireTest, NoMaintainedDayLeavesTheLine) {
  Marque();
  m.CalculRubrique_MaintienSalaire(s, r, 90);
  VerifieMarque();
  s.iNBJ_90PourCentTraitement_Total = 4;  // the totals are not looked at
  s.iNBJ_2TiersTraitement_Total = 4;
  m.CalculRubrique_MaintienSalaire(s, r, 66);
  VerifieMarque();
}

TEST_F(MaintienSalaireTest, TwoThirdsLineOfAMonthWithOnlyNinetyPercentDays) {
  Jours90(0, 0, 0, 10);
  r.sCodeRubrique = "MAINTIEN66";
  Marque();
  m.CalculRubrique_MaintienSalaire(s, r, 66);
  VerifieLigne(1000, 0, 0);
}

TEST_F(MaintienSalaireTest, AnotherCodeWritesTheBaseAndNoAmount) {
  Jours66(0, 0, 1, 0);
  r.sCodeRubrique = "MAINTIEN";
  m.CalculRubrique_MaintienSalaire(s, r, 66);
  VerifieLigne(1000, 0, 0);
}

TEST_F(MaintienSalaireTest, SixteenBitDaySumOverflowFaults) {
  Jours90(20000, 20000, 0, 0);
  Marque();
  EXPECT_FALSE(m.Appel_Methode_Calcul_General("MAINTIEN SALAIRE 90%", s, r));
  // The base was written before the day sum; the rest stays as it was.
  EXPECT_EQ(r.dBase, 1000.0);
  r.dBase = 5;
  VerifieMarque();
  Jours90(20000, 12767, 0, 0);  // 32767 days: the largest sum
  EXPECT_TRUE(m.Appel_Methode_Calcul_General("MAINTIEN SALAIRE 90%", s, r));
  EXPECT_EQ(r.dTauxSalarial, 32767.0);
}

TEST_F(MaintienSalaireTest, BothNamesReachTheDailyLineForAnyModelButHourly) {
  Jours90(0, 0, 0, 10);
  Jours66(0, 0, 0, 5);
  ASSERT_TRUE(m.Appel_Methode_Calcul_General("MAINTIEN SALAIRE 90%", s, r));
  VerifieLigne(1000, 10, 432);  // 10 x 48 x 0.9
  r.sCodeRubrique = "MAINTIEN66";
  s.sTypeModele = "CONTRA";
  ASSERT_TRUE(m.Appel_Methode_Calcul_General("MAINTIEN SALAIRE 2/3", s, r));
  VerifieLigne(1000, 5, 160);  // 5 x 48 x 2 / 3
}

// A sick leave from the 20th of March to the 10th of April 2023 at 90 %, then one from the 11th
// of April at two thirds: 11 days in March (the 31st is the 30th), 10 then 20 in April.
TEST(MaintienSalaireMoisTest, OverAMonthBoundary) {
  const std::vector<periode_test::LigneSituation> arrets = {{"O90", "20/03/2023", "10/04/2023"},
                                                            {"O66", "11/04/2023", "15/05/2023"}};
  for (const auto& [sPeriode, j90, j66, d90, d66] :
       {std::tuple{"01/03/2023", 11, 0, 594.0, 0.0},        // 11 x 60 x 0.9
        std::tuple{"01/04/2023", 10, 20, 540.0, 800.0}}) {  // 10 x 60 x 0.9; 20 x 60 x 2 / 3
    SCOPED_TRACE(sPeriode);
    periode_test::Mois x(sPeriode);
    x.s.dSalarie_AnnuelPlein = 21600;  // 1800 a month, 60 a day
    x.s.dCoefficient_TraitementTN = 1;
    x.s.dSalaire_MensuelReelINTN = 1800;
    ASSERT_TRUE(x.Prepare("NBRE_JOUR_90POURCENT_TRAITEMENT", arrets));
    ASSERT_TRUE(x.Prepare("NBRE_JOUR_2TIERS_TRAITEMENT", arrets));
    EXPECT_EQ(x.s.iNBJ_90PourCentTraitementINTN.value(), j90);
    EXPECT_EQ(x.s.iNBJ_2TiersTraitementINTN.value(), j66);

    SalarieCalculRubrique r90;
    r90.sCodeRubrique = "MAINTIEN90";
    ASSERT_TRUE(x.m.Appel_Methode_Calcul_General("MAINTIEN SALAIRE 90%", x.s, r90));
    EXPECT_DOUBLE_EQ(r90.dMontantSalarial, d90);
    EXPECT_EQ(r90.dTauxSalarial, j90);

    SalarieCalculRubrique r66;
    r66.sCodeRubrique = "MAINTIEN66";
    ASSERT_TRUE(x.m.Appel_Methode_Calcul_General("MAINTIEN SALAIRE 2/3", x.s, r66));
    EXPECT_DOUBLE_EQ(r66.dMontantSalarial, d66);
    EXPECT_EQ(r66.dBase, 1800.0);
  }
}

// ---- Therapeutic part-time not subrogated ----------------------------------------------

class TptNonSubrogeRubriqueTest : public MaintienSalaireTest {
 protected:
  void SetUp() override { iTauxTptNonSubroge = 70; }
  void TearDown() override { iTauxTptNonSubroge = 0; }
  bool Ligne() {
    r = SalarieCalculRubrique();
    Marque();
    return m.Appel_Methode_Calcul_General("TEMPS PARTIEL THERAPEUTIQUE NON SUBROGE", s, r);
  }
};

TEST_F(TptNonSubrogeRubriqueTest, EachLineTakesTheNextBand) {
  s.iNBJ_TPTNS50INTN = 10;
  s.iNBJ_TPTNS50_Total = 10;
  s.iNBJ_TPTNS70INTA = 4;
  s.iNBJ_TPTNS70INTN = 6;
  s.iNBJ_TPTNS70_Total = 10;

  ASSERT_TRUE(Ligne());
  VerifieLigne(500, 10, 240);  // base 1000 x 0.5; 10 x 48 x 0.5
  EXPECT_EQ(s.iNBJ_TPTNS50_Total.value(), 0);
  EXPECT_EQ(s.iNBJ_TPTNS50INTN.value(), 10);

  ASSERT_TRUE(Ligne());
  VerifieLigne(700, 10, 285.6);  // base 1000 x 0.7; (4 x 30 + 6 x 48) x 0.7 = 408 x 0.7
  EXPECT_EQ(s.iNBJ_TPTNS70_Total.value(), 0);

  ASSERT_TRUE(Ligne());
  VerifieMarque();  // no band left: the line is as it was
  EXPECT_EQ(iTauxTptNonSubroge.value(), 70);
}

TEST_F(TptNonSubrogeRubriqueTest, EachBandHasItsShare) {
  const struct {
    Int16 VarCalculSalarie::*iTotal;
    Int16 VarCalculSalarie::*iIATA;
    double Q;
  } bandes[] = {{&VarCalculSalarie::iNBJ_TPTNS50_Total, &VarCalculSalarie::iNBJ_TPTNS50IATA, 0.5},
                {&VarCalculSalarie::iNBJ_TPTNS60_Total, &VarCalculSalarie::iNBJ_TPTNS60IATA, 0.6},
                {&VarCalculSalarie::iNBJ_TPTNS70_Total, &VarCalculSalarie::iNBJ_TPTNS70IATA, 0.7},
                {&VarCalculSalarie::iNBJ_TPTNS80_Total, &VarCalculSalarie::iNBJ_TPTNS80IATA, 0.8},
                {&VarCalculSalarie::iNBJ_TPTNS90_Total, &VarCalculSalarie::iNBJ_TPTNS90IATA, 0.9}};
  for (const auto& b : bandes) {
    SCOPED_TRACE(b.Q);
    s.*b.iTotal = 3;
    s.*b.iIATA = 3;
    ASSERT_TRUE(Ligne());
    VerifieLigne(1000 * b.Q, 3, 75 * b.Q);  // 3 x 25 x the share
    EXPECT_EQ((s.*b.iTotal).value(), 0);
  }
}

TEST_F(TptNonSubrogeRubriqueTest, TheBandIsFoundFromTheTotalsAlone) {
  s.iNBJ_TPTNS50INTN = 10;  // no total: not a band to pay
  s.iNBJ_TPTNS60_Total = -2;
  s.iNBJ_TPTNS80_Total = 1;  // the days of the band, whatever its total
  s.iNBJ_TPTNS80IATN = 2;
  s.iNBJ_TPTNS80INTA = 1;
  ASSERT_TRUE(Ligne());
  VerifieLigne(800, 3, 88);  // (2 x 40 + 1 x 30) x 0.8
  EXPECT_EQ(s.iNBJ_TPTNS60_Total.value(), -2);
}

TEST_F(TptNonSubrogeRubriqueTest, DaySumOverflowFaultsAfterTheBandIsTaken) {
  s.iNBJ_TPTNS90IATA = 30000;
  s.iNBJ_TPTNS90INTN = 3000;
  s.iNBJ_TPTNS90_Total = 1;
  EXPECT_FALSE(Ligne());
  // The band was taken and the base written before the day sum; the rest stays as it was.
  EXPECT_EQ(s.iNBJ_TPTNS90_Total.value(), 0);
  EXPECT_DOUBLE_EQ(r.dBase, 900);
  r.dBase = 5;
  VerifieMarque();
}

// Two bands in March 2023, from the situations to the pay lines.
TEST(TptNonSubrogeMoisTest, FromTheSituationsToTheLines) {
  periode_test::Mois x;
  iTauxTptNonSubroge = 0;
  Salaires(x.s);
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_TPT_NON_SUBROGE", {{"MINS", "01/03/2023", "10/03/2023"},
                                                      {"M7NS", "21/03/2023", "31/03/2023"}}));
  EXPECT_EQ(iTauxTptNonSubroge.value(), 70);
  SalarieCalculRubrique r;
  ASSERT_TRUE(x.m.Appel_Methode_Calcul_General("TEMPS PARTIEL THERAPEUTIQUE NON SUBROGE", x.s, r));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 240);  // 10 x 48 x 0.5
  ASSERT_TRUE(x.m.Appel_Methode_Calcul_General("TEMPS PARTIEL THERAPEUTIQUE NON SUBROGE", x.s, r));
  EXPECT_DOUBLE_EQ(r.dMontantSalarial, 336);  // 10 x 48 x 0.7, the 31st being the 30th
  EXPECT_EQ(r.dTauxSalarial, 10.0);
  iTauxTptNonSubroge = 0;
}

}  // namespace
}  // namespace orvalis
