#pragma once

#include "itemdata/ItemDataEntry.h"

namespace Brontel::Plugin::ItemData {

/// Date cells. The value is the date as the user wrote it.
class ItemDataDateEntry : public ItemDataEntry {
  FXDECLARE(ItemDataDateEntry)

 public:
  ItemDataDateEntry() = default;

  ItemDataDateEntry* clone(Entity* owner) const override;
  bool canHandleType(int code) const override;
  void addWidget(FX::FXComposite* parent, MemoryGuard<FX::FXDataTarget>& targets) override;
};

}  // namespace Brontel::Plugin::ItemData
