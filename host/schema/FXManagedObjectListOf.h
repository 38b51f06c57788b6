#pragma once

#include <fx.h>

namespace FX {

/// A list that owns its elements: they are deleted, first to last, when the list goes. T needs a virtual destructor.
/// The inherited erase, remove and clear take elements out without deleting them.
template <class T>
class FXManagedObjectListOf : public FXObjectListOf<T> {
 public:
  FXManagedObjectListOf() = default;
  // A copied list of owning pointers would free them twice.
  FXManagedObjectListOf(const FXManagedObjectListOf&) = delete;
  FXManagedObjectListOf& operator=(const FXManagedObjectListOf&) = delete;

  ~FXManagedObjectListOf() override { deleteAll(); }

  /// Deletes every element and leaves the list empty.
  void deleteAll() {
    for (FXint i = 0; i < this->no(); ++i) delete this->at(i);
    this->clear();
  }
};

}  // namespace FX
