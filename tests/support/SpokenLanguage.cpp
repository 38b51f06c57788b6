#include "tests/support/SpokenLanguage.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include <libintl.h>

SpokenLanguage::SpokenLanguage(const std::string& language, const std::string& folder,
                               const std::vector<std::string>& domains) {
  setenv("LANGUAGE", language.c_str(), 1);
  for (const std::string& domain : domains) {
    bindtextdomain(domain.c_str(), folder.c_str());
    bind_textdomain_codeset(domain.c_str(), "UTF-8");
  }
  textdomain(domains.front().c_str());
}

SpokenLanguage::SpokenLanguage(const std::string& language) : SpokenLanguage(language, builtCatalogues(), domains()) {}

SpokenLanguage::~SpokenLanguage() {
  unsetenv("LANGUAGE");
  textdomain("messages");
}

std::vector<std::string> SpokenLanguage::domains() {
  return {"brontel-host", "BrontelPluginItemData"};
}

std::vector<std::string> SpokenLanguage::builtLanguages() {
  std::vector<std::string> languages;
  for (const auto& entry : std::filesystem::directory_iterator(builtCatalogues())) {
    languages.push_back(entry.path().filename());
  }
  std::sort(languages.begin(), languages.end());
  return languages;
}

std::string SpokenLanguage::builtCatalogues() {
  return BRONTEL_TEST_CATALOGUES;
}
