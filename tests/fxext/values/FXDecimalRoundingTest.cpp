#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "tests/fxext/values/FXDecimalTestSupport.h"

using FXExt::FXDecimal;

namespace {

constexpr char MINUS_ONE = static_cast<char>(-1);
constexpr long long SMALLEST = std::numeric_limits<long long>::min();
constexpr long long LARGEST = std::numeric_limits<long long>::max();

/// What the text prints after applyRound(p).
std::string rounded(const char* text, char p, char precision = 4) {
  return print(number(text, precision).applyRound(p));
}

}  // namespace

TEST(FXDecimalNormalize, MovesTrailingZerosIntoTheExponent) {
  EXPECT_EQ(fields(raw(1500, -2, 2).normalize()), "15 0 2 0");
  EXPECT_EQ(fields(raw(-1500, -4, 1).normalize()), "-15 -2 2 0");
  EXPECT_EQ(fields(raw(1000000000000000000LL, 0, 2).normalize()), "1 18 2 0");
}

TEST(FXDecimalNormalize, ClearsTheExponentOfZero) {
  EXPECT_EQ(fields(raw(0, -3, 2).normalize()), "0 0 2 0");
  EXPECT_EQ(fields(raw(0, 3, 2).normalize()), "0 0 2 0");
  EXPECT_EQ(fields(raw(0, 3, -5).normalize()), "0 0 0 0");
}

TEST(FXDecimalNormalize, RaisesThePrecisionButNeverLowersIt) {
  EXPECT_EQ(fields(raw(12345, -4, 2).normalize()), "12345 -4 4 0");
  EXPECT_EQ(fields(raw(5, 0, 4).normalize()), "5 0 4 0");
  EXPECT_EQ(fields(raw(5, 2, -1).normalize()), "5 2 -1 0");
  EXPECT_EQ(fields(raw(5, 2, -3).normalize()), "5 2 -2 0");
}

TEST(FXDecimalNormalize, KeepsMarkAndWorth) {
  for (const FXDecimal& d : {raw(1500, -4, 1, 1), raw(-30, 5, 0, 9), raw(0, -2, 2, 1), raw(7, -3, 3, 2)}) {
    FXDecimal normal = d;
    EXPECT_EQ(&normal.normalize(), &normal);
    EXPECT_TRUE(normal == d);
    EXPECT_EQ(normal.mark, d.mark);
    const std::string once = fields(normal);
    EXPECT_EQ(fields(normal.normalize()), once);
  }
}

TEST(FXDecimalForcePrecision, CutsSurplusPlaces) {
  EXPECT_EQ(fields(raw(1239, -3, 2).forcePrecision()), "123 -2 2 0");
  EXPECT_EQ(fields(raw(-1239, -3, 2).forcePrecision()), "-123 -2 2 0");
  EXPECT_EQ(fields(raw(129999, -5, 1, 1).forcePrecision()), "12 -1 1 1");
  EXPECT_EQ(fields(raw(1299, 0, -2).forcePrecision()), "12 2 -2 0");
}

TEST(FXDecimalForcePrecision, NeverNormalises) {
  EXPECT_EQ(fields(raw(120, -2, 2).forcePrecision()), "120 -2 2 0");
  EXPECT_EQ(fields(raw(1200, -1, 2).forcePrecision()), "1200 -1 2 0");
  EXPECT_EQ(fields(raw(1009, -3, 2).forcePrecision()), "100 -2 2 0");
  EXPECT_EQ(fields(raw(0, -5, 2).forcePrecision()), "0 -2 2 0");
}

TEST(FXDecimalForcePrecision, EndsForEveryPrecision) {
  EXPECT_EQ(fields(raw(LARGEST, 0, -128).forcePrecision()), "0 -128 -128 0");
  EXPECT_EQ(fields(raw(LARGEST, -128, -128).forcePrecision()), "0 -128 -128 0");
  EXPECT_EQ(fields(raw(SMALLEST, -128, 127).forcePrecision()), "-922337203685477580 -127 127 0");
  EXPECT_EQ(fields(raw(SMALLEST, -20, 2).forcePrecision()), "-9 -2 2 0");
  EXPECT_EQ(fields(raw(SMALLEST, -21, 2).forcePrecision()), "0 -2 2 0");
  FXDecimal d = raw(1239, -3, 2);
  EXPECT_EQ(&d.forcePrecision(), &d);
}

TEST(FXDecimalApplyPrecision, HoldsAFixedNumberOfPlaces) {
  FXDecimal d = number("2.5");
  EXPECT_EQ(&d.applyPrecision(0), &d);
  EXPECT_EQ(fields(d), "25000 -4 4 0");
  EXPECT_EQ(print(d), "2.5000");
  EXPECT_EQ(fields(number("2.5", 2).applyPrecision(3)), "250000 -5 2 0");
  EXPECT_EQ(print(raw(3, 2, 2).applyPrecision(0)), "300.00");
}

TEST(FXDecimalApplyPrecision, NormalisesFirst) {
  EXPECT_EQ(fields(raw(150000, -5, 1, 1).applyPrecision(0)), "15 -1 1 1");
  EXPECT_EQ(fields(raw(12345, -5, 1).applyPrecision(1)), "123450 -6 5 0");
}

TEST(FXDecimalApplyPrecision, GivesZeroItsPlaces) {
  EXPECT_EQ(fields(FXDecimal(0, 0, 4).applyPrecision(0)), "0 -4 4 0");
  EXPECT_EQ(print(FXDecimal(0, 0, 4).applyPrecision(0)), "0.0000");
  EXPECT_EQ(print(FXDecimal(0, 0, 4).applyPrecision(-2)), "0.00");
}

TEST(FXDecimalApplyPrecision, FewerPlacesAreCut) {
  EXPECT_EQ(fields(number("2.5678").applyPrecision(-2)), "256 -2 4 0");
  EXPECT_EQ(fields(number("-2.5678").applyPrecision(-4)), "-2 0 4 0");
  EXPECT_EQ(fields(number("1234").applyPrecision(-6)), "12 2 4 0");
}

TEST(FXDecimalApplyPrecision, IsDefinedForEveryNumberOfPlaces) {
  EXPECT_EQ(fields(number("1").applyPrecision(60)), "0 -64 4 0");
  EXPECT_EQ(fields(number("1").applyPrecision(std::numeric_limits<int>::max())), "0 -3 4 0");
  EXPECT_EQ(fields(number("1").applyPrecision(std::numeric_limits<int>::min())), "0 -4 4 0");
}

TEST(FXDecimalApplyRound, RoundsHalfAwayFromZero) {
  EXPECT_EQ(rounded("2.345", 2), "2.35");
  EXPECT_EQ(rounded("-2.345", 2), "-2.35");
  EXPECT_EQ(rounded("2.344", 2), "2.34");
  EXPECT_EQ(rounded("-2.344", 2), "-2.34");
  EXPECT_EQ(rounded("0.005", 2), "0.01");
  EXPECT_EQ(rounded("-0.005", 2), "-0.01");
  EXPECT_EQ(rounded("0.0049", 2), "0.00");
  EXPECT_EQ(rounded("2.5", 0), "3");
  EXPECT_EQ(rounded("-2.5", 0), "-3");
  EXPECT_EQ(rounded("9.99", 1), "10.0");
}

TEST(FXDecimalApplyRound, DigitsBeyondTheHalfDecideToo) {
  EXPECT_EQ(rounded("2.34499999", 2), "2.34");
  EXPECT_EQ(rounded("2.345000001", 2), "2.35");
  EXPECT_EQ(rounded("0.4999999999999", 0), "0");
}

TEST(FXDecimalApplyRound, ShowsTrailingZeros) {
  EXPECT_EQ(fields(number("1.2049").applyRound(2)), "120 -2 2 0");
  EXPECT_EQ(rounded("1.2049", 2), "1.20");
  EXPECT_EQ(rounded("5", 2), "5.00");
  EXPECT_EQ(rounded("300", 1), "300.0");
  EXPECT_EQ(rounded("1.5", 6), "1.500000");
}

TEST(FXDecimalApplyRound, AHalfThatCarriesLeavesNoTrailingZeros) {
  // The sum 5.0000 is normalised before it is cut, and there is nothing left to cut.
  EXPECT_EQ(fields(number("4.995").applyRound(2)), "5 0 2 0");
  EXPECT_EQ(fields(number("4.9951").applyRound(2)), "500 -2 2 0");
}

TEST(FXDecimalApplyRound, SetsThePrecision) {
  FXDecimal d = number("1.23456789", 6);
  EXPECT_EQ(&d.applyRound(3), &d);
  EXPECT_EQ(fields(d), "1235 -3 3 0");
  EXPECT_EQ(fields(raw(12345, -4, 0, 1).applyRound(1)), "12 -1 1 1");
  EXPECT_EQ(fields(raw(123450000, -8, 0).applyRound(3)), "1235 -3 3 0");
}

TEST(FXDecimalApplyRound, ZeroOnlyGetsThePrecision) {
  EXPECT_EQ(fields(FXDecimal().applyRound(3)), "0 0 3 1");
  EXPECT_EQ(fields(raw(0, -7, 2).applyRound(3)), "0 -7 3 0");
  EXPECT_EQ(fields(raw(0, 5, 2).applyRound(MINUS_ONE)), "0 5 -1 0");
}

TEST(FXDecimalApplyRound, NothingLeftIsAZeroWithoutSign) {
  EXPECT_EQ(rounded("0.001", 2), "0.00");
  EXPECT_EQ(rounded("-0.001", 2), "0.00");
  EXPECT_EQ(fields(number("-0.001").applyRound(2)), "0 -2 2 0");
}

TEST(FXDecimalApplyRound, RoundsTensWithNegativePlaces) {
  EXPECT_EQ(rounded("14", MINUS_ONE), "10");
  EXPECT_EQ(rounded("15", MINUS_ONE), "20");
  EXPECT_EQ(rounded("-15", MINUS_ONE), "-20");
  EXPECT_EQ(rounded("149.9", static_cast<char>(-2)), "100");
  EXPECT_EQ(rounded("4", MINUS_ONE), "0");
  EXPECT_EQ(fields(number("14").applyRound(MINUS_ONE)), "1 1 -1 0");
}

TEST(FXDecimalApplyRound, WorksAtFourPlacesAtLeastAndWrapsThere) {
  // At four places the mantissa is 10,000,000,000,000,010,000: 2^64 too much for the 64 bits to hold.
  EXPECT_EQ(fields(FXDecimal(1000000000000001LL, 0, 0).applyRound(0)), "-844674407370954 0 0 0");
  EXPECT_EQ(fields(FXDecimal(900000000000001LL, 0, 0).applyRound(0)), "900000000000001 0 0 0");
}

TEST(FXDecimalApplyRound, EndsForEveryNumberOfPlaces) {
  EXPECT_EQ(fields(number("1").applyRound(static_cast<char>(-128))), "0 -128 -128 0");
  EXPECT_EQ(fields(number("1").applyRound(static_cast<char>(-127))), "0 127 -127 0");
  EXPECT_EQ(fields(number("1").applyRound(127)), "0 -127 127 0");
  EXPECT_EQ(fields(raw(LARGEST, -128, 0).applyRound(2)), "0 -2 2 0");
  EXPECT_EQ(fields(raw(SMALLEST, 0, -128).applyRound(0)), fields(FXDecimal(SMALLEST, 0, 0).applyRound(0)));
}

TEST(FXDecimalRound, ReturnsANormalisedCopy) {
  const FXDecimal d = number("1.2049");
  EXPECT_EQ(print(d.round(2)), "1.2");
  EXPECT_EQ(fields(d.round(2)), "12 -1 2 0");
  EXPECT_EQ(fields(d), "12049 -4 4 0");
  EXPECT_EQ(print(number("-0.005").round(2)), "-0.01");
  EXPECT_EQ(print(number("5").round(2)), "5");
  EXPECT_EQ(fields(number("0.001").round(2)), "0 0 2 0");
}

TEST(FXDecimalRound, KeepsTheMark) {
  const FXDecimal d = raw(12049, -4, 4, 1);
  EXPECT_EQ(fields(d.round(2)), "12 -1 2 1");
  EXPECT_EQ(fields(d), "12049 -4 4 1");
  EXPECT_EQ(fields(FXDecimal().round(3)), "0 0 3 1");
}

TEST(FXDecimalRound, RoundsTensWithNegativePlaces) {
  EXPECT_EQ(fields(number("15").round(MINUS_ONE)), "2 1 -1 0");
  EXPECT_EQ(fields(number("4").round(MINUS_ONE)), "0 0 0 0");
}
