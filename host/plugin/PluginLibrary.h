#pragma once

#include <fx.h>

namespace Brontel {

class Morvane;

namespace Plugin {

class PluginContainer;

/// One plug-in file: a shared library that is entered through its C function get_plugin.
/// Life cycle: load, init, start, then unload; an object whose library failed keeps the reason and can be loaded again.
class PluginLibrary {
 public:
  explicit PluginLibrary(const FX::FXString& path) : path_(path) {}
  PluginLibrary(const PluginLibrary&) = delete;
  PluginLibrary& operator=(const PluginLibrary&) = delete;
  ~PluginLibrary();

  /// Loads the library, asks it for its container and initialises that. False with a reason when any step fails;
  /// nothing of the library stays then.
  bool load(Morvane* app);

  /// Deletes the container; nothing of the plug-in's objects may be alive any more. The code stays until unload.
  void deleteContainer();
  /// Deletes the container if it is there, and lets go of the library.
  void unload();

  const FX::FXString& getPath() const { return path_; }
  /// Owned; null unless loaded.
  PluginContainer* getContainer() const { return container_; }
  /// Why the last load failed, for a person to read; empty when it did not.
  const FX::FXString& getReason() const { return reason_; }

 private:
  bool enter(Morvane* app);
  bool refuse(const FX::FXString& reason);

  FX::FXString path_;
  FX::FXString reason_;
  void* handle_ = nullptr;                // owned
  PluginContainer* container_ = nullptr;  // owned; its code is the library's
};

}  // namespace Plugin
}  // namespace Brontel
