#include <limits>
#include <string>
#include <type_traits>
#include <utility>

#include <gtest/gtest.h>

#include "tests/fxext/values/FXDecimalTestSupport.h"

using FXExt::FXDecimal;

namespace {

constexpr long long SMALLEST = std::numeric_limits<long long>::min();
constexpr long long LARGEST = std::numeric_limits<long long>::max();

static_assert(std::is_same_v<decltype(std::declval<FXDecimal>() + std::declval<FXDecimal>()), FXDecimal>);
static_assert(std::is_same_v<decltype(std::declval<FXDecimal&>() += std::declval<FXDecimal>()), FXDecimal&>);

}  // namespace

TEST(FXDecimalAddition, AlignsBothOperands) {
  EXPECT_EQ(print(number("0.5") + number("0.25")), "0.75");
  EXPECT_EQ(print(number("1.75") + number("0.25")), "2");
  EXPECT_EQ(print(number("100") + number("0.0001")), "100.0001");
  EXPECT_EQ(print(number("-1.5") + number("0.25")), "-1.25");
  EXPECT_EQ(print(number("0.5") - number("0.75")), "-0.25");
  EXPECT_EQ(print(raw(3, 2, 0) + raw(4, 1, 0)), "340");
}

TEST(FXDecimalAddition, ResultHasTheLargerPrecision) {
  EXPECT_EQ(fields(FXDecimal(1, 0, 2) + FXDecimal(2, 0, 4)), "3 0 4 0");
  EXPECT_EQ(fields(FXDecimal(1, 0, 4) - FXDecimal(3, 0, 2)), "-2 0 4 0");
  EXPECT_EQ(fields(FXDecimal(15, -1, 0) + FXDecimal(1, 0, 0)), "25 -1 1 0");
}

TEST(FXDecimalAddition, NormalisingTheLeftOperandRaisesThePrecision) {
  EXPECT_EQ(fields(raw(1234500, -5, 2) + FXDecimal(1, 0, 2)), "13345 -3 3 0");
  EXPECT_EQ(fields(raw(12345, -5, 2) - FXDecimal(0, 0, 2)), "12345 -5 5 0");
}

TEST(FXDecimalAddition, RightOperandWithMorePlacesThanTheSumCountsUnscaled) {
  EXPECT_EQ(print(FXDecimal(1, 0, 2) + raw(15000, -4, 2)), "151");
  EXPECT_EQ(print(FXDecimal(1, 0, 2) - raw(15000, -4, 2)), "-149");
  FXDecimal half = number("1.5", 2);
  half.applyPrecision(2);
  EXPECT_EQ(print(FXDecimal(1, 0, 2) + half), "151");
}

TEST(FXDecimalAddition, ZeroResultKeepsThePrecision) {
  EXPECT_EQ(fields(number("1.5") - number("1.5")), "0 0 4 0");
  EXPECT_EQ(fields(number("1.5", 2) + number("-1.5", 3)), "0 0 3 0");
  EXPECT_EQ(fields(FXDecimal() + FXDecimal()), "0 0 2 1");
  EXPECT_EQ(fields(raw(5, 0, -3) - raw(5, 0, -3)), "0 0 0 0");
}

TEST(FXDecimalAddition, Wraps) {
  EXPECT_EQ(fields(FXDecimal(LARGEST, 0, 0) + FXDecimal(1, 0, 0)), "-9223372036854775808 0 0 0");
  EXPECT_EQ(fields(FXDecimal(SMALLEST, 0, 0) - FXDecimal(1, 0, 0)), "9223372036854775807 0 0 0");
  EXPECT_EQ(fields(FXDecimal(0, 0, 0) - FXDecimal(SMALLEST, 0, 0)), "-9223372036854775808 0 0 0");
  // At four places the mantissa is 93,000,000,000,000,010,000, which is 766,279,631,452,251,920 after 5 turns of 2^64.
  EXPECT_EQ(print(FXDecimal(9300000000000001LL, 0, 4) + FXDecimal(0, 0, 4)), "76627963145225.192");
}

TEST(FXDecimalAddition, IsDefinedForOperandsFarApart) {
  EXPECT_EQ(print(number("1.00000000000000000001") - number("1.00000000000000000001")), "0");
  FXDecimal total(0, 0, 4);
  total += number("1.0000000000000001");
  EXPECT_EQ(print(total), "1.0000000000000001");
  // 10^20 more than a mantissa holds: what is left of 10^20 + 1 in 64 bits, at 20 places.
  total = FXDecimal(0, 0, 4) + number("1.00000000000000000001");
  EXPECT_EQ(fields(total), "7766279631452241921 -20 20 0");
  EXPECT_EQ(print(FXDecimal(1, 127, 0) + FXDecimal(1, static_cast<char>(-127), 0)), "0." + std::string(126, '0') + "1");
}

TEST(FXDecimalMultiplication, MultipliesMantissasAndAddsExponents) {
  EXPECT_EQ(fields(number("1.25", 2) * number("0.05", 2)), "625 -4 4 0");
  EXPECT_EQ(fields(number("1.25", 2) * number("0.4", 6)), "5 -1 6 0");
  EXPECT_EQ(print(number("-1.5") * number("1.5")), "-2.25");
  EXPECT_EQ(print(raw(3, 2, 0) * raw(2, 3, 0)), "600000");
  EXPECT_EQ(fields(number("0") * number("1.5")), "0 0 4 0");
}

TEST(FXDecimalMultiplication, Wraps) {
  EXPECT_EQ(fields(FXDecimal(LARGEST, 0, 0) * FXDecimal(LARGEST, 0, 0)), "1 0 0 0");
  EXPECT_EQ(fields(FXDecimal(SMALLEST, 0, 0) * FXDecimal(-1, 0, 0)), "-9223372036854775808 0 0 0");
  EXPECT_EQ(fields(raw(3, 100, 0) * raw(3, 100, 0)), "9 -56 56 0");
}

TEST(FXDecimalDivision, CutsAtTheLargerPrecision) {
  EXPECT_EQ(print(number("1") / number("3")), "0.3333");
  EXPECT_EQ(print(number("-1") / number("3")), "-0.3333");
  EXPECT_EQ(print(number("2") / number("3")), "0.6666");
  EXPECT_EQ(print(number("-2") / number("-3")), "0.6666");
  EXPECT_EQ(print(FXDecimal(2, 0, 1) / FXDecimal(3, 0, 6)), "0.666666");
  EXPECT_EQ(print(number("7.5") / number("2.5")), "3");
}

TEST(FXDecimalDivision, PlacesDependOnTheDivisorsExponent) {
  EXPECT_EQ(print(number("1") / number("0.3")), "3.3333");
  EXPECT_EQ(fields(number("1") / raw(3, 2, 4)), "3333 -6 6 0");
  EXPECT_EQ(print(number("1") / number("0.0003")), "3333.3333");
}

TEST(FXDecimalDivision, ZeroQuotientIsCleared) {
  EXPECT_EQ(fields(number("0") / number("5")), "0 0 4 0");
  EXPECT_EQ(fields(number("0.0001") / FXDecimal(30000, 0, 4)), "0 0 4 0");
  EXPECT_EQ(fields(number("-0.0001") / FXDecimal(30001, 0, 4)), "0 0 4 0");
  EXPECT_EQ(fields(raw(1, 0, -2) / raw(7, 0, -2)), "0 0 0 0");
}

TEST(FXDecimalDivision, ResultHasTheLargerPrecision) {
  EXPECT_EQ(fields(FXDecimal(1, 0, 2) / FXDecimal(2, 0, 4)), "5 -1 4 0");
  EXPECT_EQ(fields(FXDecimal(1, 0, 4) / FXDecimal(2, 0, 2)), "5 -1 4 0");
  EXPECT_EQ(fields(FXDecimal(0, 0, 2) / FXDecimal(2, 0, 4)), "0 0 4 0");
}

TEST(FXDecimalDivision, UnnormalisedDividendKeepsAllItsPlaces) {
  EXPECT_EQ(fields(raw(12345, -5, 1) / FXDecimal(1, 0, 1)), "12345 -5 5 0");
  EXPECT_EQ(fields(raw(150000, -5, 1) / FXDecimal(1, 0, 1)), "15 -1 1 0");
}

TEST(FXDecimalDivision, OverflowingQuotientWraps) {
  EXPECT_EQ(fields(FXDecimal(SMALLEST, 0, 0) / FXDecimal(-1, 0, 0)), "-9223372036854775808 0 0 0");
  EXPECT_EQ(fields(FXDecimal(SMALLEST, 0, 0) / -1), "-9223372036854775808 0 0 0");
}

TEST(FXDecimalDivision, ByZeroIsZero) {
  EXPECT_EQ(fields(number("1.5", 2) / FXDecimal(0, 0, 4)), "0 0 4 0");
  EXPECT_EQ(fields(number("1.5", 2) / 0), "0 0 2 0");
  EXPECT_EQ(fields(FXDecimal() / FXDecimal()), "0 0 2 1");
}

TEST(FXDecimalInteger, AdditionIsThatOfAFourPlaceNumber) {
  EXPECT_EQ(print(number("2.5", 2) + 1), "3.5");
  EXPECT_EQ(fields(number("2.5", 2) + 1), "35 -1 4 0");
  EXPECT_EQ(fields(number("2.5", 6) + 100), "1025 -1 6 0");
  EXPECT_EQ(fields(number("2.5", 2) + (-3)), "-5 -1 4 0");
  EXPECT_EQ(fields(FXDecimal() + 7), "7 0 4 1");
}

TEST(FXDecimalInteger, SubtractionIsThatOfTheMantissa) {
  EXPECT_EQ(print(number("2.5", 2) - 1), "2.4");
  EXPECT_EQ(fields(number("2.5", 2) - 1), "24 -1 2 0");
  EXPECT_EQ(fields(number("7", 2) - 2), "5 0 2 0");
  EXPECT_EQ(fields(number("2.5", 2) - 5), "2 0 2 0");
  EXPECT_EQ(fields(number("2.5", 2) - 25), "0 0 2 0");
  EXPECT_EQ(fields(FXDecimal(SMALLEST, 0, 0) - 1), "9223372036854775807 0 0 0");
}

TEST(FXDecimalInteger, MultiplicationKeepsTheExponent) {
  EXPECT_EQ(fields(number("2.5") * 4), "1 1 4 0");
  EXPECT_EQ(print(number("2.5") * 4), "10");
  EXPECT_EQ(print(number("2.5") * -3), "-7.5");
  EXPECT_EQ(fields(number("2.5") * 0), "0 0 4 0");
  EXPECT_EQ(fields(FXDecimal(LARGEST, 0, 0) * 2), "-2 0 0 0");
}

TEST(FXDecimalInteger, DivisionCutsAtThePrecision) {
  EXPECT_EQ(print(number("2") / 3), "0.6666");
  EXPECT_EQ(print(number("-2") / 3), "-0.6666");
  EXPECT_EQ(print(number("2", 2) / 3), "0.66");
  EXPECT_EQ(fields(number("3") / 2), "15 -1 4 0");
  EXPECT_EQ(fields(number("0.0001") / 2), "0 0 4 0");
  EXPECT_EQ(fields(raw(12345, -5, 1) / 5), "2469 -5 5 0");
}

TEST(FXDecimalOperators, CarryTheLeftOperandsMark) {
  const FXDecimal marked;
  const FXDecimal plain(1, 0, 2);
  EXPECT_EQ((marked + plain).mark, 1);
  EXPECT_EQ((plain + marked).mark, 0);
  EXPECT_EQ((marked - plain).mark, 1);
  EXPECT_EQ((marked * plain).mark, 1);
  EXPECT_EQ((plain * marked).mark, 0);
  EXPECT_EQ((marked / plain).mark, 1);
  EXPECT_EQ((plain / marked).mark, 0);
  EXPECT_EQ((marked + 1).mark, 1);
  EXPECT_EQ((marked - 1).mark, 1);
  EXPECT_EQ((marked * 2).mark, 1);
  EXPECT_EQ((marked / 2).mark, 1);
  FXDecimal sum = raw(1, 0, 2, 5);
  EXPECT_EQ((sum += plain).mark, 5);
  EXPECT_EQ((sum -= plain).mark, 5);
  EXPECT_EQ((sum *= plain).mark, 5);
}

TEST(FXDecimalOperators, LeaveTheirOperandsAlone) {
  const FXDecimal a = raw(150, -2, 1, 1);
  const FXDecimal b = raw(2500, -3, 0, 3);
  EXPECT_EQ(print(a - b), "-248.5");  // b has three places, but the sum only one
  EXPECT_EQ(print(a * b), "3.75");
  EXPECT_EQ(print(a / b), "0.6");
  EXPECT_EQ(print(a / 2), "0.7");
  EXPECT_EQ(print(a - 1), "1.49");
  EXPECT_EQ(print(a * 2), "3");
  EXPECT_EQ(fields(a), "150 -2 1 1");
  EXPECT_EQ(fields(b), "2500 -3 0 3");
}

TEST(FXDecimalOperators, CompoundOnesChangeTheLeftOperandOnly) {
  const FXDecimal b = number("0.25");
  FXDecimal a = number("1.5");
  EXPECT_EQ(&(a += b), &a);
  EXPECT_EQ(print(a), "1.75");
  EXPECT_EQ(&(a -= b), &a);
  EXPECT_EQ(print(a), "1.5");
  EXPECT_EQ(&(a *= b), &a);
  EXPECT_EQ(print(a), "0.375");
  EXPECT_EQ(fields(b), "25 -2 4 0");
}

TEST(FXDecimalOperators, TakeTheirOwnLeftOperandOnTheRight) {
  for (const FXDecimal& d : {number("1.5"), number("-300"), raw(15000, -4, 2), raw(LARGEST, 3, 1), raw(0, -2, 7)}) {
    const FXDecimal copy = d;
    FXDecimal self = d;
    const FXDecimal& same = self;
    self += same;
    EXPECT_EQ(fields(self), fields(d + copy));
    self = d;
    self -= same;
    EXPECT_EQ(fields(self), fields(d - copy));
    self = d;
    self *= same;
    EXPECT_EQ(fields(self), fields(d * copy));
  }
}

TEST(FXDecimalOperators, RunningSumOfQuantitiesIsExact) {
  FXDecimal total(0, 0, 4);
  for (int i = 0; i < 10000; i++) total += number("0.1");
  EXPECT_EQ(print(total), "1000");
  EXPECT_TRUE(total - number("1000") == 0);
}
