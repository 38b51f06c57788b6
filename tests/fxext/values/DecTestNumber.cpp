#include "tests/fxext/values/DecTestNumber.h"

#include <algorithm>
#include <charconv>

namespace {

std::optional<long long> toInteger(const std::string& text) {
  long long result = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), result);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return result;
}

}  // namespace

std::optional<DecTestNumber> DecTestNumber::parse(const std::string& text) {
  DecTestNumber number;
  std::string rest = text;
  number.negative = rest.starts_with('-');
  if (number.negative || rest.starts_with('+')) rest.erase(0, 1);
  const std::size_t e = std::min(rest.find_first_of("Ee"), rest.size());
  if (e != rest.size()) {
    const std::size_t sign = rest.compare(e + 1, 1, "+") == 0 ? 1 : 0;
    const std::optional<long long> exponent = toInteger(rest.substr(e + 1 + sign));
    if (!exponent) return std::nullopt;
    number.exponent = *exponent;
    rest.erase(e);
  }
  const std::size_t point = rest.find('.');
  if (point != std::string::npos) {
    rest.erase(point, 1);
    number.exponent -= static_cast<long long>(rest.size() - point);
  }
  if (rest.empty() || rest.find_first_not_of("0123456789") != std::string::npos) return std::nullopt;
  rest.erase(0, std::min(rest.find_first_not_of('0'), rest.size() - 1));
  number.digits = rest;
  return number;
}

DecTestNumber DecTestNumber::stripped() const {
  DecTestNumber result = *this;
  if (isZero()) {
    result.negative = false;
    result.exponent = 0;
    return result;
  }
  while (result.digits.back() == '0') {
    result.digits.pop_back();
    result.exponent++;
  }
  return result;
}

std::optional<long long> DecTestNumber::mantissa() const {
  return toInteger(negative ? "-" + digits : digits);
}

std::string DecTestNumber::plain() const {
  std::string text = digits;
  if (exponent > 0 && !isZero()) text.append(static_cast<std::size_t>(exponent), '0');
  if (exponent < 0) {
    const std::size_t places = static_cast<std::size_t>(-exponent);
    if (text.size() <= places) text.insert(0, places + 1 - text.size(), '0');
    text.insert(text.size() - places, ".");
  }
  return negative && !isZero() ? "-" + text : text;
}
