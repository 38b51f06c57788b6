#include "host/entity/EntityMiscData.h"

namespace Brontel {

FXIMPLEMENT(EntityMiscData, FXObject, nullptr, 0)

EntityMiscData* EntityMiscData::clone(Entity* newOwner) const {
  return new EntityMiscData(newOwner);
}

}  // namespace Brontel
