#pragma once

#include <memory>
#include <vector>

#include <fx.h>

#include "host/plugin/PluginLibrary.h"
#include "host/plugin/PluginRegistry.h"

namespace Brontel {

class Morvane;

namespace Plugin {

/// Loads every plug-in library of a folder and unloads them all again, any number of times.
///
/// Before unloading, the windows, messages and entities that hold objects of the plug-ins must be gone: their code goes
/// with the libraries. The loader itself goes before the application object.
class PluginLoader {
 public:
  /// Borrows both. The application may be null, as for get_plugin.
  PluginLoader(Morvane* app, PluginRegistry& registry) : app_(app), registry_(registry) {}
  PluginLoader(const PluginLoader&) = delete;
  PluginLoader& operator=(const PluginLoader&) = delete;
  ~PluginLoader();

  /// Unloads what is loaded, then loads every file *.so of the folder in the order of their names, registers those that
  /// succeed and starts them once all are initialised. One that fails stays in the list with its reason and stops no
  /// other. False when the folder cannot be read.
  bool loadFolder(const FX::FXString& folder);

  /// Deletes all containers, last loaded first, and only then lets go of the libraries in the same order.
  void unload();

  /// Every file that was tried, loaded or not.
  const std::vector<std::unique_ptr<PluginLibrary>>& getLibraries() const { return libraries_; }

 private:
  Morvane* app_;
  PluginRegistry& registry_;
  std::vector<std::unique_ptr<PluginLibrary>> libraries_;
};

}  // namespace Plugin
}  // namespace Brontel
