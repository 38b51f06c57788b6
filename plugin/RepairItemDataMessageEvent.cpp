#include "plugin/RepairItemDataMessageEvent.h"

#include "host/entity/Invoice.h"
#include "host/ui/InvoiceForm.h"
#include "ui/ItemDataDialog.h"

namespace Brontel::Plugin::ItemData {

namespace {

constexpr int kRepairKind = 2;

/// False when the form's invoice has lost the item since the message was made.
bool isStillListed(const DBForm* form, const InvoiceItem* item) {
  const auto* invoiceForm = dynamic_cast<const InvoiceForm*>(form);
  if (invoiceForm == nullptr) return true;
  const Invoice* invoice = invoiceForm->getInvoice();
  return invoice != nullptr && invoice->getItems().find(item) >= 0;
}

}  // namespace

RepairItemDataMessageEvent::RepairItemDataMessageEvent(FX::FXWindow* parent, InvoiceItem* item)
    : parent_(parent), item_(item) {
  kind_ = kRepairKind;
}

void RepairItemDataMessageEvent::execute(Message*, int) {
  // The check that is proposed replaces the messages, this event with its own among them: nothing of it may be used
  // once the dialog runs.
  FX::FXWindow* parent = parent_;
  InvoiceItem* item = item_;
  if (parent == nullptr) return;
  auto* form = dynamic_cast<DBForm*>(parent);
  // A dialog needs an owner on the screen.
  if (parent->id() == 0 || !isStillListed(form, item)) {
    if (form != nullptr) form->proposeCheckAll();
    return;
  }
  ItemDataDialog dialog(parent, item);
  dialog.execute(FX::PLACEMENT_CURSOR);
  if (form != nullptr) form->proposeCheckAll();
}

}  // namespace Brontel::Plugin::ItemData
