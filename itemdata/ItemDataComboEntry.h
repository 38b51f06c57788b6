#pragma once

#include "itemdata/ItemDataEntry.h"

namespace Brontel::Plugin::ItemData {

/// Cells whose value is one of a list of choices, the variable's parameter split at ",". A lone blank is the choice of
/// none.
class ItemDataComboEntry : public ItemDataEntry {
  FXDECLARE(ItemDataComboEntry)

 public:
  ItemDataComboEntry() = default;

  ItemDataComboEntry* clone(Entity* owner) const override;
  bool canHandleType(int code) const override;
  void addWidget(FX::FXComposite* parent, MemoryGuard<FX::FXDataTarget>& targets) override;
  FX::FXTableItem* getTableItem() override;
  FX::FXString getValue() const override;

  class ItemDataTableComboItem;
};

}  // namespace Brontel::Plugin::ItemData
