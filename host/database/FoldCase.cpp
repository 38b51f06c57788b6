#include "host/database/FoldCase.h"

#include <algorithm>

#include <fx.h>

namespace Brontel::Database {

namespace {

// How many bytes the character takes that begins with this one; 1 for what begins none.
size_t lengthOf(unsigned char first) {
  if (first >= 0xf0 && first < 0xf8) return 4;
  if (first >= 0xe0) return first < 0xf0 ? 3 : 1;
  return first >= 0xc0 ? 2 : 1;
}

bool isWhole(std::string_view character) {
  return std::all_of(character.begin() + 1, character.end(), [](char c) { return (c & 0xc0) == 0x80; });
}

}  // namespace

std::string foldCase(std::string_view text) {
  std::string folded;
  folded.reserve(text.size());
  for (size_t at = 0; at < text.size();) {
    const size_t length = lengthOf(static_cast<unsigned char>(text[at]));
    const std::string_view character = text.substr(at, length);
    at += character.size();
    const bool isAscii = length == 1 && static_cast<unsigned char>(character[0]) < 0x80;
    if (!isAscii && (length == 1 || character.size() < length || !isWhole(character))) {
      folded.append(character.substr(0, 1));
      at += 1 - character.size();
      continue;
    }
    const std::string terminated(character);
    const FX::FXwchar small = FX::Unicode::toLower(FX::wc(terminated.c_str()));
    FX::FXchar lower[8] = {};
    const FX::FXint count = FX::wc2utfs(lower, &small, 1);
    folded.append(lower, static_cast<size_t>(count));
  }
  return folded;
}

}  // namespace Brontel::Database
