#include "tour/Texts.h"

#include <libintl.h>

#include "app/ErrorText.h"
#include "host/message/FillIn.h"

namespace Tour {

namespace {

constexpr const char* kHostDomain = "brontel-host";
constexpr const char* kPluginDomain = "BrontelPluginItemData";

}  // namespace

std::string hostText(const char* id, std::initializer_list<FX::FXString> values) {
  return Brontel::fillIn(dgettext(kHostDomain, id), values).text();
}

std::string pluginText(const char* id, std::initializer_list<FX::FXString> values) {
  return Brontel::fillIn(dgettext(kPluginDomain, id), values).text();
}

std::string shownOf(const std::string& text) {
  return FX::stripHotKey(FX::FXString(text.c_str()).section('\t', 0)).text();
}

std::string lineOf(const std::string& text) {
  return Brontel::App::toOneLine(text.c_str()).trim().text();
}

}  // namespace Tour
