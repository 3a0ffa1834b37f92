// Waiting days checked by hand: the days of one waiting period in the month by quadrant,
// and those of them that fall within a half-pay situation.
#include <gtest/gtest.h>

#include "orvalis/MethodeCalculG_Nouv.h"
#include "period/mois_test_outils.h"
#include "period/periode_test_outils.h"

namespace orvalis {
namespace {

using periode_test::Carence;
using periode_test::Quadrants;
using periode_test::Situations;
using periode_test::VerifieCarences;
using periode_test::VerifieJourDeCarenceDemiTraitement;

TEST(CarenceReviewTest, OneWaitingDayWithoutHalfPay) {
  Carence c;
  c.s.iNBJ_CarenceINTN_Total = 9;
  c.s.iNBJ_CarenceINTN_DT = 9;
  c.Calcule("10/03/2023", "10/03/2023",
            {{"LM", "10/03/2023", "20/03/2023"}, {"DO", "01/03/2023", "31/03/2023"}});
  EXPECT_EQ(c.Total(), (Quadrants{0, 0, 0, 1}));
  EXPECT_EQ(c.DT(), (Quadrants{0, 0, 0, 0}));
}

TEST(CarenceReviewTest, OneWaitingDayOnEachHalfPayCode) {
  VerifieJourDeCarenceDemiTraitement("10/03/2023", "10/03/2023");
}

TEST(CarenceReviewTest, EmployeeNotThereOnTheWaitingDays) {
  VerifieCarences({
      {"gone earlier in the month", nullptr, "05/03/2023", "10/03/2023", "12/03/2023",
       {{"DT", "01/03/2023", "31/03/2023"}}, {0, 0, 0, 0}, {0, 0, 0, 0}},
      {"gone the month before", nullptr, "15/02/2023", "10/03/2023", "10/03/2023",
       {{"DT", "01/02/2023", ""}}, {0, 0, 0, 0}, {0, 0, 0, 0}},
      {"entered after the waiting period", "20/03/2023", nullptr, "10/03/2023", "12/03/2023",
       {{"DT", "01/03/2023", "31/03/2023"}}, {0, 0, 0, 0}, {0, 0, 0, 0}},
      // Gone on the waiting day itself: that day counts.
      {"gone on the waiting day", nullptr, "10/03/2023", "10/03/2023", "12/03/2023",
       {{"DT", "01/03/2023", "31/03/2023"}}, {0, 0, 0, 1}, {0, 0, 0, 1}},
  });
}

TEST(CarenceReviewTest, WaitingPeriodAcrossTheMonthsBounds) {
  // From February: d1 = 1, d2 = 2.
  Carence debut;
  debut.Calcule("27/02/2023", "02/03/2023");
  EXPECT_EQ(debut.Total(), (Quadrants{0, 0, 0, 2}));
  // Into April from the 30th: d1 = 30, d2 = 30: one day.
  Carence fin;
  fin.Calcule("30/03/2023", "02/04/2023");
  EXPECT_EQ(fin.Total(), (Quadrants{0, 0, 0, 1}));
  // The 31st alone is the 30th.
  Carence trenteEtUn;
  trenteEtUn.Calcule("31/03/2023", "31/03/2023");
  EXPECT_EQ(trenteEtUn.Total(), (Quadrants{0, 0, 0, 1}));
  // A period ending before it starts counts nothing.
  Carence inverse;
  inverse.Calcule("12/03/2023", "10/03/2023", {{"DT", "01/03/2023", "31/03/2023"}});
  EXPECT_EQ(inverse.Total(), (Quadrants{0, 0, 0, 0}));
  EXPECT_EQ(inverse.DT(), (Quadrants{0, 0, 0, 0}));
}

TEST(CarenceReviewTest, CalendarPayKeepsTheThirtyFirst) {
  // 30/03-31/03: d1 = 30, d2 = 31 stays (d1 <> 1): two days; without calendar pay, one.
  Carence calendaire;
  calendaire.s.bCalculPayeEnJoursCalendaires = true;
  calendaire.s.iNBJ_PresenceINTN = 31;
  calendaire.Calcule("30/03/2023", "31/03/2023", {{"CD", "01/03/2023", ""}});
  EXPECT_EQ(calendaire.Total(), (Quadrants{0, 0, 0, 2}));
  EXPECT_EQ(calendaire.DT(), (Quadrants{0, 0, 0, 2}));
  Carence trente;
  trente.Calcule("30/03/2023", "31/03/2023", {{"CD", "01/03/2023", ""}});
  EXPECT_EQ(trente.Total(), (Quadrants{0, 0, 0, 1}));
  EXPECT_EQ(trente.DT(), (Quadrants{0, 0, 0, 1}));
}

TEST(CarenceReviewTest, FebruaryEndIsNotStretchedToThirty) {
  // 27/02-28/02/2023: two days, the waiting days carry no code.
  Carence c("01/02/2023");
  c.Calcule("27/02/2023", "28/02/2023", {{"DT", "01/02/2023", "28/02/2023"}});
  EXPECT_EQ(c.Total(), (Quadrants{0, 0, 0, 2}));
  EXPECT_EQ(c.DT(), (Quadrants{0, 0, 0, 2}));
  // Given a code, the worker applies its February rule: 28 >= 28 gives 30, 27..30.
  Carence code("01/02/2023");
  Int16 a = 0, b = 0, cc = 0, d = 0;
  code.m.CalculNombreJourCarence_Situation("DT", "01/02/2023", "28/02/2023", code.s, "27/02/2023",
                                           "28/02/2023", a, b, cc, d);
  EXPECT_EQ((Quadrants{a, b, cc, d}), (Quadrants{0, 0, 0, 4}));
}

TEST(CarenceReviewTest, SplitAroundTheHoursChange) {
  // Index on the 10th, hours on the 20th (9, 0, 10, 11). Waiting days 19/03-21/03:
  // INTA 20 - 19 = 1, INTN 21 - 20 + 1 = 2. Half pay from the 20th: 20/03-21/03, INTA
  // 20 - 20 = 0, no Y: INTN 2.
  Carence c;
  c.s.sDateChangementIndice = "10/03/2023";
  c.s.sDateChangementHeures = "20/03/2023";
  c.s.dCoefficient_IATA = 9 / 30.0;
  c.s.dCoefficient_INTA = 10 / 30.0;
  c.s.dCoefficient_INTN = 11 / 30.0;
  c.s.iNBJ_PresenceIATA = 9;
  c.s.iNBJ_PresenceINTA = 10;
  c.s.iNBJ_PresenceINTN = 11;
  c.Calcule("19/03/2023", "21/03/2023", {{"DT", "20/03/2023", "31/03/2023"}});
  EXPECT_EQ(c.Total(), (Quadrants{0, 0, 1, 2}));
  EXPECT_EQ(c.DT(), (Quadrants{0, 0, 0, 2}));
}

TEST(CarenceReviewTest, HalfPayRecordsEachAddTheirShare) {
  // Two half-pay stretches, one before and one after a gap inside the waiting period.
  Carence c;
  c.Calcule("08/03/2023", "14/03/2023",
            {{"DT", "01/03/2023", "09/03/2023"}, {"GD", "13/03/2023", "20/03/2023"}});
  EXPECT_EQ(c.Total(), (Quadrants{0, 0, 0, 7}));
  EXPECT_EQ(c.DT(), (Quadrants{0, 0, 0, 2 + 2}));
  // A half-pay stretch ending the day before the waiting period adds nothing.
  Carence avant;
  avant.Calcule("10/03/2023", "11/03/2023", {{"LD", "01/03/2023", "09/03/2023"}});
  EXPECT_EQ(avant.DT(), (Quadrants{0, 0, 0, 0}));
  // Two records over the same waiting day both add it: the counts run over the records.
  Carence double_;
  double_.Calcule("10/03/2023", "10/03/2023",
                  {{"DT", "01/03/2023", "15/03/2023"}, {"LD", "10/03/2023", "20/03/2023"}});
  EXPECT_EQ(double_.Total(), (Quadrants{0, 0, 0, 1}));
  EXPECT_EQ(double_.DT(), (Quadrants{0, 0, 0, 2}));
}

TEST(CarenceReviewTest, PresenceCapsBothCounts) {
  Carence c;
  c.s.iNBJ_PresenceINTN = 2;
  c.Calcule("10/03/2023", "14/03/2023", {{"DT", "01/03/2023", "31/03/2023"}});
  EXPECT_EQ(c.Total(), (Quadrants{0, 0, 0, 2}));
  EXPECT_EQ(c.DT(), (Quadrants{0, 0, 0, 2}));
}

TEST(CarenceReviewTest, MonthArgument) {
  // Empty: the current month stands.
  Carence c;
  c.Calcule("10/02/2023", "11/02/2023");
  EXPECT_EQ(c.m.gPeriodeEncours, "01/03/2023");
  EXPECT_EQ(c.Total(), (Quadrants{0, 0, 0, 0}));
  // Given: the counts are made on it, and it becomes the month in progress.
  Carence f;
  f.s.rsSituationsExceptionnelles = Situations({{"DT", "11/02/2023", "28/02/2023"}});
  f.m.CalculNombreJourCarence(f.s, "10/02/2023", "11/02/2023", "01/02/2023");
  EXPECT_EQ(f.m.gPeriodeEncours, "01/02/2023");
  EXPECT_EQ(f.Total(), (Quadrants{0, 0, 0, 2}));
  EXPECT_EQ(f.DT(), (Quadrants{0, 0, 0, 1}));
}

TEST(CarenceReviewTest, SixteenBitOverflowAndBadDatesAreFaults) {
  Carence c;
  Int16 a = 0, b = 0, cc = 0, d = 32767;
  c.s.iNBJ_PresenceINTN = 32767;
  EXPECT_THROW(c.m.CalculNombreJourCarence_Situation("", "01/03/2023", "31/03/2023", c.s,
                                                     "10/03/2023", "10/03/2023", a, b, cc, d),
               Fault);
  Carence mauvaise;
  EXPECT_THROW(mauvaise.Calcule("10/03/2023", "32/03/2023"), Fault);
  Carence situation;
  EXPECT_THROW(situation.Calcule("10/03/2023", "10/03/2023", {{"DT", "", "31/03/2023"}}), Fault);
}

}  // namespace
}  // namespace orvalis
