#pragma once

#include <fx.h>

#include "host/message/MessageEvent.h"

namespace Brontel {
class InvoiceItem;
}

namespace Brontel::Plugin::ItemData {

/// Leads from a check message to the item whose data it is about. Owns neither window nor item.
class RepairItemDataMessageEvent : public MessageEvent {
 public:
  /// parent is the invoice form, or null when the check runs without windows.
  RepairItemDataMessageEvent(FX::FXWindow* parent, InvoiceItem* item);

  /// Asks the form to check again. Neither argument is used.
  void execute(Message* message, int arg) override;

  FX::FXWindow* getParent() const { return parent_; }
  InvoiceItem* getItem() const { return item_; }

 private:
  FX::FXWindow* parent_;
  InvoiceItem* item_;
};

}  // namespace Brontel::Plugin::ItemData
