#pragma once

#include <string>

#include "tests/support/TemporaryDirectory.h"

/// The program laid out as it is installed, in a folder of its own that every user may read: what it finds, it finds
/// from there.
class InstalledCopy {
 public:
  InstalledCopy();

  std::string program() const { return directory_.path("bin/brontel-host"); }
  std::string localeFolder() const { return directory_.path("share/locale"); }
  std::string path(const std::string& name) const { return directory_.path(name); }

 private:
  TemporaryDirectory directory_;
};
