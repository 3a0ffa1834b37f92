// Waiting days of a waiting period in the month, all of them and those on half pay.
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

TEST(CarenceTest, WaitingDayWithoutHalfPay) {
  Carence c;
  c.s.iNBJ_CarenceINTN_DT = 4;
  c.Calcule("10/03/2023", "10/03/2023", {{"LM", "10/03/2023", "20/03/2023"}});
  EXPECT_EQ(c.Total(), (Quadrants{0, 0, 0, 1}));
  EXPECT_EQ(c.DT(), (Quadrants{0, 0, 0, 0}));
}

TEST(CarenceTest, WaitingDayOnHalfPay) {
  VerifieJourDeCarenceDemiTraitement("01/03/2023", "15/03/2023");
}

TEST(CarenceTest, OnlyTheDaysWithinTheHalfPayStretchCountAsHalfPay) {
  Carence apres;
  apres.Calcule("10/03/2023", "10/03/2023", {{"DT", "11/03/2023", "20/03/2023"}});
  EXPECT_EQ(apres.DT(), (Quadrants{0, 0, 0, 0}));
  Carence chevauche;
  chevauche.Calcule("10/03/2023", "12/03/2023", {{"DT", "11/03/2023", "20/03/2023"}});
  EXPECT_EQ(chevauche.Total(), (Quadrants{0, 0, 0, 3}));
  EXPECT_EQ(chevauche.DT(), (Quadrants{0, 0, 0, 2}));
  Carence ouverte;
  ouverte.Calcule("10/03/2023", "12/03/2023", {{"DT", "12/03/2023", ""}});
  EXPECT_EQ(ouverte.DT(), (Quadrants{0, 0, 0, 1}));
  Carence deux;
  deux.Calcule("10/03/2023", "12/03/2023",
               {{"DT", "01/03/2023", "10/03/2023"}, {"LD", "12/03/2023", "31/03/2023"}});
  EXPECT_EQ(deux.DT(), (Quadrants{0, 0, 0, 2}));
}

TEST(CarenceTest, ClippedToTheEmploymentAndTheMonth) {
  VerifieCarences({
      {"gone before the waiting day", nullptr, "05/03/2023", "10/03/2023", "10/03/2023",
       {{"DT", "01/03/2023", "31/03/2023"}}, {0, 0, 0, 0}, {0, 0, 0, 0}},
      {"entered during it", "12/03/2023", nullptr, "10/03/2023", "13/03/2023",
       {{"DT", "01/03/2023", "31/03/2023"}}, {0, 0, 0, 2}, {0, 0, 0, 2}},
      {"gone during it", nullptr, "11/03/2023", "10/03/2023", "13/03/2023",
       {{"DT", "01/03/2023", ""}}, {0, 0, 0, 2}, {0, 0, 0, 2}},
      {"outside the month", nullptr, nullptr, "10/02/2023", "12/02/2023",
       {{"DT", "01/02/2023", "31/03/2023"}}, {0, 0, 0, 0}, {0, 0, 0, 0}},
  });
}

TEST(CarenceTest, OnTheLastDayOfFebruaryAWaitingDayIsOneDay) {
  Carence c("01/02/2023");
  c.Calcule("28/02/2023", "28/02/2023", {{"DT", "01/02/2023", "28/02/2023"}});
  EXPECT_EQ(c.Total(), (Quadrants{0, 0, 0, 1}));
  EXPECT_EQ(c.DT(), (Quadrants{0, 0, 0, 1}));
}

TEST(CarenceTest, SplitByQuadrant) {
  Carence c;
  c.s.sDateChangementIndice = "11/03/2023";
  c.s.dCoefficient_IATN = 10 / 30.0;
  c.s.dCoefficient_INTN = 20 / 30.0;
  c.s.iNBJ_PresenceIATN = 10;
  c.s.iNBJ_PresenceINTN = 20;
  c.Calcule("10/03/2023", "12/03/2023", {{"DT", "12/03/2023", "31/03/2023"}});
  EXPECT_EQ(c.Total(), (Quadrants{0, 1, 0, 2}));
  EXPECT_EQ(c.DT(), (Quadrants{0, 0, 0, 1}));
}

TEST(CarenceTest, AnotherMonthBecomesTheCurrentOne) {
  Carence c;
  c.s.rsSituationsExceptionnelles = Situations({});
  c.m.CalculNombreJourCarence(c.s, "10/02/2023", "11/02/2023", "01/02/2023");
  EXPECT_EQ(c.m.gPeriodeEncours, "01/02/2023");
  EXPECT_EQ(c.Total(), (Quadrants{0, 0, 0, 2}));
}

TEST(CarenceTest, MonthCountStartsItsOutputsAtZero) {
  Carence c;
  Int16 a = 5, b = 5, cc = 5, d = 5;
  c.m.CalculNombreJourCarenceMois(c.s, "01/03/2023", "10/03/2023", "11/03/2023", a, b, cc, d);
  EXPECT_EQ((Quadrants{a, b, cc, d}), (Quadrants{0, 0, 0, 2}));
  c.m.CalculNombreJourCarenceMois(c.s, "01/03/2023", "10/04/2023", "11/04/2023", a, b, cc, d);
  EXPECT_EQ((Quadrants{a, b, cc, d}), (Quadrants{0, 0, 0, 0}));
}

TEST(CarenceTest, SituationCountsRunOn) {
  Carence c;
  Int16 a = 0, b = 0, cc = 0, d = 3;
  c.m.CalculNombreJourCarence_Situation("", "01/03/2023", "31/03/2023", c.s, "10/03/2023",
                                        "11/03/2023", a, b, cc, d);
  EXPECT_EQ(d.value(), 5);
}

TEST(CarenceTest, FaultsOfTheWaitingPeriod) {
  Carence c;
  EXPECT_THROW(c.Calcule("", "10/03/2023"), Fault);
  Carence sansSource;
  sansSource.s.rsSituationsExceptionnelles = nullptr;
  EXPECT_THROW(sansSource.m.CalculNombreJourCarence(sansSource.s, "10/03/2023", "10/03/2023", ""),
               Fault);
}

}  // namespace
}  // namespace orvalis
