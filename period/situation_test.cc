// One situation turned into days of the month by quadrant.
#include <gtest/gtest.h>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "period/mois_test_outils.h"
#include "period/periode_test_outils.h"

namespace orvalis {
namespace {

using periode_test::Quadrants;

using Compteur = periode_test::Mois;

TEST(SituationTest, WholeMonthOfHalfPay) {
  Compteur k;
  EXPECT_EQ(k.Ajoute("DT", "01/02/2023", "30/04/2023"), (Quadrants{0, 0, 0, 30}));
}

TEST(SituationTest, EndingOnThe31st) {
  Compteur k;
  EXPECT_EQ(k.Ajoute("DT", "01/03/2023", "31/03/2023"), (Quadrants{0, 0, 0, 30}));
  Compteur un;
  EXPECT_EQ(un.Ajoute("DT", "31/03/2023", "31/03/2023"), (Quadrants{0, 0, 0, 1}));
}

TEST(SituationTest, NoEndDateRunsToTheMonthsEnd) {
  Compteur k;
  EXPECT_EQ(k.Ajoute("LD", "11/03/2023", ""), (Quadrants{0, 0, 0, 20}));
}

TEST(SituationTest, InsideTheMonth) {
  Compteur k;
  EXPECT_EQ(k.Ajoute("DT", "05/03/2023", "14/03/2023"), (Quadrants{0, 0, 0, 10}));
}

TEST(SituationTest, OutsideTheMonthAddsNothingButTheCapStillRuns) {
  Compteur k;
  k.d = 25;
  k.s.iNBJ_PresenceINTN = 20;
  EXPECT_EQ(k.Ajoute("DT", "01/01/2023", "31/01/2023"), (Quadrants{0, 0, 0, 20}));
  Compteur apres;
  EXPECT_EQ(apres.Ajoute("DT", "01/04/2023", ""), (Quadrants{0, 0, 0, 0}));
}

TEST(SituationTest, CappedByPresence) {
  Compteur k;
  k.s.iNBJ_PresenceINTN = 12;
  EXPECT_EQ(k.Ajoute("DT", "01/03/2023", "31/03/2023"), (Quadrants{0, 0, 0, 12}));
}

TEST(SituationTest, FebruaryEndCountsThirty) {
  Compteur k("01/02/2023");
  EXPECT_EQ(k.Ajoute("DT", "15/02/2023", "28/02/2023"), (Quadrants{0, 0, 0, 16}));
  Compteur bissextile("01/02/2024");
  EXPECT_EQ(bissextile.Ajoute("DT", "15/02/2024", "28/02/2024"), (Quadrants{0, 0, 0, 14}));
  Compteur fin29("01/02/2024");
  EXPECT_EQ(fin29.Ajoute("DT", "15/02/2024", "29/02/2024"), (Quadrants{0, 0, 0, 16}));
}

TEST(SituationTest, FebruaryRuleIgnoresCalendarPayButNeedsACode) {
  Compteur k("01/02/2023");
  k.s.bCalculPayeEnJoursCalendaires = true;
  EXPECT_EQ(k.Ajoute("DT", "15/02/2023", "28/02/2023"), (Quadrants{0, 0, 0, 16}));
  Compteur sansCode("01/02/2023");
  EXPECT_EQ(sansCode.Ajoute("", "15/02/2023", "28/02/2023"), (Quadrants{0, 0, 0, 14}));
}

TEST(SituationTest, CalendarPay) {
  Compteur k;
  k.s.bCalculPayeEnJoursCalendaires = true;
  k.s.iNBJ_PresenceINTN = 31;
  EXPECT_EQ(k.Ajoute("DT", "05/03/2023", "31/03/2023"), (Quadrants{0, 0, 0, 27}));
  Compteur mois;
  mois.s.bCalculPayeEnJoursCalendaires = true;
  EXPECT_EQ(mois.Ajoute("DT", "01/03/2023", "30/04/2023"), (Quadrants{0, 0, 0, 30}));
  // Past the month's end from a later first day: the end's own day number stands.
  Compteur apres;
  apres.s.bCalculPayeEnJoursCalendaires = true;
  EXPECT_EQ(apres.Ajoute("DT", "05/03/2023", "15/04/2023"), (Quadrants{0, 0, 0, 11}));
  Compteur trenteEtUn;
  trenteEtUn.s.bCalculPayeEnJoursCalendaires = true;
  EXPECT_EQ(trenteEtUn.Ajoute("DT", "31/03/2023", "31/03/2023"), (Quadrants{0, 0, 0, 1}));
  Compteur sans;
  EXPECT_EQ(sans.Ajoute("DT", "05/03/2023", "31/03/2023"), (Quadrants{0, 0, 0, 26}));
}

TEST(SituationTest, BoundedByTheEmployment) {
  Compteur entree;
  entree.s.sDateDebut = "10/03/2023";
  EXPECT_EQ(entree.Ajoute("DT", "01/02/2023", "30/04/2023"), (Quadrants{0, 0, 0, 21}));
  Compteur sortie;
  sortie.s.sDateFin = "20/03/2023";
  EXPECT_EQ(sortie.Ajoute("DT", "01/03/2023", "31/03/2023"), (Quadrants{0, 0, 0, 20}));
  // An open situation runs to the month's end whatever the exit date: presence caps it.
  Compteur ouverte;
  ouverte.s.sDateFin = "20/03/2023";
  EXPECT_EQ(ouverte.Ajoute("DT", "01/03/2023", ""), (Quadrants{0, 0, 0, 30}));
}

TEST(SituationTest, DetachmentIsCappedByTotalPresenceOnly) {
  Compteur k;
  k.s.iNBJ_PresenceINTN = 0;
  k.s.iNBJ_Presence_Total = 25;
  k.s.dCoefficient_INTN = 0;
  k.a = 40;  // no cap on the other quadrants
  EXPECT_EQ(k.Ajoute("D", "01/03/2023", "31/03/2023"), (Quadrants{40, 0, 0, 25}));
  Compteur m;
  EXPECT_EQ(m.Ajoute("M", "11/03/2023", "20/03/2023"), (Quadrants{0, 0, 0, 10}));
}

TEST(SituationTest, ProgressiveRetirementWritesItsCoefficients) {
  Compteur recent;
  recent.Ajoute("PD", "01/06/2022", "");
  EXPECT_EQ(recent.s.sTypeCPA, "PD");
  EXPECT_DOUBLE_EQ(recent.s.dCoefficient_CPA, 0.85714);
  EXPECT_DOUBLE_EQ(recent.s.dCoefficient_CPAH, 0.85714);
  Compteur ancien;
  ancien.Ajoute("PD", "01/01/2021", "");
  EXPECT_DOUBLE_EQ(ancien.s.dCoefficient_CPA, 0.7);
  EXPECT_DOUBLE_EQ(ancien.s.dCoefficient_CPAH, 0.6);
  Compteur pf;
  pf.Ajoute("PF", "01/01/2021", "");
  EXPECT_EQ(pf.s.sTypeCPA, "PF");
  EXPECT_DOUBLE_EQ(pf.s.dCoefficient_CPA, 0.6);
  EXPECT_DOUBLE_EQ(pf.s.dCoefficient_CPAH, 0.5);
  Compteur hors;
  hors.Ajoute("CP", "01/01/2021", "31/01/2023");
  EXPECT_EQ(hors.s.sTypeCPA, "");
  EXPECT_EQ(hors.s.dCoefficient_CPA, 0);
}

// ---- Quadrants -----------------------------------------------------------------------------

// Index on the 10th, hours on the 20th: 9, 0, 10, 11.
void IndexPuisHeures(Compteur& k) {
  k.s.sDateChangementIndice = "10/03/2023";
  k.s.sDateChangementHeures = "20/03/2023";
  k.Quadrant(9, 0, 10, 11);
}

// Hours on the 10th, index on the 20th: 9, 10, 0, 11.
void HeuresPuisIndex(Compteur& k) {
  k.s.sDateChangementIndice = "20/03/2023";
  k.s.sDateChangementHeures = "10/03/2023";
  k.Quadrant(9, 10, 0, 11);
}

TEST(SituationQuadrantTest, IndexThenHoursWholeMonth) {
  Compteur k;
  IndexPuisHeures(k);
  EXPECT_EQ(k.Ajoute("DT", "01/02/2023", ""), (Quadrants{9, 0, 10, 11}));
}

TEST(SituationQuadrantTest, IndexThenHoursAcrossTheHoursChange) {
  Compteur k;
  IndexPuisHeures(k);
  EXPECT_EQ(k.Ajoute("DT", "15/03/2023", "25/03/2023"), (Quadrants{0, 0, 5, 6}));
}

TEST(SituationQuadrantTest, BeforeTheFirstChangeGoesToTheOldQuadrant) {
  Compteur k;
  IndexPuisHeures(k);
  EXPECT_EQ(k.Ajoute("DT", "05/03/2023", "08/03/2023"), (Quadrants{4, 0, 0, 0}));
}

TEST(SituationQuadrantTest, NewIndexOldHoursTestsTheHoursDayStrictly) {
  Compteur k;
  IndexPuisHeures(k);
  EXPECT_EQ(k.Ajoute("DT", "12/03/2023", "18/03/2023"), (Quadrants{0, 0, 7, 0}));
  Compteur jour;
  IndexPuisHeures(jour);
  EXPECT_EQ(jour.Ajoute("DT", "12/03/2023", "20/03/2023"), (Quadrants{0, 0, 9, 0}));
}

TEST(SituationQuadrantTest, HoursThenIndexWholeMonth) {
  Compteur k;
  HeuresPuisIndex(k);
  EXPECT_EQ(k.Ajoute("DT", "01/03/2023", "31/03/2023"), (Quadrants{9, 10, 0, 11}));
}

TEST(SituationQuadrantTest, HoursThenIndexAcrossTheIndexChange) {
  Compteur k;
  HeuresPuisIndex(k);
  EXPECT_EQ(k.Ajoute("DT", "12/03/2023", "25/03/2023"), (Quadrants{0, 8, 0, 6}));
}

TEST(SituationQuadrantTest, OldIndexTestsTheIndexDayInclusively) {
  Compteur k;
  HeuresPuisIndex(k);
  EXPECT_EQ(k.Ajoute("DT", "12/03/2023", "20/03/2023"), (Quadrants{0, 8, 0, 9}));
}

TEST(SituationQuadrantTest, HoursThenIndexAcrossTheHoursChange) {
  Compteur k;
  HeuresPuisIndex(k);
  EXPECT_EQ(k.Ajoute("DT", "05/03/2023", "15/03/2023"), (Quadrants{5, 6, 0, 11}));
}

TEST(SituationQuadrantTest, IndexOnlyInTheMonth) {
  Compteur k;
  k.s.sDateChangementIndice = "11/03/2023";
  k.Quadrant(0, 10, 0, 20);
  EXPECT_EQ(k.Ajoute("DT", "01/03/2023", "31/03/2023"), (Quadrants{0, 10, 0, 20}));
}

TEST(SituationQuadrantTest, RunningCountsOfTwoSituations) {
  Compteur k;
  k.s.sDateChangementIndice = "11/03/2023";
  k.Quadrant(0, 10, 0, 20);
  EXPECT_EQ(k.Ajoute("DT", "01/03/2023", "05/03/2023"), (Quadrants{0, 5, 0, 0}));
  EXPECT_EQ(k.Ajoute("LD", "20/03/2023", "25/03/2023"), (Quadrants{0, 5, 0, 6}));
  Compteur apres;
  apres.s.sDateChangementIndice = "11/03/2023";
  apres.Quadrant(0, 10, 0, 20);
  EXPECT_EQ(apres.Ajoute("DT", "15/03/2023", "31/03/2023"), (Quadrants{0, 0, 0, 16}));
}

TEST(SituationQuadrantTest, HoursOnlyInTheMonth) {
  Compteur k;
  k.s.sDateChangementIndice = "01/01/2022";
  k.s.sDateChangementHeures = "15/03/2023";
  k.Quadrant(0, 0, 14, 16);
  EXPECT_EQ(k.Ajoute("DT", "01/03/2023", "31/03/2023"), (Quadrants{0, 0, 14, 16}));
}

TEST(SituationQuadrantTest, IndexNextMonthCountsUpToTheEarlierChange) {
  Compteur k;
  k.s.sDateChangementIndice = "15/04/2023";
  k.s.sDateChangementHeures = "15/04/2023";
  k.Quadrant(30, 0, 0, 0);
  EXPECT_EQ(k.Ajoute("DT", "01/03/2023", "31/03/2023"), (Quadrants{14, 0, 0, 0}));
}

TEST(SituationQuadrantTest, QuadrantWithoutCoefficientDropsEarlierDays) {
  Compteur k;
  k.a = 5;
  k.b = 6;
  k.c = 7;
  EXPECT_EQ(k.Ajoute("DT", "01/03/2023", "10/03/2023"), (Quadrants{0, 0, 0, 10}));
}

TEST(SituationQuadrantTest, ChangeDatesAreReadOnlyWhereNeeded) {
  Compteur k;
  k.s.sDateChangementIndice = "";
  k.s.sDateChangementHeures = "";
  EXPECT_EQ(k.Ajoute("DT", "01/03/2023", "10/03/2023"), (Quadrants{0, 0, 0, 10}));
  Compteur faute;
  faute.s.sDateChangementIndice = "";
  faute.Quadrant(0, 10, 0, 20);
  EXPECT_THROW(faute.Ajoute("DT", "01/03/2023", "10/03/2023"), Fault);
}

}  // namespace
}  // namespace orvalis
