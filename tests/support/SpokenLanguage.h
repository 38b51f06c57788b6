#pragma once

#include <string>
#include <vector>

/// While it lives, this process looks its texts up in one language, as if its user had set LANGUAGE. A window shows
/// what was found when it was made, so the language comes first.
class SpokenLanguage {
 public:
  /// The catalogues lie in <folder>/<language>/LC_MESSAGES. The first of the domains becomes the process's own, which
  /// plain gettext looks into.
  SpokenLanguage(const std::string& language, const std::string& folder, const std::vector<std::string>& domains);
  /// The program's own domains, from the catalogues that have been built.
  explicit SpokenLanguage(const std::string& language);
  SpokenLanguage(const SpokenLanguage&) = delete;
  SpokenLanguage& operator=(const SpokenLanguage&) = delete;
  ~SpokenLanguage();

  /// The text domains of the program and its plug-in, the program's first.
  static std::vector<std::string> domains();
  /// The languages of the catalogues that have been built, in the order of their letters.
  static std::vector<std::string> builtLanguages();
  /// The folder of the catalogues that have been built.
  static std::string builtCatalogues();
};
