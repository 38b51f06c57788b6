#include "itemdata/ItemDataTableComboItem.h"

#include "fxext/values/FXStringIterator.h"

namespace Brontel::Plugin::ItemData {

using FX::FXString;
using FXExt::FXStringIterator;

void ItemDataComboEntry::ItemDataTableComboItem::setText(const FXString& text) {
  FXTableItem::setText(text);
  auto* entry = static_cast<ItemDataEntry*>(getData());
  if (entry != nullptr) entry->value = text;
}

FX::FXWindow* ItemDataComboEntry::ItemDataTableComboItem::getControlFor(FX::FXTable* table) {
  constexpr FX::FXint kMostVisible = 20;
  FX::FXWindow* control = FXComboTableItem::getControlFor(table);
  auto* combo = dynamic_cast<FX::FXComboBox*>(control);
  if (combo == nullptr) return control;
  combo->clearItems();
  for (FXStringIterator choice(selections, '\n', 0); choice.hasNext(); ++choice) combo->appendItem(choice.get());
  combo->setText(getText());
  combo->setNumVisible(FXMIN(kMostVisible, combo->getNumItems()));
  return control;
}

}  // namespace Brontel::Plugin::ItemData
