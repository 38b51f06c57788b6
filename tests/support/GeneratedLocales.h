#pragma once

#include <string>

#include "tests/support/TemporaryDirectory.h"

/// Locales that the machine need not have, made for a test. This process and those that it starts find them while the
/// object lives; by then, whoever has set one for this process has to set another.
class GeneratedLocales {
 public:
  /// Those of Hungary and Germany, where a decimal number has a comma: hu_HU.UTF-8 and de_DE.UTF-8.
  GeneratedLocales();
  GeneratedLocales(const GeneratedLocales&) = delete;
  GeneratedLocales& operator=(const GeneratedLocales&) = delete;
  ~GeneratedLocales();

 private:
  void generate(const std::string& country);

  TemporaryDirectory directory_;
};
