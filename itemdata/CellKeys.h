#pragma once

#include <cstdint>
#include <unordered_set>

#include "itemdata/ItemDataEntry.h"

namespace Brontel::Plugin::ItemData {

/// What tells the cells of one item apart: variable and row, in one number for hashing.
using CellKey = std::uint64_t;
using CellKeys = std::unordered_set<CellKey>;

inline CellKey cellKey(FX::FXint itemvariable, FX::FXint row) {
  return static_cast<CellKey>(static_cast<std::uint32_t>(itemvariable)) << 32U | static_cast<std::uint32_t>(row);
}

inline CellKey keyOf(const ItemDataEntry& entry) {
  return cellKey(entry.itemvariable, entry.row);
}

}  // namespace Brontel::Plugin::ItemData
