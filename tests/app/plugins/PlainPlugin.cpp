#include "host/plugin/PluginContainer.h"

// A plug-in that works and does nothing.

namespace {

class PlainContainer : public Brontel::Plugin::PluginContainer {
 public:
  explicit PlainContainer(Brontel::Morvane* app) : PluginContainer(app, "", "Plain\tname", "1.0", "") {}

  FX::FXIcon* getIcon16() override { return nullptr; }
  int init() override { return 1; }
};

}  // namespace

extern "C" __attribute__((visibility("default"))) Brontel::Plugin::PluginContainer* get_plugin(Brontel::Morvane* app) {
  return new PlainContainer(app);
}
