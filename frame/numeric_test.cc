// Checked day counts and ids, and the rounding conversions of doubles.
#include "orvalis/numeric.h"

#include <gtest/gtest.h>

namespace orvalis {
namespace {

TEST(Int16Test, SumWithinRangeStays16Bit) {
  Int16 a = 32000;
  Int16 b = 767;
  Int16 s = a + b;
  EXPECT_EQ(s.value(), 32767);
}

TEST(Int16Test, SumPast32767IsAFault) {
  Int16 a = 32767;
  EXPECT_THROW(a + 1, Fault);
  EXPECT_THROW(a += Int16(1), Fault);
  EXPECT_THROW(++a, Fault);
}

TEST(Int16Test, DifferenceAndProductOverflowAreFaults) {
  Int16 a = -32768;
  EXPECT_THROW(a - 1, Fault);
  EXPECT_THROW(-a, Fault);
  Int16 b = 200;
  EXPECT_THROW(b * b, Fault);
  EXPECT_EQ((b * 100).value(), 20000);
}

TEST(Int16Test, ConstructionFromAnOutOfRangeIntegerIsAFault) {
  EXPECT_THROW(Int16(40000), Fault);
  EXPECT_THROW(Int16(-32769), Fault);
  EXPECT_EQ(Int16(-32768).value(), -32768);
}

TEST(Int16Test, MixingWithInt32GivesInt32) {
  Int16 a = 30000;
  Int32 b = 30000;
  auto s = a + b;
  static_assert(std::is_same_v<decltype(s), Int32>);
  EXPECT_EQ(s.value(), 60000);
}

TEST(Int16Test, DivisionIsADoubleAndZeroIsAFault) {
  Int16 j = 15;
  EXPECT_DOUBLE_EQ(j / 30, 0.5);
  EXPECT_THROW(j / 0, Fault);
  EXPECT_THROW(Div(1.0, 0.0), Fault);
  EXPECT_DOUBLE_EQ(Div(1.0, 4.0), 0.25);
}

TEST(Int16Test, DoublesMixInDoubleArithmetic) {
  Int16 j = 15;
  double d = j * 1.5;
  EXPECT_DOUBLE_EQ(d, 22.5);
  EXPECT_DOUBLE_EQ(30.0 - j, 15.0);
}

TEST(Int32Test, OverflowIsAFault) {
  Int32 a = 2147483647;
  EXPECT_THROW(a + 1, Fault);
  EXPECT_EQ((a - 1).value(), 2147483646);
}

TEST(CIntTest, RoundsHalfToEven) {
  EXPECT_EQ(CInt(2.5).value(), 2);
  EXPECT_EQ(CInt(3.5).value(), 4);
  EXPECT_EQ(CInt(-2.5).value(), -2);
  EXPECT_EQ(CInt(-3.5).value(), -4);
  EXPECT_EQ(CInt(2.4999).value(), 2);
  EXPECT_EQ(CInt(0.0).value(), 0);
}

TEST(CIntTest, OutOfRangeIsAFault) {
  EXPECT_EQ(CInt(32767.4).value(), 32767);
  EXPECT_THROW(CInt(32767.5), Fault);
  EXPECT_THROW(CInt(-32768.6), Fault);
  EXPECT_THROW(CLng(2147483647.5), Fault);
  EXPECT_EQ(CLng(2147483646.5).value(), 2147483646);
}

}  // namespace
}  // namespace orvalis
