#include "app/window/Collation.h"

#include <cctype>

namespace Brontel::App {

using FX::FXint;
using FX::FXString;

namespace {

struct Letter {
  const char* accented;
  const char* plain;
};

constexpr Letter kLetters[] = {{"á", "a"}, {"é", "e"}, {"í", "i"}, {"ó", "o"}, {"ö", "o"},
                               {"ő", "o"}, {"ú", "u"}, {"ü", "u"}, {"ű", "u"}};

FXString withoutAccents(const FXString& text) {
  FXString result(text);
  for (const Letter& letter : kLetters) result.substitute(letter.accented, letter.plain);
  return result;
}

bool isDigitAt(const FXString& text, FXint at) {
  return at < text.length() && std::isdigit(static_cast<unsigned char>(text[at])) != 0;
}

// The digits from a place on without leading zeros; the place moves behind them.
FXString numberAt(const FXString& text, FXint& at) {
  while (isDigitAt(text, at) && text[at] == '0' && isDigitAt(text, at + 1)) ++at;
  const FXint begin = at;
  while (isDigitAt(text, at)) ++at;
  return text.mid(begin, at - begin);
}

int compareNaturally(const FXString& one, const FXString& other) {
  FXint i = 0;
  FXint j = 0;
  while (i < one.length() && j < other.length()) {
    if (isDigitAt(one, i) && isDigitAt(other, j)) {
      const FXString a = numberAt(one, i);
      const FXString b = numberAt(other, j);
      if (a.length() != b.length()) return a.length() < b.length() ? -1 : 1;
      if (a != b) return a < b ? -1 : 1;
    } else if (one[i] != other[j]) {
      return static_cast<unsigned char>(one[i]) < static_cast<unsigned char>(other[j]) ? -1 : 1;
    } else {
      ++i;
      ++j;
    }
  }
  return (one.length() - i) - (other.length() - j);
}

}  // namespace

FXString folded(const FXString& text) {
  FXString result(text);
  return result.lower();
}

bool comesBefore(const FXString& one, const FXString& other) {
  const FXString a = folded(one);
  const FXString b = folded(other);
  const int order = compareNaturally(withoutAccents(a), withoutAccents(b));
  return order == 0 ? compareNaturally(a, b) < 0 : order < 0;
}

}  // namespace Brontel::App
