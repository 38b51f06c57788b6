#pragma once

#include <string>
#include <vector>

#include "tests/support/TemporaryDirectory.h"

/// This build, installed by cmake --install into a folder of the test's own.
class InstalledTree {
 public:
  InstalledTree();

  std::string prefix() const { return prefix_; }
  std::string path(const std::string& name) const { return prefix_ + "/" + name; }
  std::string libraries(const std::string& name) const { return path(BRONTEL_TEST_LIBDIR "/" + name); }
  /// A path beside the tree, for what a test makes.
  std::string scratch(const std::string& name) const { return directory_.path(name); }
  std::string database() const { return scratch("test.db"); }

  /// Takes the tree elsewhere.
  void move(const std::string& name);

  /// Every file and link, by its path within the tree, sorted.
  std::vector<std::string> files() const;

  /// What the installed program prints in that language, expecting the exit code and no word on standard error.
  std::string host(const std::vector<std::string>& arguments, int exitCode = 0, const std::string& language = "") const;

 private:
  TemporaryDirectory directory_;
  std::string prefix_;
};

/// Runs a program that builds something; a test failure with all that it said unless it ends well. Returns its output.
std::string build(const std::vector<std::string>& command, const std::string& pkgConfigPath = "");
