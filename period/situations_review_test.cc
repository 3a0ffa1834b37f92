// Situation day counts checked by hand: the single situation by quadrant (bounds, 30-day
// month, February, calendar pay, the comparisons of each quadrant, the presence cap), then
// the families reached by their preparation names.
#include <gtest/gtest.h>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "period/mois_test_outils.h"
#include "period/periode_test_outils.h"

namespace orvalis {
namespace {

using periode_test::LigneSituation;
using periode_test::Mois;
using periode_test::Quadrants;
using periode_test::Situations;

// ---- Bounds and day numbers ------------------------------------------------------------------

TEST(SituationsReviewTest, OverlapBoundaries) {
  // Ending on the first of the month: one day (d1 = 1, d2 = 1).
  EXPECT_EQ(Mois().Ajoute("DT", "15/02/2023", "01/03/2023"), (Quadrants{0, 0, 0, 1}));
  // Ending the day before the month: no overlap.
  EXPECT_EQ(Mois().Ajoute("DT", "15/02/2023", "28/02/2023"), (Quadrants{0, 0, 0, 0}));
  // Starting on the month's last day, the 31st: 30 - 30 + 1.
  EXPECT_EQ(Mois().Ajoute("DT", "31/03/2023", ""), (Quadrants{0, 0, 0, 1}));
  // Starting the day after the month: no overlap.
  EXPECT_EQ(Mois().Ajoute("DT", "01/04/2023", ""), (Quadrants{0, 0, 0, 0}));
}

TEST(SituationsReviewTest, ThirtiethAndThirtyFirstCountAsOneDay) {
  // 30/03 to 31/03: d1 = 30, d2 = 31 then 30: one day.
  EXPECT_EQ(Mois().Ajoute("DT", "30/03/2023", "31/03/2023"), (Quadrants{0, 0, 0, 1}));
  // Running past the month from the 30th: d2 = 30.
  EXPECT_EQ(Mois().Ajoute("DT", "30/03/2023", "15/04/2023"), (Quadrants{0, 0, 0, 1}));
  // 30-day month (April): the 30th is the 30th.
  EXPECT_EQ(Mois("01/04/2023").Ajoute("DT", "21/04/2023", ""), (Quadrants{0, 0, 0, 10}));
}

TEST(SituationsReviewTest, EntryRaisesTheStartAndExitLowersTheEnd) {
  Mois x;
  x.s.sDateDebut = "05/03/2023";
  x.s.sDateFin = "24/03/2023";
  // S = 05/03, E = 24/03: 20 days.
  EXPECT_EQ(x.Ajoute("CF", "01/01/2023", "30/06/2023"), (Quadrants{0, 0, 0, 20}));
  // An exit after the situation's end leaves the end alone: 10/03 to 12/03.
  Mois y;
  y.s.sDateFin = "24/03/2023";
  EXPECT_EQ(y.Ajoute("CF", "10/03/2023", "12/03/2023"), (Quadrants{0, 0, 0, 3}));
}

TEST(SituationsReviewTest, FebruaryOfALeapYear) {
  // 10/02 to 29/02/2024: d2 = 29 reaches the last day, 30: 21 days.
  EXPECT_EQ(Mois("01/02/2024").Ajoute("DT", "10/02/2024", "29/02/2024"), (Quadrants{0, 0, 0, 21}));
  // Ending on the 28th of a 29-day February: 19 days.
  EXPECT_EQ(Mois("01/02/2024").Ajoute("DT", "10/02/2024", "28/02/2024"), (Quadrants{0, 0, 0, 19}));
  // Open situation from the 1st: 30.
  EXPECT_EQ(Mois("01/02/2024").Ajoute("DT", "01/01/2024", ""), (Quadrants{0, 0, 0, 30}));
}

TEST(SituationsReviewTest, FebruaryFirstDayBeyondTheMonthWithCalendarPay) {
  // Entry on 31/03 while paying February: S = 31/03, d1 = 31 (calendar pay keeps it),
  // E = 30/04 past the month with d1 <> 1: d2 = 30. February: d1 > 28 gives 30, d2 >= 28
  // gives 30: one day, where without the February rule it would be 30 - 31 + 1 = 0.
  Mois x("01/02/2023");
  x.s.bCalculPayeEnJoursCalendaires = true;
  x.s.sDateDebut = "31/03/2023";
  EXPECT_EQ(x.Ajoute("DT", "01/02/2023", "30/04/2023"), (Quadrants{0, 0, 0, 1}));
}

TEST(SituationsReviewTest, CalendarPayFromTheFirst) {
  Mois x;
  x.s.bCalculPayeEnJoursCalendaires = true;
  x.s.iNBJ_PresenceINTN = 31;
  // d1 = 1, E = 31/03: d2 = 31 lowered to 30 because d1 = 1.
  EXPECT_EQ(x.Ajoute("DT", "01/03/2023", "31/03/2023"), (Quadrants{0, 0, 0, 30}));
  Mois y;
  y.s.bCalculPayeEnJoursCalendaires = true;
  y.s.iNBJ_PresenceINTN = 31;
  // d1 = 2, d2 = 31 stays: 30 days.
  EXPECT_EQ(y.Ajoute("DT", "02/03/2023", "31/03/2023"), (Quadrants{0, 0, 0, 30}));
  Mois z;
  z.s.bCalculPayeEnJoursCalendaires = true;
  z.s.iNBJ_PresenceINTN = 31;
  // Without an end: E is the 31st, not after the month, d1 = 20: 12 days.
  EXPECT_EQ(z.Ajoute("DT", "20/03/2023", ""), (Quadrants{0, 0, 0, 12}));
}

// ---- Quadrants: the comparisons --------------------------------------------------------------

TEST(SituationsReviewTest, IndexThenHoursEndingOnTheIndexDay) {
  // X = DI (10th): 10 <= 10, IATA = 10 - 1 = 9. INTA: IATA >= 1 and 20 not < 10:
  // 10 - 10 + 1 = 1. INTN: Y = DH (INTA >= 1), 10 not > 20: 10 - 1 + 1 = 10.
  Mois x;
  x.IndicePuisHeures();
  EXPECT_EQ(x.Ajoute("DT", "01/03/2023", "10/03/2023"), (Quadrants{9, 0, 1, 10}));
  // Ending the day before: 10 > 9, IATA takes all 9 days.
  Mois y;
  y.IndicePuisHeures();
  EXPECT_EQ(y.Ajoute("DT", "01/03/2023", "09/03/2023"), (Quadrants{9, 0, 0, 0}));
}

TEST(SituationsReviewTest, IndexThenHoursAcrossBothChanges) {
  // 05/03 to 25/03: IATA 10 - 5 = 5; INTA: 20 < 25, 20 - 10 = 10; INTN: 25 - 20 + 1 = 6.
  Mois x;
  x.IndicePuisHeures();
  EXPECT_EQ(x.Ajoute("DT", "05/03/2023", "25/03/2023"), (Quadrants{5, 0, 10, 6}));
}

TEST(SituationsReviewTest, NewIndexOldHoursAroundTheHoursDay) {
  // After the index change: X before S. INTA: 20 >= 12; 20 < 21: 20 - 12 = 8; INTN:
  // Y = DH, 21 > 20 and 12 < 20: 2.
  Mois x;
  x.IndicePuisHeures();
  EXPECT_EQ(x.Ajoute("DT", "12/03/2023", "21/03/2023"), (Quadrants{0, 0, 8, 2}));
  // Ending the day before the hours change: 20 not < 19, INTA takes all 8.
  Mois y;
  y.IndicePuisHeures();
  EXPECT_EQ(y.Ajoute("DT", "12/03/2023", "19/03/2023"), (Quadrants{0, 0, 8, 0}));
}

TEST(SituationsReviewTest, HoursThenIndexStartingOnTheHoursDay) {
  // X = DH (10th) not before S (10th): 10 <= 15, IATA = 10 - 10 = 0. IATN with IATA < 1:
  // 20 >= 10, 20 not <= 15: takes all 6.
  Mois x;
  x.HeuresPuisIndice();
  EXPECT_EQ(x.Ajoute("DT", "10/03/2023", "15/03/2023"), (Quadrants{0, 6, 0, 0}));
}

TEST(SituationsReviewTest, HoursThenIndexFromTheDayBeforeTheHoursChange) {
  // IATA: 10 - 9 = 1. IATN with IATA >= 1: 20 not < 15: 15 - 10 + 1 = 6. INTN: Y = DI,
  // 15 not > 20: 15 - 9 + 1 = 7.
  Mois x;
  x.HeuresPuisIndice();
  EXPECT_EQ(x.Ajoute("DT", "09/03/2023", "15/03/2023"), (Quadrants{1, 6, 0, 7}));
}

TEST(SituationsReviewTest, HoursThenIndexAcrossBothChanges) {
  // IATA: 10 - 5 = 5. IATN: 20 < 25: 20 - 10 = 10. INTN: Y = DI: 25 - 20 + 1 = 6.
  Mois x;
  x.HeuresPuisIndice();
  EXPECT_EQ(x.Ajoute("DT", "05/03/2023", "25/03/2023"), (Quadrants{5, 10, 0, 6}));
}

TEST(SituationsReviewTest, OldIndexIsInclusiveOfTheIndexDay) {
  // IATN: 11 >= 5 and 11 <= 11: 11 - 5 = 6. INTN: Y = DI, 11 not > 11: 11 - 5 + 1 = 7.
  Mois x;
  x.IndiceSeul();
  EXPECT_EQ(x.Ajoute("DT", "05/03/2023", "11/03/2023"), (Quadrants{0, 6, 0, 7}));
  // Ending the day before: 11 > 10, IATN takes all 6.
  Mois y;
  y.IndiceSeul();
  EXPECT_EQ(y.Ajoute("DT", "05/03/2023", "10/03/2023"), (Quadrants{0, 6, 0, 0}));
  // Ending the day after: IATN 6, INTN 12 - 11 + 1 = 2.
  Mois z;
  z.IndiceSeul();
  EXPECT_EQ(z.Ajoute("DT", "05/03/2023", "12/03/2023"), (Quadrants{0, 6, 0, 2}));
  // Starting on the index day: IATN 11 - 11 = 0, no Y: INTN 15 - 11 + 1 = 5.
  Mois w;
  w.IndiceSeul();
  EXPECT_EQ(w.Ajoute("DT", "11/03/2023", "15/03/2023"), (Quadrants{0, 0, 0, 5}));
}

TEST(SituationsReviewTest, OldHoursIsStrictOnTheHoursDay) {
  // INTA: 15 >= 10, 15 not < 15: takes all 6 (IATN would have split on the same day).
  Mois x;
  x.HeuresSeules();
  EXPECT_EQ(x.Ajoute("DT", "10/03/2023", "15/03/2023"), (Quadrants{0, 0, 6, 0}));
  // One day more: 15 < 16: 15 - 10 = 5; INTN: Y = DH, 16 - 15 + 1 = 2.
  Mois y;
  y.HeuresSeules();
  EXPECT_EQ(y.Ajoute("DT", "10/03/2023", "16/03/2023"), (Quadrants{0, 0, 5, 2}));
  // Starting on the hours day: INTA 15 - 15 = 0, no Y: INTN 20 - 15 + 1 = 6.
  Mois z;
  z.HeuresSeules();
  EXPECT_EQ(z.Ajoute("DT", "15/03/2023", "20/03/2023"), (Quadrants{0, 0, 0, 6}));
}

TEST(SituationsReviewTest, EarlierSituationsOfTheMonthSteerTheSplit) {
  // First 01/03-05/03: IATA takes all 5. Then 15/03-25/03: X before S, IATA stays 5, so
  // INTA takes the IATA >= 1 branch: 20 < 25: 20 - 10 = 10; INTN: 25 - 20 + 1 = 6.
  Mois x;
  x.IndicePuisHeures();
  EXPECT_EQ(x.Ajoute("DT", "01/03/2023", "05/03/2023"), (Quadrants{5, 0, 0, 0}));
  EXPECT_EQ(x.Ajoute("LD", "15/03/2023", "25/03/2023"), (Quadrants{5, 0, 10, 6}));
  // Alone, the second situation gives 0, 0, 5, 6.
  Mois y;
  y.IndicePuisHeures();
  EXPECT_EQ(y.Ajoute("LD", "15/03/2023", "25/03/2023"), (Quadrants{0, 0, 5, 6}));
}

TEST(SituationsReviewTest, CapByPresenceOfEachQuadrant) {
  Mois x;
  x.IndiceSeul();
  x.s.iNBJ_PresenceIATN = 4;
  x.s.iNBJ_PresenceINTN = 15;
  EXPECT_EQ(x.Ajoute("DT", "01/03/2023", "31/03/2023"), (Quadrants{0, 4, 0, 15}));
  // Running counts above presence from earlier calls are lowered even with no overlap.
  Mois y;
  y.IndiceSeul();
  y.a = 0;
  y.b = 12;
  y.d = 25;
  EXPECT_EQ(y.Ajoute("DT", "01/01/2023", "31/01/2023"), (Quadrants{0, 10, 0, 20}));
}

TEST(SituationsReviewTest, DetachmentOutsideTheMonthLeavesTheCountsAlone) {
  Mois x;
  x.a = 40;
  x.d = 45;
  EXPECT_EQ(x.Ajoute("D", "01/01/2023", "31/01/2023"), (Quadrants{40, 0, 0, 45}));
  // A detachment reads no coefficient and no change date.
  Mois y;
  y.IndiceSeul();
  y.s.sDateChangementIndice = "";
  y.s.iNBJ_Presence_Total = 30;
  EXPECT_EQ(y.Ajoute("M", "05/03/2023", "14/03/2023"), (Quadrants{0, 0, 0, 10}));
}

TEST(SituationsReviewTest, ProgressiveRetirementSevenHundredThirtyDays) {
  // 01/03/2021 to 01/03/2023: 730 days, the long rates.
  Mois longue;
  longue.Ajoute("PD", "01/03/2021", "");
  EXPECT_EQ(longue.s.sTypeCPA, "PD");
  EXPECT_DOUBLE_EQ(longue.s.dCoefficient_CPA, 0.7);
  EXPECT_DOUBLE_EQ(longue.s.dCoefficient_CPAH, 0.6);
  // 02/03/2021: 729 days, 6/7 rounded to 5 places.
  Mois courte;
  courte.Ajoute("PD", "02/03/2021", "");
  EXPECT_DOUBLE_EQ(courte.s.dCoefficient_CPA, 0.85714);
  EXPECT_DOUBLE_EQ(courte.s.dCoefficient_CPAH, 0.85714);
  Mois cp;
  cp.Ajoute("CP", "15/03/2023", "");
  EXPECT_EQ(cp.s.sTypeCPA, "CP");
  EXPECT_DOUBLE_EQ(cp.s.dCoefficient_CPA, 0.5);
  EXPECT_DOUBLE_EQ(cp.s.dCoefficient_CPAH, 0.5);
}

// ---- Families by their names ------------------------------------------------------------------

TEST(SituationsReviewTest, HalfPayCodesOnlyAndTheirQuadrants) {
  Mois x;
  x.IndiceSeul();
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_DEMI_TRAITEMENT", {{"DT", "01/03/2023", "02/03/2023"},
                                                      {"LD", "03/03/2023", "04/03/2023"},
                                                      {"GD", "05/03/2023", "06/03/2023"},
                                                      {"CD", "21/03/2023", "22/03/2023"},
                                                      {"DO50", "23/03/2023", "24/03/2023"},
                                                      {"DO", "25/03/2023", "31/03/2023"},
                                                      {"D", "07/03/2023", "08/03/2023"}}));
  // 2 + 2 + 2 on the old index (each takes all, 11 > d2), 2 + 2 on the new one.
  EXPECT_EQ(x.s.iNBJ_DemiTraitementIATA.value(), 0);
  EXPECT_EQ(x.s.iNBJ_DemiTraitementIATN.value(), 6);
  EXPECT_EQ(x.s.iNBJ_DemiTraitementINTA.value(), 0);
  EXPECT_EQ(x.s.iNBJ_DemiTraitementINTN.value(), 4);
  EXPECT_EQ(x.s.iNBJ_DemiTraitement_Total.value(), 10);
}

TEST(SituationsReviewTest, ProgressiveRetirementFamilyKeepsTheLastCode) {
  Mois x;
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_CPA", {{"CP", "01/03/2023", "10/03/2023"},
                                          {"PF", "11/03/2023", "20/03/2023"},
                                          {"PD", "01/01/2022", "28/02/2023"}}));
  EXPECT_EQ(x.s.iNBJ_CPA_Total.value(), 20);
  // The "PD" before the month writes nothing: the last one met in the month is "PF".
  EXPECT_EQ(x.s.sTypeCPA, "PF");
  EXPECT_DOUBLE_EQ(x.s.dCoefficient_CPA, 0.6);
  EXPECT_DOUBLE_EQ(x.s.dCoefficient_CPAH, 0.5);
}

TEST(SituationsReviewTest, AvailabilityCapReadsTheHalfPayTotal) {
  // Half pay 01/03-10/03, then availability 06/03-31/03: 10 + 25 = 35 > 30: INTN becomes
  // 30 - (0 + 0 + 0 + 10) = 20, the total stays 25.
  Mois x;
  const std::vector<LigneSituation> lignes = {{"DT", "01/03/2023", "10/03/2023"},
                                              {"DO", "06/03/2023", "31/03/2023"}};
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_DEMI_TRAITEMENT", lignes));
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_DISPONIBILITE_OFFICE", lignes));
  EXPECT_EQ(x.s.iNBJ_DispoOfficeINTN.value(), 20);
  EXPECT_EQ(x.s.iNBJ_DispoOffice_Total.value(), 25);
  // 11/03-31/03: 10 + 20 = 30, not above: kept.
  Mois y;
  const std::vector<LigneSituation> juste = {{"DT", "01/03/2023", "10/03/2023"},
                                             {"DO", "11/03/2023", "31/03/2023"}};
  ASSERT_TRUE(y.Prepare("NBRE_JOUR_DEMI_TRAITEMENT", juste));
  ASSERT_TRUE(y.Prepare("NBRE_JOUR_DISPONIBILITE_OFFICE", juste));
  EXPECT_EQ(y.s.iNBJ_DispoOfficeINTN.value(), 20);
  EXPECT_EQ(y.s.iNBJ_DispoOffice_Total.value(), 20);
}

TEST(SituationsReviewTest, AvailabilityCapSubtractsTheOtherQuadrants) {
  // Index on the 11th: availability 10 + 20 = 30, half pay 5: INTN = 30 - (10 + 5) = 15.
  Mois x;
  x.IndiceSeul();
  x.s.iNBJ_DemiTraitement_Total = 5;
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_DISPONIBILITE_OFFICE", {{"DO", "01/03/2023", "31/03/2023"}}));
  EXPECT_EQ(x.s.iNBJ_DispoOfficeIATN.value(), 10);
  EXPECT_EQ(x.s.iNBJ_DispoOfficeINTN.value(), 15);
  EXPECT_EQ(x.s.iNBJ_DispoOffice_Total.value(), 30);
}

TEST(SituationsReviewTest, DetachmentFirstRecordEvenWhenOutsideTheMonth) {
  // The counter counts records: the first one, before the month, still writes its 0.
  Mois x;
  x.s.iNBJ_DETACHEMENT = 7;
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_DETACHEMENT",
                        {{"D", "01/01/2023", "31/01/2023"}, {"M", "01/03/2023", "10/03/2023"}}));
  EXPECT_EQ(x.s.iNBJ_DETACHEMENT.value(), 0);
  EXPECT_EQ(x.s.iNBJ_DETACHEMENT2.value(), 10);
}

TEST(SituationsReviewTest, DetachmentLastRecordWinsAndEachStartsAfresh) {
  Mois x;
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_DETACHEMENT", {{"M", "01/03/2023", "05/03/2023"},
                                                  {"D", "06/03/2023", "20/03/2023"},
                                                  {"D", "21/03/2023", "23/03/2023"}}));
  EXPECT_EQ(x.s.iNBJ_DETACHEMENT.value(), 5);
  EXPECT_EQ(x.s.iNBJ_DETACHEMENT2.value(), 3);
}

TEST(SituationsReviewTest, DetachmentCappedByTotalPresenceNotByQuadrant) {
  Mois x;
  x.IndiceSeul();  // presence 10 + 20 = 30, new-index presence 20
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_DETACHEMENT", {{"D", "01/03/2023", "28/03/2023"}}));
  EXPECT_EQ(x.s.iNBJ_DETACHEMENT.value(), 28);
  Mois y;
  y.s.iNBJ_Presence_Total = 0;
  ASSERT_TRUE(y.Prepare("NBRE_JOUR_DETACHEMENT", {{"D", "01/03/2023", "28/03/2023"}}));
  EXPECT_EQ(y.s.iNBJ_DETACHEMENT.value(), 0);
}

TEST(SituationsReviewTest, DetachmentWithoutPensionKeepsOnlyTheNewCount) {
  // Index on the 11th, a whole month "P": IATN 10 and INTN 20; only the 20 is kept.
  Mois x;
  x.IndiceSeul();
  ASSERT_TRUE(
      x.Prepare("NBRE_JOUR_DETACHEMENT_SANS_PENSION", {{"P", "01/03/2023", "31/03/2023"}}));
  EXPECT_EQ(x.s.iNBJ_DETACHEMENT_SANSPENSION.value(), 20);
  // The INTN count runs over the records and the cap by INTN presence applies to it.
  Mois y;
  y.s.iNBJ_PresenceINTN = 12;
  ASSERT_TRUE(y.Prepare("NBRE_JOUR_DETACHEMENT_SANS_PENSION",
                        {{"P", "01/03/2023", "08/03/2023"}, {"P", "20/03/2023", "31/03/2023"}}));
  EXPECT_EQ(y.s.iNBJ_DETACHEMENT_SANSPENSION.value(), 12);
}

TEST(SituationsReviewTest, SixteenBitTotalOverflowIsTrappedByTheEntry) {
  // Index on the 11th: each whole-month record adds 10 + 20. Presence high enough to let
  // the counts run: 1092 records give 10920 + 21840 = 32760; 1093 give 32790 > 32767.
  auto lignes = [](int n) {
    std::vector<LigneSituation> v(n, LigneSituation{"DT", "01/03/2023", "31/03/2023"});
    return v;
  };
  Mois x;
  x.IndiceSeul();
  x.s.iNBJ_PresenceIATN = 32767;
  x.s.iNBJ_PresenceINTN = 32767;
  ASSERT_TRUE(x.Prepare("NBRE_JOUR_DEMI_TRAITEMENT", lignes(1092)));
  EXPECT_EQ(x.s.iNBJ_DemiTraitementIATN.value(), 10920);
  EXPECT_EQ(x.s.iNBJ_DemiTraitementINTN.value(), 21840);
  EXPECT_EQ(x.s.iNBJ_DemiTraitement_Total.value(), 32760);
  Mois y;
  y.IndiceSeul();
  y.s.iNBJ_PresenceIATN = 32767;
  y.s.iNBJ_PresenceINTN = 32767;
  EXPECT_FALSE(y.Prepare("NBRE_JOUR_DEMI_TRAITEMENT", lignes(1093)));
  // The quadrants were written before the sum overflowed.
  EXPECT_EQ(y.s.iNBJ_DemiTraitementINTN.value(), 21860);
}

TEST(SituationsReviewTest, RecordAtItsDefaults) {
  const char* noms[] = {"NBRE_JOUR_DEMI_TRAITEMENT",
                        "NBRE_JOUR_CPA",
                        "NBRE_JOUR_CFA",
                        "NBRE_JOUR_DETACHEMENT",
                        "NBRE_JOUR_DISPONIBILITE_OFFICE",
                        "NBRE_JOUR_FORMATION",
                        "NBRE_JOUR_CONGEMATERNITE_TPSCOMPLET",
                        "NBRE_JOUR_DETACHEMENT_SANS_PENSION"};
  for (const char* nom : noms) {
    // No source of situations, no pay month: a fault trapped by the entry.
    MethodeCalculG_Nouv m;
    VarCalculSalarie s;
    bool ok = true;
    EXPECT_NO_THROW(ok = m.Appel_Methode_Preparation_Calcul_General(nom, s)) << nom;
    EXPECT_FALSE(ok) << nom;
    // An empty source: nothing to count.
    VarCalculSalarie vide;
    vide.rsSituationsExceptionnelles = Situations({});
    EXPECT_TRUE(m.Appel_Methode_Preparation_Calcul_General(nom, vide)) << nom;
    EXPECT_EQ(vide.iNBJ_DemiTraitement_Total.value() + vide.iNBJ_CPA_Total.value() +
                  vide.iNBJ_DispoOfficeINTN.value() + vide.iNBJ_DETACHEMENT.value() +
                  vide.iNBJ_DETACHEMENT_SANSPENSION.value(),
              0)
        << nom;
    // A situation on a record with no entry date: the date can't be read.
    VarCalculSalarie un;
    un.rsSituationsExceptionnelles = Situations({{"DT", "01/03/2023", ""}});
    m.gPeriodeEncours = "01/03/2023";
    EXPECT_NO_THROW(m.Appel_Methode_Preparation_Calcul_General(nom, un)) << nom;
  }
}

}  // namespace
}  // namespace orvalis
