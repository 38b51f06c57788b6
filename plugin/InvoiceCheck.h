#pragma once

#include "host/plugin/InvoiceCheckPlugin.h"

namespace Brontel::Plugin::ItemData {

/// Checks the item data of every item of an invoice. Each message it adds can be acted upon: its repair event leads to
/// the item concerned.
class InvoiceCheck : public InvoiceCheckPlugin {
 public:
  using InvoiceCheckPlugin::InvoiceCheckPlugin;

  int checkInvoice(FX::FXWindow* parent, Invoice* invoice, ListOfMessage& messages, FX::FXString prefix) override;
};

}  // namespace Brontel::Plugin::ItemData
