#pragma once

#include <string>

/// What a decimal number has to do, computed step by step from the definition of each operation: every intermediate
/// result in 128 bits, brought back into 64 (or 8) bits where the number stores it. Slow and plain on purpose; it
/// shares no code with the class that it checks.
class DecimalModel {
 public:
  long long value = 0;
  int exponent = 0;
  int precision = 2;
  int mark = 1;

  DecimalModel() = default;
  DecimalModel(long long v, signed char exp, signed char prec);
  DecimalModel(const std::string& text, signed char prec);

  void operator=(long long v) { value = v; }
  void operator=(const std::string& text) { parseString(text); }
  void parseString(const std::string& text);

  long long toLong() const;
  double toDouble() const;
  std::string toString() const;
  long long getPaddedLong(signed char e) const;
  int getValueDigits() const { return 1; }

  DecimalModel& normalize();
  void forcePrecision();
  void applyPrecision(int p);
  void applyRound(signed char p);
  DecimalModel round(signed char p) const;

  DecimalModel operator+(const DecimalModel& b) const { return sum(b, 1); }
  DecimalModel operator-(const DecimalModel& b) const { return sum(b, -1); }
  DecimalModel operator*(const DecimalModel& b) const;
  DecimalModel operator/(const DecimalModel& b) const;
  void operator+=(const DecimalModel& b) { *this = sum(DecimalModel(b), 1); }
  void operator-=(const DecimalModel& b) { *this = sum(DecimalModel(b), -1); }
  void operator*=(const DecimalModel& b) { *this = *this * DecimalModel(b); }

  DecimalModel operator+(long long x) const { return sum(DecimalModel(x, 0, 4), 1); }
  DecimalModel operator-(long long x) const;
  DecimalModel operator*(long long x) const;
  DecimalModel operator/(long long x) const;

  bool operator==(const DecimalModel& b) const { return order(b) == 0; }
  bool operator!=(const DecimalModel& b) const { return order(b) != 0; }
  bool operator<(const DecimalModel& b) const { return order(b) < 0; }
  bool operator>(const DecimalModel& b) const { return order(b) > 0; }
  bool operator<=(const DecimalModel& b) const { return order(b) <= 0; }
  bool operator>=(const DecimalModel& b) const { return order(b) >= 0; }
  bool operator==(long long x) const;

 private:
  int places() const;
  int order(const DecimalModel& b) const;
  DecimalModel sum(const DecimalModel& b, int sign) const;
  void become(long long v, int exp);
};
