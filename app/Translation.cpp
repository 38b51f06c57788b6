#include "app/Translation.h"

#include <clocale>
#include <cstring>
#include <langinfo.h>

#include <libintl.h>

namespace Brontel::App {

namespace {

constexpr const char* kDomain = "brontel-host";
constexpr const char* kPlainLocale = "C.UTF-8";
// The same by a name of another territory. Since version 2.39, the C library translates nothing in a locale named C or
// C.UTF-8, whatever LANGUAGE says.
constexpr const char* kSpeakingLocale = "C_HU.UTF-8";

bool hasUtf8Locale() {
  const bool known = setlocale(LC_CTYPE, "") != nullptr && setlocale(LC_MESSAGES, "") != nullptr;
  return known && std::strcmp(nl_langinfo(CODESET), "UTF-8") == 0;
}

// "C", "C.UTF-8", "POSIX"
bool isPlain(const char* locale) {
  return std::strcmp(locale, "POSIX") == 0 || (locale[0] == 'C' && (locale[1] == '\0' || locale[1] == '.'));
}

}  // namespace

void prepareTranslation(const FX::FXString& localeDirectory) {
  if (!hasUtf8Locale()) {
    // A system without it has the texts in Hungarian.
    static_cast<void>(setlocale(LC_CTYPE, kPlainLocale));
    static_cast<void>(setlocale(LC_MESSAGES, kPlainLocale));
  }
  if (isPlain(setlocale(LC_MESSAGES, nullptr))) static_cast<void>(setlocale(LC_MESSAGES, kSpeakingLocale));
  bindtextdomain(kDomain, localeDirectory.text());
  bind_textdomain_codeset(kDomain, "UTF-8");
  textdomain(kDomain);
}

}  // namespace Brontel::App
