#include "itemdata/ItemDataPluginList.h"

namespace Brontel::Plugin::ItemData {

ItemDataPluginList plugins;

ItemDataEntry* ItemDataPluginList::getByType(int type, Entity* owner) const {
  for (FX::FXint i = 0; i < no(); ++i) {
    const ItemDataEntry* prototype = at(i);
    if (prototype == nullptr || !prototype->canHandleType(type)) continue;
    ItemDataEntry* entry = prototype->clone(owner);
    entry->type = type;
    return entry;
  }
  return nullptr;
}

}  // namespace Brontel::Plugin::ItemData
