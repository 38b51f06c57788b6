#pragma once

#include <fx.h>

#include "host/message/ListOfMessage.h"
#include "host/plugin/PluginModule.h"

namespace Brontel {

class Invoice;

namespace Plugin {

/// Takes part when an invoice is checked.
class InvoiceCheckPlugin : public PluginModule {
  FXDECLARE_ABSTRACT(InvoiceCheckPlugin)

 public:
  using PluginModule::PluginModule;

  /// Appends what it finds to messages, whose receiver owns it. parent is the invoice form, or null when no window is
  /// open; prefix begins the messages' codes. Non-zero on success.
  virtual int checkInvoice(FX::FXWindow* parent, Invoice* invoice, ListOfMessage& messages, FX::FXString prefix) = 0;

 protected:
  InvoiceCheckPlugin() = default;
};

}  // namespace Plugin
}  // namespace Brontel
