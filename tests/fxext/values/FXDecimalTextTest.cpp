#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/fxext/values/FXDecimalTestSupport.h"

using FX::FXString;
using FXExt::FXDecimal;

namespace {

/// What a zero of precision 2 holds after the text was read into it, not normalised.
std::string parsed(const FXString& text) {
  FXDecimal d = raw(0, 0, 2);
  d.parseString(text);
  return fields(d);
}

/// What the whole number 5 prints after the text was read into it.
std::string intoFive(const char* text) {
  FXDecimal d(5, 0, 4);
  d = FXString(text);
  return print(d);
}

}  // namespace

TEST(FXDecimalText, DigitsCountByTheirPlace) {
  EXPECT_EQ(print(number("12")), "12");
  EXPECT_EQ(print(number("907")), "907");
  EXPECT_EQ(print(number("007")), "7");
  EXPECT_EQ(print(number("9223372036854775807")), "9223372036854775807");
}

TEST(FXDecimalText, PointSetsTheExponentAndNothingElse) {
  EXPECT_EQ(parsed("1.2"), "12 -1 2 0");
  EXPECT_EQ(parsed("1.10"), "110 -2 2 0");
  EXPECT_EQ(parsed("1.2345"), "12345 -4 2 0");
  EXPECT_EQ(parsed(".5"), "5 -1 2 0");
  EXPECT_EQ(parsed("5."), "5 0 2 0");
  EXPECT_EQ(parsed("."), "0 0 2 0");
}

TEST(FXDecimalText, LeftmostPointWins) {
  EXPECT_EQ(parsed("1.2.3"), "123 -3 2 0");
  EXPECT_EQ(print(number("1.2.3")), "0.123");
  EXPECT_EQ(parsed("..5"), "5 -2 2 0");
}

TEST(FXDecimalText, EveryByteRightOfThePointIsAPlace) {
  EXPECT_EQ(parsed("1.5 "), "15 -2 2 0");
  EXPECT_EQ(print(number("1.5 ")), "0.15");
  EXPECT_EQ(print(number("1. 5")), "0.15");
  EXPECT_EQ(parsed("1.5-"), "15 -2 2 0");
  EXPECT_EQ(parsed("2.\xC5\x91"), "2 -2 2 0");
}

TEST(FXDecimalText, MinusNegatesWhatStandsRightOfIt) {
  EXPECT_EQ(fields(number("-0.005")), "-5 -3 4 0");
  EXPECT_EQ(print(number("--3")), "3");
  EXPECT_EQ(print(number("---3")), "-3");
  EXPECT_EQ(print(number("1-2")), "8");
  EXPECT_EQ(print(number("-1-2")), "-8");
  EXPECT_EQ(print(number("3-")), "3");
  EXPECT_EQ(print(number("-")), "0");
}

TEST(FXDecimalText, BlankIsSkipped) {
  EXPECT_EQ(print(number("1 000")), "1000");
  EXPECT_EQ(print(number("  7  ")), "7");
  EXPECT_EQ(print(number("- 7")), "-7");
  EXPECT_EQ(print(number("   ")), "0");
}

TEST(FXDecimalText, OtherCharacterClearsTheValueButNotThePlace) {
  EXPECT_EQ(print(number("1,5")), "10");
  EXPECT_EQ(print(number("12x34")), "1200");
  EXPECT_EQ(print(number("5 db")), "5");
  EXPECT_EQ(print(number("5\t")), "5");
  EXPECT_EQ(print(number("1\t5")), "10");
  EXPECT_EQ(print(number("1\n5")), "10");
  EXPECT_EQ(print(number("+3")), "0");
  EXPECT_EQ(print(number("3\xC5\x91")), "3");
  EXPECT_EQ(print(number("\xC5\x91"
                         "3")),
            "0");
  EXPECT_EQ(print(FXDecimal(FXString("1\0"
                                     "5",
                                     3),
                            4)),
            "10");
  EXPECT_EQ(print(number("1e5")), "10");
  EXPECT_EQ(print(number("x-3")), "0");
  EXPECT_EQ(print(number("-3x")), "-3");
}

TEST(FXDecimalText, OtherCharacterKeepsTheExponent) {
  EXPECT_EQ(parsed("1x.5"), "10 -1 2 0");
  EXPECT_EQ(parsed("x.25"), "0 -2 2 0");
}

TEST(FXDecimalText, WithoutDigitsIsZero) {
  EXPECT_EQ(print(number("")), "0");
  EXPECT_EQ(print(number("abc")), "0");
  EXPECT_EQ(print(FXDecimal(FXString(), 4)), "0");
}

TEST(FXDecimalText, WrapsAtSixtyFourBits) {
  EXPECT_EQ(print(number("18446744073709551616")), "0");
  EXPECT_EQ(print(number("18446744073709551619")), "3");
  EXPECT_EQ(print(number("9223372036854775808")), "-9223372036854775808");
  EXPECT_EQ(print(number("-9223372036854775808")), "-9223372036854775808");
}

TEST(FXDecimalText, GarbageIsReadWithoutAWord) {
  testing::internal::CaptureStderr();
  testing::internal::CaptureStdout();
  for (const char* text : {"!\"#$%&'()*+/:;<=>?@", "-.-.-.", "NaN", "0x10", "e400", "\xFF\xFE\x80", ". . .", "--"}) {
    EXPECT_EQ(FXDecimal(FXString(text), 4) == 0, true) << text;
  }
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(FXDecimalText, LongTextsEndAndStayDefined) {
  const FXString zeros('0', 200);
  const FXString ones('1', 200);
  EXPECT_EQ(print(FXDecimal(zeros, 4)), "0");
  // 200 places are -200, which wraps to an exponent of 56.
  FXDecimal d = raw(0, 0, 4);
  d.parseString("1." + zeros);
  EXPECT_EQ(d.exponent, 56);
  EXPECT_EQ(d.value, 0);
  FXDecimal sum(1, 0, 4);
  sum += FXDecimal("0." + ones, 4);
  sum -= FXDecimal(ones + "." + ones, 4);
  EXPECT_EQ(sum == sum, true);
}

TEST(FXDecimalAssignText, AddsTheDigitsToWhatTheNumberHolds) {
  EXPECT_EQ(intoFive("3"), "8");
  EXPECT_EQ(intoFive(""), "5");
  EXPECT_EQ(intoFive("-3"), "-8");
  EXPECT_EQ(intoFive("3-"), "-2");
  EXPECT_EQ(intoFive("x3"), "0");
  EXPECT_EQ(intoFive("3x"), "3");
  EXPECT_EQ(intoFive("1x3"), "10");
}

TEST(FXDecimalAssignText, CountsInUnitsOfTheHeldExponent) {
  FXDecimal d = number("50");
  d = FXString("3");
  EXPECT_EQ(print(d), "80");
}

TEST(FXDecimalAssignText, WritesTheExponentOnlyWhereThereIsAPoint) {
  FXDecimal d = raw(7, -2, 2);
  d = FXString("3");
  EXPECT_EQ(fields(d), "10 -2 2 0");
  d = FXString("1.5");
  EXPECT_EQ(fields(d), "25 -1 2 0");
}

TEST(FXDecimalAssignText, NeitherNormalisesNorTouchesPrecisionOrMark) {
  FXDecimal d = raw(0, 0, 2, 1);
  d = FXString("1.10");
  EXPECT_EQ(fields(d), "110 -2 2 1");
  d = raw(0, 0, 2, 1);
  d = FXString("1.2345");
  EXPECT_EQ(fields(d), "12345 -4 2 1");
}

TEST(FXDecimalAssignText, DoesWhatParseStringDoes) {
  const std::vector<const char*> texts = {"",    "3",   "1.5", "-3",    "3-",    "1x.5", "1.2.3",
                                          "1,5", "--3", "1-2", "1 000", "1.50 ", "abc",  "99999999999999999999"};
  for (const char* text : texts) {
    FXDecimal assigned = raw(500, -2, 3, 1);
    FXDecimal parsedInto = assigned;
    assigned = FXString(text);
    parsedInto.parseString(text);
    EXPECT_EQ(fields(assigned), fields(parsedInto)) << text;
  }
}
