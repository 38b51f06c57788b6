// %name parameters in any text become numbered ones, and everything else stays as it is.

#include <cctype>
#include <string>

#include "fuzz/FuzzInput.h"
#include "host/database/SqlText.h"

using Brontel::Database::SqlText;
using FX::FXString;

namespace {

FXString toFX(const std::string& text) {
  return FXString(text.data(), static_cast<FX::FXint>(text.size()));
}

// Puts the names back where the numbers are. Question marks of the source stand outside of numbered parameters unless
// digits follow them, so such sources are left out.
std::string namesPutBack(const SqlText& translated) {
  std::string source;
  for (size_t at = 0; at < translated.text.size();) {
    const char c = translated.text[at];
    size_t end = at + 1;
    const auto isDigit = [&](size_t i) {
      return i < translated.text.size() && std::isdigit(static_cast<unsigned char>(translated.text[i])) != 0;
    };
    while (c == '?' && isDigit(end)) ++end;
    if (c == '?' && end > at + 1) {
      const size_t number = std::stoul(translated.text.substr(at + 1, end - at - 1));
      require(number >= 1 && number <= translated.parameters.size(), "a number that has a name");
      source += "%" + translated.parameters[number - 1];
    } else {
      source += c;
    }
    at = end;
  }
  return source;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, size_t size) {
  FuzzInput input(data, size);
  const std::string sql = input.rest();
  const SqlText translated = Brontel::Database::translateParameters(toFX(sql));
  for (const std::string& name : translated.parameters) {
    require(Brontel::Database::isParameterName(toFX(name)), "a parameter's name");
  }
  // A digit right after a parameter cannot be: it would belong to the name.
  if (sql.find('?') == std::string::npos) require(namesPutBack(translated) == sql, "the rest of the text");
  const FXString quoted = Brontel::Database::quoteIdentifier(toFX(sql));
  require(Brontel::Database::translateParameters(quoted).parameters.empty(), "a quoted name holds no parameter");
  return 0;
}
