// Situations and waiting periods that end around the day of an index or hours change: the
// day before, the day itself and the day after, on the 31st and in February.
#include <gtest/gtest.h>

#include <string>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "period/mois_test_outils.h"
#include "period/periode_test_outils.h"

namespace orvalis {
namespace {

using periode_test::Mois;
using periode_test::Quadrants;

// The waiting days of one waiting period, all of them, on the month's split as it stands.
Quadrants Carence(Mois& k, const std::string& sDebut, const std::string& sFin) {
  k.m.CalculNombreJourCarence(k.s, sDebut, sFin, "");
  return {k.s.iNBJ_CarenceIATA_Total, k.s.iNBJ_CarenceIATN_Total, k.s.iNBJ_CarenceINTA_Total,
          k.s.iNBJ_CarenceINTN_Total};
}

Quadrants CarenceDT(const Mois& k) {
  return {k.s.iNBJ_CarenceIATA_DT, k.s.iNBJ_CarenceIATN_DT, k.s.iNBJ_CarenceINTA_DT,
          k.s.iNBJ_CarenceINTN_DT};
}

// A change on 28/02/2023 alone: 27 days before it, 3 from it.
void FevrierIndice(Mois& k) {
  k.s.sDateChangementIndice = "28/02/2023";
  k.Quadrant(0, 27, 0, 3);
}

void FevrierHeures(Mois& k) {
  k.s.sDateChangementIndice = "01/01/2022";
  k.s.sDateChangementHeures = "28/02/2023";
  k.Quadrant(0, 0, 27, 3);
}

// Index change on the 31st alone: IATN 31 - 1 = 30, INTN 30 - 31 + 1 = 0.
void IndiceLe31(Mois& k) {
  k.s.sDateChangementIndice = "31/03/2023";
  k.Quadrant(0, 30, 0, 0);
}

void HeuresLe31(Mois& k) {
  k.s.sDateChangementIndice = "01/01/2022";
  k.s.sDateChangementHeures = "31/03/2023";
  k.Quadrant(0, 0, 30, 0);
}

// ---- Index change alone, on the 11th (0, 10, 0, 20) ------------------------------------------

TEST(SituationJourChangementTest, IndexDayBeforeOnAndAfter) {
  // Day before, 01-10: IATN, 11 >= 1 and 11 not <= 10, takes all 10.
  Mois avant;
  avant.IndiceSeul();
  EXPECT_EQ(avant.Ajoute("DT", "01/03/2023", "10/03/2023"), (Quadrants{0, 10, 0, 0}));
  // On the day, 01-11: IATN 11 - 1 = 10; INTN, Y = DI and 11 not > 11: 11 - 1 + 1 = 11.
  // Kept for the hosts: a period ending on the index day counts again in full on the new index.
  Mois jour;
  jour.IndiceSeul();
  EXPECT_EQ(jour.Ajoute("DT", "01/03/2023", "11/03/2023"), (Quadrants{0, 10, 0, 11}));
  // Day after, 01-12: IATN 10; INTN, 12 > 11 and 1 < 11: 12 - 11 + 1 = 2.
  Mois apres;
  apres.IndiceSeul();
  EXPECT_EQ(apres.Ajoute("DT", "01/03/2023", "12/03/2023"), (Quadrants{0, 10, 0, 2}));
}

TEST(SituationJourChangementTest, IndexDayWaitingDays) {
  // 09-10: IATN takes all 2.
  Mois avant;
  avant.IndiceSeul();
  EXPECT_EQ(Carence(avant, "09/03/2023", "10/03/2023"), (Quadrants{0, 2, 0, 0}));
  // 09-11: IATN 11 - 9 = 2; INTN, 11 not > 11: 11 - 9 + 1 = 3 (three waiting days count five).
  // Kept for the hosts: a period ending on the index day counts again in full on the new index.
  Mois jour;
  jour.IndiceSeul();
  EXPECT_EQ(Carence(jour, "09/03/2023", "11/03/2023"), (Quadrants{0, 2, 0, 3}));
  // 09-12: IATN 2; INTN 12 - 11 + 1 = 2.
  Mois apres;
  apres.IndiceSeul();
  EXPECT_EQ(Carence(apres, "09/03/2023", "12/03/2023"), (Quadrants{0, 2, 0, 2}));
  // The waiting day on the index day alone: IATN 11 - 11 = 0, no Y: INTN 1.
  Mois seul;
  seul.IndiceSeul();
  EXPECT_EQ(Carence(seul, "11/03/2023", "11/03/2023"), (Quadrants{0, 0, 0, 1}));
}

TEST(SituationJourChangementTest, IndexDayWaitingDaysOnHalfPay) {
  // Half pay all month: the half-pay counts follow the same split as the totals.
  Mois k;
  k.IndiceSeul();
  k.s.rsSituationsExceptionnelles = periode_test::Situations({{"DT", "01/03/2023", "31/03/2023"}});
  EXPECT_EQ(Carence(k, "09/03/2023", "11/03/2023"), (Quadrants{0, 2, 0, 3}));
  EXPECT_EQ(CarenceDT(k), (Quadrants{0, 2, 0, 3}));
  // Half pay from the index day: 11-11, IATN 0, no Y: INTN 1.
  Mois depuis;
  depuis.IndiceSeul();
  depuis.s.rsSituationsExceptionnelles =
      periode_test::Situations({{"DT", "11/03/2023", "31/03/2023"}});
  EXPECT_EQ(Carence(depuis, "09/03/2023", "11/03/2023"), (Quadrants{0, 2, 0, 3}));
  EXPECT_EQ(CarenceDT(depuis), (Quadrants{0, 0, 0, 1}));
}

// ---- Hours change alone, on the 15th (0, 0, 14, 16) ------------------------------------------

TEST(SituationJourChangementTest, HoursDayBeforeOnAndAfter) {
  // 01-14: INTA, 15 >= 1 and 15 not < 14, takes all 14.
  Mois avant;
  avant.HeuresSeules();
  EXPECT_EQ(avant.Ajoute("DT", "01/03/2023", "14/03/2023"), (Quadrants{0, 0, 14, 0}));
  // 01-15: 15 not < 15, INTA takes all 15, lowered to its presence 14. The hours day is not
  // counted twice.
  Mois jour;
  jour.HeuresSeules();
  EXPECT_EQ(jour.Ajoute("DT", "01/03/2023", "15/03/2023"), (Quadrants{0, 0, 14, 0}));
  // 01-16: 15 < 16, INTA 15 - 1 = 14; INTN, Y = DH: 16 - 15 + 1 = 2.
  Mois apres;
  apres.HeuresSeules();
  EXPECT_EQ(apres.Ajoute("DT", "01/03/2023", "16/03/2023"), (Quadrants{0, 0, 14, 2}));
}

TEST(SituationJourChangementTest, HoursDayWaitingDays) {
  Mois avant;
  avant.HeuresSeules();
  EXPECT_EQ(Carence(avant, "13/03/2023", "14/03/2023"), (Quadrants{0, 0, 2, 0}));
  // 13-15: 15 not < 15, INTA takes all 3.
  Mois jour;
  jour.HeuresSeules();
  EXPECT_EQ(Carence(jour, "13/03/2023", "15/03/2023"), (Quadrants{0, 0, 3, 0}));
  // 13-16: INTA 15 - 13 = 2; INTN 16 - 15 + 1 = 2.
  Mois apres;
  apres.HeuresSeules();
  EXPECT_EQ(Carence(apres, "13/03/2023", "16/03/2023"), (Quadrants{0, 0, 2, 2}));
}

// ---- Both changes: the period starts in IATA, so nothing takes all ---------------------------

TEST(SituationJourChangementTest, IndexThenHoursAroundTheHoursDay) {
  // Index 10th, hours 20th (9, 0, 10, 11). 05-19: IATA 10 - 5 = 5; INTA, IATA >= 1 and 20 not
  // < 19: 19 - 10 + 1 = 10; INTN, Y = DH and 19 not > 20: 19 - 5 + 1 = 15, capped to 11.
  // Kept for the hosts: a period from the old quadrant counts again in full on the new one.
  Mois avant;
  avant.IndicePuisHeures();
  EXPECT_EQ(avant.Ajoute("DT", "05/03/2023", "19/03/2023"), (Quadrants{5, 0, 10, 11}));
  // 05-20: INTA 20 - 10 + 1 = 11, capped to 10; INTN 16, capped to 11.
  Mois jour;
  jour.IndicePuisHeures();
  EXPECT_EQ(jour.Ajoute("DT", "05/03/2023", "20/03/2023"), (Quadrants{5, 0, 10, 11}));
  // 05-21: INTA 20 < 21: 20 - 10 = 10; INTN 21 - 20 + 1 = 2.
  Mois apres;
  apres.IndicePuisHeures();
  EXPECT_EQ(apres.Ajoute("DT", "05/03/2023", "21/03/2023"), (Quadrants{5, 0, 10, 2}));
}

TEST(SituationJourChangementTest, HoursThenIndexAroundTheIndexDay) {
  // Hours 10th, index 20th (9, 10, 0, 11). 08-19: IATA 10 - 8 = 2; IATN, 20 not < 19:
  // 19 - 10 + 1 = 10; INTN, Y = DI and 19 not > 20: 19 - 8 + 1 = 12, capped to 11.
  // Kept for the hosts: a period from the old quadrant counts again in full on the new one.
  Mois avant;
  avant.HeuresPuisIndice();
  EXPECT_EQ(avant.Ajoute("DT", "08/03/2023", "19/03/2023"), (Quadrants{2, 10, 0, 11}));
  // 08-20: IATN 20 - 10 + 1 = 11, capped to 10; INTN 13, capped to 11.
  Mois jour;
  jour.HeuresPuisIndice();
  EXPECT_EQ(jour.Ajoute("DT", "08/03/2023", "20/03/2023"), (Quadrants{2, 10, 0, 11}));
  // 08-21: IATN 20 < 21: 20 - 10 = 10; INTN 21 - 20 + 1 = 2.
  Mois apres;
  apres.HeuresPuisIndice();
  EXPECT_EQ(apres.Ajoute("DT", "08/03/2023", "21/03/2023"), (Quadrants{2, 10, 0, 2}));
}

TEST(SituationJourChangementTest, BothChangesWaitingDays) {
  // Index 10th, hours 20th. 09-11: IATA 10 - 9 = 1; INTA, 20 not < 11: 11 - 10 + 1 = 2;
  // INTN, Y = DH, 11 not > 20: 11 - 9 + 1 = 3.
  // Kept for the hosts: a period from the old quadrant counts again in full on the new one.
  Mois indice;
  indice.IndicePuisHeures();
  EXPECT_EQ(Carence(indice, "09/03/2023", "11/03/2023"), (Quadrants{1, 0, 2, 3}));
  // Waiting days that start after the index day: 19-20, X before S; INTA, 20 not < 20,
  // takes all 2.
  Mois heures;
  heures.IndicePuisHeures();
  EXPECT_EQ(Carence(heures, "19/03/2023", "20/03/2023"), (Quadrants{0, 0, 2, 0}));
  // Hours 10th, index 20th. 19-20: X = DH before S; IATN, 20 >= 19 and 20 <= 20: 1; INTN,
  // Y = DI, 20 not > 20: 2.
  // Kept for the hosts: a period ending on the index day counts again in full on the new index.
  Mois inverse;
  inverse.HeuresPuisIndice();
  EXPECT_EQ(Carence(inverse, "19/03/2023", "20/03/2023"), (Quadrants{0, 1, 0, 2}));
}

TEST(SituationJourChangementTest, IndexNextMonthWithAnOldHoursChange) {
  // Case D (30, 0, 0, 0), hours changed in 2020: X = DH, before S, IATA adds nothing and the
  // other quadrants have no share.
  // Kept for the hosts: the month's days are then found in no quadrant.
  Mois k;
  k.s.sDateChangementIndice = "15/04/2023";
  k.s.sDateChangementHeures = "01/01/2020";
  k.Quadrant(30, 0, 0, 0);
  EXPECT_EQ(k.Ajoute("DT", "01/03/2023", "31/03/2023"), (Quadrants{0, 0, 0, 0}));
  Mois carence;
  carence.s.sDateChangementIndice = "15/04/2023";
  carence.s.sDateChangementHeures = "01/01/2020";
  carence.Quadrant(30, 0, 0, 0);
  EXPECT_EQ(Carence(carence, "09/03/2023", "11/03/2023"), (Quadrants{0, 0, 0, 0}));
}

// ---- On the 31st -----------------------------------------------------------------------------

TEST(SituationJourChangementTest, IndexOnThe31st) {
  // 25-30: IATN, 31 not <= 30, takes all 6.
  Mois avant;
  IndiceLe31(avant);
  EXPECT_EQ(avant.Ajoute("DT", "25/03/2023", "30/03/2023"), (Quadrants{0, 6, 0, 0}));
  // 25-31: d2 = 31 becomes 30; 31 not <= 30: takes all 6, the 31st is not a day of its own.
  Mois jour;
  IndiceLe31(jour);
  EXPECT_EQ(jour.Ajoute("DT", "25/03/2023", "31/03/2023"), (Quadrants{0, 6, 0, 0}));
  // Past the month: d2 = 30, the same 6.
  Mois apres;
  IndiceLe31(apres);
  EXPECT_EQ(apres.Ajoute("DT", "25/03/2023", "01/04/2023"), (Quadrants{0, 6, 0, 0}));
  // Waiting days 30-31: d2 30, IATN takes all 1.
  Mois carence;
  IndiceLe31(carence);
  EXPECT_EQ(Carence(carence, "30/03/2023", "31/03/2023"), (Quadrants{0, 1, 0, 0}));
}

TEST(SituationJourChangementTest, HoursOnThe31st) {
  // 25-31: d2 30; INTA, 31 not < 30, takes all 6.
  Mois jour;
  HeuresLe31(jour);
  EXPECT_EQ(jour.Ajoute("DT", "25/03/2023", "31/03/2023"), (Quadrants{0, 0, 6, 0}));
  Mois carence;
  HeuresLe31(carence);
  EXPECT_EQ(Carence(carence, "29/03/2023", "31/03/2023"), (Quadrants{0, 0, 2, 0}));
}

// ---- In February 2023, a change on the 28th (27 days before, 3 from it) ----------------------

TEST(SituationJourChangementTest, FebruaryIndexDay) {
  // 20-27: IATN, 28 not <= 27, takes all 8.
  Mois avant("01/02/2023");
  FevrierIndice(avant);
  EXPECT_EQ(avant.Ajoute("DT", "20/02/2023", "27/02/2023"), (Quadrants{0, 8, 0, 0}));
  // 20-28: the end of February is day 30; IATN 28 - 20 = 8; INTN, 30 > 28: 30 - 28 + 1 = 3.
  Mois jour("01/02/2023");
  FevrierIndice(jour);
  EXPECT_EQ(jour.Ajoute("DT", "20/02/2023", "28/02/2023"), (Quadrants{0, 8, 0, 3}));
  // 20/02-01/03: past the month, d2 = 30: the same.
  Mois apres("01/02/2023");
  FevrierIndice(apres);
  EXPECT_EQ(apres.Ajoute("DT", "20/02/2023", "01/03/2023"), (Quadrants{0, 8, 0, 3}));
}

TEST(SituationJourChangementTest, FebruaryIndexDayWaitingDays) {
  // No code, so no stretch to day 30. 27-27: IATN takes all 1.
  Mois avant("01/02/2023");
  FevrierIndice(avant);
  EXPECT_EQ(Carence(avant, "27/02/2023", "27/02/2023"), (Quadrants{0, 1, 0, 0}));
  // 27-28: IATN 28 - 27 = 1; INTN, 28 not > 28: 28 - 27 + 1 = 2.
  // Kept for the hosts: a period ending on the index day counts again in full on the new index.
  Mois jour("01/02/2023");
  FevrierIndice(jour);
  EXPECT_EQ(Carence(jour, "27/02/2023", "28/02/2023"), (Quadrants{0, 1, 0, 2}));
  // 27/02-01/03: past the month, d2 = 30: IATN 1; INTN 30 - 28 + 1 = 3.
  Mois apres("01/02/2023");
  FevrierIndice(apres);
  EXPECT_EQ(Carence(apres, "27/02/2023", "01/03/2023"), (Quadrants{0, 1, 0, 3}));
  // 20-28: IATN 8; INTN 28 - 20 + 1 = 9, capped to the 3 days of presence.
  Mois longue("01/02/2023");
  FevrierIndice(longue);
  EXPECT_EQ(Carence(longue, "20/02/2023", "28/02/2023"), (Quadrants{0, 8, 0, 3}));
}

TEST(SituationJourChangementTest, FebruaryHoursDay) {
  // 20-27: INTA, 28 not < 27, takes all 8.
  Mois avant("01/02/2023");
  FevrierHeures(avant);
  EXPECT_EQ(avant.Ajoute("DT", "20/02/2023", "27/02/2023"), (Quadrants{0, 0, 8, 0}));
  // 20-28: d2 30; 28 < 30: INTA 28 - 20 = 8; INTN 30 - 28 + 1 = 3.
  Mois jour("01/02/2023");
  FevrierHeures(jour);
  EXPECT_EQ(jour.Ajoute("DT", "20/02/2023", "28/02/2023"), (Quadrants{0, 0, 8, 3}));
  // Waiting days 27-28, no code: 28 not < 28, INTA takes all 2.
  Mois carence("01/02/2023");
  FevrierHeures(carence);
  EXPECT_EQ(Carence(carence, "27/02/2023", "28/02/2023"), (Quadrants{0, 0, 2, 0}));
  // 27/02-01/03: d2 30: INTA 28 - 27 = 1; INTN 3.
  Mois apres("01/02/2023");
  FevrierHeures(apres);
  EXPECT_EQ(Carence(apres, "27/02/2023", "01/03/2023"), (Quadrants{0, 0, 1, 3}));
}

}  // namespace
}  // namespace orvalis
