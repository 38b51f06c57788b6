#pragma once

#include <fx.h>

#include "host/entity/EntityMiscData.h"

namespace Brontel {

/// Misc data that is a list of further misc data. It owns its elements: they are deleted, last to first, with it; null
/// slots are allowed. EntityMiscData stays the first base, since FOX casts list elements without adjusting pointers.
template <class T>
class ListOfEntityMiscData : public EntityMiscData, public FX::FXObjectListOf<T> {
 public:
  ListOfEntityMiscData() = default;
  explicit ListOfEntityMiscData(Entity* owner) : EntityMiscData(owner) {}

  ListOfEntityMiscData* clone(Entity* newOwner) const override = 0;

  ~ListOfEntityMiscData() override {
    for (FX::FXint i = this->no() - 1; i >= 0; --i) delete this->at(i);
  }
};

}  // namespace Brontel
