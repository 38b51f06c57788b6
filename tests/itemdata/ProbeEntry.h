#pragma once

#include <vector>

#include "itemdata/ItemDataStringEntry.h"

/// A text cell that tells what happens to it. It notes in lists that have to outlive it.
class ProbeEntry : public Brontel::Plugin::ItemData::ItemDataStringEntry {
 public:
  struct Notes {
    int destroyed = 0;
    std::vector<int> destroyedVariables;  // in the order of the cells' ends
    std::vector<unsigned int> statuses;
    std::vector<int> checkedRows;
    std::vector<int> loadedRows;
    std::vector<int> savedRows;
  };

  explicit ProbeEntry(Notes& notes, int probeRow = 0, int probeKey = 0) : notes_(notes) {
    type = 1;
    row = probeRow;
    pk = probeKey;
  }
  ~ProbeEntry() override {
    ++notes_.destroyed;
    notes_.destroyedVariables.push_back(itemvariable);
  }

  ProbeEntry* clone(Brontel::Entity* owner) const override {
    auto* copy = new ProbeEntry(notes_);
    copy->owner_ = owner;
    copyFieldsTo(*copy);
    return copy;
  }
  void setStatus(unsigned int status) override { notes_.statuses.push_back(status); }
  void check(int, Brontel::ListOfMessage&, FX::FXString) override { notes_.checkedRows.push_back(row); }
  int load(MorvaneDatabase*) override {
    notes_.loadedRows.push_back(row);
    return 0;
  }
  int save(MorvaneDatabase*) override {
    notes_.savedRows.push_back(row);
    return 0;
  }

 private:
  Notes& notes_;
};
