#pragma once

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "tests/support/TemporaryDirectory.h"

/// A folder of plug-ins put together for one test, and the log that they write.
class PluginFolder {
 public:
  PluginFolder() { setenv("BRONTEL_TEST_PLUGIN_LOG", logPath().c_str(), 1); }
  PluginFolder(const PluginFolder&) = delete;
  PluginFolder& operator=(const PluginFolder&) = delete;
  ~PluginFolder() { unsetenv("BRONTEL_TEST_PLUGIN_LOG"); }

  /// The file of one of the test plug-ins, "case/name".
  static std::string builtFile(const std::string& plugin) {
    return std::string(BRONTEL_TEST_PLUGIN_DIRECTORY) + "/" + plugin + ".so";
  }

  /// Puts the plug-in "case/name" into the folder under a name of the test's choice.
  void add(const std::string& plugin, const std::string& name) const {
    std::filesystem::create_symlink(builtFile(plugin), plugins_.path(name));
  }

  FX::FXString path() const { return plugins_.path().c_str(); }
  FX::FXString path(const std::string& name) const { return plugins_.path(name).c_str(); }
  const TemporaryDirectory& directory() const { return plugins_; }

  /// What the plug-ins have logged since the last call.
  std::vector<std::string> takeLog() const {
    std::vector<std::string> lines;
    std::ifstream file(logPath());
    for (std::string line; std::getline(file, line);) lines.push_back(line);
    std::filesystem::remove(logPath());
    return lines;
  }

  /// Whether a library of the test plug-ins is in this process's memory.
  static bool isLoaded(const std::string& plugin) {
    return readFile("/proc/self/maps").find(std::filesystem::canonical(builtFile(plugin)).string()) !=
           std::string::npos;
  }

 private:
  std::string logPath() const { return log_.path("log"); }

  TemporaryDirectory plugins_;
  TemporaryDirectory log_;
};
