#include "itemdata/ItemDataTableComboItem.h"

#include "fxext/values/FXStringIterator.h"
#include "fxext/widgets/FXComboBox.h"

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
  auto* combo = new FXExt::FXComboBox(table, 1, nullptr, 0, FX::COMBOBOX_STATIC, 0, 0, 0, 0, table->getMarginLeft(),
                                      table->getMarginRight(), table->getMarginTop(), table->getMarginBottom());
  combo->create();
  combo->setJustify(FX::JUSTIFY_LEFT);
  combo->setFont(table->getFont());
  combo->setBackColor(table->getBackColor());
  combo->setTextColor(table->getTextColor());
  combo->setSelBackColor(table->getSelBackColor());
  combo->setSelTextColor(table->getSelTextColor());
  for (FXStringIterator choice(selections, '\n', 0); choice.hasNext(); ++choice) combo->appendItem(choice.get());
  combo->setNumVisible(FXMIN(kMostVisible, combo->getNumItems()));
  combo->setCurrentItem(combo->findItem(getText()));
  combo->setText(getText());
  return combo;
}

}  // namespace Brontel::Plugin::ItemData
