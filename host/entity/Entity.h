#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <fx.h>

#include "host/entity/EntityMiscData.h"

namespace Brontel {

/// Base of the host's business objects.
class Entity : public FX::FXObject {
  FXDECLARE_ABSTRACT(Entity)

 public:
  Entity() = default;
  Entity(const Entity&) = delete;
  Entity& operator=(const Entity&) = delete;
  ~Entity() override;

  /// The row's key; 0 while the entity has never been saved.
  int getId() const { return id_; }
  void setId(int id) { id_ = id; }

  /// The data stored under a key of the same text, or null.
  EntityMiscData* getMiscData(const char* key) const;

  /// Takes data over; what the key held before is deleted. A null key or null data is ignored (and not taken over), and
  /// so is data that is there already.
  void addMiscData(const char* key, EntityMiscData* data);

 protected:
  /// Gives this entity a clone of each of the other's data. For copies, once they are complete objects.
  void cloneMiscDataFrom(const Entity& other);

  /// Subclasses call it first in their destructor, so that the data go while the entity is still whole.
  void deleteMiscData();

 private:
  int id_ = 0;
  std::vector<std::pair<std::string, std::unique_ptr<EntityMiscData>>> miscData_;
};

}  // namespace Brontel
