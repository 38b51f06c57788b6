#pragma once

#include <fx.h>

#include "host/message/MessageEvent.h"

namespace Brontel {
class InvoiceItem;
}

namespace Remarks {

/// Leads from a message to the remark that it is about. Belongs to its message; owns neither window nor item.
class RemarkRepairEvent : public Brontel::MessageEvent {
 public:
  /// form is null when the check runs without windows.
  RemarkRepairEvent(FX::FXWindow* form, Brontel::InvoiceItem* item) : form_(form), item_(item) {}

  void execute(Brontel::Message* message, int arg) override;

 private:
  FX::FXWindow* form_;
  Brontel::InvoiceItem* item_;
};

}  // namespace Remarks
