#pragma once

#include <fx.h>

namespace Brontel::Plugin::ItemData {

/// A table cell that shows an ItemDataEntry, linked through the item's user data, and hands every new text on to it.
/// The entry is not owned and may be null.
class ItemDataEntryTableItem : public FX::FXTableItem {
 public:
  ItemDataEntryTableItem() : FXTableItem(FX::FXString()) {}

  void setText(const FX::FXString& text) override;
};

}  // namespace Brontel::Plugin::ItemData
