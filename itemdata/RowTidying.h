#pragma once

#include <unordered_set>
#include <vector>

#include <fx.h>

#include "itemdata/ItemDataList.h"

namespace Brontel::Plugin::ItemData {

/// Completes deletions: in every row of which a cell is marked, stored cells are marked and the others destroyed.
///
/// A row is a run of neighbouring cells with one row number; a quantity begins a new one. So a row that was typed in
/// after the last stored row had been deleted, and took its number, is not destroyed with it.
class RowTidying {
 public:
  /// Borrows the list.
  explicit RowTidying(ItemDataList& list) : list_(list) {}

  void apply();

 private:
  FX::FXint endOfRow(FX::FXint first) const;
  bool isMarked(FX::FXint first, FX::FXint end) const;
  void tidyRow(FX::FXint first, FX::FXint end);
  void lowerRowCount();

  ItemDataList& list_;
  FX::FXint kept_ = 0;                  // cells that stay, moved to the front
  std::vector<FX::FXint> tidied_;       // the numbers of the rows that were completed
  std::unordered_set<FX::FXint> live_;  // row numbers that still have a live cell
};

}  // namespace Brontel::Plugin::ItemData
