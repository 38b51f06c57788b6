#include <cstddef>
#include <limits>
#include <string>
#include <type_traits>

#include <gtest/gtest.h>

#include "tests/fxext/values/FXDecimalTestSupport.h"

using FXExt::EXPS;
using FXExt::FXDecimal;

static_assert(std::is_trivially_copyable_v<FXDecimal>);
static_assert(!std::is_polymorphic_v<FXDecimal>);
static_assert(std::is_standard_layout_v<FXDecimal>);
static_assert(std::is_same_v<decltype(FXDecimal::value), long long>);
static_assert(std::is_same_v<decltype(FXDecimal::exponent), signed char>);
static_assert(std::is_same_v<decltype(FXDecimal::precision), signed char>);
static_assert(std::is_same_v<decltype(FXDecimal::mark), signed char>);
static_assert(offsetof(FXDecimal, value) == 0);
static_assert(offsetof(FXDecimal, exponent) == 8);
static_assert(offsetof(FXDecimal, precision) == 9);
static_assert(offsetof(FXDecimal, mark) == 10);
static_assert(sizeof(FXDecimal) == 16);
static_assert(std::is_same_v<decltype(EXPS), const long long[16]>);

TEST(FXDecimalPowers, AreTheFirstSixteenPowersOfTen) {
  long long power = 1;
  for (const long long entry : EXPS) {
    EXPECT_EQ(entry, power);
    power *= 10;
  }
  EXPECT_EQ(EXPS[15], 1000000000000000LL);
}

TEST(FXDecimalConstruction, DefaultIsZeroWithTwoPlacesAndMarked) {
  EXPECT_EQ(fields(FXDecimal()), "0 0 2 1");
  EXPECT_EQ(print(FXDecimal()), "0");
}

TEST(FXDecimalConstruction, FromPartsNormalisesAndIsNotMarked) {
  EXPECT_EQ(fields(FXDecimal(250, -2, 4)), "25 -1 4 0");
  EXPECT_EQ(fields(FXDecimal(150, -2, 2)), "15 -1 2 0");
  EXPECT_EQ(fields(FXDecimal(7, 0, 0)), "7 0 0 0");
  EXPECT_EQ(fields(FXDecimal(3, 2, 2)), "3 2 2 0");
  EXPECT_EQ(fields(FXDecimal(-300, 0, 2)), "-3 2 2 0");
}

TEST(FXDecimalConstruction, IntegerZeroKeepsItsPrecision) {
  const FXDecimal zero(0, 0, 4);
  EXPECT_EQ(fields(zero), "0 0 4 0");
  EXPECT_TRUE(zero == 0);
}

TEST(FXDecimalConstruction, ZeroLosesItsExponentAndANegativePrecision) {
  EXPECT_EQ(fields(FXDecimal(0, -3, 2)), "0 0 2 0");
  EXPECT_EQ(fields(FXDecimal(0, 5, 2)), "0 0 2 0");
  EXPECT_EQ(fields(FXDecimal(0, 0, -3)), "0 0 0 0");
}

TEST(FXDecimalConstruction, PrecisionGrowsToTheStrippedPlacesOnly) {
  EXPECT_EQ(fields(FXDecimal(12345, -4, 2)), "12345 -4 4 0");
  EXPECT_EQ(fields(FXDecimal(1500, -4, 1)), "15 -2 2 0");
  EXPECT_EQ(fields(FXDecimal(5, 0, 4)), "5 0 4 0");
}

TEST(FXDecimalConstruction, StripsMoreZerosThanTheTableHasPowers) {
  EXPECT_EQ(fields(FXDecimal(1000000000000000000LL, 0, 4)), "1 18 4 0");
  EXPECT_EQ(fields(FXDecimal(-9000000000000000000LL, 0, 4)), "-9 18 4 0");
  EXPECT_EQ(fields(FXDecimal(std::numeric_limits<long long>::min(), 0, 4)), "-9223372036854775808 0 4 0");
}

TEST(FXDecimalConstruction, CharArgumentsAreSigned) {
  const char minusTwo = static_cast<char>(-2);
  EXPECT_EQ(fields(FXDecimal(125, minusTwo, 2)), "125 -2 2 0");
  EXPECT_EQ(fields(FXDecimal(5, 1, static_cast<char>(-1))), "5 1 -1 0");
  EXPECT_EQ(fields(FXDecimal(FX::FXString("30"), static_cast<char>(-1))), "3 1 -1 0");
}

TEST(FXDecimalConstruction, ExponentsOutsideEightBitsWrap) {
  // Stripping 18 zeros from an exponent of 120 gives 138.
  EXPECT_EQ(fields(FXDecimal(1000000000000000000LL, 120, 4)), "1 -118 118 0");
  EXPECT_EQ(fields(FXDecimal(1, static_cast<char>(-128), 4)), "1 -128 -128 0");
}

TEST(FXDecimalConstruction, FromTextNormalises) {
  EXPECT_EQ(fields(number("12.50")), "125 -1 4 0");
  EXPECT_EQ(fields(number("-0.005")), "-5 -3 4 0");
  EXPECT_EQ(fields(number("")), "0 0 4 0");
  EXPECT_EQ(fields(number("0.00")), "0 0 4 0");
  EXPECT_EQ(fields(number("0.12345")), "12345 -5 5 0");
  EXPECT_EQ(fields(number("0.1234500", 4)), "12345 -5 5 0");
}

TEST(FXDecimalCopy, TakesAllFields) {
  const FXDecimal original = raw(1500, -4, 1, 7);
  const FXDecimal copy(original);
  FXDecimal assigned(3, 0, 9);
  assigned = original;
  EXPECT_EQ(fields(copy), "1500 -4 1 7");
  EXPECT_EQ(fields(assigned), "1500 -4 1 7");
  EXPECT_EQ(fields(FXDecimal(FXDecimal())), "0 0 2 1");
}

TEST(FXDecimalAssignInteger, ReplacesTheDigitsOnly) {
  FXDecimal d = number("0.07", 2);
  d = 5;
  EXPECT_EQ(fields(d), "5 -2 2 0");
  EXPECT_EQ(print(d), "0.05");
}

TEST(FXDecimalAssignInteger, KeepsTheMark) {
  FXDecimal d;
  EXPECT_EQ(fields(d = 5), "5 0 2 1");
}

TEST(FXDecimalAssignInteger, DoesNotNormalise) {
  FXDecimal d(1, 0, 2);
  d = 500;
  EXPECT_EQ(fields(d), "500 0 2 0");
  d = raw(3, -2, 2);
  d = 0;
  EXPECT_EQ(fields(d), "0 -2 2 0");
}

TEST(FXDecimalAssignInteger, GivesTheIntegerWhenThereAreNoPlaces) {
  FXDecimal d = number("7");
  d = 2;
  EXPECT_EQ(print(d), "2");
}

TEST(FXDecimalAssignInteger, ReturnsTheNumber) {
  FXDecimal d;
  EXPECT_EQ(&(d = 5), &d);
  EXPECT_EQ(&(d = FX::FXString("5")), &d);
  EXPECT_EQ(&d.parseString("5"), &d);
}
