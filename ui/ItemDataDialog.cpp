#include "ui/ItemDataDialog.h"

#include <algorithm>

#include <fxkeys.h>
#include <libintl.h>

#include "fxext/values/FXDecimal.h"
#include "host/entity/InvoiceItem.h"
#include "host/message/FillIn.h"
#include "itemdata/Codes.h"
#include "itemdata/ItemDataList.h"
#include "ui/ItemDataTable.h"
#include "ui/LabelText.h"
#include "ui/RowPlaces.h"

namespace Brontel::Plugin::ItemData {

using FX::FXint;
using FX::FXSelector;
using FX::FXWindow;
using FXExt::FXDecimal;

FXDEFMAP(ItemDataDialog)
itemDataDialogMap[] = {
    FXMAPFUNC(FX::SEL_COMMAND, UI::ItemDataTable::ID_ADD_ROW, ItemDataDialog::onAddRow),
    FXMAPFUNC(FX::SEL_COMMAND, UI::ItemDataTable::ID_DELETE_ROW, ItemDataDialog::onDeleteRow),
    FXMAPFUNC(FX::SEL_INSERTED, ItemDataDialog::ID_TABLE, ItemDataDialog::onInsertRows),
    FXMAPFUNC(FX::SEL_REPLACED, ItemDataDialog::ID_TABLE, ItemDataDialog::onChange),
    FXMAPFUNC(FX::SEL_KEYPRESS, 0, ItemDataDialog::onKeyPress),
};

FXIMPLEMENT(ItemDataDialog, FXDialogBox, itemDataDialogMap, ARRAYNUMBER(itemDataDialogMap))

namespace {

constexpr FX::FXuint kFill = FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y;
constexpr FXint kDialogWidth = 600;
constexpr FXint kTableHeight = 400;  // of the dialog, when there is a table
constexpr FXint kColumnsWidth = 568;
constexpr FXint kPad = 4;

/// The child of the matrix of inputs in which a window lies; null outside it.
FXWindow* inputAround(FXWindow* window) {
  while (window != nullptr && dynamic_cast<FX::FXMatrix*>(window->getParent()) == nullptr) window = window->getParent();
  return window;
}

}  // namespace

ItemDataDialog::ItemDataDialog(FXWindow* owner, InvoiceItem* item)
    : FXDialogBox(owner, FX::FXString(), FX::DECOR_ALL, 0, 0, 0, 0, 10, 10, 10, 10, kPad, kPad), item_(item) {
  setTitle(fillIn(gettext("%s egyéb tételadatai"), {item == nullptr ? FX::FXString() : item->getName()}));
  setWidth(kDialogWidth);
  auto* frame = new FX::FXVerticalFrame(this, kFill, 0, 0, 0, 0, kPad, kPad, kPad, kPad, kPad, kPad);
  list_ = ItemDataList::of(item);
  if (list_ != nullptr) {
    list_->settle();
    createContent(frame);
  }
  new FX::FXHorizontalSeparator(frame, FX::SEPARATOR_GROOVE | FX::LAYOUT_FILL_X, 0, 0, 0, 0, 1, 1, 0, 0);
  auto* buttons = new FX::FXHorizontalFrame(frame, FX::LAYOUT_FILL_X, 0, 0, 0, 0, kPad, kPad, kPad, kPad, kPad, kPad);
  new FX::FXButton(buttons, gettext("&OK"), nullptr, this, ID_ACCEPT,
                   FX::BUTTON_INITIAL | FX::BUTTON_DEFAULT | FX::FRAME_RAISED | FX::FRAME_THICK | FX::LAYOUT_RIGHT, 0,
                   0, 0, 0, 20, 20, 2, 2);
}

void ItemDataDialog::create() {
  FXDialogBox::create();
  if (getFocus() != nullptr) return;
  // Not before: a text field cannot have the focus until it is on the display, and once it has, it does not look for
  // its value any more. It wants to know by which event.
  forceRefresh();
  FX::FXEvent event{};
  handle(this, FXSEL(FX::SEL_FOCUS_NEXT, 0), &event);
}

void ItemDataDialog::createContent(FX::FXComposite* parent) {
  if (list_ == nullptr) return;
  const FXint inputs = countInputs();
  if (inputs > 0) createInputs(parent, inputs);
  if (list_->firstRowIndex != -1) createTable(parent);
}

/// The variables that the goods carry once per item. A closed invoice may have recorded fewer.
FXint ItemDataDialog::countInputs() const {
  const ItemDataList& settings = list_->templateList == nullptr ? *list_ : *list_->templateList;
  const FXint configured = settings.firstRowIndex == -1 ? settings.no() : settings.firstRowIndex;
  const FXint recorded = list_->firstRowIndex == -1 ? list_->no() : std::min(list_->firstRowIndex, list_->no());
  return std::min(configured, recorded);
}

void ItemDataDialog::createInputs(FX::FXComposite* parent, FXint count) {
  constexpr FXint kLabelPad = 2;
  auto* matrix = new FX::FXMatrix(parent, 2, FX::MATRIX_BY_COLUMNS | FX::LAYOUT_FILL_X, 0, 0, 0, 0, kPad, kPad, kPad,
                                  kPad, kPad, kPad);
  for (FXint i = 0; i < count; ++i) {
    ItemDataEntry* entry = list_->at(i);
    if (entry == nullptr) continue;
    new FX::FXLabel(matrix, UI::labelText(entry->name + ":"), nullptr, FX::LABEL_NORMAL, 0, 0, 0, 0, kLabelPad,
                    kLabelPad, kLabelPad, kLabelPad);
    entry->addWidget(matrix, targets_);
  }
  // Not laid out yet, the matrix is one pixel high, and a window of that height comes up as high as it needs to be.
  setHeight(matrix->getHeight());
}

void ItemDataDialog::createTable(FX::FXComposite* parent) {
  const ItemDataList& settings = list_->templateList == nullptr ? *list_ : *list_->templateList;
  if (settings.columns < 1) return;
  setHeight(kTableHeight);
  auto* frame = new FX::FXHorizontalFrame(parent, kFill | FX::FRAME_LINE, 0, 0, 0, 0, 0, 0, 0, 0, kPad, kPad);
  table_ = new UI::ItemDataTable(frame, this, ID_TABLE, kFill);
  const FXint rowCount = list_->getRowNum();
  table_->setTableSize(rowCount, settings.columns);
  fillTable(rowCount);
  if (rowCount == 0) table_->handle(this, FXSEL(FX::SEL_COMMAND, UI::ItemDataTable::ID_ADD_ROW), nullptr);
}

void ItemDataDialog::fillTable(FXint rowCount) {
  const FXint columns = table_->getNumColumns();
  const ItemDataList* settings = list_->templateList;
  const FXint settingsCount = settings == nullptr ? 0 : settings->no();
  UI::RowPlaces places(settings, columns);
  FXint placed = 0;
  for (FXint i = std::max(list_->firstRowIndex, 0); i < std::max(list_->no(), settingsCount); ++i) {
    if (placed / columns == 0) {
      // With variables recorded once per item the headings are shifted; users know them this way.
      const bool byColumn = rowCount > 0 && (rowCount < i || i >= settingsCount);
      setHeader(byColumn ? placed % columns : i);
    }
    ItemDataEntry* entry = i < list_->no() ? list_->at(i) : nullptr;
    if (!ItemDataEntry::isLive(entry)) continue;
    const UI::RowPlaces::Place place = places.next(*entry);
    if (place.column < 0 || place.row >= rowCount || table_->getItem(place.row, place.column) != nullptr) continue;
    table_->setItem(place.row, place.column, entry->getTableItem());
    ++placed;
  }
}

void ItemDataDialog::setHeader(FXint index) {
  const ItemDataList* settings = list_->templateList;
  const FXint columns = table_->getNumColumns();
  if (settings == nullptr || index >= columns || index >= settings->no() || settings->at(index) == nullptr) return;
  table_->setColumnText(index, settings->at(index)->name);
  table_->setColumnWidth(index, kColumnsWidth / columns);
}

long ItemDataDialog::onAddRow(FXObject*, FXSelector, void*) {
  addRows(table_ == nullptr ? -1 : table_->getNumRows() - 1, 1);
  return 1;
}

long ItemDataDialog::onInsertRows(FXObject*, FXSelector, void* range) {
  const auto* cells = static_cast<const FX::FXTableRange*>(range);
  if (cells != nullptr) addRows(cells->fm.row, cells->to.row - cells->fm.row + 1);
  return 1;
}

void ItemDataDialog::addRows(FXint tableRow, FXint count) {
  if (list_ == nullptr || count < 1) return;
  // Kept up from here on: asked for anew for each of thousands of rows, it would take minutes.
  FXDecimal sum = list_->getSumQuantity();
  FXint first = list_->no();
  list_->addRows(count);
  const FXint width = (list_->no() - first) / count;
  for (FXint row = 0; row < count && width > 0; ++row, first += width) {
    ItemDataEntry* quantity = list_->at(first);
    if (quantity->value.empty()) quantity->value = (item_->getQuantity() - sum).toString();
    if (quantity->type == TYPE_QUANTITY) sum += FXDecimal(quantity->value, kQuantityPlaces);
    showRow(tableRow + row, first, width);
  }
}

/// Puts the entries from an index on into a row of the table, as many as there are columns.
void ItemDataDialog::showRow(FXint tableRow, FXint first, FXint count) {
  if (table_ == nullptr || tableRow < 0 || tableRow >= table_->getNumRows()) return;
  for (FXint column = 0; column < std::min(count, table_->getNumColumns()); ++column) {
    table_->setItem(tableRow, column, list_->at(first + column)->getTableItem());
  }
}

long ItemDataDialog::onDeleteRow(FXObject*, FXSelector, void* row) {
  if (list_ == nullptr || table_ == nullptr) return 1;
  const FXint tableRow = static_cast<FXint>(reinterpret_cast<FX::FXival>(row));
  const ItemDataEntry* chosen = table_->getEntry(tableRow, 0);
  if (chosen == nullptr) return 1;
  const FXint rowNumber = chosen->row;
  clearLinksToUnstored(rowNumber, tableRow);
  for (FXint i = list_->no() - 1; i >= std::max(list_->firstRowIndex, 0); --i) {
    ItemDataEntry* entry = list_->at(i);
    if (entry == nullptr || entry->row != rowNumber) continue;
    if (entry->pk == 0) {
      list_->erase(i);
      delete entry;
    } else if (entry->del == 0) {
      entry->markForDelete(1);
    }
    if (list_->rows == rowNumber) --list_->rows;
  }
  return 1;
}

/// For the entries that are about to be destroyed: some of their cells may stay on the screen. All lie in the row that
/// goes, unless the list is not well-formed.
void ItemDataDialog::clearLinksToUnstored(FXint rowNumber, FXint tableRow) {
  FXint unstored = 0;
  for (FXint i = std::max(list_->firstRowIndex, 0); i < list_->no(); ++i) {
    const ItemDataEntry* entry = list_->at(i);
    if (entry != nullptr && entry->row == rowNumber && entry->pk == 0) ++unstored;
  }
  if (clearLinks(rowNumber, tableRow) == unstored) return;
  for (FXint row = 0; row < table_->getNumRows(); ++row) clearLinks(rowNumber, row);
}

/// Returns how many there were.
FXint ItemDataDialog::clearLinks(FXint rowNumber, FXint tableRow) {
  FXint cleared = 0;
  for (FXint column = 0; column < table_->getNumColumns(); ++column) {
    const ItemDataEntry* entry = table_->getEntry(tableRow, column);
    if (entry == nullptr || entry->row != rowNumber || entry->pk != 0) continue;
    table_->getItem(tableRow, column)->setData(nullptr);
    ++cleared;
  }
  return cleared;
}

long ItemDataDialog::onChange(FXObject*, FXSelector, void* range) {
  const auto* cells = static_cast<const FX::FXTableRange*>(range);
  if (cells == nullptr || table_ == nullptr) return 1;
  const FXint lastRow = std::min(cells->to.row, table_->getNumRows() - 1);
  const FXint lastColumn = std::min(cells->to.col, table_->getNumColumns() - 1);
  for (FXint row = std::max(cells->fm.row, 0); row <= lastRow; ++row) {
    for (FXint column = std::max(cells->fm.col, 0); column <= lastColumn; ++column) {
      const ItemDataEntry* entry = table_->getEntry(row, column);
      if (entry != nullptr && entry->itemvariable == VARIABLE_QUANTITY) triggerQtyChange(row, column);
    }
  }
  return 1;
}

void ItemDataDialog::triggerQtyChange(int row, int col) {
  if (table_ == nullptr || row < 0 || row >= table_->getNumRows() || col < 0 || col >= table_->getNumColumns()) return;
  const FX::FXString quantity = table_->getItemText(row, col);
  for (FXint column = 0; column < table_->getNumColumns(); ++column) {
    ItemDataEntry* entry = column == col ? nullptr : table_->getEntry(row, column);
    if (entry != nullptr) entry->onQuantityChanged(quantity);
  }
}

long ItemDataDialog::onKeyPress(FXObject* sender, FXSelector sel, void* ptr) {
  const FXint code = static_cast<const FX::FXEvent*>(ptr)->code;
  const bool isEnter = code == FX::KEY_Return || code == FX::KEY_KP_Enter;
  FXWindow* focus = this;
  while (focus->getFocus() != nullptr) focus = focus->getFocus();
  FXWindow* input = inputAround(focus);
  if (!isEnter || input == nullptr) return FXDialogBox::onKeyPress(sender, sel, ptr);
  // An open list or calendar has the key for itself, and the button nothing of it.
  if (getApp()->getPopupWindow() != nullptr) {
    getFocus()->handle(sender, sel, ptr);
    return 1;
  }
  // Whatever takes no text would beep.
  const auto* field = dynamic_cast<const FX::FXTextField*>(focus);
  if (field != nullptr && field->isEditable()) FXDialogBox::onKeyPress(sender, sel, ptr);
  for (; input != this; input = input->getParent()) {
    if (input->getParent()->handle(this, FXSEL(FX::SEL_FOCUS_NEXT, 0), ptr)) break;
  }
  return 1;
}

}  // namespace Brontel::Plugin::ItemData
