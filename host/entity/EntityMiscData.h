#pragma once

#include <fx.h>

namespace Brontel {

class Entity;

/// Data that a plug-in keeps on an entity. Belongs to the entity once added; a destructor must not look at the owner,
/// which may be half gone.
class EntityMiscData : public FX::FXObject {
  FXDECLARE(EntityMiscData)

 public:
  EntityMiscData() = default;
  explicit EntityMiscData(Entity* owner) : owner_(owner) {}
  EntityMiscData(const EntityMiscData&) = delete;
  EntityMiscData& operator=(const EntityMiscData&) = delete;

  Entity* getOwner() const { return owner_; }

  /// A new copy bound to newOwner (may be null); the caller owns it.
  virtual EntityMiscData* clone(Entity* newOwner) const;

 protected:
  Entity* owner_ = nullptr;  // not owned
};

}  // namespace Brontel
