#pragma once

#include <fx.h>

/// Marks a text for the catalogue that is translated where it is shown.
constexpr const char* gettext_noop(const char* text) {
  return text;
}

namespace Brontel::App {

/// Takes the language from the environment and the program's own texts from that folder of catalogues.
/// Everything is UTF-8 inside; an environment without a UTF-8 locale gets the plain one, in which LANGUAGE still
/// counts. Numbers stay as the database and the exports need them.
void prepareTranslation(const FX::FXString& localeDirectory);

}  // namespace Brontel::App
