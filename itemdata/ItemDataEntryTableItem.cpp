#include "itemdata/ItemDataEntryTableItem.h"

#include "itemdata/ItemDataEntry.h"

namespace Brontel::Plugin::ItemData {

void ItemDataEntryTableItem::setText(const FX::FXString& text) {
  FXTableItem::setText(text);
  auto* entry = static_cast<ItemDataEntry*>(getData());
  if (entry != nullptr) entry->value = text;
}

}  // namespace Brontel::Plugin::ItemData
