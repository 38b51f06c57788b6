#include "plugin/RepairItemDataMessageEvent.h"

#include "host/ui/DBForm.h"

namespace Brontel::Plugin::ItemData {

namespace {

constexpr int kRepairKind = 2;

}  // namespace

RepairItemDataMessageEvent::RepairItemDataMessageEvent(FX::FXWindow* parent, InvoiceItem* item)
    : parent_(parent), item_(item) {
  kind_ = kRepairKind;
}

void RepairItemDataMessageEvent::execute(Message*, int) {
  auto* form = dynamic_cast<DBForm*>(parent_);
  if (form != nullptr) form->proposeCheckAll();
}

}  // namespace Brontel::Plugin::ItemData
