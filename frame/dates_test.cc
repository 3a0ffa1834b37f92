// Date serials, the civil calendar and the day-first date texts.
#include "orvalis/dates.h"

#include <gtest/gtest.h>

#include <cstdio>

#include "orvalis/fault.h"

namespace orvalis {
namespace {

TEST(DatesTest, SerialsOfTheHostNumbering) {
  EXPECT_EQ(DateSerial(1899, 12, 30).serial, 0);
  EXPECT_EQ(DateSerial(1899, 12, 31).serial, 1);
  EXPECT_EQ(DateSerial(1900, 1, 1).serial, 2);
  EXPECT_EQ(DateSerial(2006, 4, 17).serial, 38824);
  EXPECT_EQ(DateSerial(2022, 4, 24).serial, 44675);
  EXPECT_EQ(DateSerial(2050, 4, 11).serial, 54889);
  EXPECT_EQ(DateSerial(1899, 12, 29).serial, -1);
}

TEST(DatesTest, YearMonthDayOfASerial) {
  const Date d{38824};
  EXPECT_EQ(Annee(d), 2006);
  EXPECT_EQ(Mois(d), 4);
  EXPECT_EQ(Jour(d), 17);
  const Date fevrier = DateSerial(2024, 2, 29);
  EXPECT_EQ(Annee(fevrier), 2024);
  EXPECT_EQ(Mois(fevrier), 2);
  EXPECT_EQ(Jour(fevrier), 29);
}

TEST(DatesTest, DateSerialRollsMonthAndDayOver) {
  EXPECT_EQ(DateSerial(2023, 13, 1), DateSerial(2024, 1, 1));
  EXPECT_EQ(DateSerial(2024, 0, 15), DateSerial(2023, 12, 15));
  EXPECT_EQ(DateSerial(2024, -11, 1), DateSerial(2023, 1, 1));
  EXPECT_EQ(DateSerial(2024, 3, 0), DateSerial(2024, 2, 29));
  EXPECT_EQ(DateSerial(2023, 3, 0), DateSerial(2023, 2, 28));
  EXPECT_EQ(DateSerial(2024, 1, 32), DateSerial(2024, 2, 1));
  EXPECT_EQ(DateSerial(2024, 1, 0), DateSerial(2023, 12, 31));
  EXPECT_EQ(DateSerial(2024, 25, 1), DateSerial(2026, 1, 1));
}

TEST(DatesTest, LeapYearsOfTheGregorianRule) {
  EXPECT_EQ(JoursDansMois(2024, 2), 29);
  EXPECT_EQ(JoursDansMois(2023, 2), 28);
  EXPECT_EQ(JoursDansMois(2000, 2), 29);
  EXPECT_EQ(JoursDansMois(1900, 2), 28);
  EXPECT_EQ(JoursDansMois(2100, 2), 28);
  EXPECT_EQ(JoursDansMois(2024, 4), 30);
  EXPECT_EQ(JoursDansMois(2024, 12), 31);
  EXPECT_EQ(DateSerial(2025, 1, 1).serial - DateSerial(2024, 1, 1).serial, 366);
  EXPECT_EQ(DateSerial(2024, 1, 1).serial - DateSerial(2023, 1, 1).serial, 365);
}

TEST(DatesTest, WeekdayOneIsSunday) {
  EXPECT_EQ(JourSemaine(Date{0}), 7);                      // 30/12/1899, a Saturday
  EXPECT_EQ(JourSemaine(Date{1}), 1);                      // a Sunday
  EXPECT_EQ(JourSemaine(DateSerial(2024, 1, 1)), 2);       // a Monday
  EXPECT_EQ(JourSemaine(DateSerial(2022, 4, 24)), 1);      // a Sunday
  EXPECT_EQ(JourSemaine(DateSerial(2024, 3, 30)), 7);      // a Saturday
  EXPECT_EQ(JourSemaine(Date{-1}), 6);                     // 29/12/1899, a Friday
}

TEST(DatesTest, FirstAndLastDayOfTheMonth) {
  EXPECT_EQ(DernierJourDuMois(DateSerial(2024, 2, 10)), DateSerial(2024, 2, 29));
  EXPECT_EQ(DernierJourDuMois(DateSerial(2023, 2, 28)), DateSerial(2023, 2, 28));
  EXPECT_EQ(DernierJourDuMois(DateSerial(2023, 12, 1)), DateSerial(2023, 12, 31));
  EXPECT_EQ(PremierJourDuMois(DateSerial(2024, 3, 31)), DateSerial(2024, 3, 1));
}

TEST(DatesTest, AddingMonthsClampsTheDay) {
  EXPECT_EQ(AjouteMois(DateSerial(2024, 1, 31), 1), DateSerial(2024, 2, 29));
  EXPECT_EQ(AjouteMois(DateSerial(2023, 1, 31), 1), DateSerial(2023, 2, 28));
  EXPECT_EQ(AjouteMois(DateSerial(2024, 3, 31), -1), DateSerial(2024, 2, 29));
  EXPECT_EQ(AjouteMois(DateSerial(2023, 12, 31), 2), DateSerial(2024, 2, 29));
  EXPECT_EQ(AjouteMois(DateSerial(2024, 2, 29), 12), DateSerial(2025, 2, 28));
  EXPECT_EQ(AjouteMois(DateSerial(2023, 11, 15), 3), DateSerial(2024, 2, 15));
  EXPECT_EQ(AjouteMois(DateSerial(2024, 5, 31), 0), DateSerial(2024, 5, 31));
}

TEST(DatesTest, DayAndMonthDifferences) {
  EXPECT_EQ(AjouteJours(DateSerial(2024, 2, 28), 1), DateSerial(2024, 2, 29));
  EXPECT_EQ(DiffJours(DateSerial(2024, 1, 1), DateSerial(2024, 3, 1)), 60);
  EXPECT_EQ(DiffJours(DateSerial(2024, 3, 1), DateSerial(2024, 1, 1)), -60);
  EXPECT_EQ(DiffJours(DateSerial(2024, 3, 1), DateSerial(2024, 3, 1)), 0);
  EXPECT_EQ(DiffMois(DateSerial(2024, 1, 31), DateSerial(2024, 2, 1)), 1);
  EXPECT_EQ(DiffMois(DateSerial(2021, 11, 15), DateSerial(2022, 1, 15)), 2);
  EXPECT_EQ(DiffMois(DateSerial(2022, 1, 15), DateSerial(2021, 11, 15)), -2);
  EXPECT_EQ(DiffMois(DateSerial(2024, 3, 1), DateSerial(2024, 3, 31)), 0);
}

TEST(DatesTest, ReadsDayFirstWithOneOrTwoDigits) {
  EXPECT_EQ(LireDate("17/04/2006").serial, 38824);
  EXPECT_EQ(LireDate("1/2/2024"), DateSerial(2024, 2, 1));
  EXPECT_EQ(LireDate("01/02/2024"), DateSerial(2024, 2, 1));
  EXPECT_EQ(LireDate("12/1/2024"), DateSerial(2024, 1, 12));
  EXPECT_EQ(LireDate("29/02/2024"), DateSerial(2024, 2, 29));
  EXPECT_EQ(LireDate("29/02/2000"), DateSerial(2000, 2, 29));
  EXPECT_EQ(LireDate("31/12/9999"), DateSerial(9999, 12, 31));
  EXPECT_TRUE(EstDate("31/03/2021"));
}

TEST(DatesTest, RejectsWhatIsNotADate) {
  for (const char* t :
       {"2024-01-01", "32/01/2024", "1/1/24", "", " 01/01/2024", "01/01/2024 ", "31/04/2024",
        "29/02/2021", "29/02/1900", "01/13/2024", "00/01/2024", "01/00/2024", "001/01/2024",
        "01/01/20245", "01/01/2024 00:00", "01-01-2024", "__/__/____", "1/1/0099", "a/01/2024",
        "01/01/0099", "00/00/0000", "30/02/2024", "31/06/2024", "01/1a/2024", "01/01/ 024"}) {
    EXPECT_FALSE(EstDate(t)) << t;
    EXPECT_THROW(LireDate(t), Fault) << t;
  }
}

TEST(DatesTest, TheFaultNamesTheText) {
  try {
    LireDate("32/01/2024");
    FAIL() << "no fault";
  } catch (const Fault& f) {
    EXPECT_STREQ(f.what(), "not a date: '32/01/2024'");
  }
}

TEST(DatesTest, TextIsTwoDigitDayAndMonth) {
  EXPECT_EQ(TexteDate(DateSerial(2024, 2, 1)), "01/02/2024");
  EXPECT_EQ(TexteDate(Date{2}), "01/01/1900");
  EXPECT_EQ(TexteDate(Date{54889}), "11/04/2050");
  EXPECT_EQ(TexteDate(LireDate("5/7/2021")), "05/07/2021");
  EXPECT_EQ(TexteDate(DateSerial(100, 1, 1)), "01/01/0100");
  EXPECT_EQ(TexteDate(DateSerial(9999, 12, 31)), "31/12/9999");
  // Outside four digits, the year as it stands.
  EXPECT_EQ(TexteDate(DateSerial(10000, 1, 1)), "01/01/10000");
  EXPECT_EQ(TexteDate(DateSerial(-1, 3, 5)), "05/03/-001");
}

// The dates read last are kept: read again, in any order and past the number kept, each
// text gives its own date, and a text that is not a date still faults.
TEST(DatesTest, ReadAgainEachTextGivesItsDate) {
  for (int tour = 0; tour < 3; ++tour) {
    for (int jour = 1; jour <= 20; ++jour) {
      char texte[16];
      std::snprintf(texte, sizeof texte, "%02d/03/2024", jour);
      EXPECT_EQ(LireDate(texte), DateSerial(2024, 3, jour)) << texte;
      EXPECT_EQ(LireDate("01/03/2024"), DateSerial(2024, 3, 1));
    }
  }
  EXPECT_THROW(LireDate("32/03/2024"), Fault);
  EXPECT_EQ(LireDate("1/3/2024"), DateSerial(2024, 3, 1));
  EXPECT_EQ(LireDate("29/02/2024"), DateSerial(2024, 2, 29));
  EXPECT_THROW(LireDate("29/02/2023"), Fault);
}

}  // namespace
}  // namespace orvalis
