#include "app/window/RowList.h"

#include <algorithm>

#include "app/ErrorText.h"
#include "app/window/Collation.h"
#include "app/window/Headers.h"

namespace Brontel::App {

using FX::FXint;
using FX::FXString;

FXDEFMAP(RowList)
rowListMap[] = {
    FXMAPFUNC(FX::SEL_COMMAND, RowList::ID_HEADER_CHANGE, RowList::onHeaderClicked),
};

FXIMPLEMENT(RowList, FXIconList, rowListMap, ARRAYNUMBER(rowListMap))

RowList::RowList(FX::FXComposite* parent, FX::FXObject* receiver, FX::FXSelector sel, const FXString& section)
    : FXIconList(parent, receiver, sel,
                 FX::ICONLIST_DETAILED | FX::ICONLIST_BROWSESELECT | FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y),
      section_(section) {
  sortColumn_ = getApp()->reg().readIntEntry(section_.text(), "sort", 0);
  descending_ = getApp()->reg().readIntEntry(section_.text(), "descending", 0) != 0;
}

void RowList::addColumn(const FXString& title, FXint width) {
  appendHeader(title, nullptr, width);
}

void RowList::setDefaultOrder(FXint column, bool descending) {
  if (getApp()->reg().existingEntry(section_.text(), "sort")) return;
  sortColumn_ = column;
  descending_ = descending;
}

void RowList::create() {
  const bool isNew = id() == 0;
  FXIconList::create();
  if (isNew) restoreHeaders(*getHeader(), section_);
  fitHeaders(*getHeader());
  fill();
}

void RowList::setRows(std::vector<Row> rows) {
  const int current = getCurrentId();
  rows_ = std::move(rows);
  for (Row& row : rows_) row.cells.resize(static_cast<size_t>(getNumHeaders()));
  sortRows();
  fill();
  setCurrentId(current);
}

void RowList::setFilter(const FXString& text) {
  const int current = getCurrentId();
  filter_ = folded(text);
  fill();
  setCurrentId(current);
}

void RowList::sortRows() {
  if (sortColumn_ < 0 || sortColumn_ >= getNumHeaders()) sortColumn_ = 0;
  const auto column = static_cast<size_t>(sortColumn_);
  std::stable_sort(rows_.begin(), rows_.end(), [&](const Row& a, const Row& b) {
    return descending_ ? comesBefore(b.cells[column], a.cells[column]) : comesBefore(a.cells[column], b.cells[column]);
  });
}

void RowList::fill() {
  clearItems();
  shown_.clear();
  for (size_t i = 0; i < rows_.size(); ++i) {
    FXString line;
    for (const FXString& cell : rows_[i].cells) {
      if (&cell != &rows_[i].cells.front()) line += "\t";
      line += toOneLine(cell);
    }
    if (!filter_.empty() && folded(line).find(filter_) < 0) continue;
    shown_.push_back(i);
    appendItem(line);
  }
  for (FXint i = 0; i < getNumHeaders(); ++i) {
    const FX::FXbool direction = descending_ ? FALSE : TRUE;
    getHeader()->setArrowDir(i, i == sortColumn_ ? direction : MAYBE);
  }
  if (getNumItems() > 0) setCurrentItem(0);
}

int RowList::getCurrentId() const {
  const FXint index = getCurrentItem();
  return index < 0 || static_cast<size_t>(index) >= shown_.size() ? 0 : rows_[shown_[static_cast<size_t>(index)]].id;
}

void RowList::setCurrentId(int id) {
  for (size_t i = 0; i < shown_.size(); ++i) {
    if (rows_[shown_[i]].id != id) continue;
    const auto line = static_cast<FXint>(i);
    setCurrentItem(line);
    selectItem(line);
    makeItemVisible(line);
    return;
  }
}

void RowList::saveLayout() const {
  FX::FXRegistry& settings = getApp()->reg();
  saveHeaders(*getHeader(), section_);
  settings.writeIntEntry(section_.text(), "sort", sortColumn_);
  settings.writeIntEntry(section_.text(), "descending", descending_ ? 1 : 0);
}

long RowList::onHeaderClicked(FX::FXObject*, FX::FXSelector, void* ptr) {
  const auto column = static_cast<FXint>(reinterpret_cast<FX::FXival>(ptr));
  descending_ = column == sortColumn_ && !descending_;
  sortColumn_ = column;
  const int place = getCurrentId();
  sortRows();
  fill();
  setCurrentId(place);
  return 1;
}

}  // namespace Brontel::App
