#include "plugin/GetPlugin.h"

#include "plugin/ItemDataContainer.h"

Brontel::Plugin::PluginContainer* get_plugin(Brontel::Morvane* app) {
  // The host may be a program that knows nothing of exceptions; running out of memory gives no plug-in.
  try {
    return new Brontel::Plugin::ItemData::ItemDataContainer(app);
  } catch (...) {
    return nullptr;
  }
}
