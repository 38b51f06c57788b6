#include "itemdata/ItemDataStringEntry.h"

#include "host/entity/InvoiceItem.h"
#include "itemdata/Codes.h"

namespace Brontel::Plugin::ItemData {

FXIMPLEMENT(ItemDataStringEntry, ItemDataEntry, nullptr, 0)

ItemDataStringEntry* ItemDataStringEntry::clone(Entity* owner) const {
  auto* entry = new ItemDataStringEntry;
  entry->owner_ = owner;
  copyFieldsTo(*entry);
  return entry;
}

bool ItemDataStringEntry::canHandleType(int code) const {
  return code == TYPE_TEXT || code == TYPE_QUANTITY;
}

FX::FXString ItemDataStringEntry::getPrintableText() const {
  if (type != TYPE_QUANTITY) return value;
  // A row of one unit goes without saying.
  if (value.empty() || value == "0" || value == "1") return FX::FXString();
  const InvoiceItem* item = getItem();
  return value + " " + (item == nullptr ? FX::FXString() : item->getUnit());
}

}  // namespace Brontel::Plugin::ItemData
