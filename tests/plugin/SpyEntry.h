#pragma once

#include <string>
#include <vector>

#include "itemdata/ItemDataStringEntry.h"

/// A kind of cell of its own that writes down what it is asked to do.
class SpyEntry : public Brontel::Plugin::ItemData::ItemDataStringEntry {
 public:
  using Log = std::vector<std::string>;

  static constexpr int kType = 50;
  /// What load and save have to be given; anything else is noted.
  static inline MorvaneDatabase* expectedDatabase = nullptr;

  SpyEntry(Log& log, Brontel::Entity* owner);

  SpyEntry* clone(Brontel::Entity* owner) const override;
  int save(MorvaneDatabase* db) override;
  int load(MorvaneDatabase* db) override;
  void setStatus(unsigned int status) override;
  void check(int itemIndex, Brontel::ListOfMessage& messages, FX::FXString prefix) override;
  bool canHandleType(int code) const override { return code == kType; }

 private:
  void note(const char* what, const MorvaneDatabase* db);

  Log& log_;
};
