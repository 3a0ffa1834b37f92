// A cell read as a number or a text.
#include "orvalis/value.h"

#include <gtest/gtest.h>

#include "orvalis/fault.h"

namespace orvalis {
namespace {

TEST(ValueTest, NumberAsItIs) {
  EXPECT_EQ(Value(12.5).Nombre(), 12.5);
  EXPECT_EQ(Value(-3).Nombre(), -3.0);
  EXPECT_EQ(Value(0.0).Nombre(), 0.0);
}

TEST(ValueTest, TrueIsMinusOne) {
  EXPECT_EQ(Value(true).Nombre(), -1.0);
  EXPECT_EQ(Value(false).Nombre(), 0.0);
}

TEST(ValueTest, NumericTextWithEitherSeparator) {
  EXPECT_EQ(Value("12.5").Nombre(), 12.5);
  EXPECT_EQ(Value("12,5").Nombre(), 12.5);
  EXPECT_EQ(Value("  -3,25 ").Nombre(), -3.25);
  EXPECT_EQ(Value("+7").Nombre(), 7.0);
  EXPECT_EQ(Value("0").Nombre(), 0.0);
  EXPECT_EQ(Value(".5").Nombre(), 0.5);
  EXPECT_EQ(Value("5.").Nombre(), 5.0);
  EXPECT_EQ(Value("1E3").Nombre(), 1000.0);
  EXPECT_EQ(Value("1.5E+15").Nombre(), 1.5e15);
  EXPECT_EQ(Value("\t1820.04\t").Nombre(), 1820.04);
}

TEST(ValueTest, NullAndNonNumericTextAreFaults) {
  EXPECT_THROW(Value().Nombre(), Fault);
  EXPECT_THROW(Value::Null().Nombre(), Fault);
  for (const char* t : {"", " ", "abc", "1.2.3", "1,234.5", "-", "+", ".", "12a", "1 2", "E5",
                        "1E", "0x10", "inf", "nan", "--1"}) {
    EXPECT_THROW(Value(t).Nombre(), Fault) << t;
  }
}

TEST(ValueTest, NullGivesZeroOrEmptyWhereAllowed) {
  EXPECT_EQ(Value().NombreOuZero(), 0.0);
  EXPECT_EQ(Value().TexteOuVide(), "");
  EXPECT_EQ(Value("4,5").NombreOuZero(), 4.5);
  EXPECT_EQ(Value(4.5).TexteOuVide(), "4.5");
}

TEST(ValueTest, TextAsItIs) {
  EXPECT_EQ(Value("abc").Texte(), "abc");
  EXPECT_EQ(Value(" 12,5 ").Texte(), " 12,5 ");
  EXPECT_EQ(Value("").Texte(), "");
  EXPECT_THROW(Value().Texte(), Fault);
}

TEST(ValueTest, BooleanText) {
  EXPECT_EQ(Value(true).Texte(), "True");
  EXPECT_EQ(Value(false).Texte(), "False");
}

TEST(ValueTest, NumberTextIsShortestOfFifteenDigits) {
  EXPECT_EQ(Value(3).Texte(), "3");
  EXPECT_EQ(Value(12.5).Texte(), "12.5");
  EXPECT_EQ(Value(-0.05).Texte(), "-0.05");
  EXPECT_EQ(Value(0.1 + 0.2).Texte(), "0.3");
  EXPECT_EQ(Value(100.99999999999999).Texte(), "101");
  EXPECT_EQ(Value(1234567.891).Texte(), "1234567.891");
  EXPECT_EQ(Value(1e14).Texte(), "100000000000000");
  EXPECT_EQ(Value(123456789012345.0).Texte(), "123456789012345");
  EXPECT_EQ(Value(0.000001).Texte(), "0.000001");
  EXPECT_EQ(Value(-0.0).Texte(), "0");
  EXPECT_EQ(Value(2.0 / 3.0).Texte(), "0.666666666666667");
}

TEST(ValueTest, NumberTextBeyondThePayrollRangeTakesAnExponent) {
  EXPECT_EQ(Value(1234567890123456.0).Texte(), "1.23456789012346E+15");
  EXPECT_EQ(Value(1e20).Texte(), "1E+20");
}

}  // namespace
}  // namespace orvalis
