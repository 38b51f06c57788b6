#include "host/plugin/InvoiceItemMenuPlugin.h"

namespace Brontel::Plugin {

FXDEFMAP(InvoiceItemMenuPlugin)
invoiceItemMenuPluginMap[] = {
    FXMAPFUNC(FX::SEL_COMMAND, InvoiceItemMenuPlugin::ID_MENU_ITEM, InvoiceItemMenuPlugin::onCmdMenuItem),
    FXMAPFUNC(FX::SEL_UPDATE, InvoiceItemMenuPlugin::ID_MENU_ITEM, InvoiceItemMenuPlugin::onUpdMenuItem),
};

FXIMPLEMENT_ABSTRACT(InvoiceItemMenuPlugin, PluginModule, invoiceItemMenuPluginMap,
                     ARRAYNUMBER(invoiceItemMenuPluginMap))

InvoiceItemMenuPlugin::InvoiceItemMenuPlugin(PluginContainer* container, const FX::FXString& label)
    : PluginModule(container), label_(label) {}

long InvoiceItemMenuPlugin::onUpdMenuItem(FX::FXObject* sender, FX::FXSelector, void*) {
  if (sender != nullptr) sender->handle(this, FXSEL(FX::SEL_COMMAND, FX::FXWindow::ID_ENABLE), nullptr);
  return 1;
}

}  // namespace Brontel::Plugin
