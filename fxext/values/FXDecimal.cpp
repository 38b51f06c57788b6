#include "fxext/values/FXDecimal.h"

#include <algorithm>

namespace FXExt {

constinit const long long EXPS[16] = {1LL,
                                      10LL,
                                      100LL,
                                      1000LL,
                                      10000LL,
                                      100000LL,
                                      1000000LL,
                                      10000000LL,
                                      100000000LL,
                                      1000000000LL,
                                      10000000000LL,
                                      100000000000LL,
                                      1000000000000LL,
                                      10000000000000LL,
                                      100000000000000LL,
                                      1000000000000000LL};

namespace {

using FX::FXint;
using FX::FXString;
using FX::FXulong;

// The largest power of ten that fits into a mantissa, and the first that is a multiple of 2^64 and so wraps to nothing.
constexpr int LAST_POWER = 18;
constexpr int WRAPPED_POWER = 64;

// A mantissa that overflows wraps. Only unsigned arithmetic defines that, so each operation that may overflow is done
// on the bits.
FXulong bits(long long v) {
  return static_cast<FXulong>(v);
}

long long wrapped(FXulong v) {
  return static_cast<long long>(v);
}

signed char narrow(long long v) {
  return static_cast<signed char>(v);
}

// Texts with twenty decimals and operands far apart are typed by people, so exponents beyond the table must work too.
FXulong powerOfTen(long long n) {
  if (n >= WRAPPED_POWER) return 0;
  FXulong power = 1;
  for (; n > LAST_EXPS; n -= LAST_EXPS) power *= bits(EXPS[LAST_EXPS]);
  return power * bits(EXPS[n]);
}

// v x 10^n; a negative n cuts digits off.
long long scale(long long v, long long n) {
  if (n == 0) return v;
  if (n > 0) return wrapped(bits(v) * powerOfTen(n));
  if (n < -LAST_POWER) return 0;
  return v / wrapped(powerOfTen(-n));
}

// The one quotient that overflows is that of the smallest number and -1, and the processor traps on it.
long long quotient(long long dividend, long long divisor) {
  return divisor == -1 ? wrapped(0 - bits(dividend)) : dividend / divisor;
}

FXulong magnitude(long long v) {
  return v < 0 ? 0 - bits(v) : bits(v);
}

// The precision of a number in normal form. An exponent of -128 needs one place more than the field can say.
int places(const FXDecimal& d) {
  return std::max<int>(d.precision, -d.exponent);
}

}  // namespace

FXDecimal::FXDecimal() : value(0), exponent(0), precision(2), mark(1) {}

FXDecimal::FXDecimal(long long v, char exp, char prec)
    : value(v), exponent(narrow(exp)), precision(narrow(prec)), mark(0) {
  normalize();
}

FXDecimal::FXDecimal(const FXString& s, char prec) : value(0), exponent(0), precision(narrow(prec)), mark(0) {
  parseString(s);
  normalize();
}

FXDecimal& FXDecimal::operator=(long long v) {
  value = v;
  return *this;
}

FXDecimal& FXDecimal::operator=(const FXString& s) {
  return parseString(s);
}

FXDecimal& FXDecimal::parseString(const FXString& s) {
  const FXint length = s.length();
  // The digits accumulate in the number itself, so a sign or a bad character reaches what it held before, too.
  FXulong total = bits(value);
  FXulong place = 1;
  for (FXint i = length - 1; i >= 0; i--) {
    const char c = s[i];
    if (c >= '0' && c <= '9') {
      total += static_cast<FXulong>(c - '0') * place;
      place *= 10;
    } else if (c == '.') {
      exponent = narrow(i + 1 - length);
    } else if (c == '-') {
      total = 0 - total;
    } else if (c != ' ') {
      total = 0;
    }
  }
  value = wrapped(total);
  return *this;
}

long long FXDecimal::toLong() const {
  return scale(value, exponent);
}

double FXDecimal::toDouble() const {
  if (exponent >= 0) return static_cast<double>(toLong());
  double divisor = 1.0;
  int n = -exponent;
  for (; n > LAST_EXPS; n -= LAST_EXPS) divisor *= static_cast<double>(EXPS[LAST_EXPS]);
  divisor *= static_cast<double>(EXPS[n]);
  return static_cast<double>(value) / divisor;
}

FXString FXDecimal::toString() const {
  const FXulong digits = magnitude(value) * powerOfTen(std::max<int>(exponent, 0));
  FXString text = FX::FXStringVal(digits, 10);
  if (exponent < 0) {
    const FXint missing = -exponent - text.length();
    if (missing > 0) text.prepend('0', missing);
    text.insert(text.length() + exponent, '.');
    if (text[0] == '.') text.prepend('0');
  }
  if (value < 0) text.prepend('-');
  return text;
}

long long FXDecimal::getPaddedLong(char e) const {
  const int difference = exponent - narrow(e);
  return difference >= 0 ? scale(value, difference) : value;
}

int FXDecimal::getValueDigits() const {
  return 1;
}

FXDecimal& FXDecimal::normalize() {
  if (value == 0) exponent = 0;
  FXulong digits = magnitude(value);
  int zeros = 0;
  for (; value != 0 && tenth(digits) <= LARGEST_TENTH; zeros++) digits = tenth(digits);
  if (zeros > 0) value = wrapped(value < 0 ? 0 - digits : digits);
  exponent = narrow(exponent + zeros);
  precision = narrow(places(*this));
  return *this;
}

FXDecimal& FXDecimal::forcePrecision() {
  const int surplus = -precision - exponent;
  if (surplus <= 0) return *this;
  value = scale(value, -surplus);
  exponent = narrow(-precision);
  return *this;
}

FXDecimal& FXDecimal::applyPrecision(int p) {
  normalize();
  const long long wanted = static_cast<long long>(places(*this)) + p;
  value = scale(value, wanted + exponent);
  exponent = narrow(-wanted);
  return *this;
}

FXDecimal& FXDecimal::applyRound(char p) {
  const signed char wanted = narrow(p);
  if (value == 0) {
    precision = wanted;
    return *this;
  }
  normalize();
  const int working = std::max({places(*this), 4, wanted + 1});
  value = scale(value, working + exponent);
  const FXulong half = bits(scale(5, working - wanted - 1));
  value = wrapped(value < 0 ? bits(value) - half : bits(value) + half);
  exponent = narrow(-working);
  normalize();
  precision = wanted;
  return forcePrecision();
}

FXDecimal FXDecimal::round(char p) const {
  FXDecimal result = *this;
  result.applyRound(p);
  return result.normalize();
}

FXDecimal FXDecimal::operator*(const FXDecimal& other) const {
  FXDecimal result = *this;
  result.value = wrapped(bits(value) * bits(other.value));
  result.exponent = narrow(exponent + other.exponent);
  result.precision = std::max(precision, other.precision);
  return result.normalize();
}

FXDecimal FXDecimal::operator/(const FXDecimal& other) const {
  FXDecimal result = *this;
  result.normalize();
  const int p = std::max<int>(places(result), other.precision);
  const int n = std::max(-other.exponent, 0);
  const long long dividend = scale(result.value, result.exponent + p + n);
  result.value = other.value == 0 ? 0 : quotient(dividend, other.value);
  result.exponent = narrow(-(p + n) - other.exponent);
  result.precision = narrow(p);
  return result.normalize();
}

FXDecimal& FXDecimal::operator*=(const FXDecimal& other) {
  return *this = *this * other;
}

FXDecimal FXDecimal::operator+(long long x) const {
  return *this + FXDecimal(x, 0, 4);
}

FXDecimal FXDecimal::operator-(long long x) const {
  FXDecimal result = *this;
  result.value = wrapped(bits(value) - bits(x));
  return result.normalize();
}

FXDecimal FXDecimal::operator*(long long x) const {
  FXDecimal result = *this;
  result.value = wrapped(bits(value) * bits(x));
  return result.normalize();
}

FXDecimal FXDecimal::operator/(long long x) const {
  FXDecimal result = *this;
  result.normalize();
  const int p = places(result);
  const long long dividend = scale(result.value, result.exponent + p);
  result.value = x == 0 ? 0 : quotient(dividend, x);
  result.exponent = narrow(-p);
  return result.normalize();
}

FXDecimal::Aligned FXDecimal::alignFar(const FXDecimal& a, const FXDecimal& b) {
  const int difference = a.exponent - b.exponent;
  return {scale(a.value, std::max(difference, 0)), scale(b.value, std::max(-difference, 0))};
}

// Both operands at the same number of places, or the right one as it stands when it was never normalised and has more
// places than the sum. `sign` is 1 or the same with all bits set, which subtracts.
FXDecimal& FXDecimal::addFar(FXDecimal other, FXulong sign) {
  precision = std::max(precision, other.precision);
  normalize();
  const int p = places(*this);
  const FXulong addend = bits(other.exponent >= -p ? scale(other.value, other.exponent + p) : other.value);
  value = wrapped(bits(scale(value, exponent + p)) + sign * addend);
  exponent = narrow(-p);
  return normalize();
}

bool FXDecimal::operator==(long long x) const {
  return (exponent < 0 ? value : toLong()) == x;
}

}  // namespace FXExt
