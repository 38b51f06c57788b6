#include "host/xml/XmlText.h"

#include <string_view>

#include <libxml/chvalid.h>

namespace XMLBuilder {

namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";

// The bytes of the character at the start of rest, 0 when they are no UTF-8: a longer form than needed, half of a
// surrogate pair and what lies above Unicode are none either. (libxml2's own decoder takes stray continuation bytes.)
size_t decode(std::string_view rest, unsigned int& code) {
  constexpr unsigned int kSmallest[] = {0, 0, 0x80, 0x800, 0x10000};
  const auto lead = static_cast<unsigned char>(rest.front());
  const size_t length = lead < 0x80 ? 1 : lead < 0xC0 ? 0 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF8 ? 4 : 0;
  if (length == 0 || length > rest.size()) return 0;
  code = length == 1 ? lead : lead & (0xFFU >> (length + 1));
  for (const char next : rest.substr(1, length - 1)) {
    const auto byte = static_cast<unsigned char>(next);
    if ((byte & 0xC0U) != 0x80U) return 0;
    code = code << 6U | (byte & 0x3FU);
  }
  const bool isCharacter = code >= kSmallest[length] && code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
  return isCharacter ? length : 0;
}

// The bytes of the character at the start of rest when XML can hold it, else 0.
size_t lengthOfAllowed(std::string_view rest) {
  // Most texts have nothing else.
  if (rest.front() >= ' ' && rest.front() <= '~') return 1;
  unsigned int code = 0;
  const size_t length = decode(rest, code);
  return length != 0 && xmlIsCharQ(code) ? length : 0;
}

bool isClean(std::string_view source) {
  size_t at = 0;
  while (at < source.size()) {
    const size_t length = lengthOfAllowed(source.substr(at));
    if (length == 0) return false;
    at += length;
  }
  return true;
}

std::string_view viewOf(const FX::FXString& text) {
  return {text.text(), static_cast<size_t>(text.length())};
}

}  // namespace

std::string cleanText(const FX::FXString& text) {
  const std::string_view source = viewOf(text);
  std::string clean;
  clean.reserve(source.size());
  size_t at = 0;
  while (at < source.size()) {
    unsigned int code = 0;
    const size_t length = decode(source.substr(at), code);
    clean.append(length != 0 && xmlIsCharQ(code) ? source.substr(at, length) : kReplacement);
    at += length == 0 ? 1 : length;
  }
  return clean;
}

CleanText::CleanText(const FX::FXString& text) : text_(text.text()) {
  if (isClean(viewOf(text))) return;
  cleaned_ = cleanText(text);
  text_ = cleaned_.c_str();
}

}  // namespace XMLBuilder
