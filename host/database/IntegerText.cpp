#include "host/database/IntegerText.h"

#include <algorithm>
#include <climits>
#include <cstdlib>

namespace Brontel::Database {

int toInt(const char* text) {
  if (text == nullptr) return 0;
  return static_cast<int>(std::clamp<long long>(std::strtoll(text, nullptr, 10), INT_MIN, INT_MAX));
}

bool isInteger(const FX::FXString& text, FX::FXlong& value) {
  char* end = nullptr;
  value = std::strtoll(text.text(), &end, 10);
  return end != text.text() && end == text.text() + text.length();
}

}  // namespace Brontel::Database
