#include "tests/plugins/LoggingContainer.h"

// A plug-in with which everything is in order.

static const UnloadLog unloadLog;

extern "C" __attribute__((visibility("default"))) Brontel::Plugin::PluginContainer* get_plugin(Brontel::Morvane* app) {
  logPluginEvent(TEST_PLUGIN_NAME, "get_plugin");
  return new LoggingContainer(app, 1);
}
