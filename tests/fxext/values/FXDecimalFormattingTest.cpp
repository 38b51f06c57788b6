#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "tests/fxext/values/FXDecimalTestSupport.h"

using FXExt::FXDecimal;

namespace {

constexpr long long SMALLEST = std::numeric_limits<long long>::min();
constexpr long long LARGEST = std::numeric_limits<long long>::max();

/// Switches the process to a Hungarian locale, whose decimal separator is a comma, and back at the end.
class CommaLocale {
 public:
  CommaLocale() { active_ = std::setlocale(LC_ALL, "hu_HU.UTF-8") != nullptr || buildAndSet(); }
  ~CommaLocale() {
    static_cast<void>(std::setlocale(LC_ALL, "C"));
    unsetenv("LOCPATH");
    if (!directory_.empty()) std::filesystem::remove_all(directory_);
  }
  CommaLocale(const CommaLocale&) = delete;
  CommaLocale& operator=(const CommaLocale&) = delete;

  bool isActive() const { return active_; }

 private:
  bool active_ = false;
  std::filesystem::path directory_;

  bool buildAndSet() {
    std::string pattern = (std::filesystem::temp_directory_path() / "localeXXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr) return false;
    directory_ = pattern;
    const std::string command = "localedef -i hu_HU -f UTF-8 " + pattern + "/hu_HU.UTF-8 >/dev/null 2>&1";
    if (std::system(command.c_str()) != 0) return false;  // NOLINT(cert-env33-c): nothing in it comes from outside
    setenv("LOCPATH", pattern.c_str(), 1);
    return std::setlocale(LC_ALL, "hu_HU.UTF-8") != nullptr;
  }
};

}  // namespace

TEST(FXDecimalToString, PrintsTheDigitsAtTheirExponent) {
  EXPECT_EQ(print(FXDecimal(15, -1, 2)), "1.5");
  EXPECT_EQ(print(FXDecimal(3, 2, 2)), "300");
  EXPECT_EQ(print(raw(300, 0, 2)), "300");
  EXPECT_EQ(print(raw(125, 0, 2)), "125");
  EXPECT_EQ(print(raw(125, -1, 2)), "12.5");
}

TEST(FXDecimalToString, FillsUpWithZerosInFront) {
  EXPECT_EQ(print(raw(5, -3, 4)), "0.005");
  EXPECT_EQ(print(raw(12, -2, 2)), "0.12");
  EXPECT_EQ(print(raw(1, -20, 20)), "0.00000000000000000001");
  EXPECT_EQ(print(raw(1, -128, 0)), "0." + std::string(127, '0') + "1");
}

TEST(FXDecimalToString, PrintsOneMinus) {
  EXPECT_EQ(print(raw(-125, -1, 2)), "-12.5");
  EXPECT_EQ(print(raw(-5, -3, 4)), "-0.005");
  EXPECT_EQ(print(raw(-12, -2, 4)), "-0.12");
  EXPECT_EQ(print(raw(-3, 2, 4)), "-300");
  EXPECT_EQ(print(raw(SMALLEST, 0, 4)), "-9223372036854775808");
  EXPECT_EQ(print(raw(SMALLEST, -19, 19)), "-0.9223372036854775808");
}

TEST(FXDecimalToString, PrintsTheWholeUnsignedRangeOfTheProduct) {
  EXPECT_EQ(print(raw(LARGEST, 0, 4)), "9223372036854775807");
  EXPECT_EQ(print(raw(1, 19, 4)), "10000000000000000000");
  EXPECT_EQ(print(raw(-1, 19, 4)), "-10000000000000000000");
  EXPECT_EQ(print(raw(1, 64, 4)), "0");
  EXPECT_EQ(print(raw(1, 127, 4)), "0");
}

TEST(FXDecimalToString, IgnoresThePrecision) {
  EXPECT_EQ(print(FXDecimal(250, -2, 2)), "2.5");
  EXPECT_EQ(print(raw(250, -2, 0)), "2.50");
  EXPECT_EQ(print(raw(5, 0, 4)), "5");
  EXPECT_EQ(print(FXDecimal(250, -2, 2).applyRound(2)), "2.50");
  EXPECT_EQ(print(number("2.503").applyRound(2)), "2.50");
}

TEST(FXDecimalToString, PrintsZeroWithItsPlaces) {
  EXPECT_EQ(print(FXDecimal()), "0");
  EXPECT_EQ(print(number("-0.00")), "0");
  EXPECT_EQ(print(raw(0, -2, 2)), "0.00");
  EXPECT_EQ(print(raw(0, 3, 2)), "0");
}

TEST(FXDecimalToString, PrintsAPointInEveryLocale) {
  const CommaLocale locale;
  if (!locale.isActive()) GTEST_SKIP() << "neither a Hungarian locale nor the sources to build one are installed";
  char comma[8];
  ASSERT_EQ(std::snprintf(comma, sizeof comma, "%.1f", 1.5), 3);
  ASSERT_STREQ(comma, "1,5");
  EXPECT_EQ(print(number("1234567.5")), "1234567.5");
  EXPECT_EQ(print(raw(-5, -3, 4)), "-0.005");
}

TEST(FXDecimalToString, IsExactWhereFloatingPointIsNot) {
  EXPECT_EQ(print(number("0.1") + number("0.2")), "0.3");
  EXPECT_EQ(print(number("9007199254740993")), "9007199254740993");
  EXPECT_EQ(print(number("100000000000000.0001") + number("0.0001")), "100000000000000.0002");
}

TEST(FXDecimalToLong, CutsTowardsZero) {
  EXPECT_EQ(number("7").toLong(), 7);
  EXPECT_EQ(raw(3, 2, 0).toLong(), 300);
  EXPECT_EQ(number("-2.7").toLong(), -2);
  EXPECT_EQ(number("2.7").toLong(), 2);
  EXPECT_EQ(number("-0.7").toLong(), 0);
  EXPECT_EQ(FXDecimal().toLong(), 0);
}

TEST(FXDecimalToLong, IsDefinedBeyondTheTable) {
  EXPECT_EQ(raw(LARGEST, -18, 18).toLong(), 9);
  EXPECT_EQ(raw(SMALLEST, -18, 18).toLong(), -9);
  EXPECT_EQ(raw(LARGEST, -19, 19).toLong(), 0);
  EXPECT_EQ(raw(LARGEST, -128, 0).toLong(), 0);
  EXPECT_EQ(raw(1, 18, 0).toLong(), 1000000000000000000LL);
  EXPECT_EQ(raw(1, 19, 0).toLong(), -8446744073709551616LL);
  EXPECT_EQ(raw(1, 63, 0).toLong(), SMALLEST);
  EXPECT_EQ(raw(1, 64, 0).toLong(), 0);
  EXPECT_EQ(raw(LARGEST, 127, 0).toLong(), 0);
}

TEST(FXDecimalToDouble, DividesByThePowerOfTen) {
  EXPECT_EQ(number("2.5").toDouble(), 2.5);
  EXPECT_EQ(number("-0.1").toDouble(), -0.1);
  EXPECT_EQ(raw(123456789, -4, 4).toDouble(), 12345.6789);
  EXPECT_EQ(raw(LARGEST, -15, 15).toDouble(), static_cast<double>(LARGEST) / 1e15);
  EXPECT_EQ(raw(7, 0, 0).toDouble(), 7.0);
  EXPECT_EQ(raw(1, -20, 20).toDouble(), 1e-20);
  EXPECT_DOUBLE_EQ(raw(1, -128, 0).toDouble(), 1e-128);
}

TEST(FXDecimalToDouble, MultipliesInIntegersThatWrap) {
  EXPECT_EQ(raw(3, 2, 0).toDouble(), 300.0);
  // 922337203685477581 x 10 is 2 more than the largest mantissa.
  EXPECT_EQ(raw(LARGEST / 10 + 1, 1, 0).toDouble(), static_cast<double>(SMALLEST + 2));
}

TEST(FXDecimalGetPaddedLong, CountsUnits) {
  EXPECT_EQ(number("1.5").getPaddedLong(static_cast<char>(-2)), 150);
  EXPECT_EQ(number("1.5").getPaddedLong(static_cast<char>(-1)), 15);
  EXPECT_EQ(number("300").getPaddedLong(0), 300);
  EXPECT_EQ(number("-300").getPaddedLong(1), -30);
  EXPECT_EQ(FXDecimal().getPaddedLong(static_cast<char>(-4)), 0);
}

TEST(FXDecimalGetPaddedLong, NeverDivides) {
  EXPECT_EQ(number("1.234").getPaddedLong(static_cast<char>(-2)), 1234);
  EXPECT_EQ(number("1.5").getPaddedLong(0), 15);
  EXPECT_EQ(number("15").getPaddedLong(3), 15);
}

TEST(FXDecimalGetPaddedLong, IsDefinedBeyondTheTable) {
  EXPECT_EQ(number("1").getPaddedLong(static_cast<char>(-19)), -8446744073709551616LL);
  EXPECT_EQ(number("1").getPaddedLong(static_cast<char>(-128)), 0);
  EXPECT_EQ(raw(1, 127, 0).getPaddedLong(static_cast<char>(-128)), 0);
}

TEST(FXDecimalGetValueDigits, IsAlwaysOne) {
  for (long long value = -20; value <= 20; value++) EXPECT_EQ(raw(value, 0, 2).getValueDigits(), 1) << value;
  for (const long long value : {12345LL, -99999LL, LARGEST, SMALLEST}) {
    EXPECT_EQ(raw(value, 0, 2).getValueDigits(), 1) << value;
  }
}

TEST(FXDecimalConst, ConversionsChangeNothing) {
  const FXDecimal d = raw(-12500, -4, 2, 1);
  EXPECT_EQ(print(d), "-1.2500");
  EXPECT_EQ(d.toLong(), -1);
  EXPECT_EQ(d.toDouble(), -1.25);
  EXPECT_EQ(d.getPaddedLong(static_cast<char>(-6)), -1250000);
  EXPECT_EQ(d.getValueDigits(), 1);
  EXPECT_EQ(print(d.round(1)), "-1.3");
  EXPECT_EQ(fields(d), "-12500 -4 2 1");
}
