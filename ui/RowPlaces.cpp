#include "ui/RowPlaces.h"

#include "itemdata/ItemDataList.h"

namespace Brontel::Plugin::ItemData::UI {

using FX::FXint;

RowPlaces::RowPlaces(const ItemDataList* settings, FXint columns)
    : hasSettings_(settings != nullptr), columns_(columns) {
  if (settings == nullptr || settings->firstRowIndex < 0) return;
  for (FXint i = settings->firstRowIndex; i < settings->no(); ++i) {
    const FXint column = i - settings->firstRowIndex;
    if (settings->at(i) != nullptr && column < columns) columnOf_.emplace(settings->at(i)->itemvariable, column);
  }
}

RowPlaces::Place RowPlaces::next(const ItemDataEntry& entry) {
  if (!hasSettings_) {
    const FXint cell = cell_++;
    return {cell / columns_, cell % columns_};
  }
  if (entry.row == 0) return {0, -1};
  if (entry.row != rowNumber_) {
    rowNumber_ = entry.row;
    ++row_;
  }
  const auto column = columnOf_.find(entry.itemvariable);
  return {row_, column == columnOf_.end() ? -1 : column->second};
}

}  // namespace Brontel::Plugin::ItemData::UI
