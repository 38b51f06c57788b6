#include "app/print/PrintableUtf8.h"

#include <glib.h>
#include <memory>

namespace Brontel::App {

namespace {

constexpr const char* kReplacement = "\xEF\xBF\xBD";
constexpr gunichar kDelete = 0x7f;
constexpr gunichar kLastControl = 0x9f;
constexpr gunichar kNextLine = 0x85;
constexpr gunichar kLineSeparator = 0x2028;
constexpr gunichar kParagraphSeparator = 0x2029;

// What stands for a character that cannot be printed as it is; null for the others.
const char* substituteFor(gunichar character, char next) {
  switch (character) {
    case '\n':
      return nullptr;
    case '\t':
      return " ";
    case '\r':
      return next == '\n' ? "" : " ";
    case kNextLine:
    case kLineSeparator:
    case kParagraphSeparator:
      return "\n";
    default:
      return character < ' ' || (character >= kDelete && character <= kLastControl) ? kReplacement : nullptr;
  }
}

}  // namespace

std::string toPrintable(const FX::FXString& text) {
  const std::unique_ptr<char, void (*)(void*)> valid(g_utf8_make_valid(text.text(), text.length()), g_free);
  std::string result;
  result.reserve(static_cast<size_t>(text.length()));
  for (const char* at = valid.get(); *at != '\0';) {
    const char* next = g_utf8_next_char(at);
    const char* substitute = substituteFor(g_utf8_get_char(at), *next);
    if (substitute != nullptr) {
      result.append(substitute);
    } else {
      result.append(at, next);
    }
    at = next;
  }
  return result;
}

}  // namespace Brontel::App
