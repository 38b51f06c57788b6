#include "host/plugin/PluginContainer.h"
#include "tests/plugins/PluginLog.h"

// A plug-in that hands nothing over.

extern "C" __attribute__((visibility("default"))) Brontel::Plugin::PluginContainer* get_plugin(Brontel::Morvane*) {
  logPluginEvent(TEST_PLUGIN_NAME, "get_plugin");
  return nullptr;
}
