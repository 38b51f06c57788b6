#include <limits>
#include <type_traits>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "tests/fxext/values/FXDecimalTestSupport.h"

using FXExt::FXDecimal;

namespace {

constexpr long long LARGEST = std::numeric_limits<long long>::max();

/// Checks all six comparisons in both directions; order is that of a to b: -1, 0 or 1.
void expectOrder(const FXDecimal& a, const FXDecimal& b, int order) {
  SCOPED_TRACE(fields(a) + " against " + fields(b));
  EXPECT_EQ(a == b, order == 0);
  EXPECT_EQ(a != b, order != 0);
  EXPECT_EQ(a < b, order < 0);
  EXPECT_EQ(a > b, order > 0);
  EXPECT_EQ(a <= b, order <= 0);
  EXPECT_EQ(a >= b, order >= 0);
  EXPECT_EQ(b == a, order == 0);
  EXPECT_EQ(b != a, order != 0);
  EXPECT_EQ(b<a, order> 0);
  EXPECT_EQ(b > a, order < 0);
  EXPECT_EQ(b <= a, order >= 0);
  EXPECT_EQ(b >= a, order <= 0);
}

}  // namespace

TEST(FXDecimalComparison, OrdersWhatTheNumbersAreWorth) {
  expectOrder(number("-1.5"), number("-1.4"), -1);
  expectOrder(number("1.5"), number("1.4"), 1);
  expectOrder(number("-1"), number("1"), -1);
  expectOrder(number("0"), number("0.0001"), -1);
  expectOrder(number("300"), number("299.9999"), 1);
  expectOrder(raw(3, 2, 0), raw(31, 1, 0), -1);
}

TEST(FXDecimalComparison, EqualNumbersMayHaveDifferentExponents) {
  expectOrder(raw(150, -2, 2), raw(15, -1, 2), 0);
  expectOrder(raw(3, 2, 2), raw(300, 0, 2), 0);
  expectOrder(raw(0, -2, 2), FXDecimal(), 0);
  expectOrder(raw(0, 9, 2), raw(0, -9, 2), 0);
}

TEST(FXDecimalComparison, IgnoresPrecisionAndMark) {
  expectOrder(number("1.10", 4), number("1.1", 2), 0);
  expectOrder(raw(15, -1, 1, 1), raw(15, -1, 100, 0), 0);
  EXPECT_EQ(print(number("1.10", 4)), "1.1");
}

TEST(FXDecimalComparison, OrdersASequence) {
  std::vector<FXDecimal> ascending;
  for (const char* text :
       {"-1000", "-999.9999", "-1.1", "-1", "-0.0001", "0", "0.0001", "0.5", "1", "1.0001", "1000"}) {
    ascending.push_back(number(text));
  }
  for (int i = 0; i < static_cast<int>(ascending.size()); i++) {
    for (int j = 0; j < static_cast<int>(ascending.size()); j++) {
      expectOrder(ascending[i], ascending[j], i < j ? -1 : (i > j ? 1 : 0));
    }
  }
}

TEST(FXDecimalComparison, AlignedMantissaWraps) {
  // 9e14 at four places fits, 1e15 does not.
  expectOrder(number("900000000000000"), number("0.0001"), 1);
  expectOrder(number("1000000000000000"), number("0.0001"), -1);
  expectOrder(raw(1, 64, 0), raw(0, 0, 0), 0);
}

TEST(FXDecimalComparison, IsDefinedForExponentsFarApart) {
  expectOrder(raw(1, 127, 0), raw(1, -128, 0), -1);
  expectOrder(raw(LARGEST, 127, 0), raw(0, -128, 0), 0);
  expectOrder(number("1"), number("1.0000000000000001"), -1);
}

TEST(FXDecimalCompareInteger, ComparesWholeNumbers) {
  EXPECT_TRUE(raw(3, 2, 2) == 300);
  EXPECT_FALSE(raw(3, 2, 2) == 3);
  EXPECT_TRUE(number("-7") == -7);
  EXPECT_FALSE(number("7") == -7);
  EXPECT_TRUE(number("300") == 300);
  EXPECT_TRUE(raw(1, 64, 0) == 0);
}

TEST(FXDecimalCompareInteger, ComparesTheMantissaWhenThereAreDecimalPlaces) {
  EXPECT_TRUE(number("2.5") == 25);
  EXPECT_FALSE(number("2.5") == 2);
  EXPECT_TRUE(raw(250, -2, 2) == 250);
}

TEST(FXDecimalCompareInteger, ZeroIsZeroAtEveryExponent) {
  EXPECT_TRUE(FXDecimal() == 0);
  EXPECT_TRUE(raw(0, -2, 2) == 0);
  EXPECT_TRUE(raw(0, 12, 2) == 0);
  EXPECT_FALSE(number("0.0001") == 0);
  EXPECT_TRUE(number("1.5") - number("1.50") == 0);
}

TEST(FXDecimalComparison, ChangesNothing) {
  const FXDecimal a = raw(1500, -3, 0, 1);
  const FXDecimal b = raw(-30, 5, 9, 2);
  expectOrder(a, b, 1);
  EXPECT_FALSE(a == 7);
  EXPECT_EQ(fields(a), "1500 -3 0 1");
  EXPECT_EQ(fields(b), "-30 5 9 2");
}
