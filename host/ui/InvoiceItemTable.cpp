#include "host/ui/InvoiceItemTable.h"

#include "host/plugin/InvoiceItemMenuPlugin.h"
#include "host/plugin/PluginRegistry.h"
#include "host/ui/KeyboardMenu.h"

namespace Brontel {

using Plugin::InvoiceItemMenuPlugin;

FXIMPLEMENT(InvoiceItemTable, FXTable, nullptr, 0)

InvoiceItemTable::InvoiceItemTable(FX::FXComposite* parent, InvoiceForm* form, FX::FXObject* target, FX::FXSelector sel,
                                   FX::FXuint options)
    : FXTable(parent, target, sel, options), form_(form) {}

FX::FXMenuPane* InvoiceItemTable::createMenu(const Plugin::PluginRegistry& plugins) {
  auto* pane = new KeyboardMenu(this);
  for (Plugin::PluginModule* module : plugins.findModules(InvoiceItemMenuPlugin::metaClass)) {
    auto* plugin = static_cast<InvoiceItemMenuPlugin*>(module);
    new FX::FXMenuCommand(pane, plugin->getLabel(), nullptr, plugin, InvoiceItemMenuPlugin::ID_MENU_ITEM);
  }
  return pane;
}

}  // namespace Brontel
