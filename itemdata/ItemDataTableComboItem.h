#pragma once

#include <fx.h>

#include "itemdata/ItemDataComboEntry.h"

namespace Brontel::Plugin::ItemData {

/// A table cell that offers a list's choices, one a line of its selections. It shows an entry, linked through the
/// item's user data and not owned, and hands every new text on to it.
class ItemDataComboEntry::ItemDataTableComboItem : public FX::FXComboTableItem {
 public:
  ItemDataTableComboItem() : FXComboTableItem(FX::FXString()) {}

  void setText(const FX::FXString& text) override;
  /// The editor, with type-ahead and all choices; FOX's own stops filling it at the first empty one.
  FX::FXWindow* getControlFor(FX::FXTable* table) override;
};

}  // namespace Brontel::Plugin::ItemData
