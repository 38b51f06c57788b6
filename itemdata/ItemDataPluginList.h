#pragma once

#include <fx.h>

#include "itemdata/ItemDataEntry.h"

namespace Brontel::Plugin::ItemData {

/// The kinds of cells there are: one prototype each, asked in order. The list does not own them; null slots are
/// skipped.
class ItemDataPluginList : public FX::FXObjectListOf<ItemDataEntry> {
 public:
  /// A new cell of that type, cloned from the first prototype that handles it, bound to owner (may be null). The caller
  /// owns it. Null when no kind handles the type.
  ItemDataEntry* getByType(int type, Entity* owner) const;
};

/// The registry of the plug-in. The container fills it and deletes the prototypes.
__attribute__((visibility("default"))) extern ItemDataPluginList plugins;

}  // namespace Brontel::Plugin::ItemData
