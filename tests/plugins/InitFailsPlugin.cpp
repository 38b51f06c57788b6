#include "tests/plugins/LoggingContainer.h"

// A plug-in that cannot prepare itself.

static const UnloadLog unloadLog;

extern "C" __attribute__((visibility("default"))) Brontel::Plugin::PluginContainer* get_plugin(Brontel::Morvane* app) {
  logPluginEvent(TEST_PLUGIN_NAME, "get_plugin");
  return new LoggingContainer(app, 0);
}
