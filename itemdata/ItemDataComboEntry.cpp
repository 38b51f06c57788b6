#include "itemdata/ItemDataComboEntry.h"

#include "itemdata/Codes.h"
#include "itemdata/ItemDataTableComboItem.h"

namespace Brontel::Plugin::ItemData {

FXIMPLEMENT(ItemDataComboEntry, ItemDataEntry, nullptr, 0)

ItemDataComboEntry* ItemDataComboEntry::clone(Entity* owner) const {
  auto* entry = new ItemDataComboEntry;
  entry->owner_ = owner;
  copyFieldsTo(*entry);
  return entry;
}

bool ItemDataComboEntry::canHandleType(int code) const {
  return code == TYPE_LIST;
}

FX::FXTableItem* ItemDataComboEntry::getTableItem() {
  FX::FXString choices = vvalue;
  choices.substitute('\n', ' ');
  choices.substitute(',', '\n');
  auto* item = new ItemDataTableComboItem;
  // The base puts the first choice into the cell, so the entry is linked only afterwards.
  item->setSelections(" \n" + choices);
  item->setJustify(FX::FXTableItem::LEFT);
  item->setData(this);
  item->setText(value);
  return item;
}

FX::FXString ItemDataComboEntry::getValue() const {
  return value == " " ? FX::FXString() : value;
}

}  // namespace Brontel::Plugin::ItemData
