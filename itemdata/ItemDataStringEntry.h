#pragma once

#include "itemdata/ItemDataEntry.h"

namespace Brontel::Plugin::ItemData {

/// Text and quantity cells.
class ItemDataStringEntry : public ItemDataEntry {
  FXDECLARE(ItemDataStringEntry)

 public:
  ItemDataStringEntry() = default;

  ItemDataStringEntry* clone(Entity* owner) const override;
  bool canHandleType(int code) const override;
  FX::FXString getPrintableText() const override;
};

}  // namespace Brontel::Plugin::ItemData
