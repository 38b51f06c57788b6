#include "host/plugin/PluginModule.h"

namespace Brontel::Plugin {

FXIMPLEMENT(PluginModule, FXObject, nullptr, 0)

int PluginModule::init() {
  return 0;
}

}  // namespace Brontel::Plugin
