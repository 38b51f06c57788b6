#include "tests/fxext/values/DecimalModel.h"

#include <algorithm>
#include <cmath>

namespace {

__extension__ using Wide = __int128;

Wide twoToThe(int n) {
  Wide power = 1;
  for (int i = 0; i < n; i++) power *= 2;
  return power;
}

// The number of `width` bits in two's complement that is congruent to x.
Wide wrap(Wide x, int width) {
  const Wide whole = twoToThe(width);
  Wide rest = x % whole;
  if (rest < 0) rest += whole;
  return rest < whole / 2 ? rest : rest - whole;
}

long long wrap64(Wide x) {
  static const Wide LIMIT = twoToThe(63);
  if (-LIMIT <= x && x < LIMIT) return static_cast<long long>(x);
  return static_cast<long long>(wrap(x, 64));
}

int wrap8(Wide x) {
  if (-128 <= x && x < 128) return static_cast<int>(x);
  return static_cast<int>(wrap(x, 8));
}

// v x 10^n one digit at a time, wrapping at each; a negative n cuts one digit at a time.
long long shifted(long long v, long long n) {
  for (; n > 0 && v != 0; n--) v = wrap64(static_cast<Wide>(v) * 10);
  for (; n < 0 && v != 0; n++) v /= 10;
  return v;
}

bool isDigit(char c) {
  return '0' <= c && c <= '9';
}

}  // namespace

DecimalModel::DecimalModel(long long v, signed char exp, signed char prec)
    : value(v), exponent(exp), precision(prec), mark(0) {
  normalize();
}

DecimalModel::DecimalModel(const std::string& text, signed char prec) : precision(prec), mark(0) {
  parseString(text);
  normalize();
}

// Read from the left, so the other way round than the rule is told: only what stands left of the first bad character
// counts, but every digit right of it still moves that by one place; each '-' turns the sign of all that follows.
void DecimalModel::parseString(const std::string& text) {
  const std::size_t bad = std::min(text.find_first_not_of("0123456789.- "), text.size());
  Wide total = 0;
  int sign = 1;
  for (std::size_t i = 0; i < text.size(); i++) {
    if (i < bad && text[i] == '-') sign = -sign;
    if (isDigit(text[i])) total = wrap64(total * 10 + (i < bad ? sign * (text[i] - '0') : 0));
  }
  value = wrap64(total + (bad == text.size() ? static_cast<Wide>(value) * sign : 0));
  const std::size_t point = text.find('.');
  if (point != std::string::npos) exponent = wrap8(static_cast<Wide>(point) + 1 - static_cast<Wide>(text.size()));
}

long long DecimalModel::toLong() const {
  return shifted(value, exponent);
}

double DecimalModel::toDouble() const {
  if (exponent < 0) return static_cast<double>(value) / std::pow(10.0, -exponent);
  return static_cast<double>(shifted(value, exponent));
}

std::string DecimalModel::toString() const {
  Wide magnitude = value < 0 ? -static_cast<Wide>(value) : value;
  static const Wide LIMIT = twoToThe(64);
  for (int i = 0; i < exponent; i++) magnitude = magnitude * 10 % LIMIT;
  std::string digits;
  do {
    digits.insert(digits.begin(), static_cast<char>('0' + static_cast<int>(magnitude % 10)));
    magnitude /= 10;
  } while (magnitude != 0);
  if (exponent < 0) {
    const std::size_t decimals = static_cast<std::size_t>(-exponent);
    if (digits.size() <= decimals) digits = std::string(decimals + 1 - digits.size(), '0') + digits;
    digits = digits.substr(0, digits.size() - decimals) + "." + digits.substr(digits.size() - decimals);
  }
  return value < 0 ? "-" + digits : digits;
}

long long DecimalModel::getPaddedLong(signed char e) const {
  return e <= exponent ? shifted(value, exponent - e) : value;
}

DecimalModel& DecimalModel::normalize() {
  if (value == 0) exponent = 0;
  while (value != 0 && value % 10 == 0) become(value / 10, exponent + 1);
  if (-exponent > precision) precision = wrap8(-exponent);
  return *this;
}

void DecimalModel::forcePrecision() {
  const int target = -precision;
  int e = exponent;
  long long v = value;
  for (; e < target; e++) v /= 10;
  become(v, e);
}

void DecimalModel::applyPrecision(int p) {
  normalize();
  const long long target = static_cast<long long>(places()) + p;
  value = shifted(value, target + exponent);
  exponent = wrap8(-static_cast<Wide>(target));
}

void DecimalModel::applyRound(signed char p) {
  if (value != 0) {
    normalize();
    const int working = std::max(std::max(places(), 4), p + 1);
    const long long scaled = shifted(value, working + exponent);
    const long long half = shifted(5, working - p - 1);
    become(wrap64(scaled < 0 ? static_cast<Wide>(scaled) - half : static_cast<Wide>(scaled) + half), -working);
    normalize();
    int e = exponent;
    long long v = value;
    for (; e + p < 0; e++) v /= 10;
    become(v, e);
  }
  precision = wrap8(p);
}

DecimalModel DecimalModel::round(signed char p) const {
  DecimalModel result = *this;
  result.applyRound(p);
  return result.normalize();
}

DecimalModel DecimalModel::operator*(const DecimalModel& b) const {
  DecimalModel result = *this;
  result.precision = std::max(precision, b.precision);
  result.become(wrap64(static_cast<Wide>(value) * b.value), exponent + b.exponent);
  return result.normalize();
}

DecimalModel DecimalModel::operator/(const DecimalModel& b) const {
  DecimalModel result = *this;
  result.normalize();
  const int p = std::max(result.places(), b.precision);
  const int n = b.exponent < 0 ? -b.exponent : 0;
  const Wide dividend = shifted(result.value, result.exponent + p + n);
  result.precision = wrap8(p);
  result.become(b.value == 0 ? 0 : wrap64(dividend / b.value), -(p + n) - b.exponent);
  return result.normalize();
}

DecimalModel DecimalModel::operator-(long long x) const {
  DecimalModel result = *this;
  result.value = wrap64(static_cast<Wide>(value) - x);
  return result.normalize();
}

DecimalModel DecimalModel::operator*(long long x) const {
  DecimalModel result = *this;
  result.value = wrap64(static_cast<Wide>(value) * x);
  return result.normalize();
}

DecimalModel DecimalModel::operator/(long long x) const {
  DecimalModel result = *this;
  result.normalize();
  const int p = result.places();
  const Wide dividend = shifted(result.value, result.exponent + p);
  result.become(x == 0 ? 0 : wrap64(dividend / x), -p);
  return result.normalize();
}

bool DecimalModel::operator==(long long x) const {
  return (exponent >= 0 ? shifted(value, exponent) : value) == x;
}

// The precision after normalising, which for an exponent of -128 is more than the eight bits of the field can hold.
int DecimalModel::places() const {
  return std::max(precision, -exponent);
}

int DecimalModel::order(const DecimalModel& b) const {
  const int smaller = std::min(exponent, b.exponent);
  const long long left = shifted(value, exponent - smaller);
  const long long right = shifted(b.value, b.exponent - smaller);
  return left < right ? -1 : (left > right ? 1 : 0);
}

DecimalModel DecimalModel::sum(const DecimalModel& b, int sign) const {
  DecimalModel result = *this;
  result.precision = std::max(precision, b.precision);
  result.normalize();
  const int p = result.places();
  const Wide left = shifted(result.value, result.exponent + p);
  const Wide right = b.exponent >= -p ? shifted(b.value, b.exponent + p) : b.value;
  result.become(wrap64(left + sign * right), -p);
  return result.normalize();
}

void DecimalModel::become(long long v, int exp) {
  value = v;
  exponent = wrap8(exp);
}
