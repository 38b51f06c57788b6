#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/fxext/values/DecTestNumber.h"
#include "tests/fxext/values/DecTestReader.h"

namespace {

using Texts = std::vector<std::string>;

std::vector<DecTestCase> read(const std::string& file) {
  std::istringstream in(file);
  DecTestReader reader(in);
  std::vector<DecTestCase> cases;
  for (DecTestCase read; reader.next(read);) cases.push_back(read);
  return cases;
}

DecTestNumber parse(const char* text) {
  return DecTestNumber::parse(text).value();
}

}  // namespace

TEST(DecTestReader, ReadsIdOperationOperandsResultAndConditions) {
  const std::vector<DecTestCase> cases = read("addx1 Add '1.5'  2E+3 -> \"2001.5\" Inexact Rounded\n");
  ASSERT_EQ(cases.size(), 1U);
  EXPECT_EQ(cases[0].id, "addx1");
  EXPECT_EQ(cases[0].operation, "add");
  EXPECT_EQ(cases[0].operands, (Texts{"1.5", "2E+3"}));
  EXPECT_EQ(cases[0].result, "2001.5");
  EXPECT_EQ(cases[0].conditions, (Texts{"inexact", "rounded"}));
  EXPECT_TRUE(cases[0].has("inexact"));
  EXPECT_FALSE(cases[0].has("overflow"));
}

TEST(DecTestReader, PassesOverCommentsDirectivesAndEmptyLines) {
  const std::vector<DecTestCase> cases = read(
      "-- comment -> here\nversion: 2.59\n\ndectest: ddAdd\nx1 abs 1 -> 1 -- why\r\n   \nx2 abs -> 1\nx3 abs 1 ->\n");
  ASSERT_EQ(cases.size(), 1U);
  EXPECT_EQ(cases[0].id, "x1");
  EXPECT_EQ(cases[0].conditions, Texts());
}

TEST(DecTestReader, RoundingHoldsUntilTheNextDirective) {
  const std::vector<DecTestCase> cases =
      read("a abs 1 -> 1\nRounding:  Half_Up\nb abs 1 -> 1\nc abs 1 -> 1\nrounding: down\nd abs 1 -> 1\n");
  ASSERT_EQ(cases.size(), 4U);
  EXPECT_EQ(cases[0].rounding, "");
  EXPECT_EQ(cases[1].rounding, "half_up");
  EXPECT_EQ(cases[2].rounding, "half_up");
  EXPECT_EQ(cases[3].rounding, "down");
}

TEST(DecTestReader, QuotesKeepBlanksArrowsAndDoubledQuotes) {
  const std::vector<DecTestCase> cases = read("x op '->' '--1' 'it''s' \"a b\" '' -> 1\n");
  ASSERT_EQ(cases.size(), 1U);
  EXPECT_EQ(cases[0].operands, (Texts{"->", "--1", "it's", "a b", ""}));
}

TEST(DecTestNumber, ReadsFiniteNumbers) {
  EXPECT_EQ(parse("12.50").digits, "1250");
  EXPECT_EQ(parse("12.50").exponent, -2);
  EXPECT_EQ(parse("-0.005").digits, "5");
  EXPECT_EQ(parse("-0.005").exponent, -3);
  EXPECT_TRUE(parse("-0.005").negative);
  EXPECT_EQ(parse("+1.5E+3").exponent, 2);
  EXPECT_EQ(parse("1e-3").exponent, -3);
  EXPECT_EQ(parse(".5").exponent, -1);
  EXPECT_EQ(parse("5.").exponent, 0);
  EXPECT_EQ(parse("00.00").digits, "0");
  EXPECT_TRUE(parse("-0E+2").isZero());
}

TEST(DecTestNumber, RefusesEverythingElse) {
  for (const char* text : {"", ".", "-", "Inf", "-Infinity", "NaN", "sNaN12", "#", "#22300000", "1E", "E5", "1.2.3",
                           "?", "1 2", "1E99999999999999999999"}) {
    EXPECT_FALSE(DecTestNumber::parse(text)) << text;
  }
}

TEST(DecTestNumber, StripsTrailingZeros) {
  EXPECT_EQ(parse("1500E-2").stripped().digits, "15");
  EXPECT_EQ(parse("1500E-2").stripped().exponent, 0);
  EXPECT_EQ(parse("-0.00").stripped().exponent, 0);
  EXPECT_FALSE(parse("-0.00").stripped().negative);
}

TEST(DecTestNumber, MantissaIsThereWhenSixtyFourBitsHoldIt) {
  EXPECT_EQ(parse("-12.5").mantissa(), -125);
  EXPECT_EQ(parse("9223372036854775807").mantissa(), 9223372036854775807LL);
  EXPECT_FALSE(parse("9223372036854775808").mantissa());
}

TEST(DecTestNumber, PrintsPlainly) {
  EXPECT_EQ(parse("-5E-3").plain(), "-0.005");
  EXPECT_EQ(parse("12.50").plain(), "12.50");
  EXPECT_EQ(parse("3E+2").plain(), "300");
  EXPECT_EQ(parse("-0.00").plain(), "0.00");
  EXPECT_EQ(parse("0E+3").plain(), "0");
  EXPECT_EQ(parse("0.12").plain(), "0.12");
}
