#include "host/database/SqlText.h"

#include <algorithm>
#include <string_view>

namespace Brontel::Database {

namespace {

// The C library's classification depends on the locale; SQL identifiers must not.
bool startsName(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}
bool continuesName(char c) {
  return startsName(c) || (c >= '0' && c <= '9');
}

size_t endOfQuoted(std::string_view sql, size_t start) {
  const size_t end = sql.find(sql[start], start + 1);
  return end == std::string_view::npos ? sql.size() : end + 1;
}

size_t endOfName(std::string_view sql, size_t start) {
  size_t end = start;
  while (end < sql.size() && continuesName(sql[end])) ++end;
  return end;
}

size_t numberOf(std::vector<std::string>& names, std::string_view name) {
  const auto found = std::find(names.begin(), names.end(), name);
  if (found != names.end()) return static_cast<size_t>(found - names.begin()) + 1;
  names.emplace_back(name);
  return names.size();
}

}  // namespace

SqlText translateParameters(const FX::FXString& sql) {
  const std::string_view source(sql.text(), static_cast<size_t>(sql.length()));
  SqlText result;
  result.text.reserve(source.size());
  size_t at = 0;
  while (at < source.size()) {
    const char c = source[at];
    if (c == '\'' || c == '"') {
      const size_t end = endOfQuoted(source, at);
      result.text.append(source.substr(at, end - at));
      at = end;
    } else if (c == '%' && at + 1 < source.size() && startsName(source[at + 1])) {
      const size_t end = endOfName(source, at + 1);
      result.text.append("?").append(std::to_string(numberOf(result.parameters, source.substr(at + 1, end - at - 1))));
      at = end;
    } else {
      result.text.push_back(c);
      ++at;
    }
  }
  return result;
}

bool isParameterName(const FX::FXString& text) {
  const std::string_view name(text.text(), static_cast<size_t>(text.length()));
  return !name.empty() && startsName(name.front()) && endOfName(name, 0) == name.size();
}

FX::FXString quoteIdentifier(const FX::FXString& identifier) {
  FX::FXString quoted(identifier);
  quoted.substitute("\"", "\"\"");
  return "\"" + quoted + "\"";
}

}  // namespace Brontel::Database
