// The residence allowance at the point of 59.0734. Index 400: 400 x 59.0734 = 23629.36,
// a full month Round2(23629.36 / 12 - 0.0049) = 1969.11. The floor on index 313:
// 313 x 59.0734 = 18489.97, Round2(18489.97 / 12 - 0.0049) = 1540.83.
#include <gtest/gtest.h>

#include "salary/indemnites_test_outils.h"

namespace orvalis {
namespace {

class IndemniteResidence : public indemnites_test::PaieIndemnites {
 protected:
  IndemniteResidence() {
    Fixe("IndResid", 313);
    s.iZoneResid = 3;
    s.dNB_Jours_Max_Decalage_Mois = -1;
    s.dCoefficient_TraitementTA = 1;
    s.dCoefficient_TraitementTN = 1;
    MoisComplet(1969.11);
  }

  // The whole month in INTN on a real treatment.
  void MoisComplet(double dReel) {
    s.dCoefficient_INTN = 1;
    s.iNBJ_PresenceINTN = 30;
    s.iNBJ_Presence_Total = 30;
    s.dSalaire_MensuelReelINTN = dReel;
  }
};

TEST_F(IndemniteResidence, EachZone) {
  ASSERT_TRUE(Calcule("INDEMNITE DE RESIDENCE"));
  Ligne(1969.11, 3, 59.0733);  // 1969.11 x 3 %
  EXPECT_NEAR(s.dIndResTotale, 59.0733, 1e-9);
  s.iZoneResid = 1;
  ASSERT_TRUE(Calcule("INDEMNITE DE RESIDENCE"));
  Ligne(1969.11, 1, 19.6911);
}

TEST_F(IndemniteResidence, ZoneZeroOrNegativeWritesNothing) {
  s.iZoneResid = 0;
  ASSERT_TRUE(Calcule("INDEMNITE DE RESIDENCE"));
  LigneIntacte();
  s.iZoneResid = -3;
  ASSERT_TRUE(Calcule("INDEMNITE DE RESIDENCE"));
  LigneIntacte();
  EXPECT_EQ(s.dIndResTotale, 0);
}

TEST_F(IndemniteResidence, FloorOnTheReferenceIndex) {
  MoisComplet(1200);
  ASSERT_TRUE(Calcule("INDEMNITE DE RESIDENCE"));
  Ligne(1540.83, 3, 46.2249);  // 1540.83 x 3 %
  EXPECT_NEAR(s.dIndResTotale, 36, 1e-9);  // 1200 x 3 %
}

TEST_F(IndemniteResidence, FloorReachedExactly) {
  MoisComplet(1540.83);
  ASSERT_TRUE(Calcule("INDEMNITE DE RESIDENCE"));
  Ligne(1540.83, 3, 46.2249);
}

TEST_F(IndemniteResidence, PartTimeFloorFollowsTheCoefficient) {
  // 80 %: 6/7. Treatment 1969.11 x 6/7 = 1687.8086; floor 1540.83 x 6/7 = 1320.7114.
  s.dCoefficient_TraitementTN = 6.0 / 7;
  MoisComplet(1969.11 * 6 / 7);
  ASSERT_TRUE(Calcule("INDEMNITE DE RESIDENCE"));
  Ligne(1969.11 * 6 / 7, 3, 1969.11 * 6 / 7 * 3 / 100);
  // Treatment below the floor on a post at 80 %: 1000 against 1320.7114.
  MoisComplet(1000);
  ASSERT_TRUE(Calcule("INDEMNITE DE RESIDENCE"));
  Ligne(1540.83 * 6 / 7, 3, 1540.83 * 6 / 7 * 3 / 100);
}

TEST_F(IndemniteResidence, EntryOnTheSixteenth) {
  s.iNBJ_PresenceINTN = 15;
  s.iNBJ_Presence_Total = 15;
  ASSERT_TRUE(Calcule("INDEMNITE DE RESIDENCE"));
  // 1969.11 x 15 / (1 x 30) = 984.555 against 15 x 1540.83 / 30 = 770.415.
  Ligne(984.555, 3, 29.53665);
}

TEST_F(IndemniteResidence, IndexChangeOnTheEleventh) {
  // Index 366 until the 10th: 366 x 59.0734 = 21620.86, a month 1801.73, real
  // 1801.73 x 10/30; index 400 from the 11th: 1969.11 x 20/30.
  s.dCoefficient_IATN = 1.0 / 3;
  s.dCoefficient_INTN = 2.0 / 3;
  s.iNBJ_PresenceIATN = 10;
  s.iNBJ_PresenceINTN = 20;
  s.dSalaire_MensuelReelIATN = 1801.73 / 3;
  s.dSalaire_MensuelReelINTN = 1969.11 * 2 / 3;
  ASSERT_TRUE(Calcule("INDEMNITE DE RESIDENCE"));
  // 600.5767 x 10 / 10 + 1312.74 x 20 / 20 = 1913.3167, x 3 % = 57.3995.
  Ligne(1801.73 / 3 + 1312.74, 3, (1801.73 / 3 + 1312.74) * 0.03);
}

TEST_F(IndemniteResidence, HoursChangeOnTheSixteenthUsesEachSidesCoefficient) {
  // Old hours full time until the 15th (INTA), new hours at 50 % from the 16th (INTN).
  s.dCoefficient_TraitementTN = 0.5;
  s.dCoefficient_INTA = 0.5;
  s.dCoefficient_INTN = 0.5;
  s.iNBJ_PresenceINTA = 15;
  s.iNBJ_PresenceINTN = 15;
  s.dSalaire_MensuelReelINTA = 1969.11 * 0.5;
  s.dSalaire_MensuelReelINTN = 1969.11 * 0.5 * 0.5;
  ASSERT_TRUE(Calcule("INDEMNITE DE RESIDENCE"));
  // 984.555 x 15 / 15 + 492.2775 x 15 / 15 = 1476.8325; floor 1540.83 x 0.5 + 1540.83 x
  // 0.5 x 0.5 = 1155.6225.
  Ligne(1476.8325, 3, 44.304975);
}

TEST_F(IndemniteResidence, AvailabilityEndOfActivityAndTrainingDaysPayNothing) {
  s.iNBJ_DispoOfficeINTN = 5;
  s.iNBJ_CFAINTN = 3;
  s.iNBJ_CongeFormationINTN = 2;
  s.iNBJ_CongeFormation_Total = 2;
  ASSERT_TRUE(Calcule("INDEMNITE DE RESIDENCE"));
  // 20 days: 1969.11 x 20 / 30 = 1312.74 against 20 x 1540.83 / 30 = 1027.22.
  Ligne(1312.74, 3, 39.3822);
}

TEST_F(IndemniteResidence, MonthWithoutRealTreatmentFallsBackOnTheTotalBase) {
  MoisComplet(0);
  Cumul("BASE", 2500);
  ASSERT_TRUE(Calcule("INDEMNITE DE RESIDENCE"));
  Ligne(2500, 3, 75);
}

TEST_F(IndemniteResidence, TotalBaseBelowTheFloor) {
  MoisComplet(0);
  Cumul("BASE", 1000);
  ASSERT_TRUE(Calcule("INDEMNITE DE RESIDENCE"));
  Ligne(1540.83, 3, 46.2249);
}

TEST_F(IndemniteResidence, SeveralPostsKeepTheMonthWhole) {
  s.bDureeHebdoMultiple = true;
  MoisComplet(1200);
  s.iNBJ_PresenceINTN = 10;  // the days are not read
  ASSERT_TRUE(Calcule("INDEMNITE DE RESIDENCE"));
  Ligne(1540.83, 3, 46.2249);
}

TEST_F(IndemniteResidence, NoDaysOrNoShiftPayZero) {
  s.dNB_Jours_Max_Decalage_Mois = 0;
  ASSERT_TRUE(Calcule("INDEMNITE DE RESIDENCE"));
  Ligne(1969.11, 3, 0);
  s.dNB_Jours_Max_Decalage_Mois = -1;
  s.iNBJ_PresenceINTN = 0;
  s.iNBJ_Presence_Total = 0;
  Cumul("BASE", 0);
  ASSERT_TRUE(Calcule("INDEMNITE DE RESIDENCE"));
  Ligne(0, 3, 0);  // neither treatment nor floor: max(0, 0 x 1540.83 / 30)
}

TEST_F(IndemniteResidence, NullStatutoryValuesReadZero) {
  Fixe("Point", Value());
  Fixe("IndResid", Value());
  MoisComplet(0);
  ASSERT_TRUE(Calcule("INDEMNITE DE RESIDENCE"));
  Ligne(0, 3, 0);
}

TEST_F(IndemniteResidence, DayCountOverflowFaults) {
  s.iNBJ_CFAIATA = 32767;
  s.iNBJ_CFAIATN = 1;
  EXPECT_FALSE(Calcule("INDEMNITE DE RESIDENCE"));
}

}  // namespace
}  // namespace orvalis
