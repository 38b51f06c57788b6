#include "tests/plugins/LoggingContainer.h"

// A plug-in that needs a library which is not installed.

extern "C" int brontel_test_absent();

extern "C" __attribute__((visibility("default"))) Brontel::Plugin::PluginContainer* get_plugin(Brontel::Morvane* app) {
  return new LoggingContainer(app, brontel_test_absent());
}
