#include "plugin/InvoiceCheck.h"

#include "host/entity/Invoice.h"
#include "itemdata/ItemDataList.h"
#include "plugin/RepairItemDataMessageEvent.h"

namespace Brontel::Plugin::ItemData {

using FX::FXint;

namespace {

void checkItem(FX::FXWindow* parent, InvoiceItem* item, int position, ListOfMessage& messages,
               const FX::FXString& prefix) {
  ItemDataList* list = ItemDataList::of(item);
  if (list == nullptr || item->getGoodsKind() == GOODS_NONE) return;
  list->settle();
  ListOfMessage found;
  list->check(position, found, prefix);
  for (FXint i = 0; i < found.no(); ++i) found[i]->setRepairEvent(new RepairItemDataMessageEvent(parent, item));
  // The list form counts the levels apart.
  messages.append(found);
}

}  // namespace

int InvoiceCheck::checkInvoice(FX::FXWindow* parent, Invoice* invoice, ListOfMessage& messages, FX::FXString prefix) {
  if (invoice == nullptr) return 1;
  // A copy of pointers: what a check leads to may change the invoice's own list.
  const FX::FXObjectListOf<InvoiceItem> items = invoice->getItems();
  for (FXint i = 0; i < items.no(); ++i) {
    checkItem(parent, items[i], i + 1, messages, prefix);
  }
  return 1;
}

}  // namespace Brontel::Plugin::ItemData
