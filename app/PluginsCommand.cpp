#include "app/Command.h"
#include "app/Session.h"
#include "app/Tabbed.h"
#include "host/plugin/PluginContainer.h"

namespace Brontel::App {

Outcome runPlugins(Session& session) {
  for (const auto& library : session.loader.getLibraries()) {
    const FX::FXString file = FX::FXPath::name(library->getPath());
    const Plugin::PluginContainer* plugin = library->getContainer();
    if (plugin == nullptr) {
      appendLine(session.output, {file, library->getReason()});
    } else {
      appendLine(session.output, {file, plugin->getName(), plugin->getVersion()});
    }
  }
  return {};
}

}  // namespace Brontel::App
