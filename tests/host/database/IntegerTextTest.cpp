#include <climits>

#include <gtest/gtest.h>

#include "host/database/IntegerText.h"

using Brontel::Database::isInteger;
using Brontel::Database::toInt;

TEST(IntegerTextTest, readsTheNumberAtTheStart) {
  EXPECT_EQ(toInt("0"), 0);
  EXPECT_EQ(toInt("42"), 42);
  EXPECT_EQ(toInt("-7"), -7);
  EXPECT_EQ(toInt("12abc"), 12);
  EXPECT_EQ(toInt("2.9"), 2);
  EXPECT_EQ(toInt("010"), 10);
}

TEST(IntegerTextTest, readsZeroWhereThereIsNone) {
  EXPECT_EQ(toInt(nullptr), 0);
  EXPECT_EQ(toInt(""), 0);
  EXPECT_EQ(toInt("abc"), 0);
  EXPECT_EQ(toInt("-"), 0);
}

TEST(IntegerTextTest, staysWithinInt) {
  EXPECT_EQ(toInt("2147483647"), INT_MAX);
  EXPECT_EQ(toInt("2147483648"), INT_MAX);
  EXPECT_EQ(toInt("-2147483649"), INT_MIN);
  EXPECT_EQ(toInt("99999999999999999999999"), INT_MAX);
}

TEST(IntegerTextTest, acceptsBlanksSignAndDigitsAsAnInteger) {
  FX::FXlong value = 0;
  EXPECT_TRUE(isInteger("42", value));
  EXPECT_EQ(value, 42);
  EXPECT_TRUE(isInteger("  -7", value));
  EXPECT_EQ(value, -7);
  EXPECT_TRUE(isInteger("+5", value));
  EXPECT_EQ(value, 5);
  EXPECT_TRUE(isInteger("99999999999999999999", value));
  EXPECT_EQ(value, LLONG_MAX);
}

TEST(IntegerTextTest, refusesEverythingElse) {
  FX::FXlong value = 0;
  for (const char* text : {"", " ", "-", "4x", "4 ", "1.0", "1;drop table t", "0x10", "- 1", "é"}) {
    EXPECT_FALSE(isInteger(text, value)) << text;
  }
  EXPECT_FALSE(isInteger(FX::FXString("4\0", 2), value));
}

TEST(IntegerTextTest, readsWhatHasBlanksOrASignBeforeIt) {
  EXPECT_EQ(toInt(" 42"), 42);
  EXPECT_EQ(toInt("\t-7 "), -7);
  EXPECT_EQ(toInt("+5"), 5);
  EXPECT_EQ(toInt("-2147483648"), INT_MIN);
  EXPECT_EQ(toInt("-2147483648 and more"), INT_MIN);
  EXPECT_EQ(toInt("-99999999999999999999999"), INT_MIN);
}
