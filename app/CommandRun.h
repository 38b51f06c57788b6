#pragma once

#include "app/HostDatabase.h"
#include "app/Outcome.h"
#include "host/plugin/PluginLoader.h"
#include "host/plugin/PluginRegistry.h"

namespace Brontel {
class Morvane;
}

namespace Brontel::App {

class CommandLine;
struct Command;

/// One command, from the opened database to the printed output.
class CommandRun {
 public:
  /// Borrows both. The line names a command.
  CommandRun(const CommandLine& line, Morvane& app) : line_(line), app_(app), loader_(&app, registry_) {}
  CommandRun(const CommandRun&) = delete;
  CommandRun& operator=(const CommandRun&) = delete;

  /// Returns the program's exit code.
  int run();

 private:
  Outcome loadPlugins(const Command& command);

  const CommandLine& line_;
  Morvane& app_;
  // Destroyed from the last to the first: the plug-ins go before the database that they use.
  HostDatabase database_;
  Plugin::PluginRegistry registry_;
  Plugin::PluginLoader loader_;
};

}  // namespace Brontel::App
