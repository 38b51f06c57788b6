#include "tests/support/GeneratedLocales.h"

#include <cstdlib>

#include <gtest/gtest.h>

#include "tests/support/ChildProcess.h"

GeneratedLocales::GeneratedLocales() {
  generate("hu_HU");
  generate("de_DE");
  setenv("LOCPATH", directory_.path().c_str(), 1);
}

GeneratedLocales::~GeneratedLocales() {
  unsetenv("LOCPATH");
}

void GeneratedLocales::generate(const std::string& country) {
  ChildProcess localedef({"localedef", "-i", country, "-f", "UTF-8", directory_.path(country + ".UTF-8")});
  EXPECT_EQ(localedef.run(), 0) << localedef.getErrors();
}
