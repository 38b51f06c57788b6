#include "itemdata/ItemDataDateEntry.h"

#include "fxext/widgets/FXDateInput.h"
#include "itemdata/Codes.h"
#include "itemdata/EditorLayout.h"

namespace Brontel::Plugin::ItemData {

FXIMPLEMENT(ItemDataDateEntry, ItemDataEntry, nullptr, 0)

ItemDataDateEntry* ItemDataDateEntry::clone(Entity* owner) const {
  auto* entry = new ItemDataDateEntry;
  entry->owner_ = owner;
  copyFieldsTo(*entry);
  return entry;
}

bool ItemDataDateEntry::canHandleType(int code) const {
  return code == TYPE_DATE;
}

void ItemDataDateEntry::addWidget(FX::FXComposite* parent, MemoryGuard<FX::FXDataTarget>& targets) {
  FX::FXDataTarget* target = addTarget(targets);
  new FXExt::FXDateInput(parent, nullptr, target, FX::FXDataTarget::ID_VALUE, kEditorOptions, 0, 0, 0, 0, kEditorPad,
                         kEditorPad, kEditorPad, kEditorPad);
}

}  // namespace Brontel::Plugin::ItemData
