#pragma once

#include <string>
#include <unordered_map>

#include <fx.h>

#include "fxext/values/FXPair.h"

namespace Brontel::Plugin::ItemData {

/// Distinct texts in the order of their first occurrence, each with the number of times it occurred. Owns its pairs.
class CountingList : public FX::FXObjectListOf<FXExt::FXPair<FX::FXString, int>> {
 public:
  CountingList() = default;
  CountingList(const CountingList&) = delete;
  CountingList& operator=(const CountingList&) = delete;
  ~CountingList() override;

  void count(const FX::FXString& text);
  /// How many texts were counted, repetitions included.
  int getTotal() const { return total_; }

 private:
  int total_ = 0;
  // Finds a pair without walking through the list: thousands of serial numbers are all distinct.
  std::unordered_map<std::string, FX::FXint> indexes_;
};

}  // namespace Brontel::Plugin::ItemData
