#pragma once

#include <optional>
#include <string>

/// A finite decimal number of any size as a conformance file writes it: a sign, digits and a power of ten. The sign of
/// a zero and trailing zeros are kept.
class DecTestNumber {
 public:
  bool negative = false;
  std::string digits;      ///< No leading zeros; "0" for zero.
  long long exponent = 0;  ///< Power of ten applied to the digits.

  /// Null for anything but a finite number: infinities, NaNs, null operands, bad text.
  static std::optional<DecTestNumber> parse(const std::string& text);

  bool isZero() const { return digits == "0"; }
  /// The same worth without trailing zeros; a zero gets exponent 0 and no sign.
  DecTestNumber stripped() const;
  /// The digits with their sign, when 64 bits hold them.
  std::optional<long long> mantissa() const;
  /// Without an exponent: -0.050, 300. A zero has no sign.
  std::string plain() const;
};
