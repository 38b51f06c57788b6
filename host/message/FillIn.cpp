#include "host/message/FillIn.h"

#include <string>
#include <string_view>

namespace Brontel {

using FX::FXString;

namespace {

/// A placeholder at the start of a text: how long it is (0: there is none) and which value it names (0: the next one).
struct Placeholder {
  size_t length = 0;
  size_t number = 0;
};

Placeholder placeholderAt(std::string_view text) {
  size_t at = 1;
  size_t number = 0;
  while (at < text.size() && at < 4 && text[at] >= '0' && text[at] <= '9') {
    number = number * 10 + static_cast<size_t>(text[at] - '0');
    ++at;
  }
  if (at > 1) {
    if (at >= text.size() || text[at] != '$' || number == 0) return {};
    ++at;
  }
  if (at >= text.size() || (text[at] != 's' && text[at] != 'd')) return {};
  return {at + 1, number};
}

}  // namespace

FXString fillIn(const FXString& pattern, std::initializer_list<FXString> values) {
  const std::string_view source(pattern.text(), static_cast<size_t>(pattern.length()));
  std::string result;
  size_t next = 0;
  size_t at = 0;
  while (at < source.size()) {
    const std::string_view rest = source.substr(at);
    if (rest.substr(0, 2) == "%%") {
      result += '%';
      at += 2;
      continue;
    }
    const Placeholder placeholder = rest.front() == '%' ? placeholderAt(rest) : Placeholder{};
    const size_t index = placeholder.number == 0 ? next : placeholder.number - 1;
    if (placeholder.length == 0 || index >= values.size()) {
      result += rest.front();
      ++at;
      continue;
    }
    if (placeholder.number == 0) ++next;
    const FXString& value = values.begin()[index];
    result.append(value.text(), static_cast<size_t>(value.length()));
    at += placeholder.length;
  }
  return FXString(result.data(), static_cast<FX::FXint>(result.size()));
}

}  // namespace Brontel
