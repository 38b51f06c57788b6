#include "itemdata/ItemDataComboEntry.h"

#include "fxext/values/FXStringIterator.h"
#include "fxext/widgets/FXComboBox.h"
#include "itemdata/Codes.h"
#include "itemdata/EditorLayout.h"
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

void ItemDataComboEntry::addWidget(FX::FXComposite* parent, MemoryGuard<FX::FXDataTarget>& targets) {
  constexpr FX::FXuint kComboOptions = FX::COMBOBOX_STATIC | FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_COLUMN;
  static_assert(kComboOptions == 0x100401);
  constexpr int kPiecesShownWhole = 8;
  constexpr int kMostVisible = 10;
  auto* frame = new FX::FXHorizontalFrame(parent, kEditorOptions, 0, 0, 0, 0, 0, 0, 0, 0);
  auto* combo = new FXExt::FXComboBox(frame, kEditorColumns, addTarget(targets), FX::FXDataTarget::ID_VALUE,
                                      kComboOptions, 0, 0, 0, 0, kEditorPad, kEditorPad, kEditorPad, kEditorPad);
  combo->appendItem(" ");
  for (FXExt::FXStringIterator piece(vvalue, ',', 0); piece.hasNext(); ++piece) {
    combo->appendItem(piece.get().trim());
    combo->setNumVisible(piece.getPos() < kPiecesShownWhole ? piece.getPos() + 2 : kMostVisible);
  }
  // The data target only shows the text; keys and wheel step from the current item.
  combo->setCurrentItem(combo->findItem(value));
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
