#pragma once

#include <fx.h>

namespace Brontel::Plugin {

class PluginContainer;

/// One thing that a plug-in does for the host. Appended to its container's list, which owns it; the host finds it there
/// by its class.
class PluginModule : public FX::FXObject {
  FXDECLARE(PluginModule)

 public:
  explicit PluginModule(PluginContainer* container) : container_(container) {}
  PluginModule(const PluginModule&) = delete;
  PluginModule& operator=(const PluginModule&) = delete;

  /// For the module's container; this host calls it for none. The result is the plug-in's own, 0 unless overridden.
  virtual int init();

  PluginContainer* getContainer() const { return container_; }

 protected:
  PluginModule() = default;

  PluginContainer* container_ = nullptr;  // not owned: the container owns the module
};

}  // namespace Brontel::Plugin
