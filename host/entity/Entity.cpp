#include "host/entity/Entity.h"

namespace Brontel {

FXIMPLEMENT_ABSTRACT(Entity, FXObject, nullptr, 0)

Entity::~Entity() {
  deleteMiscData();
}

EntityMiscData* Entity::getMiscData(const char* key) const {
  if (key == nullptr) return nullptr;
  for (const auto& [name, data] : miscData_) {
    if (name == key) return data.get();
  }
  return nullptr;
}

void Entity::addMiscData(const char* key, EntityMiscData* data) {
  if (key == nullptr || data == nullptr) return;
  for (auto& [name, held] : miscData_) {
    if (held.get() == data) return;
    if (name == key) {
      held.reset(data);
      return;
    }
  }
  miscData_.emplace_back(key, std::unique_ptr<EntityMiscData>(data));
}

void Entity::cloneMiscDataFrom(const Entity& other) {
  for (const auto& [name, data] : other.miscData_) addMiscData(name.c_str(), data->clone(this));
}

void Entity::deleteMiscData() {
  miscData_.clear();
}

}  // namespace Brontel
