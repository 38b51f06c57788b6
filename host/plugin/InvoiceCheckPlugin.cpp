#include "host/plugin/InvoiceCheckPlugin.h"

namespace Brontel::Plugin {

FXIMPLEMENT_ABSTRACT(InvoiceCheckPlugin, PluginModule, nullptr, 0)

}  // namespace Brontel::Plugin
