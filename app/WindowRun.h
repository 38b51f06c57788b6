#pragma once

#include <vector>

#include "app/HostDatabase.h"
#include "host/plugin/PluginLoader.h"
#include "host/plugin/PluginRegistry.h"

namespace Brontel {
class Morvane;
}

namespace Brontel::App {

class CommandLine;

/// The program with its windows, from the opened display to the last window closed.
class WindowRun {
 public:
  /// Borrows both.
  WindowRun(const CommandLine& line, Morvane& app) : line_(line), app_(app), loader_(&app, registry_) {}
  WindowRun(const WindowRun&) = delete;
  WindowRun& operator=(const WindowRun&) = delete;

  /// program is the name under which it was started. Returns the program's exit code.
  int run(char* program);

 private:
  bool openDisplay(char* program);
  int refuse(const FX::FXString& error);
  void deleteWindows();
  bool loadPlugins();

  // The toolkit keeps them and reads them again later.
  char* arguments_[2] = {nullptr, nullptr};
  int argumentCount_ = 1;
  const CommandLine& line_;
  Morvane& app_;
  std::vector<FX::FXString> notices_;
  bool editable_ = true;
  // Destroyed from the last to the first: the plug-ins go before the database that they use.
  HostDatabase database_;
  Plugin::PluginRegistry registry_;
  Plugin::PluginLoader loader_;
};

}  // namespace Brontel::App
