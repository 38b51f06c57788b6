#include <new>

#include "RemarkContainer.h"

// [entry]
extern "C" __attribute__((visibility("default"))) Brontel::Plugin::PluginContainer* get_plugin(Brontel::Morvane* app) {
  return new (std::nothrow) Remarks::RemarkContainer(app);
}
// [entry]
