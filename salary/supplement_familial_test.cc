// The family supplement at the point of 59.0734 on the scale of 2024: 2.29 for one child;
// 10.67 + 3 % for two; 15.24 + 8 % for three; 4.57 + 6 % for each child past the third.
// Floor index 454: Round2(59.0734 x 454 / 12 - 0.0049) = 2234.94; ceiling index 722:
// Round2(59.0734 x 722 / 12 - 0.0049) = 3554.24; index 500 in between: 2461.39.
#include <gtest/gtest.h>

#include "salary/indemnites_test_outils.h"
#include "salary/supplement_familial_situation.h"

namespace orvalis {
namespace {

constexpr double kPlancher = 2234.94;
constexpr double kPlafond = 3554.24;
constexpr double kMilieu = 2461.39;

class SupplementFamilial : public indemnites_test::PaieIndemnites {
 protected:
  SupplementFamilial() {
    Fixe("IndMinSF", 454);
    Fixe("IndMaxSF", 722);
    Fixe("SFFixe1", 2.29);
    Fixe("SFFixe2", 10.67);
    Fixe("SFvar2", 3);
    Fixe("SFFixe3", 15.24);
    Fixe("SFvar3", 8);
    Fixe("SFFixeSup", 4.57);
    Fixe("SFvarsup", 6);
    s.sOccupationPoste = "N";
    s.dCoefficient_TraitementTA = 1;
    s.dCoefficient_TraitementTN = 1;
    s.dCoefficient_INTN = 1;
    s.iNBJ_PresenceINTN = 30;
    s.iNBJ_Presence_Total = 30;
    s.dDureeHebdoLegale = 35;
    Traitement(kMilieu);
  }
  void Traitement(double d) { s.dSalaire_MensuelPleinINTN = d; }
  double Supplement(int enfants) {
    s.iEnfant_ACharge = enfants;
    EXPECT_TRUE(Calcule("SUPPLEMENT FAMILIAL"));
    return r.dMontantSalarial;
  }
};

struct CasBareme {
  int enfants;
  double traitement;
  double base;
  double montant;
};

TEST_F(SupplementFamilial, ScaleAtTheFloorTheMiddleAndTheCeiling) {
  const CasBareme cas[] = {
      {1, 2000, kPlancher, 2.29},
      {1, kMilieu, kMilieu, 2.29},
      {1, 4000, kPlafond, 2.29},
      {2, 2000, kPlancher, 77.71},    // 10.67 + 2234.94 x 3 % = 77.7182 -> 77.71
      {2, kPlancher, kPlancher, 77.71},
      {2, kMilieu, kMilieu, 84.51},   // 10.67 + 73.8417 = 84.5117 -> 84.51
      {2, kPlafond, kPlafond, 117.29},  // 10.67 + 106.6272 = 117.2972 -> 117.29
      {2, 4000, kPlafond, 117.29},
      {3, 2000, kPlancher, 194.03},   // 15.24 + 178.7952 = 194.0352 -> 194.03
      {3, kMilieu, kMilieu, 212.15},  // 15.24 + 196.9112 = 212.1512 -> 212.15
      {3, 4000, kPlafond, 299.57},    // 15.24 + 284.3392 = 299.5792 -> 299.57
      {4, 2000, kPlancher, 332.70},   // 194.03 + 4.57 + 134.0964 = 332.6964 -> 332.70
      {4, kMilieu, kMilieu, 364.40},  // 212.15 + 4.57 + 147.6834 = 364.4034 -> 364.40
      {4, 4000, kPlafond, 517.39},    // 299.57 + 4.57 + 213.2544 = 517.3944 -> 517.39
      {5, kMilieu, kMilieu, 516.66},  // 212.15 + 2 x (4.57 + 147.6834) = 516.6568 -> 516.66
  };
  for (const CasBareme& k : cas) {
    SCOPED_TRACE(testing::Message() << k.enfants << " children on " << k.traitement);
    Traitement(k.traitement);
    Supplement(k.enfants);
    Ligne(k.base, k.enfants, k.montant);
    EXPECT_NEAR(s.dMontant_SFT, k.montant, 1e-9);
  }
}

TEST_F(SupplementFamilial, TreatmentSummedOverTheQuadrants) {
  s.dSalaire_MensuelPleinIATA = 1000;
  s.dSalaire_MensuelPleinIATN = 500;
  s.dSalaire_MensuelPleinINTA = 461.39;
  Traitement(500);
  Supplement(2);
  Ligne(kMilieu, 2, 84.51);
}

TEST_F(SupplementFamilial, NoChildWritesNothing) {
  Supplement(0);
  LigneIntacte();
  Supplement(-1);
  LigneIntacte();
  EXPECT_EQ(s.dMontant_SFT, 0);
}

TEST_F(SupplementFamilial, EntryOnTheSixteenth) {
  s.iNBJ_PresenceINTN = 15;
  s.iNBJ_Presence_Total = 15;
  EXPECT_NEAR(Supplement(1), 1.145, 1e-9);     // 15 x 2.29 / 30
  EXPECT_NEAR(Supplement(2), 42.255, 1e-9);    // 84.51 x 1 x 15 / 30
}

TEST_F(SupplementFamilial, EndOfActivityDaysAreNotPaid) {
  s.iNBJ_CFAINTN = 10;
  s.iNBJ_CFA_Total = 10;
  EXPECT_NEAR(Supplement(1), 2.29 * 20 / 30, 1e-9);
  EXPECT_NEAR(Supplement(3), 212.15 * 20 / 30, 1e-9);
}

TEST_F(SupplementFamilial, IndexChangeOnTheEleventhSplitsTheMonth) {
  s.dCoefficient_IATN = 1.0 / 3;
  s.dCoefficient_INTN = 2.0 / 3;
  s.iNBJ_PresenceIATN = 10;
  s.iNBJ_PresenceINTN = 20;
  EXPECT_NEAR(Supplement(2), 84.51 * 10 / 30 + 84.51 * 20 / 30, 1e-9);
}

TEST_F(SupplementFamilial, PartTimeAtHalfGetsTheFloorOfTheMinimumIndex) {
  s.sOccupationPoste = "P";
  s.dCoefficient_TraitementTN = 0.5;
  Traitement(kMilieu * 0.5);  // 1230.695: below the floor, X = 2234.94
  EXPECT_NEAR(Supplement(2), 77.71, 1e-9);   // max(77.71 x 0.5, 30 x 77.71 / 30)
  EXPECT_NEAR(Supplement(1), 2.29, 1e-9);    // max(2.29 x 0.5, 2.29)
  Traitement(4000 * 0.5);
  EXPECT_NEAR(Supplement(3), 194.03, 1e-9);  // max(194.03 x 0.5, 194.03)
}

TEST_F(SupplementFamilial, PartTimeAtEightyPercentAboveTheFloor) {
  s.sOccupationPoste = "P";
  s.dCoefficient_TraitementTN = 6.0 / 7;
  Traitement(4000);
  // 299.57 x 6/7 = 256.7743 against the floor 194.03.
  EXPECT_NEAR(Supplement(3), 299.57 * 6 / 7, 1e-9);
}

TEST_F(SupplementFamilial, NonCompletePost) {
  s.sOccupationPoste = "T";
  s.dCoefficientTraitementTNCAvantTP = 0.8;
  s.dCoefficientTraitementTPSiTNC = 1;
  // 84.51 x 0.8 = 67.608 against 77.71 x 0.8 = 62.168.
  EXPECT_NEAR(Supplement(2), 67.608, 1e-9);
  // Part time 50 % on it: 67.608 x 0.5 = 33.804 below 62.168: the floor.
  s.dCoefficientTraitementTPSiTNC = 0.5;
  EXPECT_NEAR(Supplement(2), 62.168, 1e-9);
  // One child: no hours coefficient, the part time against the child's fixed amount.
  EXPECT_NEAR(Supplement(1), 2.29, 1e-9);  // 0.5 x 2.29 below 2.29
  s.dCoefficientTraitementTPSiTNC = 1;
  s.iNBJ_PresenceINTN = 15;
  s.iNBJ_Presence_Total = 15;
  EXPECT_NEAR(Supplement(2), 33.804, 1e-9);  // 15 x 67.608 / 30
}

TEST_F(SupplementFamilial, ProgressiveEndOfActivity) {
  s.sTypeCPA = "PD";
  s.dCoefficient_CPA = 0.6;
  EXPECT_NEAR(Supplement(2), 77.71, 1e-9);  // 84.51 x 0.6 = 50.706 below 77.71
  s.sTypeCPA = "PF";
  s.dCoefficient_CPA = 0.95;
  EXPECT_NEAR(Supplement(2), 80.2845, 1e-9);  // 84.51 x 0.95
}

TEST_F(SupplementFamilial, SeveralPostsShareTheSupplement) {
  s.dHeuresCumulsHebdo = 40;
  EXPECT_NEAR(Supplement(2), 73.94625, 1e-9);  // 35 x 84.51 / 40
  EXPECT_NEAR(Supplement(1), 2.29, 1e-9);      // one child: not shared
  s.dHeuresCumulsHebdo = 35;                   // exactly the legal duration
  EXPECT_NEAR(Supplement(2), 84.51, 1e-9);
  s.dDureeHebdoLegale = 0;                     // read as 35
  s.dHeuresCumulsHebdo = 70;
  EXPECT_NEAR(Supplement(2), 42.255, 1e-9);
}

TEST_F(SupplementFamilial, ChildrenInTheOtherParentsCare) {
  s.dEnfantsNonACharges = 1;
  EXPECT_NEAR(Supplement(3), 212.15 * 2 / 3, 1e-9);  // two thirds: 141.4333
  EXPECT_NEAR(s.dMontant_SFT, 212.15 * 2 / 3, 1e-9);
  s.dEnfantsNonACharges = 0.5;  // shared custody of one of two children
  EXPECT_NEAR(Supplement(2), 84.51 * 1.5 / 2, 1e-9);
}

TEST_F(SupplementFamilial, AvailabilityDaysAfterTheSupplementIsKept) {
  s.iNBJ_DispoOffice_Total = 10;
  EXPECT_NEAR(Supplement(2), 84.51 * 20 / 30, 1e-9);
  EXPECT_NEAR(s.dMontant_SFT, 84.51, 1e-9);  // before availability
}

TEST_F(SupplementFamilial, DayCountOverflowFaults) {
  s.iNBJ_Presence_Total = -32768;
  s.iNBJ_CFA_Total = 1;
  s.iEnfant_ACharge = 2;
  EXPECT_FALSE(Calcule("SUPPLEMENT FAMILIAL"));
}

TEST_F(SupplementFamilial, QuadrantShareOfTheSupplement) {
  // 84.51 x 0.5 x (2/3) x (20 - 5) / ((2/3) x 30) = 21.1275; no share without days.
  EXPECT_NEAR(indemnites::dSupplementFamilialArrondi(84.51, 0.5, 2.0 / 3, 20, 5), 21.1275, 1e-9);
  EXPECT_EQ(indemnites::dSupplementFamilialArrondi(84.51, 0.5, 2.0 / 3, 0, 5), 0);
  EXPECT_EQ(indemnites::dSupplementFamilialArrondi(84.51, 0.5, 0, 20, 5), 0);
}

}  // namespace
}  // namespace orvalis
