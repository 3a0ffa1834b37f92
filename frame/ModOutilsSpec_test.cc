// Rounding, truncations, date texts and the calendar counts of the pay rules.
#include "orvalis/ModOutilsSpec.h"

#include <gtest/gtest.h>

#include "frame/modoutils_test_outils.h"
#include "orvalis/fault.h"

namespace orvalis {
namespace {

class ModOutilsSpecTest : public outils_test::SeparateursDuSysteme {};

// --- Arrondi ---------------------------------------------------------------------------

TEST_F(ModOutilsSpecTest, ArrondiHalvesGoAwayFromZero) {
  EXPECT_EQ(Arrondi(2.5, 0), 3.0);
  EXPECT_EQ(Arrondi(-2.5, 0), -3.0);
  EXPECT_EQ(Arrondi(0.5, 0), 1.0);
  EXPECT_EQ(Arrondi(-0.5, 0), -1.0);
  EXPECT_EQ(Arrondi(3.5, 0), 4.0);
  EXPECT_EQ(Arrondi(-0.125, 2), -0.13);
  EXPECT_EQ(Arrondi(-1.005, 2), -1.01);
  EXPECT_EQ(Arrondi(-0.285, 2), -0.29);
}

TEST_F(ModOutilsSpecTest, ArrondiAbsorbsTheBinaryErrorThroughFifteenDigits) {
  EXPECT_EQ(Arrondi(1.005, 2), 1.01);
  EXPECT_EQ(Arrondi(0.285, 2), 0.29);
  EXPECT_EQ(Arrondi(2.675, 2), 2.68);
  EXPECT_EQ(Arrondi(1.23455, 4), 1.2346);
  EXPECT_EQ(Arrondi(8.325, 2), 8.33);
  // Just under a half by the last bit still counts as the half.
  EXPECT_EQ(Arrondi(0.49999999999999994, 0), 1.0);
}

TEST_F(ModOutilsSpecTest, ArrondiBelowTheHalfGoesDown) {
  EXPECT_EQ(Arrondi(1.004, 2), 1.0);
  EXPECT_EQ(Arrondi(0.2849, 2), 0.28);
  EXPECT_EQ(Arrondi(-2.4999, 0), -2.0);
  EXPECT_EQ(Arrondi(1820.044999, 2), 1820.04);
}

TEST_F(ModOutilsSpecTest, ArrondiOfZeroAndTinyValues) {
  EXPECT_EQ(Arrondi(0, 2), 0.0);
  EXPECT_EQ(Arrondi(0, 0), 0.0);
  EXPECT_EQ(Arrondi(0.004, 2), 0.0);
  EXPECT_EQ(Arrondi(-0.004, 2), 0.0);
}

TEST_F(ModOutilsSpecTest, ArrondiToFourAndFivePlaces) {
  EXPECT_EQ(Arrondi(6.0 / 7.0, 4), 0.8571);
  EXPECT_EQ(Arrondi(6.0 / 7.0, 5), 0.85714);
  EXPECT_EQ(Arrondi(0.00005, 4), 0.0001);
  EXPECT_EQ(Arrondi(4.56789, 4), 4.5679);
  EXPECT_EQ(Arrondi(-4.56785, 4), -4.5679);
}

TEST_F(ModOutilsSpecTest, ArrondiOfBigValues) {
  EXPECT_EQ(Arrondi(123456789.125, 2), 123456789.13);
  EXPECT_EQ(Arrondi(1234567890123.455, 2), 1234567890123.46);
  EXPECT_EQ(Arrondi(1e20, 2), 1e20);
  EXPECT_EQ(Arrondi(1e26, 2), 1e26);
  EXPECT_EQ(Arrondi(-1e26, 2), -1e26);
}

TEST_F(ModOutilsSpecTest, ArrondiFaults) {
  EXPECT_THROW(Arrondi(1.5, -1), Fault);
  // Past the 28-digit decimal.
  EXPECT_THROW(Arrondi(1e27, 2), Fault);
  EXPECT_THROW(Arrondi(1e29, 0), Fault);
}

// --- Truncations -----------------------------------------------------------------------

TEST_F(ModOutilsSpecTest, TronqueAuPas) {
  EXPECT_EQ(dTronqueAuPas(-7, 2, false), 0.0);
  EXPECT_EQ(dTronqueAuPas(-7, 2, true), -6.0);
  EXPECT_EQ(dTronqueAuPas(7, 2, false), 6.0);
  EXPECT_EQ(dTronqueAuPas(6, 2, false), 6.0);
  EXPECT_EQ(dTronqueAuPas(0, 2, true), 0.0);
  EXPECT_EQ(dTronqueAuPas(7.99, 0.5, false), 7.5);
  EXPECT_EQ(dTronqueAuPas(1.9, 2, false), 0.0);
  EXPECT_THROW(dTronqueAuPas(7, 0, false), Fault);
}

TEST_F(ModOutilsSpecTest, TronqueDecimalesThroughText) {
  EXPECT_DOUBLE_EQ(dTronqueDecimales(1.23456, 2), 1.23);
  EXPECT_DOUBLE_EQ(dTronqueDecimales(12.3456, 3), 12.345);
  EXPECT_DOUBLE_EQ(dTronqueDecimales(1.99, 0), 1.0);
  EXPECT_DOUBLE_EQ(dTronqueDecimales(5, 2), 5.0);
  EXPECT_DOUBLE_EQ(dTronqueDecimales(0.5, 2), 0.5);
  EXPECT_DOUBLE_EQ(dTronqueDecimales(0, 2), 0.0);
  EXPECT_DOUBLE_EQ(dTronqueDecimales(1.5, 9), 1.5);
  // The text of Int(-1.234) is "-2": four characters of "-123.4".
  EXPECT_DOUBLE_EQ(dTronqueDecimales(-1.234, 2), -1.23);
}

TEST_F(ModOutilsSpecTest, TronqueDecimalesKeepsItsQuirkUnderOne) {
  // The integer part of 0.0123 counts one character: "1.23" keeps "1.2".
  EXPECT_DOUBLE_EQ(dTronqueDecimales(0.0123, 2), 0.012);
  EXPECT_DOUBLE_EQ(dTronqueDecimales(0.05, 1), 0.0);
}

TEST_F(ModOutilsSpecTest, TronqueDecimalesFaults) {
  // "1" and ten zeros is past a 32-bit integer.
  EXPECT_THROW(dTronqueDecimales(1.5, 10), Fault);
  EXPECT_THROW(dTronqueDecimales(1.5, -1), Fault);
}

// --- Separators ------------------------------------------------------------------------

TEST_F(ModOutilsSpecTest, SeparatorsOfTheRunningSystem) {
  cSeparateurDecimal = ',';
  cAutreSeparateur = '.';
  DetecteSeparateurDecimal();
  EXPECT_EQ(cSeparateurDecimal, '.');
  EXPECT_EQ(cAutreSeparateur, ',');
}

TEST_F(ModOutilsSpecTest, NormaliseDecimale) {
  EXPECT_EQ(sNormaliseDecimale("1,5"), "1.5");
  EXPECT_EQ(sNormaliseDecimale("1.5,2,3"), "1.5.2.3");
  EXPECT_EQ(sNormaliseDecimale(""), "");
  cSeparateurDecimal = ',';
  cAutreSeparateur = '.';
  EXPECT_EQ(sNormaliseDecimale("0.01"), "0,01");
  EXPECT_EQ(TexteNombre(1.5), "1,5");
  // Arrondi builds its unit through the separators and still reads it.
  EXPECT_EQ(Arrondi(1.005, 2), 1.01);
}

TEST_F(ModOutilsSpecTest, TexteNombre) {
  EXPECT_EQ(TexteNombre(0), "0");
  EXPECT_EQ(TexteNombre(1.23), "1.23");
  EXPECT_EQ(TexteNombre(100 * 0.0123), "1.23");
  EXPECT_EQ(TexteNombre(-123.4), "-123.4");
  EXPECT_EQ(TexteNombre(1500000000), "1500000000");
  EXPECT_EQ(TexteNombre(0.000123), "0.000123");
}

// --- Date texts ------------------------------------------------------------------------

TEST_F(ModOutilsSpecTest, DateEnFormatChaineRewritesTheDate) {
  std::string s = "15/03/2021";
  EXPECT_EQ(MajDateEnFormatChaine(s), "20210315");
  EXPECT_EQ(s, "15/03/2021");
  s = "1/2/2024";
  EXPECT_EQ(MajDateEnFormatChaine(s), "20240201");
  EXPECT_EQ(s, "01/02/2024");
}

TEST_F(ModOutilsSpecTest, DateEnFormatChaineLeavesWhatIsNotADate) {
  for (const char* t : {"__/__/____", "", "31/04/2024", "2024-01-01", "abcdefghij", "1/1/24"}) {
    std::string s = t;
    EXPECT_EQ(MajDateEnFormatChaine(s), "") << t;
    EXPECT_EQ(s, t);
  }
}

TEST_F(ModOutilsSpecTest, ChaineEnFormatDate) {
  EXPECT_EQ(MajChaineEnFormatDate("20210315"), "15/03/2021");
  EXPECT_EQ(MajChaineEnFormatDate("2021031"), "");
  EXPECT_EQ(MajChaineEnFormatDate("202103151"), "");
  EXPECT_EQ(MajChaineEnFormatDate(""), "");
  // No check of the content: eight characters are cut as they are.
  EXPECT_EQ(MajChaineEnFormatDate("abcdefgh"), "gh/ef/abcd");
}

TEST_F(ModOutilsSpecTest, DateTextsRoundTrip) {
  std::string s = "29/02/2024";
  const std::string stockee = MajDateEnFormatChaine(s);
  EXPECT_EQ(stockee, "20240229");
  EXPECT_EQ(MajChaineEnFormatDate(stockee), "29/02/2024");
  EXPECT_EQ(MajChaineEnFormatDate("20501231"), "31/12/2050");
  s = MajChaineEnFormatDate("20501231");
  EXPECT_EQ(MajDateEnFormatChaine(s), "20501231");
}

// --- 30-day month ----------------------------------------------------------------------

TEST_F(ModOutilsSpecTest, Base30SameMonth) {
  EXPECT_EQ(iNbJoursBase30("15/02/2021", "28/02/2021"), 16);
  EXPECT_EQ(iNbJoursBase30("01/03/2021", "31/03/2021"), 30);
  EXPECT_EQ(iNbJoursBase30("31/03/2021", "31/03/2021"), 0);
  EXPECT_EQ(iNbJoursBase30("15/03/2021", "20/03/2021"), 6);
  EXPECT_EQ(iNbJoursBase30("30/01/2021", "31/01/2021"), 1);
  EXPECT_EQ(iNbJoursBase30("01/04/2021", "30/04/2021"), 30);
  EXPECT_EQ(iNbJoursBase30("01/04/2021", "29/04/2021"), 29);
  EXPECT_EQ(iNbJoursBase30("20/03/2021", "10/03/2021"), -9);
}

TEST_F(ModOutilsSpecTest, Base30FebruaryLeapAndCommon) {
  EXPECT_EQ(iNbJoursBase30("01/02/2024", "29/02/2024"), 30);
  EXPECT_EQ(iNbJoursBase30("01/02/2024", "28/02/2024"), 28);
  EXPECT_EQ(iNbJoursBase30("01/02/2023", "28/02/2023"), 30);
  EXPECT_EQ(iNbJoursBase30("29/02/2024", "29/02/2024"), 2);
  EXPECT_EQ(iNbJoursBase30("01/01/2021", "28/02/2021"), 60);
  EXPECT_EQ(iNbJoursBase30("01/01/2024", "28/02/2024"), 58);
  EXPECT_EQ(iNbJoursBase30("01/01/2024", "29/02/2024"), 60);
  EXPECT_EQ(iNbJoursBase30("01/02/2021", "10/03/2021"), 40);
  EXPECT_EQ(iNbJoursBase30("15/02/2021", "10/03/2021"), 26);
}

TEST_F(ModOutilsSpecTest, Base30MonthsComparedWithoutTheirYears) {
  EXPECT_EQ(iNbJoursBase30("10/03/2020", "20/03/2021"), 11);
  EXPECT_EQ(iNbJoursBase30("10/03/2021", "31/03/2020"), 21);
  EXPECT_EQ(iNbJoursBase30("15/11/2021", "15/01/2022"), 0);
  EXPECT_EQ(iNbJoursBase30("31/12/2021", "01/01/2022"), 0);
  // February is measured in the year of the end date: 2024 has 29 days, 28 does not fill it.
  EXPECT_EQ(iNbJoursBase30("15/01/2023", "28/02/2024"), 16 + 28);
}

TEST_F(ModOutilsSpecTest, Base30ThirtyFirstAndWholeMonths) {
  EXPECT_EQ(iNbJoursBase30("31/01/2021", "15/03/2021"), 0 + 30 + 15);
  EXPECT_EQ(iNbJoursBase30("01/01/2021", "31/03/2021"), 90);
  EXPECT_EQ(iNbJoursBase30("31/01/2021", "31/01/2021"), 0);
  // The largest count, a whole year, stays far from the 16-bit limit.
  EXPECT_EQ(iNbJoursBase30("01/01/2021", "31/12/2021"), 360);
  EXPECT_THROW(iNbJoursBase30("31/02/2021", "31/03/2021"), Fault);
  EXPECT_THROW(iNbJoursBase30("01/03/2021", ""), Fault);
}

TEST_F(ModOutilsSpecTest, Base30Commun) {
  EXPECT_EQ(iNbJoursBase30Commun("01/01/2021", "31/03/2021", "15/02/2021", "15/04/2021"), 16 + 30);
  EXPECT_EQ(iNbJoursBase30Commun("15/02/2021", "15/04/2021", "01/01/2021", "31/03/2021"), 16 + 30);
  EXPECT_EQ(iNbJoursBase30Commun("01/01/2021", "14/02/2021", "15/02/2021", "28/02/2021"), 0);
  EXPECT_EQ(iNbJoursBase30Commun("15/02/2021", "28/02/2021", "01/01/2021", "14/02/2021"), 0);
  EXPECT_EQ(iNbJoursBase30Commun("01/01/2021", "15/02/2021", "15/02/2021", "28/02/2021"), 1);
  EXPECT_EQ(iNbJoursBase30Commun("01/03/2021", "31/03/2021", "01/01/2021", "31/12/2021"), 30);
}

TEST_F(ModOutilsSpecTest, JoursCommunsMois) {
  EXPECT_EQ(iNbJoursCommunsMois("10/03/2021", "", "15/03/2021"), 22);
  EXPECT_EQ(iNbJoursCommunsMois("15/02/2024", "10/03/2024", "01/02/2024"), 15);
  EXPECT_EQ(iNbJoursCommunsMois("01/01/2021", "31/12/2021", "15/02/2024"), 0);
  EXPECT_EQ(iNbJoursCommunsMois("01/04/2021", "", "01/03/2021"), 0);
  EXPECT_EQ(iNbJoursCommunsMois("20/03/2021", "10/03/2021", "01/03/2021"), 0);
  EXPECT_EQ(iNbJoursCommunsMois("31/03/2021", "31/03/2021", "01/03/2021"), 1);
  EXPECT_EQ(iNbJoursCommunsMois("01/01/2021", "", "01/02/2021"), 28);
  EXPECT_EQ(iNbJoursCommunsMois("01/01/2020", "31/12/2025", "10/02/2024"), 29);
}

// --- Working days ----------------------------------------------------------------------

TEST_F(ModOutilsSpecTest, WeekendDays) {
  EXPECT_TRUE(bJourOuvre("05/01/2024", false, false));   // a Friday
  EXPECT_FALSE(bJourOuvre("06/01/2024", false, false));  // a Saturday
  EXPECT_TRUE(bJourOuvre("06/01/2024", true, false));
  EXPECT_FALSE(bJourOuvre("07/01/2024", true, true));  // a Sunday
  EXPECT_TRUE(bJourOuvre("08/01/2024", false, false));
}

TEST_F(ModOutilsSpecTest, FixedHolidays) {
  for (const char* t : {"01/01/2024", "01/05/2024", "08/05/2024", "14/07/2025", "15/08/2024",
                        "01/11/2024", "11/11/2024", "25/12/2024"}) {
    EXPECT_FALSE(bJourOuvre(t, true, false)) << t;
  }
  EXPECT_TRUE(bJourOuvre("02/01/2024", false, false));
  EXPECT_TRUE(bJourOuvre("24/12/2024", false, false));
  EXPECT_TRUE(bJourOuvre("26/12/2024", false, false));
  // A holiday on a Saturday stays off when Saturday is worked.
  EXPECT_FALSE(bJourOuvre("01/05/2021", true, false));
}

TEST_F(ModOutilsSpecTest, MovableFeasts2024) {
  EXPECT_FALSE(bJourOuvre("01/04/2024", false, false));  // Easter Monday
  EXPECT_TRUE(bJourOuvre("02/04/2024", false, false));
  EXPECT_FALSE(bJourOuvre("09/05/2024", false, false));  // Ascension
  EXPECT_TRUE(bJourOuvre("10/05/2024", false, false));
  EXPECT_FALSE(bJourOuvre("20/05/2024", false, false));  // Whit Monday
  EXPECT_FALSE(bJourOuvre("19/05/2024", true, true));    // Whit Sunday
  EXPECT_FALSE(bJourOuvre("17/04/2006", false, false));  // first entry of the table
  EXPECT_FALSE(bJourOuvre("19/04/2049", false, false));  // last entry examined
}

TEST_F(ModOutilsSpecTest, The2022EntryIsKept) {
  EXPECT_TRUE(bJourOuvre("18/04/2022", false, false));
  EXPECT_TRUE(bJourOuvre("26/05/2022", false, false));
  EXPECT_FALSE(bJourOuvre("01/06/2022", false, false));
  EXPECT_TRUE(bJourOuvre("06/06/2022", false, false));
  // 24/04/2022 + 48 is a Saturday: the Whit Sunday flag is seen only when Saturday is worked.
  EXPECT_TRUE(bJourOuvre("11/06/2022", true, false));
  EXPECT_FALSE(bJourOuvre("11/06/2022", true, true));
}

TEST_F(ModOutilsSpecTest, MovableFeastsOf2050AreWorkingDays) {
  EXPECT_TRUE(bJourOuvre("11/04/2050", false, false));
  EXPECT_TRUE(bJourOuvre("19/05/2050", false, false));
  EXPECT_TRUE(bJourOuvre("30/05/2050", false, false));
  // Outside the table there is no movable feast either.
  EXPECT_TRUE(bJourOuvre("28/03/2005", false, false));
}

TEST_F(ModOutilsSpecTest, JourOuvreOfANonDateIsAFault) {
  EXPECT_THROW(bJourOuvre("31/06/2024", false, false), Fault);
  EXPECT_THROW(bJourOuvre("", false, false), Fault);
}

TEST_F(ModOutilsSpecTest, WorkingDaysOfTheYear) {
  // 2024: 262 weekdays, 7 fixed holidays on weekdays, 3 movable feasts; 52 Saturdays.
  EXPECT_EQ(iNbJoursOuvresAnnee("2024", false, false), 252);
  EXPECT_EQ(iNbJoursOuvresAnnee("2024", true, false), 304);
  EXPECT_EQ(iNbJoursOuvresAnnee("2024", true, true), 304);
  // 2023: 260 weekdays, 6 fixed holidays on weekdays, 3 movable feasts; 52 Saturdays, 11/11 one.
  EXPECT_EQ(iNbJoursOuvresAnnee("2023", false, false), 251);
  EXPECT_EQ(iNbJoursOuvresAnnee("2023", true, false), 302);
  // 2022: 260 weekdays, 4 fixed holidays and 01/06 on weekdays; 53 Saturdays, 01/01 one.
  EXPECT_EQ(iNbJoursOuvresAnnee("2022", false, false), 255);
  EXPECT_EQ(iNbJoursOuvresAnnee("2022", true, false), 307);
  EXPECT_EQ(iNbJoursOuvresAnnee("2022", true, true), 306);
  EXPECT_THROW(iNbJoursOuvresAnnee("24", false, false), Fault);
}

// --- Progressive end of activity -------------------------------------------------------

TEST_F(ModOutilsSpecTest, CoefficientsCPARows) {
  double c = -1, h = -1, p = -1;
  CoefficientsCPA("CP", "", "", c, h, &p);
  EXPECT_EQ(c, 0.5);
  EXPECT_EQ(h, 0.5);
  EXPECT_EQ(p, 50.0);
  CoefficientsCPA("PF", "", "", c, h, &p);
  EXPECT_EQ(c, 0.6);
  EXPECT_EQ(h, 0.5);
  EXPECT_EQ(p, 50.0);
  CoefficientsCPA("PD", "01/01/2023", "30/12/2024", c, h, &p);  // 729 days
  EXPECT_EQ(c, 0.85714);
  EXPECT_EQ(h, 0.85714);
  EXPECT_EQ(p, 80.0);
  CoefficientsCPA("PD", "01/01/2023", "31/12/2024", c, h, &p);  // 730 days
  EXPECT_EQ(c, 0.7);
  EXPECT_EQ(h, 0.6);
  EXPECT_EQ(p, 60.0);
}

TEST_F(ModOutilsSpecTest, CoefficientsCPAOtherTypeLeavesAllUntouched) {
  double c = -1, h = -2, p = -3;
  CoefficientsCPA("XX", "01/01/2023", "31/12/2024", c, h, &p);
  CoefficientsCPA("cp", "", "", c, h, &p);
  CoefficientsCPA("", "", "", c, h, &p);
  EXPECT_EQ(c, -1.0);
  EXPECT_EQ(h, -2.0);
  EXPECT_EQ(p, -3.0);
}

TEST_F(ModOutilsSpecTest, CoefficientsCPAWithoutPercentage) {
  double c = 0, h = 0;
  CoefficientsCPA("PD", "01/01/2023", "01/01/2023", c, h);
  EXPECT_EQ(c, 0.85714);
  EXPECT_EQ(h, 0.85714);
  EXPECT_THROW(CoefficientsCPA("PD", "", "01/01/2023", c, h), Fault);
}

}  // namespace
}  // namespace orvalis
