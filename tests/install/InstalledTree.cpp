#include "tests/install/InstalledTree.h"

#include <algorithm>
#include <filesystem>

#include <gtest/gtest.h>

#include "tests/support/ChildProcess.h"

namespace fs = std::filesystem;

InstalledTree::InstalledTree() : prefix_(directory_.path("tree")) {
  build({BRONTEL_TEST_CMAKE, "--install", BRONTEL_TEST_BUILD, "--prefix", prefix_});
}

void InstalledTree::move(const std::string& name) {
  fs::rename(prefix_, scratch(name));
  prefix_ = scratch(name);
}

std::vector<std::string> InstalledTree::files() const {
  std::vector<std::string> found;
  for (const auto& entry : fs::recursive_directory_iterator(prefix_)) {
    if (entry.is_directory()) continue;
    found.push_back(fs::relative(entry.path().parent_path(), prefix_) / entry.path().filename());
  }
  std::sort(found.begin(), found.end());
  return found;
}

std::string InstalledTree::host(const std::vector<std::string>& arguments, int exitCode,
                                const std::string& language) const {
  std::vector<std::string> command{path("bin/brontel-host"), "--database", database()};
  command.insert(command.end(), arguments.begin(), arguments.end());
  ChildProcess child(command);
  for (const char* name : {"BRONTEL_PLUGIN_PATH", "BRONTEL_LOCALE_PATH", "LD_LIBRARY_PATH"}) {
    child.removeEnvironment(name);
  }
  child.setEnvironment("LANGUAGE", language);
  child.setEnvironment("LC_ALL", "C.UTF-8");
  EXPECT_EQ(child.run(), exitCode) << arguments.front() << ": " << child.getErrors();
  EXPECT_EQ(child.getErrors(), "") << arguments.front();
  return child.getOutput();
}

std::string build(const std::vector<std::string>& command, const std::string& pkgConfigPath) {
  ChildProcess child(command);
  child.setTimeout(100000);
  if (!pkgConfigPath.empty()) child.setEnvironment("PKG_CONFIG_PATH", pkgConfigPath);
  EXPECT_EQ(child.run(), 0) << command.front() << "\n" << child.getOutput() << child.getErrors();
  return child.getOutput();
}
