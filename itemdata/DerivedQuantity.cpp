#include "itemdata/DerivedQuantity.h"

#include <charconv>
#include <optional>
#include <string_view>

#include "fxext/values/FXDecimal.h"
#include "itemdata/Codes.h"

namespace Brontel::Plugin::ItemData {

using FX::FXString;

namespace {

// What fits a signed 64-bit number in any case.
constexpr int kMostDigits = 18;
// More than any floating point number of the database has.
constexpr int kMostExponent = 400;

/// sign * digits * 10^exponent
struct Scientific {
  bool negative = false;
  long long digits = 0;
  int count = 0;  // significant digits held
  int exponent = 0;
};

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

std::optional<int> parseExponent(std::string_view text) {
  // from_chars knows no plus sign.
  if (text.size() > 1 && text.front() == '+' && isDigit(text[1])) text.remove_prefix(1);
  int exponent = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), exponent);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  if (exponent < -kMostExponent || exponent > kMostExponent) return std::nullopt;
  return exponent;
}

std::optional<Scientific> parse(std::string_view text) {
  Scientific number;
  number.negative = !text.empty() && text.front() == '-';
  if (number.negative) text.remove_prefix(1);
  bool fraction = false;
  bool empty = true;
  while (!text.empty() && (isDigit(text.front()) || (text.front() == '.' && !fraction))) {
    const char c = text.front();
    text.remove_prefix(1);
    if (c == '.') {
      fraction = true;
      continue;
    }
    empty = false;
    if (number.digits != 0 || c != '0') ++number.count;
    if (number.count > kMostDigits) return std::nullopt;
    number.digits = number.digits * 10 + (c - '0');
    if (fraction) --number.exponent;
  }
  if (empty) return std::nullopt;
  if (text.empty()) return number;
  if (text.front() != 'e' && text.front() != 'E') return std::nullopt;
  const std::optional<int> exponent = parseExponent(text.substr(1));
  if (!exponent) return std::nullopt;
  number.exponent += *exponent;
  return number;
}

// Drops the digits behind the last kept place, rounding half away from zero.
void roundToPlaces(Scientific& number) {
  while (number.exponent < -kQuantityPlaces - 1 && number.digits != 0) {
    // Only the first dropped digit decides, so the others go without rounding.
    number.digits /= 10;
    ++number.exponent;
  }
  if (number.digits == 0) {
    number.exponent = 0;
  } else if (number.exponent == -kQuantityPlaces - 1) {
    number.digits = (number.digits + 5) / 10;
    ++number.exponent;
  }
}

}  // namespace

FXString exactQuantity(const FXString& number) {
  const std::string_view text(number.text(), static_cast<size_t>(number.length()));
  if (text.find_first_of(".eE") == std::string_view::npos) return number;
  std::optional<Scientific> parsed = parse(text);
  if (!parsed) return number;
  roundToPlaces(*parsed);
  if (parsed->exponent > 0 && parsed->count + parsed->exponent > kMostDigits) return number;
  const long long digits = parsed->negative ? -parsed->digits : parsed->digits;
  return FXExt::FXDecimal(digits, static_cast<char>(parsed->exponent), kQuantityPlaces).toString();
}

}  // namespace Brontel::Plugin::ItemData
