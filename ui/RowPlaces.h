#pragma once

#include <unordered_map>

#include <fx.h>

namespace Brontel::Plugin::ItemData {

class ItemDataEntry;
class ItemDataList;

namespace UI {

/// Finds the places of a list's per-unit cells in a table with a column for each configured per-unit variable. A stored
/// row may lack cells or have more than are configured now, so a cell goes by its row number and its variable; for
/// complete rows that is the order of the list.
class RowPlaces {
 public:
  struct Place {
    FX::FXint row;
    FX::FXint column;  ///< -1 for a variable that is not configured as per unit
  };

  /// Settings are the template list, read here only. Without it cells are placed in order.
  RowPlaces(const ItemDataList* settings, FX::FXint columns);

  /// The place of the next live cell. Cells have to come in the list's order.
  Place next(const ItemDataEntry& entry);

 private:
  bool hasSettings_;
  FX::FXint columns_;
  std::unordered_map<FX::FXint, FX::FXint> columnOf_;  // by variable
  FX::FXint cell_ = 0;
  FX::FXint row_ = -1;
  FX::FXint rowNumber_ = 0;
};

}  // namespace UI
}  // namespace Brontel::Plugin::ItemData
