#include "host/database/IntegerText.h"

#include <algorithm>
#include <charconv>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <system_error>

namespace Brontel::Database {

int toInt(const char* text) {
  if (text == nullptr) return 0;
  int value = 0;
  if (std::from_chars(text, text + std::strlen(text), value).ec == std::errc{}) return value;
  // Slower, but it takes blanks and a plus sign, too, and tells on which side a number is out of range.
  return static_cast<int>(std::clamp<long long>(std::strtoll(text, nullptr, 10), INT_MIN, INT_MAX));
}

bool isInteger(const FX::FXString& text, FX::FXlong& value) {
  char* end = nullptr;
  value = std::strtoll(text.text(), &end, 10);
  return end != text.text() && end == text.text() + text.length();
}

}  // namespace Brontel::Database
