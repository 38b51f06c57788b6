#pragma once

#include <string>
#include <utility>
#include <vector>

/// A small catalogue of translations, compiled by msgfmt as the real ones are.
class MessageCatalog {
 public:
  /// Texts are UTF-8 and may hold any character.
  void add(const std::string& msgid, const std::string& msgstr) { texts_.emplace_back(msgid, msgstr); }

  /// Writes <directory>/<language>/LC_MESSAGES/<domain>.mo. False, and a test failure, when that does not work.
  /// A process looks the texts up with LANGUAGE naming the language and the directory bound to the domain.
  bool install(const std::string& directory, const std::string& language, const std::string& domain) const;

 private:
  std::string toPo() const;

  std::vector<std::pair<std::string, std::string>> texts_;
};
