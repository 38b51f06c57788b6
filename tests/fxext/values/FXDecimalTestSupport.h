#pragma once

#include <string>

#include "fxext/values/FXDecimal.h"

/// A number with exactly these fields, in normal form or not.
inline FXExt::FXDecimal raw(long long value, int exponent, int precision, int mark = 0) {
  FXExt::FXDecimal d;
  d.value = value;
  d.exponent = static_cast<signed char>(exponent);
  d.precision = static_cast<signed char>(precision);
  d.mark = static_cast<signed char>(mark);
  return d;
}

/// A number read from text, as quantities are.
inline FXExt::FXDecimal number(const char* text, char precision = 4) {
  return FXExt::FXDecimal(FX::FXString(text), precision);
}

/// All four fields: "value exponent precision mark".
inline std::string fields(const FXExt::FXDecimal& d) {
  return std::to_string(d.value) + " " + std::to_string(d.exponent) + " " + std::to_string(d.precision) + " " +
         std::to_string(d.mark);
}

inline std::string print(const FXExt::FXDecimal& d) {
  return d.toString().text();
}
