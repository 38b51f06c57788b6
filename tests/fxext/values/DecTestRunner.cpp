#include "tests/fxext/values/DecTestRunner.h"

#include <algorithm>
#include <cstdlib>
#include <limits>
#include <numeric>
#include <optional>
#include <string>

#include <gtest/gtest.h>

#include "tests/fxext/values/DecTestNumber.h"
#include "tests/fxext/values/FXDecimalTestSupport.h"

using FXExt::FXDecimal;

namespace {

__extension__ using Wide = __int128;

// Why a case does not apply; null means that it ran.
using Reason = const char*;
constexpr Reason RAN = nullptr;
constexpr Reason SPECIAL_OPERAND = "an operand is infinite, not a number or missing";
constexpr Reason SPECIAL_RESULT = "the result is infinite or not a number";
constexpr Reason BIG_OPERAND = "an operand needs more than 64 bits";
constexpr Reason BIG_EXPONENT = "an exponent is beyond 8 bits or near their end";
constexpr Reason FAR_APART = "the scaling is by more than 10^15";
constexpr Reason OVERFLOWS = "a scaled mantissa or the result needs more than 64 bits";
constexpr Reason OTHER_ROUNDING = "the result is rounded in a mode that the class does not have";
constexpr Reason CLAMPED = "the result is rounded at another place than its last";
constexpr Reason OTHER_PLACE = "the quotient is cut at a place that the class cannot choose";

constexpr int LAST_POWER = 15;
// Leaves room for the 18 zeros that normalising may strip.
constexpr long long LAST_EXPONENT = 100;

bool fits(Wide v) {
  return std::numeric_limits<long long>::min() <= v && v <= std::numeric_limits<long long>::max();
}

/// Tells why a mantissa cannot be multiplied by 10^n; otherwise replaces it by the product.
Reason scale(Wide& v, long long n) {
  if (n < 0 || n > LAST_POWER) return FAR_APART;
  for (; n > 0; n--) v *= 10;
  return fits(v) ? RAN : OVERFLOWS;
}

/// An operand in the class's terms.
struct Operand {
  long long value = 0;
  int exponent = 0;

  FXDecimal decimal(long long precision = 0) const {
    return FXDecimal(value, static_cast<char>(exponent), static_cast<char>(precision));
  }
};

bool isPlain(const std::string& text) {
  return text.find_first_not_of("-.0123456789") == std::string::npos;
}

Reason read(const std::string& text, Operand& operand) {
  const std::optional<DecTestNumber> number = DecTestNumber::parse(text);
  if (!number) return SPECIAL_OPERAND;
  const DecTestNumber normal = number->stripped();
  if (!normal.mantissa()) return BIG_OPERAND;
  if (std::llabs(normal.exponent) > LAST_EXPONENT) return BIG_EXPONENT;
  operand.value = *normal.mantissa();
  operand.exponent = static_cast<int>(normal.exponent);
  if (isPlain(text) && number->mantissa()) {
    EXPECT_EQ(fields(FXDecimal(FX::FXString(text.c_str()), 0)), fields(operand.decimal())) << "read from text";
  }
  return RAN;
}

/// A case with its numbers taken apart.
struct Case {
  const DecTestCase& test;
  Operand a;
  Operand b;
  DecTestNumber second;    ///< The second operand as it is written.
  DecTestNumber expected;  ///< The result as it is written.

  bool isInexact() const { return test.has("inexact"); }
  bool isHalfUp() const { return test.rounding == "half_up"; }
  bool isDown() const { return test.rounding == "down"; }
};

Reason expectNumber(const Case& c, const FXDecimal& actual) {
  const DecTestNumber normal = c.expected.stripped();
  EXPECT_EQ(std::to_string(actual.value), (normal.negative ? "-" : "") + normal.digits);
  EXPECT_EQ(actual.exponent, normal.exponent);
  Wide printed = actual.value;
  if (actual.exponent <= 0 || scale(printed, actual.exponent) == RAN) {
    EXPECT_STREQ(actual.toString().text(), normal.plain().c_str());
  }
  return RAN;
}

/// Why the number cannot be rounded to p places within 64 bits.
Reason roundable(const FXDecimal& d, long long p) {
  if (std::llabs(p) > LAST_EXPONENT) return BIG_EXPONENT;
  if (d.value == 0) return RAN;
  const long long working = std::max({static_cast<long long>(d.precision), 4LL, p + 1});
  Wide value = d.value;
  Wide half = 5;
  if (const Reason reason = scale(value, d.exponent + working)) return reason;
  if (const Reason reason = scale(half, working - p - 1)) return reason;
  return fits(value < 0 ? value - half : value + half) ? RAN : OVERFLOWS;
}

/// Expects an exact result that the case may have rounded to its own precision.
Reason expectRounded(const Case& c, const FXDecimal& exact) {
  if (!c.isInexact()) return expectNumber(c, exact);
  if (!c.isHalfUp()) return OTHER_ROUNDING;
  if (c.test.has("clamped")) return CLAMPED;
  const long long places = -c.expected.exponent;
  if (const Reason reason = roundable(exact, places)) return reason;
  return expectNumber(c, exact.round(static_cast<char>(places)));
}

Reason runSum(const Case& c, int sign) {
  const int places = std::max({0, -c.a.exponent, -c.b.exponent});
  Wide left = c.a.value;
  Wide right = c.b.value;
  if (const Reason reason = scale(left, c.a.exponent + places)) return reason;
  if (const Reason reason = scale(right, c.b.exponent + places)) return reason;
  if (!fits(left + sign * right)) return OVERFLOWS;
  return expectRounded(c, sign < 0 ? c.a.decimal() - c.b.decimal() : c.a.decimal() + c.b.decimal());
}

Reason runAdd(const Case& c) {
  return runSum(c, 1);
}

Reason runSubtract(const Case& c) {
  return runSum(c, -1);
}

Reason runMultiply(const Case& c) {
  if (!fits(static_cast<Wide>(c.a.value) * c.b.value)) return OVERFLOWS;
  if (std::abs(c.a.exponent + c.b.exponent) > LAST_EXPONENT) return BIG_EXPONENT;
  return expectRounded(c, c.a.decimal() * c.b.decimal());
}

Reason runCompare(const Case& c) {
  const int smaller = std::min(c.a.exponent, c.b.exponent);
  Wide left = c.a.value;
  Wide right = c.b.value;
  if (const Reason reason = scale(left, c.a.exponent - smaller)) return reason;
  if (const Reason reason = scale(right, c.b.exponent - smaller)) return reason;
  const FXDecimal a = c.a.decimal();
  const FXDecimal b = c.b.decimal();
  const long long order = c.expected.mantissa().value();
  EXPECT_EQ(a == b, order == 0);
  EXPECT_EQ(a != b, order != 0);
  EXPECT_EQ(a < b, order < 0);
  EXPECT_EQ(a > b, order > 0);
  EXPECT_EQ(a <= b, order <= 0);
  EXPECT_EQ(a >= b, order >= 0);
  return RAN;
}

/// The first operand at p places, as the number and, where there are places to print, as its very text.
Reason runRounding(const Case& c, long long p) {
  const bool cuts = c.a.exponent < -p;
  FXDecimal number = c.a.decimal();
  if (cuts && c.isDown() && std::llabs(p) <= LAST_EXPONENT) {
    number.precision = static_cast<signed char>(p);
    return expectNumber(c, number.forcePrecision().normalize());
  }
  if (cuts && !c.isHalfUp()) return OTHER_ROUNDING;
  if (const Reason reason = roundable(number, p)) return reason;
  const FXDecimal rounded = number.round(static_cast<char>(p));
  if (p >= 0 && c.expected.exponent == -p) {
    Wide shown = rounded.value;
    if (const Reason reason = scale(shown, rounded.exponent + p)) return reason;
    number.applyRound(static_cast<char>(p)).applyPrecision(0);
    EXPECT_STREQ(number.toString().text(), c.expected.plain().c_str());
  }
  return expectNumber(c, rounded);
}

Reason runQuantize(const Case& c) {
  return runRounding(c, -c.second.exponent);
}

Reason runRescale(const Case& c) {
  return runRounding(c, c.b.exponent > LAST_POWER ? LAST_EXPONENT + 1 : -c.b.decimal().toLong());
}

Reason runToIntegral(const Case& c) {
  return runRounding(c, 0);
}

/// Why the first operand cannot be scaled for a quotient of so many places.
Reason dividable(const Case& c, long long places) {
  if (places > LAST_EXPONENT) return BIG_EXPONENT;
  Wide dividend = c.a.value;
  return scale(dividend, c.a.exponent + places + std::max(-c.b.exponent, 0));
}

Reason runDivide(const Case& c) {
  const long long least = std::max({0, -c.a.exponent, -c.b.exponent});
  // What the positive exponent of a divisor adds to the places of the quotient.
  const long long added = std::max(c.b.exponent, 0);
  long long places = std::max(least, -c.expected.stripped().exponent);
  if (c.isInexact()) {
    if (!c.isDown()) return OTHER_ROUNDING;
    places = -c.expected.exponent - added;
    if (places < least) return OTHER_PLACE;
  }
  if (const Reason reason = dividable(c, places)) return reason;
  if (places + added > LAST_EXPONENT) return BIG_EXPONENT;
  return expectNumber(c, c.a.decimal(places) / c.b.decimal());
}

Reason runDivideInt(const Case& c) {
  const long long least = std::max({0, -c.a.exponent, -c.b.exponent});
  if (const Reason reason = dividable(c, least)) return reason;
  const FXDecimal quotient = c.a.decimal() / c.b.decimal();
  return expectNumber(c, FXDecimal(quotient.toLong(), 0, 0));
}

struct Operation {
  const char* name;
  std::size_t operands;
  Reason (*run)(const Case& c);
};

constexpr Operation OPERATIONS[] = {
    {"add", 2, runAdd},
    {"subtract", 2, runSubtract},
    {"multiply", 2, runMultiply},
    {"compare", 2, runCompare},
    {"quantize", 2, runQuantize},
    {"rescale", 2, runRescale},
    {"divide", 2, runDivide},
    {"tointegralx", 1, runToIntegral},
    {"tointegral", 1, runToIntegral},
    {"divideint", 2, runDivideInt},
};

Reason runCase(const Operation& operation, const DecTestCase& test) {
  Case c{test, {}, {}, {}, {}};
  const std::optional<DecTestNumber> expected = DecTestNumber::parse(test.result);
  if (!expected) return SPECIAL_RESULT;
  c.expected = *expected;
  if (test.operands.size() != operation.operands) return SPECIAL_OPERAND;
  if (const Reason reason = read(test.operands[0], c.a)) return reason;
  if (operation.operands > 1) {
    // Of what `quantize` is given second, only the exponent counts.
    const std::optional<DecTestNumber> second = DecTestNumber::parse(test.operands[1]);
    if (!second) return SPECIAL_OPERAND;
    c.second = *second;
    const Reason reason = read(test.operands[1], c.b);
    if (reason != RAN && operation.run != runQuantize) return reason;
  }
  return operation.run(c);
}

}  // namespace

void DecTestRunner::run(const DecTestCase& test) {
  const auto* const operation = std::find_if(std::begin(OPERATIONS), std::end(OPERATIONS),
                                             [&test](const Operation& o) { return o.name == test.operation; });
  if (operation == std::end(OPERATIONS)) return;
  const Reason reason = runCase(*operation, test);
  if (reason == RAN) {
    ran_[operation->name]++;
  } else {
    skipped_[reason]++;
  }
}

int DecTestRunner::total() const {
  return std::accumulate(ran_.begin(), ran_.end(), 0, [](int sum, const auto& entry) { return sum + entry.second; });
}
