// Days on maintained pay and bands of non-subrogated therapeutic part-time.
#include <gtest/gtest.h>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "period/mois_test_outils.h"
#include "period/periode_test_outils.h"

namespace orvalis {
namespace {

using periode_test::LigneSituation;
using periode_test::Mois;

const std::vector<LigneSituation> kMaladies = {
    {"O90", "01/03/2023", "05/03/2023"}, {"O66", "06/03/2023", "07/03/2023"},
    {"A90", "08/03/2023", "10/03/2023"}, {"OS", "11/03/2023", "11/03/2023"},
    {"MP9", "12/03/2023", "13/03/2023"}, {"A66", "14/03/2023", "17/03/2023"},
    {"A0", "18/03/2023", "20/03/2023"},  {"MP6", "21/03/2023", "25/03/2023"},
    {"MP0", "26/03/2023", "31/03/2023"},
};

TEST(MaintienTraitementTest, NinetyPercent) {
  Mois x;
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_90POURCENT_TRAITEMENT", kMaladies));
  EXPECT_EQ(x.s.iNBJ_90PourCentTraitementINTN.value(), 5 + 3 + 2);
  EXPECT_EQ(x.s.iNBJ_90PourCentTraitement_Total.value(), 10);
  EXPECT_EQ(x.s.iNBJ_2TiersTraitement_Total.value(), 0);
}

TEST(MaintienTraitementTest, TwoThirds) {
  Mois x;
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_2TIERS_TRAITEMENT", kMaladies));
  EXPECT_EQ(x.s.iNBJ_2TiersTraitementINTN.value(), 2 + 4 + 5);
  EXPECT_EQ(x.s.iNBJ_2TiersTraitement_Total.value(), 11);
  EXPECT_EQ(x.s.iNBJ_90PourCentTraitement_Total.value(), 0);
}

TEST(MaintienTraitementTest, WithoutPay) {
  Mois x;
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_MALADIE_SANS_TRAITEMENT", kMaladies));
  EXPECT_EQ(x.s.iNBJ_SansTraitementINTN.value(), 1 + 3 + 5);
  EXPECT_EQ(x.s.iNBJ_SansTraitement_Total.value(), 9);
}

TEST(MaintienTraitementTest, QuadrantsAndTotal) {
  Mois x;
  x.IndiceSeul();
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_90POURCENT_TRAITEMENT", {{"O90", "06/03/2023", "15/03/2023"}}));
  EXPECT_EQ(x.s.iNBJ_90PourCentTraitementIATN.value(), 5);
  EXPECT_EQ(x.s.iNBJ_90PourCentTraitementINTN.value(), 5);
  EXPECT_EQ(x.s.iNBJ_90PourCentTraitement_Total.value(), 10);
}

TEST(MaintienTraitementTest, NoRecordWritesZeros) {
  Mois x;
  x.s.iNBJ_SansTraitementINTN = 4;
  x.s.iNBJ_SansTraitement_Total = 4;
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_MALADIE_SANS_TRAITEMENT", {}));
  EXPECT_EQ(x.s.iNBJ_SansTraitementINTN.value(), 0);
  EXPECT_EQ(x.s.iNBJ_SansTraitement_Total.value(), 0);
}

class TptNonSubrogeTest : public ::testing::Test {
 protected:
  void SetUp() override { iTauxTptNonSubroge = 0; }
  void TearDown() override { iTauxTptNonSubroge = 0; }
};

TEST_F(TptNonSubrogeTest, EachCodeFillsItsBand) {
  Mois x;
  x.s.iNBJ_TPTNS90INTN = 8;
  x.s.iNBJ_TPTNS90_Total = 8;
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_TPT_NON_SUBROGE", {{"MINS", "01/03/2023", "10/03/2023"},
                                                      {"MI", "11/03/2023", "15/03/2023"},
                                                      {"M7NS", "21/03/2023", "31/03/2023"},
                                                      {"MINS", "16/03/2023", "17/03/2023"}}));
  EXPECT_EQ(x.s.iNBJ_TPTNS50INTN.value(), 12);
  EXPECT_EQ(x.s.iNBJ_TPTNS50_Total.value(), 12);
  EXPECT_EQ(x.s.iNBJ_TPTNS70INTN.value(), 10);
  EXPECT_EQ(x.s.iNBJ_TPTNS70_Total.value(), 10);
  EXPECT_EQ(x.s.iNBJ_TPTNS60_Total.value(), 0);
  EXPECT_EQ(x.s.iNBJ_TPTNS90INTN.value(), 0);
  EXPECT_EQ(x.s.iNBJ_TPTNS90_Total.value(), 0);
  // The last situation met was at 50 %.
  EXPECT_EQ(iTauxTptNonSubroge.value(), 50);
}

TEST_F(TptNonSubrogeTest, AllFiveBands) {
  Mois x;
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_TPT_NON_SUBROGE", {{"M6NS", "01/03/2023", "02/03/2023"},
                                                      {"M8NS", "03/03/2023", "05/03/2023"},
                                                      {"M9NS", "06/03/2023", "09/03/2023"}}));
  EXPECT_EQ(x.s.iNBJ_TPTNS60_Total.value(), 2);
  EXPECT_EQ(x.s.iNBJ_TPTNS80_Total.value(), 3);
  EXPECT_EQ(x.s.iNBJ_TPTNS90_Total.value(), 4);
  EXPECT_EQ(iTauxTptNonSubroge.value(), 90);
}

TEST_F(TptNonSubrogeTest, VariableQuotityGoesToTheBandOfItsPercentage) {
  Mois x;
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_TPT_NON_SUBROGE", {{"MVNS", "01/03/2023", "10/03/2023", 80}}));
  EXPECT_EQ(x.s.iNBJ_TPTNS80_Total.value(), 10);
  EXPECT_EQ(iTauxTptNonSubroge.value(), 80);
  Mois autre;
  ASSERT_TRUE(
      autre.Prepare("NBRE_JOUR_TPT_NON_SUBROGE", {{"MVNS", "01/03/2023", "10/03/2023", 75}}));
  for (auto total :
       {autre.s.iNBJ_TPTNS50_Total, autre.s.iNBJ_TPTNS60_Total, autre.s.iNBJ_TPTNS70_Total,
        autre.s.iNBJ_TPTNS80_Total, autre.s.iNBJ_TPTNS90_Total})
    EXPECT_EQ(total.value(), 0);
  EXPECT_EQ(iTauxTptNonSubroge.value(), 75);
}

TEST_F(TptNonSubrogeTest, NoRecordKeepsThePercentage) {
  iTauxTptNonSubroge = 60;
  Mois x;
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_TPT_NON_SUBROGE", {{"MI", "01/03/2023", "10/03/2023"}}));
  EXPECT_EQ(iTauxTptNonSubroge.value(), 60);
  EXPECT_EQ(x.s.iNBJ_TPTNS50_Total.value(), 0);
}

}  // namespace
}  // namespace orvalis
