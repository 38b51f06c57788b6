#include "ui/ItemDataTable.h"

#include <vector>

#include <fxkeys.h>
#include <libintl.h>

#include "host/ui/KeyboardMenu.h"
#include "host/ui/Legibility.h"
#include "host/ui/Morvane.h"
#include "itemdata/Codes.h"
#include "itemdata/ItemDataEntry.h"

namespace Brontel::Plugin::ItemData::UI {

using FX::FXint;
using FX::FXSelector;

FXDEFMAP(ItemDataTable)
itemDataTableMap[] = {
    FXMAPFUNC(FX::SEL_RIGHTBUTTONRELEASE, 0, ItemDataTable::onContextMenu),
    FXMAPFUNC(FX::SEL_COMMAND, ItemDataTable::ID_ADD_ROW, ItemDataTable::onAddRow),
    FXMAPFUNC(FX::SEL_COMMAND, ItemDataTable::ID_DELETE_ROW, ItemDataTable::onDeleteRow),
    FXMAPFUNC(FX::SEL_KEYPRESS, 0, ItemDataTable::onKeyPress),
    FXMAPFUNC(FX::SEL_COMMAND, ItemDataTable::ID_PASTE_SEL, ItemDataTable::onCmdPasteSel),
    FXMAPFUNC(FX::SEL_MOTION, 0, ItemDataTable::onMotion),
    FXMAPFUNC(FX::SEL_QUERY_TIP, 0, ItemDataTable::onQueryTip),
};

FXIMPLEMENT(ItemDataTable, FXTable, itemDataTableMap, ARRAYNUMBER(itemDataTableMap))

namespace {

constexpr FXint kMargin = 2;

const Morvane* hostOf(FX::FXApp* app) {
  return dynamic_cast<const Morvane*>(app);
}

}  // namespace

ItemDataTable::ItemDataTable(FX::FXComposite* parent, FXObject* target, FXSelector sel, FX::FXuint opts)
    : FXTable(parent, target, sel, opts | FX::TABLE_COL_SIZABLE, 0, 0, 0, 0, kMargin, kMargin, kMargin, kMargin) {
  setRowHeaderWidth(0);
  fitRows(*this);
  // As high as its text, whose lower parts would be cut off otherwise.
  setColumnHeaderMode(FX::LAYOUT_MIN_HEIGHT);
  popup_ = new KeyboardMenu(parent->getShell());
  const Morvane* host = hostOf(getApp());
  new FX::FXMenuCommand(popup_, dgettext(kTextDomain, "&Új sor\tIns"),
                        host == nullptr ? nullptr : host->getNewRowIcon(), this, ID_ADD_ROW);
  new FX::FXMenuCommand(popup_, dgettext(kTextDomain, "&Törlés\tDel"),
                        host == nullptr ? nullptr : host->getDeleteIcon(), this, ItemDataTable::ID_DELETE_ROW);
}

ItemDataTable::~ItemDataTable() {
  delete popup_;
}

void ItemDataTable::create() {
  FXTable::create();
  if (popup_ != nullptr) popup_->create();
}

void ItemDataTable::setFocus() {
  FXTable::setFocus();
  if (getCurrentRow() >= 0 || getNumRows() == 0 || getNumColumns() == 0) return;
  moveTo(0, firstEmptyColumn(0), false);
  // Before the table has its size it scrolls to the last column, and the quantities would be cut off ever after.
  setPosition(0, 0);
}

bool ItemDataTable::isCell(FXint row, FXint col) const {
  return 0 <= row && row < getNumRows() && 0 <= col && col < getNumColumns();
}

ItemDataEntry* ItemDataTable::getEntry(FXint row, FXint col) const {
  const FX::FXTableItem* item = isCell(row, col) ? getItem(row, col) : nullptr;
  return item == nullptr ? nullptr : static_cast<ItemDataEntry*>(item->getData());
}

void ItemDataTable::startInput(FXint row, FXint col) {
  if (editor != nullptr || getEntry(row, col) == nullptr) return;
  FXTable::startInput(row, col);
  auto* combo = dynamic_cast<FX::FXComboBox*>(editor);
  if (combo == nullptr) return;
  // A list would end the input with the first key that finds a choice, and take no arrows outside its field.
  combo->setTarget(nullptr);
  combo->getFirst()->setFocus();
}

void ItemDataTable::removeItem(FXint row, FXint col, FX::FXbool notify) {
  if (getEntry(row, col) == nullptr) {
    FXTable::removeItem(row, col, notify);
    return;
  }
  if (input.fm.row == row && input.fm.col == col) cancelInput();
  setItemText(row, col, FX::FXString());
  if (notify) tellReplaced({{row, col}, {row, col}});
}

void ItemDataTable::tellReplaced(const FX::FXTableRange& range) {
  FX::FXTableRange replaced = range;
  if (target != nullptr) target->tryHandle(this, FXSEL(FX::SEL_REPLACED, message), &replaced);
}

// The right button has grabbed the mouse to scroll, and this handler stands in for the one that would let it go.
long ItemDataTable::onContextMenu(FXObject*, FXSelector, void* ptr) {
  ungrab();
  flags &= ~FLAG_PRESSED;
  flags |= FLAG_UPDATE;
  mode = MOUSE_NONE;
  const auto* event = static_cast<const FX::FXEvent*>(ptr);
  if (popup_ == nullptr || event == nullptr || event->moved) return 1;
  // The menu is about the row under the pointer, as people expect, unless that is one of those chosen.
  const FXint row = rowAtY(event->win_y);
  const FXint col = colAtX(event->win_x);
  if (isCell(row, col) && row != getCurrentRow() && !isRowSelected(row)) {
    killSelection(true);
    setCurrentItem(row, col, true);
  }
  popup_->popup(nullptr, event->root_x, event->root_y);
  getApp()->runModalWhileShown(popup_);
  return 1;
}

long ItemDataTable::onAddRow(FXObject*, FXSelector, void*) {
  // A quantity that is just being typed counts for what the new row is offered.
  acceptInput(true);
  insertRows(getNumRows(), 1, false);
  if (target != nullptr) target->tryHandle(this, FXSEL(FX::SEL_COMMAND, ID_ADD_ROW), this);
  if (getNumColumns() > 0) moveTo(getNumRows() - 1, firstEmptyColumn(getNumRows() - 1), false);
  return 1;
}

long ItemDataTable::onDeleteRow(FXObject*, FXSelector, void*) {
  std::vector<FXint> chosen;
  for (FXint row = getNumRows() - 1; row >= 0; --row) {
    if (row == getCurrentRow() || isRowSelected(row)) chosen.push_back(row);
  }
  for (auto row = chosen.rbegin(); row != chosen.rend(); ++row) {
    if (*row >= getNumRows()) continue;
    // FOX's messages carry a number in place of their pointer.
    // NOLINTNEXTLINE(performance-no-int-to-ptr)
    void* index = reinterpret_cast<void*>(static_cast<FX::FXival>(*row));
    if (target != nullptr) target->tryHandle(this, FXSEL(FX::SEL_COMMAND, ItemDataTable::ID_DELETE_ROW), index);
    removeRows(*row, 1, false);
  }
  showCursor();
  return 1;
}

long ItemDataTable::onMotion(FXObject* sender, FXSelector sel, void* ptr) {
  FXTable::onMotion(sender, sel, ptr);
  return 1;
}

long ItemDataTable::onQueryTip(FXObject* sender, FXSelector sel, void* ptr) {
  if (FXTable::onQueryTip(sender, sel, ptr)) return 1;
  FXint x = 0;
  FXint y = 0;
  FX::FXuint buttons = 0;
  getCursorPosition(x, y, buttons);
  const ItemDataEntry* entry = getEntry(rowAtY(y), colAtX(x));
  if (entry == nullptr) return 0;
  FX::FXString before;
  sender->handle(this, FXSEL(FX::SEL_COMMAND, ID_GETSTRINGVALUE), &before);
  FX::FXString name = entry->name;
  sender->handle(this, FXSEL(FX::SEL_COMMAND, ID_SETSTRINGVALUE), &name);
  // A tip that has told of another variable goes, and comes back for this one when the pointer rests.
  return before == name ? 1 : 0;
}

}  // namespace Brontel::Plugin::ItemData::UI
