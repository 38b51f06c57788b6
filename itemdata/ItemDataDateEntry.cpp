#include "itemdata/ItemDataDateEntry.h"

#include "itemdata/Codes.h"

namespace Brontel::Plugin::ItemData {

FXIMPLEMENT(ItemDataDateEntry, ItemDataEntry, nullptr, 0)

ItemDataDateEntry* ItemDataDateEntry::clone(Entity* owner) const {
  auto* entry = new ItemDataDateEntry;
  entry->owner_ = owner;
  copyFieldsTo(*entry);
  return entry;
}

bool ItemDataDateEntry::canHandleType(int code) const {
  return code == TYPE_DATE;
}

}  // namespace Brontel::Plugin::ItemData
