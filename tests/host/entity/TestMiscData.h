#pragma once

#include "host/entity/EntityMiscData.h"

/// Misc data that counts the living ones and carries a number into its clones.
class TestMiscData : public Brontel::EntityMiscData {
 public:
  TestMiscData(Brontel::Entity* owner, int& living, int value = 0)
      : EntityMiscData(owner), value(value), living_(living) {
    ++living_;
  }
  ~TestMiscData() override { --living_; }

  TestMiscData* clone(Brontel::Entity* newOwner) const override { return new TestMiscData(newOwner, living_, value); }

  int value;

 private:
  int& living_;
};
