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

  /// Opens the item data dialog, then asks the form to check again. Neither argument is used. The event may be gone
  /// when this returns. Without a window on the screen, or for an item that its invoice has lost, there is no dialog.
  void execute(Message* message, int arg) override;

  FX::FXWindow* getParent() const { return parent_; }
  InvoiceItem* getItem() const { return item_; }

 private:
  FX::FXWindow* parent_;
  InvoiceItem* item_;
};

}  // namespace Brontel::Plugin::ItemData
