// Second look at the rounding, truncations, date texts and calendar counts: the awkward
// inputs, each value worked out by hand from the rule.
#include <gtest/gtest.h>

#include <string>

#include "frame/modoutils_test_outils.h"
#include "orvalis/ModOutilsSpec.h"
#include "orvalis/fault.h"

namespace orvalis {
namespace {

class ModOutilsSpecReviewTest : public outils_test::SeparateursDuSysteme {};

// --- Arrondi ---------------------------------------------------------------------------

TEST_F(ModOutilsSpecReviewTest, ArrondiBinaryHalvesJustUnderTheHalf) {
  // 1.005 / 0.01 + 0.5 = 100.99999999999999 in the double; 15 digits: 101.
  EXPECT_EQ(Arrondi(1.005, 2), 1.01);
  // The text 1.0049999999999999 reads as the same double as 1.005.
  EXPECT_EQ(Arrondi(1.0049999999999999, 2), 1.01);
  // 28.999999999999996 -> 29.
  EXPECT_EQ(Arrondi(0.285, 2), 0.29);
  EXPECT_EQ(Arrondi(2.675, 2), 2.68);
  // 57.99999999999999 -> 58; 125.99999999999999 -> 126.
  EXPECT_EQ(Arrondi(0.575, 2), 0.58);
  EXPECT_EQ(Arrondi(1.255, 2), 1.26);
  // 0.005 / 0.01 + 0.5 = 1.
  EXPECT_EQ(Arrondi(0.005, 2), 0.01);
}

TEST_F(ModOutilsSpecReviewTest, ArrondiFifteenthDigitDecides) {
  // 100.99999999999899...: fifteen digits 100.999999999999, integer part 100.
  EXPECT_EQ(Arrondi(1.00499999999999, 2), 1.0);
  // 100.9999999999999: the sixteenth 9 carries the fifteenth up to 101.
  EXPECT_EQ(Arrondi(1.004999999999999, 2), 1.01);
}

TEST_F(ModOutilsSpecReviewTest, ArrondiNegativeHalvesMirrorThePositive) {
  EXPECT_EQ(Arrondi(-0.5, 0), -1.0);
  EXPECT_EQ(Arrondi(-1.5, 0), -2.0);
  EXPECT_EQ(Arrondi(-1234.5, 0), -1235.0);
  EXPECT_EQ(Arrondi(-1.005, 2), -1.01);
  EXPECT_EQ(Arrondi(-0.045, 2), -0.05);
  EXPECT_EQ(Arrondi(-123456.785, 2), -123456.79);
}

TEST_F(ModOutilsSpecReviewTest, ArrondiLargeMoney) {
  // 123456.785 / 0.01 + 0.5 = 12345679.0 (binary error absorbed): 12345679 * 0.01.
  EXPECT_EQ(Arrondi(123456.785, 2), 123456.79);
  // 99999.995 -> 10000000.0 -> 100000.
  EXPECT_EQ(Arrondi(99999.995, 2), 100000.0);
  EXPECT_EQ(Arrondi(1820.035, 2), 1820.04);
}

TEST_F(ModOutilsSpecReviewTest, ArrondiProductIsTakenAsADecimal) {
  // 3 * 0.1 in doubles is 0.30000000000000004; as a decimal it is 0.3.
  EXPECT_EQ(Arrondi(0.3, 1), 0.3);
  EXPECT_EQ(Arrondi(-0.3, 1), -0.3);
  EXPECT_EQ(Arrondi(0.7, 1), 0.7);
  // 12345679 * 0.01 in doubles is 123456.79000000001.
  EXPECT_EQ(Arrondi(123456.79, 2), 123456.79);
  // 1235 * 0.0001 in doubles is 0.12350000000000001.
  EXPECT_EQ(Arrondi(0.12345, 4), 0.1235);
}

TEST_F(ModOutilsSpecReviewTest, ArrondiRatesToFourPlaces) {
  // 0.08625 / 0.0001 + 0.5 = 862.9999999999999 -> 863.
  EXPECT_EQ(Arrondi(0.08625, 4), 0.0863);
  EXPECT_EQ(Arrondi(0.07035, 4), 0.0704);
  EXPECT_EQ(Arrondi(-0.07035, 4), -0.0704);
  // 1.9999999999999998 -> 2: 0.0002 where the double alone would give 0.0001.
  EXPECT_EQ(Arrondi(0.00015, 4), 0.0002);
  EXPECT_EQ(Arrondi(-0.00015, 4), -0.0002);
  // 0.25 + 0.5 = 0.75: integer part 0.
  EXPECT_EQ(Arrondi(0.000025, 4), 0.0);
  EXPECT_EQ(Arrondi(1.00005, 4), 1.0001);
}

TEST_F(ModOutilsSpecReviewTest, ArrondiToTheUnitAndToOnePlace) {
  EXPECT_EQ(Arrondi(1234.5678, 0), 1235.0);
  EXPECT_EQ(Arrondi(1234.4999, 0), 1234.0);
  EXPECT_EQ(Arrondi(1.5, 0), 2.0);
  // 14.999999999999998 -> 15; 43.99999999999999 -> 44; 1.9999999999999998 -> 2.
  EXPECT_EQ(Arrondi(1.45, 1), 1.5);
  EXPECT_EQ(Arrondi(4.35, 1), 4.4);
  EXPECT_EQ(Arrondi(0.15, 1), 0.2);
}

TEST_F(ModOutilsSpecReviewTest, ArrondiWithCommaSeparator) {
  cSeparateurDecimal = ',';
  cAutreSeparateur = '.';
  EXPECT_EQ(Arrondi(0.285, 2), 0.29);
  EXPECT_EQ(Arrondi(0.00015, 4), 0.0002);
  EXPECT_EQ(Arrondi(2.5, 0), 3.0);
}

TEST_F(ModOutilsSpecReviewTest, ArrondiNegativePlacesIsAFault) {
  EXPECT_THROW(Arrondi(0, -1), Fault);
  EXPECT_THROW(Arrondi(-2.5, -2), Fault);
}

// --- dTronqueAuPas ---------------------------------------------------------------------

TEST_F(ModOutilsSpecReviewTest, TronqueAuPasBothFlags) {
  // |-7.99| / 0.5 = 15.98 -> 15 * 0.5 = 7.5.
  EXPECT_EQ(dTronqueAuPas(-7.99, 0.5, true), -7.5);
  EXPECT_EQ(dTronqueAuPas(-7.99, 0.5, false), 0.0);
  EXPECT_EQ(dTronqueAuPas(7.99, 0.5, true), 7.5);
  EXPECT_EQ(dTronqueAuPas(-1.9, 2, true), 0.0);
  EXPECT_EQ(dTronqueAuPas(-8, 2, true), -8.0);
  EXPECT_EQ(dTronqueAuPas(-8, 2, false), 0.0);
  EXPECT_EQ(dTronqueAuPas(123.456, 0.01, false), 123.45);
}

TEST_F(ModOutilsSpecReviewTest, TronqueAuPasWorksInDoubles) {
  // 0.3 / 0.1 = 2.9999999999999996 in doubles: Int gives 2, so 0.2.
  EXPECT_EQ(dTronqueAuPas(0.3, 0.1, false), 2 * 0.1);
  // A negative step: Int(5 / -2) = Int(-2.5) = -3, times -2 is 6.
  EXPECT_EQ(dTronqueAuPas(5, -2, false), 6.0);
}

TEST_F(ModOutilsSpecReviewTest, TronqueAuPasZeroStepIsAFault) {
  EXPECT_THROW(dTronqueAuPas(-7, 0, true), Fault);
  EXPECT_THROW(dTronqueAuPas(0, 0, false), Fault);
}

// --- dTronqueDecimales -----------------------------------------------------------------

TEST_F(ModOutilsSpecReviewTest, TronqueDecimalesPositive) {
  // "1234.56", Int(12.3456) = "12": 2 + 2 = 4 characters, "1234" / 100.
  EXPECT_EQ(dTronqueDecimales(12.3456, 2), 12.34);
  // "1234567.89", "123": 3 + 4 = 7, "1234567" / 10000.
  EXPECT_EQ(dTronqueDecimales(123.456789, 4), 123.4567);
  // "999.9", "9": 3, "999" / 100.
  EXPECT_EQ(dTronqueDecimales(9.999, 2), 9.99);
  // "12.7" with no places keeps "12".
  EXPECT_EQ(dTronqueDecimales(12.7, 0), 12.0);
  EXPECT_EQ(dTronqueDecimales(0.7, 0), 0.0);
}

TEST_F(ModOutilsSpecReviewTest, TronqueDecimalesGoesThroughFifteenDigitText) {
  // 1.005 * 100 = 100.49999999999999, text "100.5": keeps "100".
  EXPECT_EQ(dTronqueDecimales(1.005, 2), 1.0);
  // 0.29 * 100 = 28.999999999999996, text "29": 0.29 stays 0.29.
  EXPECT_EQ(dTronqueDecimales(0.29, 2), 0.29);
  // 1.1 * 100 = 110.00000000000001, text "110".
  EXPECT_EQ(dTronqueDecimales(1.1, 2), 1.1);
  // 2.675 * 100 = 267.49999999999997, text "267.5": keeps "267".
  EXPECT_EQ(dTronqueDecimales(2.675, 2), 2.67);
}

TEST_F(ModOutilsSpecReviewTest, TronqueDecimalesUnderOne) {
  // "1.23", Int(0.0123) = "0": 1 + 2 = 3 characters, "1.2" / 100 = 0.012.
  EXPECT_EQ(dTronqueDecimales(0.0123, 2), 0.012);
  // "12.3", 1 + 3 = 4 characters, "12.3" / 1000.
  EXPECT_EQ(dTronqueDecimales(0.0123, 3), 0.0123);
  // "5", 3 characters wanted, "5" / 100.
  EXPECT_EQ(dTronqueDecimales(0.05, 2), 0.05);
  // "9.9", 1 + 1 = 2: "9." / 10.
  EXPECT_EQ(dTronqueDecimales(0.99, 1), 0.9);
  // "1234.56", 1 + 4 = 5: "1234." / 10000.
  EXPECT_EQ(dTronqueDecimales(0.123456, 4), 0.1234);
}

TEST_F(ModOutilsSpecReviewTest, TronqueDecimalesNegative) {
  // "-50", Int(-0.5) = "-1": 2 + 2 = 4 characters, the whole "-50" / 100.
  EXPECT_EQ(dTronqueDecimales(-0.5, 2), -0.5);
  // "-1.23", Int(-0.0123) = "-1": 4 characters "-1.2" / 100.
  EXPECT_EQ(dTronqueDecimales(-0.0123, 2), -0.012);
  // "-1234.56", Int(-12.3456) = "-13": 3 + 2 = 5, "-1234" / 100.
  EXPECT_EQ(dTronqueDecimales(-12.3456, 2), -12.34);
  // "-2.5", Int(-0.25) = "-1": 2 + 1 = 3, "-2." / 10.
  EXPECT_EQ(dTronqueDecimales(-0.25, 1), -0.2);
  // "-43.5", Int(-4.35) = "-5": 2 + 1 = 3, "-43" / 10.
  EXPECT_EQ(dTronqueDecimales(-4.35, 1), -4.3);
  // No places: "-12.7", Int = "-13": 3 characters "-12"; "-0.7", Int = "-1": "-0".
  EXPECT_EQ(dTronqueDecimales(-12.7, 0), -12.0);
  EXPECT_EQ(dTronqueDecimales(-1.5, 0), -1.0);
  EXPECT_EQ(dTronqueDecimales(-0.7, 0), 0.0);
}

TEST_F(ModOutilsSpecReviewTest, TronqueDecimalesWithCommaSeparator) {
  cSeparateurDecimal = ',';
  cAutreSeparateur = '.';
  EXPECT_EQ(dTronqueDecimales(12.3456, 2), 12.34);
  EXPECT_EQ(dTronqueDecimales(0.0123, 2), 0.012);
  EXPECT_EQ(dTronqueDecimales(-0.25, 1), -0.2);
}

TEST_F(ModOutilsSpecReviewTest, TronqueDecimalesPlacesLimits) {
  // "1" and nine zeros is still a 32-bit integer: "500000000", 1 + 9 characters.
  EXPECT_EQ(dTronqueDecimales(0.5, 9), 0.5);
  EXPECT_THROW(dTronqueDecimales(0.5, 10), Fault);
  EXPECT_THROW(dTronqueDecimales(0.5, -1), Fault);
}

// --- Separators ------------------------------------------------------------------------

TEST_F(ModOutilsSpecReviewTest, NormaliseReplacesEveryOtherSeparator) {
  EXPECT_EQ(sNormaliseDecimale("0,0001"), "0.0001");
  EXPECT_EQ(sNormaliseDecimale("1,2,3"), "1.2.3");
  EXPECT_EQ(sNormaliseDecimale("12"), "12");
  cSeparateurDecimal = ',';
  cAutreSeparateur = '.';
  EXPECT_EQ(sNormaliseDecimale("1.2.3"), "1,2,3");
  EXPECT_EQ(sNormaliseDecimale("1,5"), "1,5");
  DetecteSeparateurDecimal();
  EXPECT_EQ(cSeparateurDecimal, '.');
  EXPECT_EQ(cAutreSeparateur, ',');
}

// --- Date texts ------------------------------------------------------------------------

TEST_F(ModOutilsSpecReviewTest, DateEnFormatChaine) {
  std::string s = "5/3/2021";
  EXPECT_EQ(MajDateEnFormatChaine(s), "20210305");
  EXPECT_EQ(s, "05/03/2021");
  s = "31/12/2021";
  EXPECT_EQ(MajDateEnFormatChaine(s), "20211231");
  EXPECT_EQ(s, "31/12/2021");
  s = "__/__/____";
  EXPECT_EQ(MajDateEnFormatChaine(s), "");
  s = "";
  EXPECT_EQ(MajDateEnFormatChaine(s), "");
  EXPECT_EQ(s, "");
}

TEST_F(ModOutilsSpecReviewTest, ChaineEnFormatDate) {
  EXPECT_EQ(MajChaineEnFormatDate("20240229"), "29/02/2024");
  EXPECT_EQ(MajChaineEnFormatDate("19991231"), "31/12/1999");
  EXPECT_EQ(MajChaineEnFormatDate("2024022"), "");
  EXPECT_EQ(MajChaineEnFormatDate("2024-02-29"), "");
}

// --- iNbJoursBase30 --------------------------------------------------------------------

TEST_F(ModOutilsSpecReviewTest, Base30SameMonthEndOfMonth) {
  // January: the 30th is not the last day, the 31st is.
  EXPECT_EQ(iNbJoursBase30("15/01/2021", "30/01/2021"), 16);  // 30 - 15 + 1
  EXPECT_EQ(iNbJoursBase30("15/01/2021", "31/01/2021"), 16);  // 30 - 15 + 1
  EXPECT_EQ(iNbJoursBase30("01/01/2021", "31/01/2021"), 30);
  EXPECT_EQ(iNbJoursBase30("01/12/2021", "31/12/2021"), 30);
  EXPECT_EQ(iNbJoursBase30("15/04/2021", "30/04/2021"), 16);  // the 30th is April's last
  EXPECT_EQ(iNbJoursBase30("31/01/2021", "31/01/2021"), 0);
  EXPECT_EQ(iNbJoursBase30("10/05/2021", "10/05/2021"), 1);
}

TEST_F(ModOutilsSpecReviewTest, Base30SameMonthFebruary) {
  // 2020 is leap: the 28th is not the last day.
  EXPECT_EQ(iNbJoursBase30("15/02/2020", "28/02/2020"), 14);  // 28 - 15 + 1
  EXPECT_EQ(iNbJoursBase30("15/02/2020", "29/02/2020"), 16);  // 30 - 15 + 1
  EXPECT_EQ(iNbJoursBase30("15/02/2021", "28/02/2021"), 16);
  EXPECT_EQ(iNbJoursBase30("01/02/2021", "27/02/2021"), 27);
  // The last day is the one of the start's month and year.
  EXPECT_EQ(iNbJoursBase30("15/02/2021", "28/02/2020"), 16);  // 28 is 2021's last
  EXPECT_EQ(iNbJoursBase30("15/02/2020", "28/02/2021"), 14);  // 29 is 2020's last
}

TEST_F(ModOutilsSpecReviewTest, Base30SameMonthNumberOtherYear) {
  EXPECT_EQ(iNbJoursBase30("15/03/2021", "20/03/2022"), 6);
  EXPECT_EQ(iNbJoursBase30("01/02/2024", "01/02/2023"), 1);
  EXPECT_EQ(iNbJoursBase30("20/06/2021", "05/06/2020"), -14);  // 5 - 20 + 1
}

TEST_F(ModOutilsSpecReviewTest, Base30OverSeveralMonths) {
  EXPECT_EQ(iNbJoursBase30("15/01/2021", "31/03/2021"), 16 + 30 + 30);
  EXPECT_EQ(iNbJoursBase30("31/01/2021", "15/02/2021"), 0 + 15);
  EXPECT_EQ(iNbJoursBase30("31/05/2021", "30/06/2021"), 0 + 30);
  EXPECT_EQ(iNbJoursBase30("30/01/2021", "01/02/2021"), 1 + 1);
  EXPECT_EQ(iNbJoursBase30("01/07/2021", "15/09/2021"), 30 + 30 + 15);
  // Ascending months in different years: the years are not looked at.
  EXPECT_EQ(iNbJoursBase30("15/11/2021", "15/12/2022"), 16 + 15);
}

TEST_F(ModOutilsSpecReviewTest, Base30FebruaryEndingThePeriod) {
  EXPECT_EQ(iNbJoursBase30("10/01/2021", "27/02/2021"), 21 + 27);
  EXPECT_EQ(iNbJoursBase30("10/01/2021", "28/02/2021"), 21 + 30);
  EXPECT_EQ(iNbJoursBase30("10/01/2020", "28/02/2020"), 21 + 28);  // 28 < 29
  EXPECT_EQ(iNbJoursBase30("10/01/2020", "29/02/2020"), 21 + 30);
}

TEST_F(ModOutilsSpecReviewTest, Base30FebruaryStartingThePeriod) {
  // The February share 30 - d + 1 reaching the days of February counts 30.
  EXPECT_EQ(iNbJoursBase30("02/02/2021", "15/03/2021"), 30 + 15);  // 29 >= 28
  EXPECT_EQ(iNbJoursBase30("03/02/2021", "15/03/2021"), 30 + 15);  // 28 >= 28
  EXPECT_EQ(iNbJoursBase30("04/02/2021", "15/03/2021"), 27 + 15);
  EXPECT_EQ(iNbJoursBase30("02/02/2020", "15/03/2020"), 30 + 15);  // 29 >= 29
  EXPECT_EQ(iNbJoursBase30("03/02/2020", "15/03/2020"), 28 + 15);  // 28 < 29
  // February's length is taken in the end's year: 2021 has 28, so 28 >= 28.
  EXPECT_EQ(iNbJoursBase30("03/02/2020", "15/03/2021"), 30 + 15);
}

TEST_F(ModOutilsSpecReviewTest, Base30DescendingMonthsGiveZero) {
  EXPECT_EQ(iNbJoursBase30("16/12/2020", "15/01/2021"), 0);
  EXPECT_EQ(iNbJoursBase30("01/05/2021", "31/03/2021"), 0);
}

TEST_F(ModOutilsSpecReviewTest, Base30ImpossibleDateIsAFault) {
  EXPECT_THROW(iNbJoursBase30("30/02/2021", "15/03/2021"), Fault);
  EXPECT_THROW(iNbJoursBase30("", "15/03/2021"), Fault);
}

// --- iNbJoursBase30Commun --------------------------------------------------------------

TEST_F(ModOutilsSpecReviewTest, Base30CommunComparesDatesNotTexts) {
  // Later beginning 01/03/2021 (A), earlier end 31/03/2021 (A): a whole March.
  EXPECT_EQ(iNbJoursBase30Commun("01/03/2021", "31/03/2021", "15/02/2021", "10/04/2021"), 30);
  EXPECT_EQ(iNbJoursBase30Commun("15/02/2021", "10/04/2021", "01/03/2021", "31/03/2021"), 30);
}

TEST_F(ModOutilsSpecReviewTest, Base30CommunBoundaries) {
  // B inside A.
  EXPECT_EQ(iNbJoursBase30Commun("01/01/2021", "31/12/2021", "10/02/2021", "28/02/2021"), 21);
  // Touching on one day, either side.
  EXPECT_EQ(iNbJoursBase30Commun("01/03/2021", "15/03/2021", "15/03/2021", "31/03/2021"), 1);
  EXPECT_EQ(iNbJoursBase30Commun("15/03/2021", "31/03/2021", "01/03/2021", "15/03/2021"), 1);
  // A day apart.
  EXPECT_EQ(iNbJoursBase30Commun("01/03/2021", "14/03/2021", "15/03/2021", "31/03/2021"), 0);
  EXPECT_EQ(iNbJoursBase30Commun("15/03/2021", "31/03/2021", "01/03/2021", "14/03/2021"), 0);
  // Overlap across the new year goes to iNbJoursBase30(15/12/2021, 15/01/2022): months 12 to 1.
  EXPECT_EQ(iNbJoursBase30Commun("01/12/2021", "31/01/2022", "15/12/2021", "15/01/2022"), 0);
}

// --- iNbJoursCommunsMois ---------------------------------------------------------------

TEST_F(ModOutilsSpecReviewTest, JoursCommunsMoisCalendarDays) {
  // Any day of the month names it: 01/01/2021 to 31/01/2021 is 31 days.
  EXPECT_EQ(iNbJoursCommunsMois("25/12/2020", "", "31/01/2021"), 31);
  EXPECT_EQ(iNbJoursCommunsMois("25/12/2020", "10/02/2021", "15/01/2021"), 31);
  EXPECT_EQ(iNbJoursCommunsMois("01/02/2020", "", "29/02/2020"), 29);
  EXPECT_EQ(iNbJoursCommunsMois("05/04/2021", "", "01/04/2021"), 26);  // 30 - 5 + 1
  EXPECT_EQ(iNbJoursCommunsMois("01/01/2021", "03/04/2021", "01/04/2021"), 3);
  EXPECT_EQ(iNbJoursCommunsMois("30/04/2021", "", "01/04/2021"), 1);
}

TEST_F(ModOutilsSpecReviewTest, JoursCommunsMoisOutsideTheMonth) {
  EXPECT_EQ(iNbJoursCommunsMois("01/01/2021", "31/03/2021", "01/04/2021"), 0);
  EXPECT_EQ(iNbJoursCommunsMois("01/05/2021", "", "01/04/2021"), 0);
  EXPECT_EQ(iNbJoursCommunsMois("01/05/2021", "31/05/2021", "30/04/2021"), 0);
  // Inverted period inside the month: -1 + 1 = 0, -9 + 1 gives 0.
  EXPECT_EQ(iNbJoursCommunsMois("15/03/2021", "14/03/2021", "01/03/2021"), 0);
  EXPECT_EQ(iNbJoursCommunsMois("20/03/2021", "11/03/2021", "01/03/2021"), 0);
  EXPECT_THROW(iNbJoursCommunsMois("", "", "01/03/2021"), Fault);
}

// --- bJourOuvre ------------------------------------------------------------------------

TEST_F(ModOutilsSpecReviewTest, JourOuvreSaturdays) {
  EXPECT_FALSE(bJourOuvre("15/05/2021", false, false));
  EXPECT_TRUE(bJourOuvre("15/05/2021", true, false));
  // 14/07/2018 is a Saturday and a holiday.
  EXPECT_FALSE(bJourOuvre("14/07/2018", true, false));
  // 25/12/2021 is a Saturday and a holiday.
  EXPECT_FALSE(bJourOuvre("25/12/2021", true, true));
}

TEST_F(ModOutilsSpecReviewTest, JourOuvreMovableFeasts2021) {
  EXPECT_FALSE(bJourOuvre("05/04/2021", false, false));  // Easter Monday
  EXPECT_FALSE(bJourOuvre("13/05/2021", false, false));  // + 38
  EXPECT_FALSE(bJourOuvre("24/05/2021", false, false));  // + 49
  EXPECT_TRUE(bJourOuvre("14/05/2021", false, false));
  EXPECT_TRUE(bJourOuvre("25/05/2021", false, false));
}

TEST_F(ModOutilsSpecReviewTest, JourOuvreFirstAndLastExaminedYears) {
  EXPECT_FALSE(bJourOuvre("25/05/2006", false, false));  // 38824 + 38
  EXPECT_FALSE(bJourOuvre("05/06/2006", false, false));  // 38824 + 49
  EXPECT_FALSE(bJourOuvre("27/05/2049", false, false));  // 54532 + 38
  EXPECT_FALSE(bJourOuvre("07/06/2049", false, false));  // 54532 + 49
  // 2050 is the last entry and is not examined; its Whit Sunday stays a Sunday.
  EXPECT_TRUE(bJourOuvre("11/04/2050", true, true));
  EXPECT_FALSE(bJourOuvre("29/05/2050", true, true));
}

TEST_F(ModOutilsSpecReviewTest, JourOuvre2022Entry) {
  EXPECT_FALSE(bJourOuvre("24/04/2022", true, true));  // the entry itself is a Sunday
  EXPECT_TRUE(bJourOuvre("18/04/2022", true, true));   // the Gregorian Easter Monday
  EXPECT_FALSE(bJourOuvre("01/06/2022", true, false));  // + 38
  // + 48 is Saturday 11/06/2022: off when Saturday is not worked, whatever the flag.
  EXPECT_FALSE(bJourOuvre("11/06/2022", false, false));
  EXPECT_FALSE(bJourOuvre("11/06/2022", false, true));
  EXPECT_TRUE(bJourOuvre("11/06/2022", true, false));
  EXPECT_FALSE(bJourOuvre("11/06/2022", true, true));
}

// --- iNbJoursOuvresAnnee ---------------------------------------------------------------

TEST_F(ModOutilsSpecReviewTest, JoursOuvresAnnee2021) {
  // 01/01/2021 is a Friday: 261 weekdays. Weekday holidays: 01/01, 14/07, 01/11, 11/11 and
  // 05/04, 13/05, 24/05: 261 - 7 = 254. 52 Saturdays, 01/05, 08/05, 25/12 among them: +49.
  EXPECT_EQ(iNbJoursOuvresAnnee("2021", false, false), 254);
  EXPECT_EQ(iNbJoursOuvresAnnee("2021", true, false), 303);
  EXPECT_EQ(iNbJoursOuvresAnnee("2021", true, true), 303);
}

TEST_F(ModOutilsSpecReviewTest, JoursOuvresAnnee2050HasNoMovableFeast) {
  // 01/01/2050 is a Saturday: 260 weekdays, 14/07, 15/08, 01/11, 11/11 off: 256.
  // 53 Saturdays, 01/01 among them: +52.
  EXPECT_EQ(iNbJoursOuvresAnnee("2050", false, false), 256);
  EXPECT_EQ(iNbJoursOuvresAnnee("2050", true, false), 308);
}

// --- CoefficientsCPA -------------------------------------------------------------------

TEST_F(ModOutilsSpecReviewTest, CPAPDAcrossALeapYear) {
  double c = 0, h = 0, p = 0;
  // 01/03/2023 to 27/02/2025: 366 + 365 - 2 = 729 days.
  CoefficientsCPA("PD", "01/03/2023", "27/02/2025", c, h, &p);
  EXPECT_EQ(c, 0.85714);
  EXPECT_EQ(h, 0.85714);
  EXPECT_EQ(p, 80.0);
  // 28/02/2025: 730 days.
  CoefficientsCPA("PD", "01/03/2023", "28/02/2025", c, h, &p);
  EXPECT_EQ(c, 0.7);
  EXPECT_EQ(h, 0.6);
  EXPECT_EQ(p, 60.0);
  // An end before the start: a negative difference, under 730.
  CoefficientsCPA("PD", "01/03/2025", "01/03/2023", c, h, &p);
  EXPECT_EQ(c, 0.85714);
  EXPECT_EQ(p, 80.0);
}

TEST_F(ModOutilsSpecReviewTest, CPAPercentageOnlyWhenAsked) {
  double c = 0, h = 0;
  CoefficientsCPA("PD", "01/01/2023", "31/12/2024", c, h);
  EXPECT_EQ(c, 0.7);
  EXPECT_EQ(h, 0.6);
  CoefficientsCPA("PF", "01/01/2023", "31/12/2024", c, h);
  EXPECT_EQ(c, 0.6);
  EXPECT_EQ(h, 0.5);
}

TEST_F(ModOutilsSpecReviewTest, CPAOtherTypesLeaveEverythingUntouched) {
  double c = 1.25, h = 2.5, p = 3.75;
  for (const char* t : {"pd", "PD ", " CP", "P", "CPA", "Pf"}) {
    CoefficientsCPA(t, "01/01/2023", "31/12/2024", c, h, &p);
    EXPECT_EQ(c, 1.25) << t;
    EXPECT_EQ(h, 2.5) << t;
    EXPECT_EQ(p, 3.75) << t;
  }
}

}  // namespace
}  // namespace orvalis
