#include "tests/plugins/LoggingContainer.h"

// A plug-in that was built for another host: one of its functions is nowhere to be found.

extern "C" int brontel_test_of_another_host();

extern "C" __attribute__((visibility("default"))) Brontel::Plugin::PluginContainer* get_plugin(Brontel::Morvane* app) {
  return new LoggingContainer(app, brontel_test_of_another_host());
}
