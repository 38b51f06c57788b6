#pragma once

#include "host/plugin/InvoiceCheckPlugin.h"

namespace Remarks {

/// A remark that ends with a question mark wants an answer before the invoice is closed.
class RemarkCheck : public Brontel::Plugin::InvoiceCheckPlugin {
 public:
  using InvoiceCheckPlugin::InvoiceCheckPlugin;

  int checkInvoice(FX::FXWindow* parent, Brontel::Invoice* invoice, Brontel::ListOfMessage& messages,
                   FX::FXString prefix) override;
};

}  // namespace Remarks
