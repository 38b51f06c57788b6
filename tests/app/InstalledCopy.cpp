#include "tests/app/InstalledCopy.h"

#include <filesystem>

InstalledCopy::InstalledCopy() {
  namespace fs = std::filesystem;
  directory_.share();
  for (const char* folder : {"bin", "lib/brontel/plugins", "share/locale"}) fs::create_directories(path(folder));
  fs::copy_file(BRONTEL_TEST_HOST, program());
  fs::copy_file(BRONTEL_TEST_CORE, path("lib/" + fs::path(BRONTEL_TEST_CORE).filename().string()));
  fs::copy_file(BRONTEL_TEST_PLUGIN, path("lib/brontel/plugins/" + fs::path(BRONTEL_TEST_PLUGIN).filename().string()));
}
