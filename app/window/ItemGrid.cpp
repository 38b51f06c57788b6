#include "app/window/ItemGrid.h"

#include <algorithm>

#include <fxkeys.h>
#include <libintl.h>

#include "app/ErrorText.h"
#include "app/window/GoodsCombo.h"
#include "app/window/Headers.h"
#include "host/entity/Invoice.h"
#include "host/ui/InvoiceForm.h"
#include "host/ui/Legibility.h"

namespace Brontel::App {

using FX::FXint;
using FX::FXString;

FXDEFMAP(ItemGrid)
itemGridMap[] = {
    FXMAPFUNC(FX::SEL_KEYPRESS, 0, ItemGrid::onKeyPress),
    FXMAPFUNC(FX::SEL_COMMAND, ItemGrid::ID_CUT_SEL, ItemGrid::onCmdCut),
    FXMAPFUNC(FX::SEL_COMMAND, ItemGrid::ID_PASTE_SEL, ItemGrid::onCmdPaste),
    FXMAPFUNC(FX::SEL_COMMAND, ItemGrid::ID_DELETE_SEL, ItemGrid::onCmdDelete),
};

FXIMPLEMENT(ItemGrid, InvoiceItemTable, itemGridMap, ARRAYNUMBER(itemGridMap))

namespace {

constexpr FXint kLastEditable = ItemGrid::PRICE;
constexpr FXint kRowHeaderWidth = 36;
constexpr FXint kHeaderPad = 8;
constexpr FXint kWidths[ItemGrid::COLUMNS] = {280, 100, 90, 100, 280};

}  // namespace

ItemGrid::ItemGrid(FX::FXComposite* parent, InvoiceForm* form, const GoodsCatalogue& catalogue, FX::FXObject* receiver,
                   FX::FXSelector sel)
    : InvoiceItemTable(parent, form, receiver, sel,
                       FX::TABLE_COL_SIZABLE | FX::TABLE_NO_ROWSELECT | FX::TABLE_NO_COLSELECT | FX::LAYOUT_FILL_X |
                           FX::LAYOUT_FILL_Y),
      catalogue_(&catalogue) {
  setTableSize(0, COLUMNS);
  const FX::FXchar* const titles[COLUMNS] = {gettext("Megnevezés"), gettext("Mennyiség"), gettext("Egység"),
                                             gettext("Egységár"), gettext("Egyéb adatok")};
  for (FXint column = 0; column < COLUMNS; ++column) {
    setColumnText(column, titles[column]);
    setColumnWidth(column, scaledToFont(getApp(), kWidths[column]));
  }
  setRowHeaderMode(FX::LAYOUT_FIX_WIDTH);
  setRowHeaderWidth(kRowHeaderWidth);
  setColumnHeaderMode(FX::LAYOUT_FIX_HEIGHT);
  fitRows(*this);
}

void ItemGrid::create() {
  InvoiceItemTable::create();
  setColumnHeaderHeight(getFont()->getFontHeight() + kHeaderPad);
  fitHeaders(*getColumnHeader());
  setRowHeaderWidth(std::max(kRowHeaderWidth, getFont()->getTextWidth("00000")));
}

void ItemGrid::showItems(const Invoice& invoice) {
  cancelInput();
  const FXint count = invoice.getItems().no();
  if (getNumRows() != count) {
    if (getNumRows() > 0) removeRows(0, getNumRows());
    if (count > 0) insertRows(0, count);
  }
  for (FXint row = 0; row < count; ++row) {
    setRowText(row, FX::FXStringVal(row + 1));
    showItem(row, *invoice.getItems()[row]);
  }
  if (getCurrentRow() < 0 || getCurrentColumn() < 0) goTo(0, GOODS);
}

void ItemGrid::showItem(FXint row, const InvoiceItem& item) {
  setItemText(row, GOODS, toOneLine(item.getName()));
  setItemText(row, QUANTITY, item.getQuantity().toString());
  setItemText(row, UNIT, toOneLine(item.getUnit()));
  setItemText(row, PRICE, toOneLine(item.getPrice()));
  for (const FXint column : {GOODS, UNIT, DATA}) {
    setItemJustify(row, column, FX::FXTableItem::LEFT | FX::FXTableItem::CENTER_Y);
  }
  disableItem(row, DATA);
}

void ItemGrid::showData(FXint row, const FXString& text) {
  const FXString line = toOneLine(text);
  if (getItemText(row, DATA) != line) setItemText(row, DATA, line);
}

void ItemGrid::insertItemRow(FXint row, const InvoiceItem& item) {
  insertRows(row, 1);
  showItem(row, item);
  for (FXint below = row; below < getNumRows(); ++below) setRowText(below, FX::FXStringVal(below + 1));
}

void ItemGrid::removeItemRow(FXint row) {
  cancelInput();
  killSelection();
  removeRows(row, 1);
  for (FXint below = row; below < getNumRows(); ++below) setRowText(below, FX::FXStringVal(below + 1));
}

void ItemGrid::getChosenRows(FXint& first, FXint& last) const {
  first = getSelStartRow();
  last = getSelEndRow();
  if (first < 0 || last < first) first = last = getCurrentRow();
}

void ItemGrid::goTo(FXint row, FXint column) {
  if (row < 0 || row >= getNumRows()) return;
  killSelection(TRUE);
  setCurrentItem(row, column, TRUE);
  setAnchorItem(row, column);
  makePositionVisible(row, column);
}

void ItemGrid::releaseMouse() {
  if (grabbed()) ungrab();
  handle(this, FXSEL(FX::SEL_UNGRABBED, 0), nullptr);
}

void ItemGrid::startInput(FXint row, FXint column) {
  InvoiceItemTable::startInput(row, column);
  if (auto* goods = dynamic_cast<GoodsCombo*>(editor)) goods->startTyping();
}

void ItemGrid::cancelInput() {
  const bool wasEditing = isEditing();
  InvoiceItemTable::cancelInput();
  if (wasEditing && getForm() != nullptr) getForm()->proposeCheckAll();
}

FX::FXWindow* ItemGrid::getControlForItem(FXint row, FXint column) {
  if (column != GOODS) return InvoiceItemTable::getControlForItem(row, column);
  auto* goods = new GoodsCombo(this, *catalogue_, getItemText(row, column));
  goods->create();
  return goods;
}

void ItemGrid::setItemFromControl(FXint row, FXint column, FX::FXWindow* control) {
  const auto* goods = dynamic_cast<GoodsCombo*>(control);
  if (goods == nullptr) {
    InvoiceItemTable::setItemFromControl(row, column, control);
  } else {
    setItemText(row, column, goods->getText());
  }
}

long ItemGrid::onKeyPress(FX::FXObject* sender, FX::FXSelector sel, void* ptr) {
  const auto* event = static_cast<const FX::FXEvent*>(ptr);
  const bool isBackwards = (event->state & FX::SHIFTMASK) != 0;
  switch (event->code) {
    case FX::KEY_Tab:
    case FX::KEY_ISO_Left_Tab:
      if ((event->state & (FX::CONTROLMASK | FX::ALTMASK)) != 0) break;
      // At the end the key leads out of the table.
      return walk(isBackwards || event->code == FX::KEY_ISO_Left_Tab ? -1 : 1) ? 1 : 0;
    case FX::KEY_Return:
    case FX::KEY_KP_Enter:
      if (isChoosingGoods()) break;
      walk(1);
      return 1;
    default:
      break;
  }
  return InvoiceItemTable::onKeyPress(sender, sel, ptr);
}

// The cells of the table are those of the items, which nothing but the form may change: cutting only copies.
long ItemGrid::onCmdCut(FX::FXObject* sender, FX::FXSelector, void* ptr) {
  return handle(sender, FXSEL(FX::SEL_COMMAND, ID_COPY_SEL), ptr);
}

long ItemGrid::onCmdPaste(FX::FXObject* sender, FX::FXSelector, void* ptr) {
  if (!isEditing()) handle(sender, FXSEL(FX::SEL_COMMAND, ID_START_INPUT), ptr);
  for (FX::FXWindow* field = editor; field != nullptr; field = field->getFirst()) {
    if (dynamic_cast<FX::FXTextField*>(field) == nullptr) continue;
    return field->handle(this, FXSEL(FX::SEL_COMMAND, FX::FXTextField::ID_PASTE_SEL), nullptr);
  }
  return 1;
}

long ItemGrid::onCmdDelete(FX::FXObject*, FX::FXSelector, void*) {
  getApp()->beep();
  return 1;
}

bool ItemGrid::walk(int step) {
  acceptInput(TRUE);
  const FXint row = getCurrentRow();
  const FXint column = getCurrentColumn();
  if (row < 0) return false;
  const FXint cells = kLastEditable + 1;
  const FXint next = row * cells + (column > kLastEditable ? kLastEditable : column) + step;
  if (next < 0 || next >= getNumRows() * cells) return false;
  goTo(next / cells, next % cells);
  return true;
}

// The open list takes the key itself.
bool ItemGrid::isChoosingGoods() const {
  const auto* goods = dynamic_cast<const GoodsCombo*>(editor);
  return goods != nullptr && goods->isPaneShown();
}

}  // namespace Brontel::App
