#pragma once

#include <algorithm>
#include <bit>

#include <fx.h>

namespace FXExt {

/// The powers of ten 10^0 to 10^15, in order. Visible outside the library that holds it.
__attribute__((visibility("default"))) extern const long long EXPS[16];
/// The index of the last of them.
constexpr int LAST_EXPS = 15;

/// A decimal number of fixed size: `value` x 10^`exponent`, with a working number of decimal places. It adds, compares
/// and prints quantities exactly.
///
/// Constructors and arithmetic leave the number in normal form: no trailing decimal zero in `value`, exponent 0 when
/// the value is 0, and a precision that holds every decimal place. The functions that change a number in place say
/// where they do not.
///
/// The mantissa wraps silently at 64 bits. That includes the scaling which brings two operands to the same number of
/// places, so with 4 places sums and comparisons are exact up to about 9.2e14. Exponent and precision wrap at 8 bits.
/// No operation reports an error. Every `char` argument is taken as signed, also where plain char is not.
class FXDecimal {
 public:
  long long value;        ///< The digits.
  signed char exponent;   ///< Power of ten applied to the digits; -2 means hundredths.
  signed char precision;  ///< Working number of decimal places.
  signed char mark;       ///< Free for the owner: 1 after default construction, otherwise 0; copied, never read.

  /// Zero with precision 2 and mark 1.
  FXDecimal();
  /// The normal form of v x 10^exp.
  FXDecimal(long long v, char exp, char prec);
  /// The normal form of what parseString() reads into a zero.
  FXDecimal(const FX::FXString& s, char prec);

  /// Replaces the digits only: 5 assigned to a number with exponent -2 gives 0.05. Does not normalise.
  FXDecimal& operator=(long long v);
  /// The same as parseString(): adds to the number, does not replace it.
  FXDecimal& operator=(const FX::FXString& s);

  /// Reads digits from the last to the first and adds them to the value the number already holds. '.' sets the
  /// exponent (the leftmost one wins; every byte to its right counts as a place), '-' negates and any other character
  /// but a blank clears all that was read so far, including what the number held before. Does not normalise.
  FXDecimal& parseString(const FX::FXString& s);

  /// The whole part; decimal places are cut.
  long long toLong() const;
  double toDouble() const;
  /// Prints exactly the places held in the mantissa, with '.' in every locale and without grouping; the precision
  /// is not consulted.
  FX::FXString toString() const;
  /// The number counted in units of 10^e. When e is above the exponent, the mantissa as it stands.
  long long getPaddedLong(char e) const;
  /// Always 1: nothing counts digits through it.
  int getValueDigits() const;

  /// Brings the number into normal form.
  FXDecimal& normalize();
  /// Cuts the decimal places beyond the precision. Neither rounds nor normalises.
  FXDecimal& forcePrecision();
  /// Rescales to precision + p places, so that the number prints exactly that many. The result is not in normal form
  /// and its precision is unchanged, so for p > 0 it must not become the right operand of a sum: its mantissa would
  /// count unscaled.
  FXDecimal& applyPrecision(int p);
  /// Rounds half away from zero to p places, which becomes the precision; tens are rounded with p = -1. Does not
  /// normalise: 1.2049 rounded to 2 places prints 1.20.
  FXDecimal& applyRound(char p);
  /// The normal form of what applyRound(p) makes of a copy.
  FXDecimal round(char p) const;

  // Each result carries the left operand's mark; its precision is at least the larger one of the two operands.
  FXDecimal operator+(const FXDecimal& other) const;
  FXDecimal operator-(const FXDecimal& other) const;
  FXDecimal operator*(const FXDecimal& other) const;
  /// Cut, never rounded, at the larger precision of the two. Division by zero gives zero.
  FXDecimal operator/(const FXDecimal& other) const;
  FXDecimal& operator+=(const FXDecimal& other);
  FXDecimal& operator-=(const FXDecimal& other);
  FXDecimal& operator*=(const FXDecimal& other);

  /// As adding FXDecimal(x, 0, 4): the result has at least 4 places.
  FXDecimal operator+(long long x) const;
  /// Subtracts x from the mantissa as it stands: 2.5 - 1 gives 2.4. Meant for numbers with exponent 0.
  FXDecimal operator-(long long x) const;
  FXDecimal operator*(long long x) const;
  /// Cut at the number's own precision. Division by zero gives zero.
  FXDecimal operator/(long long x) const;

  // Comparisons look at what the numbers are worth; precision and mark play no part.
  bool operator==(const FXDecimal& other) const;
  bool operator!=(const FXDecimal& other) const;
  bool operator<(const FXDecimal& other) const;
  bool operator>(const FXDecimal& other) const;
  bool operator<=(const FXDecimal& other) const;
  bool operator>=(const FXDecimal& other) const;
  /// With decimal places, compares x with the mantissa as it stands: 2.5 == 25 holds. Exact for x = 0.
  bool operator==(long long x) const;

 private:
  /// The mantissas of two numbers at the same number of places.
  struct Aligned {
    long long left;
    long long right;
  };

  // What quantities need all day is done in place; what few numbers need is left to the functions that are not inline.
  static Aligned align(const FXDecimal& a, const FXDecimal& b);
  static Aligned alignFar(const FXDecimal& a, const FXDecimal& b);
  FXDecimal& add(const FXDecimal& other, FX::FXulong sign);
  FXDecimal& addFar(FXDecimal other, FX::FXulong sign);

  /// v x 10^n modulo 2^64, which only unsigned arithmetic defines; n is one of 0 to 15.
  static FX::FXulong scaled(long long v, int n) {
    return static_cast<FX::FXulong>(v) * static_cast<FX::FXulong>(EXPS[n]);
  }

  static constexpr FX::FXulong INVERSE_OF_FIVE = 0xCCCCCCCCCCCCCCCDULL;
  static constexpr FX::FXulong LARGEST_TENTH = ~0ULL / 10;
  static_assert(INVERSE_OF_FIVE * 5 == 1);

  /// A tenth of v where v is a multiple of ten, and more than LARGEST_TENTH where it is not: five has an inverse modulo
  /// 2^64, and the two is shifted out. Sums are brought into normal form all the time, and a division takes several
  /// times as long.
  static FX::FXulong tenth(FX::FXulong v) { return std::rotr(v * INVERSE_OF_FIVE, 1); }
};

inline FXDecimal::Aligned FXDecimal::align(const FXDecimal& a, const FXDecimal& b) {
  const int difference = a.exponent - b.exponent;
  if (difference < -LAST_EXPS || difference > LAST_EXPS) return alignFar(a, b);
  return {static_cast<long long>(scaled(a.value, std::max(difference, 0))),
          static_cast<long long>(scaled(b.value, std::max(-difference, 0)))};
}

// Field by field: a copy of the whole would have to wait until the processor has put together what was just written.
inline FXDecimal& FXDecimal::add(const FXDecimal& other, FX::FXulong sign) {
  const int p = std::max<int>(precision, other.precision);
  const int ownScale = exponent + p;
  const int otherScale = other.exponent + p;
  const bool isUsual = p >= 0 && ownScale >= 0 && ownScale <= LAST_EXPS && otherScale >= 0 && otherScale <= LAST_EXPS;
  if (!isUsual) return addFar(other, sign);
  const FX::FXulong total = scaled(value, ownScale) + sign * scaled(other.value, otherScale);
  value = static_cast<long long>(total);
  exponent = static_cast<signed char>(-p);
  precision = static_cast<signed char>(p);
  return tenth(value < 0 ? 0 - total : total) <= LARGEST_TENTH ? normalize() : *this;
}

inline FXDecimal FXDecimal::operator+(const FXDecimal& other) const {
  FXDecimal result = *this;
  return result.add(other, 1);
}

inline FXDecimal FXDecimal::operator-(const FXDecimal& other) const {
  FXDecimal result = *this;
  return result.add(other, ~0ULL);
}

inline FXDecimal& FXDecimal::operator+=(const FXDecimal& other) {
  return add(other, 1);
}

inline FXDecimal& FXDecimal::operator-=(const FXDecimal& other) {
  return add(other, ~0ULL);
}

inline bool FXDecimal::operator==(const FXDecimal& other) const {
  const Aligned both = align(*this, other);
  return both.left == both.right;
}

inline bool FXDecimal::operator!=(const FXDecimal& other) const {
  return !(*this == other);
}

inline bool FXDecimal::operator<(const FXDecimal& other) const {
  const Aligned both = align(*this, other);
  return both.left < both.right;
}

inline bool FXDecimal::operator>(const FXDecimal& other) const {
  return other < *this;
}

inline bool FXDecimal::operator<=(const FXDecimal& other) const {
  return !(other < *this);
}

inline bool FXDecimal::operator>=(const FXDecimal& other) const {
  return !(*this < other);
}

}  // namespace FXExt
