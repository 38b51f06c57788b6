// Decimal numbers against their model: texts first, then a sequence of operations on a few numbers.

#include <string>

#include "fuzz/FuzzInput.h"
#include "fxext/values/FXDecimal.h"
#include "tests/fxext/values/DecimalModel.h"

using FX::FXString;
using FXExt::FXDecimal;

namespace {

constexpr int kNumbers = 4;

FXString toFX(const std::string& text) {
  return FXString(text.data(), static_cast<FX::FXint>(text.size()));
}

class Pair {
 public:
  void parse(const std::string& text, signed char precision) {
    number = FXDecimal(toFX(text), precision);
    model = DecimalModel(text, precision);
  }

  void compare() const {
    require(number.value == model.value, "the digits");
    require(number.exponent == model.exponent, "the exponent");
    require(number.precision == model.precision, "the precision");
    require(number.toString().text() == model.toString(), "the text");
    require(number.toLong() == model.toLong(), "the whole part");
  }

  FXDecimal number;
  DecimalModel model;
};

// Two numbers.
void combine(int operation, Pair& a, const Pair& b) {
  switch (operation) {
    case 0:
      a.number = a.number + b.number;
      a.model = a.model + b.model;
      break;
    case 1:
      a.number = a.number - b.number;
      a.model = a.model - b.model;
      break;
    case 2:
      a.number = a.number * b.number;
      a.model = a.model * b.model;
      break;
    case 3:
      a.number = a.number / b.number;
      a.model = a.model / b.model;
      break;
    case 4:
      a.number += b.number;
      a.model += b.model;
      break;
    case 5:
      a.number -= b.number;
      a.model -= b.model;
      break;
    default:
      require((a.number < b.number) == (a.model < b.model), "less");
      require((a.number == b.number) == (a.model == b.model), "equal");
      require((a.number >= b.number) == (a.model >= b.model), "at least");
  }
}

// A number of decimal places.
void shape(int operation, Pair& a, signed char places) {
  switch (operation) {
    case 6:
      a.number.normalize();
      a.model.normalize();
      break;
    case 7:
      a.number.forcePrecision();
      a.model.forcePrecision();
      break;
    case 8:
      a.number.applyRound(static_cast<char>(places));
      a.model.applyRound(places);
      break;
    case 9:
      a.number = a.number.round(static_cast<char>(places));
      a.model = a.model.round(places);
      break;
    case 15:
      a.number.applyPrecision(places);
      a.model.applyPrecision(places);
      break;
    default:
      require(a.number.getPaddedLong(static_cast<char>(places)) == a.model.getPaddedLong(places), "padded");
  }
}

// A whole number.
void combine(int operation, Pair& a, long long whole) {
  switch (operation) {
    case 10:
      a.number = a.number + whole;
      a.model = a.model + whole;
      break;
    case 11:
      a.number = a.number - whole;
      a.model = a.model - whole;
      break;
    case 12:
      a.number = a.number * whole;
      a.model = a.model * whole;
      break;
    case 13:
      a.number = a.number / whole;
      a.model = a.model / whole;
      break;
    default:
      a.number = whole;
      a.model = whole;
  }
}

void operate(FuzzInput& input, Pair& a, const Pair& b) {
  const int operation = input.below(18);
  if (operation <= 5 || operation == 17) {
    combine(operation, a, b);
  } else if (operation >= 10 && operation <= 14) {
    combine(operation, a, input.number());
  } else {
    shape(operation, a, static_cast<signed char>(input.byte()));
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
  if (size > 400) return 0;
  FuzzInput input(data, size);
  Pair numbers[kNumbers];
  for (Pair& pair : numbers) {
    const auto precision = static_cast<signed char>(input.below(10));
    pair.parse(input.until('\n'), precision);
    pair.compare();
  }
  while (!input.empty()) {
    Pair& a = numbers[input.below(kNumbers)];
    operate(input, a, numbers[input.below(kNumbers)]);
    a.compare();
  }
  return 0;
}
