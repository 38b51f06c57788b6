#pragma once

#include <vector>

#include <fx.h>

namespace Brontel {

class Morvane;

namespace Plugin {
class PluginLoader;
}

namespace App {

class HostDatabase;

/// Loads the plug-ins for a run of the program.
class PluginStart {
 public:
  /// Borrows all three. The database may be closed; the application has it from then on when it is open.
  PluginStart(Morvane& app, HostDatabase& database, Plugin::PluginLoader& loader)
      : app_(app), database_(database), loader_(loader) {}
  PluginStart(const PluginStart&) = delete;
  PluginStart& operator=(const PluginStart&) = delete;

  /// Loads every plug-in of the folder. False with an error for the person when the folder cannot be read. A plug-in
  /// that fails stops no other.
  bool load(const FX::FXString& folder);
  const FX::FXString& getError() const { return error_; }

  /// Whether at least one plug-in has been loaded; if not, why not is told.
  bool requireAny(const FX::FXString& folder);
  /// Whether recorded quantities can be stored; if not, why not is told.
  bool requireQuantityVariable();

  /// A line for each plug-in that was not loaded.
  std::vector<FX::FXString> describeFailures() const;

 private:
  void forgetErrorsOfFailedPlugins();
  bool refuse(const FX::FXString& error);

  Morvane& app_;
  HostDatabase& database_;
  Plugin::PluginLoader& loader_;
  FX::FXString error_;
};

}  // namespace App
}  // namespace Brontel
