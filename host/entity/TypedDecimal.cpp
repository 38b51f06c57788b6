#include "host/entity/TypedDecimal.h"

#include <cctype>

namespace Brontel {

using FX::FXString;

namespace {

constexpr int kWholeDigits = 12;
constexpr int kPlaces = 4;

}  // namespace

bool readDecimal(const FXString& typed, FXString& number) {
  FXString text(typed);
  text.trim();
  text.substitute(',', '.');
  int whole = 0;
  int places = -1;
  for (FX::FXint i = text[0] == '-' ? 1 : 0; i < text.length(); ++i) {
    if (text[i] == '.' && places < 0) {
      places = 0;
    } else if (std::isdigit(static_cast<unsigned char>(text[i])) == 0) {
      return false;
    } else {
      ++(places < 0 ? whole : places);
    }
  }
  if (whole == 0 || whole > kWholeDigits || places == 0 || places > kPlaces) return false;
  number = text;
  return true;
}

}  // namespace Brontel
