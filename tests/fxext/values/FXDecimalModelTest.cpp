#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <iterator>
#include <limits>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "tests/fxext/values/DecimalModel.h"
#include "tests/fxext/values/FXDecimalTestSupport.h"

using FX::FXString;
using FXExt::FXDecimal;

namespace {

constexpr std::uint64_t DEFAULT_SEED = 20240229;
constexpr int SINGLE_STEPS = 700000;
constexpr int CHAINED_STEPS = 300000;
constexpr int POOL = 12;
constexpr double TOLERANCE = 1e-14;

/// The seed; DECIMAL_MODEL_SEED in the environment names another one.
std::uint64_t seed() {
  const char* const text = std::getenv("DECIMAL_MODEL_SEED");
  return text != nullptr ? std::strtoull(text, nullptr, 10) : DEFAULT_SEED;
}

FXString textFor(const FXDecimal&, const std::string& text) {
  return FXString(text.data(), static_cast<FX::FXint>(text.size()));
}

const std::string& textFor(const DecimalModel&, const std::string& text) {
  return text;
}

std::string plain(const FXString& text) {
  return text.text();
}

std::string plain(const std::string& text) {
  return text;
}

using ::fields;

std::string fields(const DecimalModel& m) {
  return std::to_string(m.value) + " " + std::to_string(m.exponent) + " " + std::to_string(m.precision) + " " +
         std::to_string(m.mark);
}

DecimalModel model(long long value, int exponent, int precision, int mark) {
  DecimalModel m;
  m.value = value;
  m.exponent = exponent;
  m.precision = precision;
  m.mark = mark;
  return m;
}

DecimalModel modelOf(const FXDecimal& d) {
  return model(d.value, d.exponent, d.precision, d.mark);
}

/// What an operation gets beside its two numbers.
struct Arguments {
  long long number = 0;
  int places = 0;
  char place = 0;
  std::string text;
};

/// What an operation may give. The two numbers stand for themselves: most operations must leave them alone.
template <class Decimal>
struct Run {
  Decimal a;
  Decimal b;
  const Arguments& with;
  Decimal result = Decimal();
  long long number = 0;
  double real = 0;
  std::string text;

  Run(const Decimal& left, const Decimal& right, const Arguments& arguments) : a(left), b(right), with(arguments) {}
};

template <class Decimal>
std::string describe(const Run<Decimal>& run) {
  return "a = " + fields(run.a) + ", b = " + fields(run.b) + ", result = " + fields(run.result) +
         ", number = " + std::to_string(run.number) + ", text = '" + run.text + "'";
}

bool isSame(const FXDecimal& actual, const DecimalModel& expected) {
  return actual.value == expected.value && actual.exponent == expected.exponent &&
         actual.precision == expected.precision && actual.mark == expected.mark;
}

bool isSame(double actual, double expected, int exponent) {
  // Powers of ten above 10^22 are no doubles, so that the last bits depend on how they were made.
  constexpr int LAST_EXACT_POWER = 22;
  if (-exponent <= LAST_EXACT_POWER) return actual == expected;
  return std::fabs(actual - expected) <= TOLERANCE * std::fabs(expected);
}

bool isSame(const Run<FXDecimal>& actual, const Run<DecimalModel>& expected, int exponent) {
  return isSame(actual.a, expected.a) && isSame(actual.b, expected.b) && isSame(actual.result, expected.result) &&
         actual.number == expected.number && isSame(actual.real, expected.real, exponent) &&
         actual.text == expected.text;
}

/// An operation in the same words for the class and for its model.
struct Operation {
  const char* name;
  void (*actual)(Run<FXDecimal>&);
  void (*expected)(Run<DecimalModel>&);

  template <class Step>
  Operation(const char* words, Step step) : name(words), actual(step), expected(step) {}
};

const Operation OPERATIONS[] = {
    {"construct from parts",
     [](auto& r) { r.result = decltype(r.a)(r.with.number, r.with.place, char(r.with.places)); }},
    {"construct from text", [](auto& r) { r.result = decltype(r.a)(textFor(r.a, r.with.text), r.with.place); }},
    {"a = number", [](auto& r) { r.a = r.with.number; }},
    {"a = text", [](auto& r) { r.a = textFor(r.a, r.with.text); }},
    {"parseString", [](auto& r) { r.a.parseString(textFor(r.a, r.with.text)); }},
    {"toLong", [](auto& r) { r.number = r.a.toLong(); }},
    {"toDouble", [](auto& r) { r.real = r.a.toDouble(); }},
    {"toString", [](auto& r) { r.text = plain(r.a.toString()); }},
    {"getPaddedLong", [](auto& r) { r.number = r.a.getPaddedLong(r.with.place); }},
    {"getValueDigits", [](auto& r) { r.number = r.a.getValueDigits(); }},
    {"normalize", [](auto& r) { r.a.normalize(); }},
    {"forcePrecision", [](auto& r) { r.a.forcePrecision(); }},
    {"applyPrecision", [](auto& r) { r.a.applyPrecision(r.with.places); }},
    {"applyRound", [](auto& r) { r.a.applyRound(r.with.place); }},
    {"round", [](auto& r) { r.result = r.a.round(r.with.place); }},
    {"a + b", [](auto& r) { r.result = r.a + r.b; }},
    {"a - b", [](auto& r) { r.result = r.a - r.b; }},
    {"a * b", [](auto& r) { r.result = r.a * r.b; }},
    {"a / b", [](auto& r) { r.result = r.a / r.b; }},
    {"a += b", [](auto& r) { r.a += r.b; }},
    {"a -= b", [](auto& r) { r.a -= r.b; }},
    {"a *= b", [](auto& r) { r.a *= r.b; }},
    {"a += a", [](auto& r) { r.a += r.a; }},
    {"a -= a", [](auto& r) { r.a -= r.a; }},
    {"a *= a", [](auto& r) { r.a *= r.a; }},
    {"a + number", [](auto& r) { r.result = r.a + r.with.number; }},
    {"a - number", [](auto& r) { r.result = r.a - r.with.number; }},
    {"a * number", [](auto& r) { r.result = r.a * r.with.number; }},
    {"a / number", [](auto& r) { r.result = r.a / r.with.number; }},
    {"a == b", [](auto& r) { r.number = r.a == r.b; }},
    {"a != b", [](auto& r) { r.number = r.a != r.b; }},
    {"a < b", [](auto& r) { r.number = r.a < r.b; }},
    {"a > b", [](auto& r) { r.number = r.a > r.b; }},
    {"a <= b", [](auto& r) { r.number = r.a <= r.b; }},
    {"a >= b", [](auto& r) { r.number = r.a >= r.b; }},
    {"a == number", [](auto& r) { r.number = r.a == r.with.number; }},
};

/// Makes numbers that are mostly small and usual, sometimes at an edge, often not in normal form.
class Source {
 public:
  explicit Source(std::uint64_t start) : random_(start) {}

  int below(int n) { return static_cast<int>(random_() % static_cast<std::uint64_t>(n)); }
  int between(int low, int high) { return low + below(high - low + 1); }
  const Operation& operation() { return OPERATIONS[below(static_cast<int>(std::size(OPERATIONS)))]; }

  long long mantissa() {
    switch (below(8)) {
      case 0:
        return between(-20, 20);
      case 1:
        return between(-1000000, 1000000);
      case 2:
        return between(-9, 9) * power(between(0, 18)) + between(-1, 1);
      case 3:
        return 5 * power(between(0, 17)) * between(-1, 1) + between(-1, 1);
      case 4:
        return static_cast<long long>(random_()) >> below(64);
      case 5:
        return between(-999, 999) * power(between(0, 15));
      case 6:
        return edge();
      default:
        return static_cast<long long>(random_());
    }
  }

  int small8() {
    const int kind = below(20);
    if (kind < 12) return between(-6, 6);
    if (kind < 16) return between(-20, 20);
    if (kind < 19) return between(-64, 64);
    return between(-128, 127);
  }

  FXDecimal number() {
    if (below(8) == 0) return FXDecimal(textFor(FXDecimal(), text()), static_cast<char>(small8()));
    const int precision = below(2) == 0 ? 4 : small8();
    FXDecimal d = raw(mantissa(), small8(), precision, below(3) == 0 ? between(-128, 127) : below(2));
    if (below(2) == 0) d.normalize();
    return d;
  }

  /// A number that often is worth the same as another one, or nearly so.
  FXDecimal numberNear(const FXDecimal& other) {
    if (below(4) != 0) return number();
    FXDecimal d = other;
    const int zeros = between(0, 4);
    // The digits may overflow here, too.
    std::uint64_t digits = static_cast<std::uint64_t>(d.value) * static_cast<std::uint64_t>(power(zeros));
    digits += static_cast<std::uint64_t>(between(-1, 1));
    d.value = static_cast<long long>(digits);
    d.exponent = static_cast<signed char>(d.exponent - zeros);
    return d;
  }

  Arguments arguments() {
    Arguments with;
    with.number = mantissa();
    with.places = below(50) == 0 ? static_cast<int>(random_()) : small8();
    with.place = static_cast<char>(small8());
    with.text = text();
    return with;
  }

 private:
  std::mt19937_64 random_;

  static long long power(int n) {
    long long result = 1;
    for (int i = 0; i < n; i++) result *= 10;
    return result;
  }

  long long edge() {
    constexpr long long SMALLEST = std::numeric_limits<long long>::min();
    constexpr long long LARGEST = std::numeric_limits<long long>::max();
    return below(2) == 0 ? SMALLEST + below(3) : LARGEST - below(3);
  }

  std::string text() {
    static const std::string RARE(".. --,x\t\n\0\xC5\x91", 12);
    std::string result(static_cast<std::size_t>(below(30) == 0 ? between(100, 280) : below(24)), '0');
    for (char& c : result) {
      const int kind = below(16);
      if (kind < 13) {
        c = static_cast<char>('0' + below(10));
      } else if (kind < 15) {
        c = RARE[static_cast<std::size_t>(below(4))];
      } else {
        c = RARE[static_cast<std::size_t>(below(static_cast<int>(RARE.size())))];
      }
    }
    return result;
  }
};

std::string quoted(const std::string& text) {
  std::ostringstream out;
  for (const char c : text) {
    if (c >= ' ' && c <= '~') {
      out << c;
    } else {
      out << "\\x" << std::hex << (static_cast<unsigned>(c) & 0xFFU) << std::dec;
    }
  }
  return out.str();
}

/// Runs the operation both ways; on success `a` and `b` are as it left them and `result` is what it gave.
testing::AssertionResult agrees(const Operation& operation, FXDecimal& a, FXDecimal& b, const Arguments& with,
                                FXDecimal& result) {
  Run<FXDecimal> actual(a, b, with);
  Run<DecimalModel> expected(modelOf(a), modelOf(b), with);
  operation.actual(actual);
  operation.expected(expected);
  if (!isSame(actual, expected, a.exponent)) {
    return testing::AssertionFailure() << operation.name << "\n  of a = " << fields(a) << ", b = " << fields(b)
                                       << ", number = " << with.number << ", places = " << with.places << " / "
                                       << static_cast<int>(static_cast<signed char>(with.place)) << ", text = '"
                                       << quoted(with.text) << "'\n  gives    " << describe(actual) << " real "
                                       << actual.real << "\n  expected " << describe(expected) << " real "
                                       << expected.real;
  }
  a = actual.a;
  b = actual.b;
  result = actual.result;
  return testing::AssertionSuccess();
}

}  // namespace

TEST(FXDecimalModel, OperationsAgreeWithTheModel) {
  Source source(seed());
  for (int step = 0; step < SINGLE_STEPS; step++) {
    FXDecimal a = source.number();
    FXDecimal b = source.numberNear(a);
    FXDecimal result;
    const Operation& operation = source.operation();
    ASSERT_TRUE(agrees(operation, a, b, source.arguments(), result)) << "seed " << seed() << ", step " << step;
  }
}

TEST(FXDecimalModel, ChainsOfOperationsAgreeWithTheModel) {
  Source source(seed() + 1);
  std::array<FXDecimal, POOL> pool;
  for (int step = 0; step < CHAINED_STEPS; step++) {
    // A fresh number now and then, because chains end in zeros and in the largest exponents.
    if (source.below(3) == 0) pool[static_cast<std::size_t>(source.below(POOL))] = source.number();
    FXDecimal& a = pool[static_cast<std::size_t>(source.below(POOL))];
    FXDecimal b = pool[static_cast<std::size_t>(source.below(POOL))];
    FXDecimal& result = pool[static_cast<std::size_t>(source.below(POOL))];
    const Operation& operation = source.operation();
    ASSERT_TRUE(agrees(operation, a, b, source.arguments(), result)) << "seed " << seed() << ", step " << step;
  }
}

TEST(FXDecimalModel, SumsAndComparisonsAgreeWithTheModelAtTheEndsOfTheTable) {
  const int exponents[] = {-32, -17, -16, -15, -14, -4, -1, 0, 1, 15, 16, 17};
  const int precisions[] = {-1, 0, 1, 14, 15, 16, 17};
  const long long values[] = {0, 1, -25, 300, 5000000, std::numeric_limits<long long>::min()};
  std::vector<FXDecimal> numbers;
  for (const int exponent : exponents) {
    for (const int precision : precisions) {
      for (const long long value : values) numbers.push_back(raw(value, exponent, precision, 1));
    }
  }
  const Arguments none;
  for (const Operation& operation : OPERATIONS) {
    const std::string name = operation.name;
    if (name != "a + b" && name != "a - b" && name != "a += b" && name != "a < b" && name != "a == b") continue;
    for (const FXDecimal& left : numbers) {
      for (std::size_t i = 0; i < numbers.size(); i += 5) {
        FXDecimal a = left;
        FXDecimal b = numbers[i];
        FXDecimal result;
        ASSERT_TRUE(agrees(operation, a, b, none, result));
      }
    }
  }
}
