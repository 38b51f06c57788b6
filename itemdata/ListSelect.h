#pragma once

namespace Brontel::Plugin::ItemData {

/// The statement that reads the variables of goods of that kind (parameters id and direction); null for goods that
/// carry none.
const char* settingsSelect(int goodsKind);

/// An item's stored cells (parameter id).
extern const char* const kStoredCells;
/// The same cells without their keys, for an item that is derived from that one.
extern const char* const kDerivedCells;

}  // namespace Brontel::Plugin::ItemData
