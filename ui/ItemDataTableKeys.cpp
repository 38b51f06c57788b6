// How the keyboard and the clipboard work in the table.

#include <fxkeys.h>
#include <libintl.h>

#include "host/message/FillIn.h"
#include "host/ui/Legibility.h"
#include "host/ui/PastedText.h"
#include "itemdata/Codes.h"
#include "itemdata/ItemDataEntry.h"
#include "ui/ClipboardText.h"
#include "ui/ItemDataTable.h"

namespace Brontel::Plugin::ItemData::UI {

using FX::FXint;
using FX::FXSelector;

namespace {

constexpr FX::FXuint kCommandModifiers = FX::CONTROLMASK | FX::ALTMASK;

}  // namespace

bool ItemDataTable::isEditorPaneShown() const {
  const auto* combo = dynamic_cast<const FX::FXComboBox*>(editor);
  return combo != nullptr && combo->isPaneShown();
}

void ItemDataTable::moveTo(FXint row, FXint col, bool notify) {
  killSelection(notify);
  acceptInput(true);
  setCurrentItem(row, col, notify);
  setAnchorItem(row, col);
  scrollTo(row, col);
  showCursor();
}

void ItemDataTable::scrollTo(FXint row, FXint col) {
  // A row that has just been added is not within reach of the scroll bar before the next layout.
  if (id() != 0) layout();
  makePositionVisible(row, col);
}

void ItemDataTable::showCursor() {
  const FXint row = getCurrentRow();
  const FXint col = getCurrentColumn();
  if (!hasFocus() || !isCell(row, col) || getItem(row, col) == nullptr) return;
  getItem(row, col)->setFocus(true);
  updateItem(row, col);
}

FXint ItemDataTable::firstEmptyColumn(FXint row) const {
  for (FXint col = 0; col < getNumColumns(); ++col) {
    if (getEntry(row, col) != nullptr && getItemText(row, col).empty()) return col;
  }
  return 0;
}

bool ItemDataTable::moveBy(FXint steps) {
  if (getNumColumns() == 0) return false;
  const FXint cell = getCurrentRow() * getNumColumns() + getCurrentColumn() + steps;
  if (cell < 0 || cell >= getNumRows() * getNumColumns()) return false;
  moveTo(cell / getNumColumns(), cell % getNumColumns(), true);
  return true;
}

bool ItemDataTable::moveDown() {
  if (getCurrentRow() + 1 >= getNumRows()) return false;
  moveTo(getCurrentRow() + 1, getCurrentColumn(), true);
  return true;
}

void ItemDataTable::leaveForwards(void* event) {
  for (FXWindow* window = this; window != getShell(); window = window->getParent()) {
    if (window->getParent()->handle(this, FXSEL(FX::SEL_FOCUS_NEXT, 0), event)) return;
  }
}

long ItemDataTable::onKeyPress(FXObject* sender, FXSelector sel, void* ptr) {
  const auto* event = static_cast<const FX::FXEvent*>(ptr);
  const bool isPaste = event->code == FX::KEY_v && (event->state & kCommandModifiers) == FX::CONTROLMASK;
  if (isPaste && dynamic_cast<FX::FXTextField*>(editor) != nullptr && pasteWhileEditing()) return 1;
  if (!isEnabled() || isEditorPaneShown() || (event->state & kCommandModifiers)) {
    return FXTable::onKeyPress(sender, sel, ptr);
  }
  switch (event->code) {
    case FX::KEY_Return:
    case FX::KEY_KP_Enter:
      acceptInput(true);
      // A scanner ends each number with Enter and so fills a column; it must not go on to make rows by itself.
      if (!moveDown()) leaveForwards(ptr);
      return 1;
    case FX::KEY_Tab:
    case FX::KEY_ISO_Left_Tab: {
      acceptInput(true);
      const bool back = event->code == FX::KEY_ISO_Left_Tab || (event->state & FX::SHIFTMASK) != 0;
      // Not handled, the key goes on to the windows around, which move the focus.
      return moveBy(back ? -1 : 1) ? 1 : 0;
    }
    case FX::KEY_Escape:
      if (editor == nullptr) return 0;
      break;
    case FX::KEY_Insert:
    case FX::KEY_KP_Insert:
    case FX::KEY_Delete:
    case FX::KEY_KP_Delete:
      // Of no use to the open editor of a list, they would go on and add or delete the row being edited.
      if (editor != nullptr) {
        FXTable::onKeyPress(sender, sel, ptr);
        return 1;
      }
      break;
    default:
      break;
  }
  return FXTable::onKeyPress(sender, sel, ptr);
}

long ItemDataTable::onCmdPasteSel(FXObject*, FXSelector, void*) {
  FX::FXString text;
  if (!isEditable() || !readClipboard(*this, text)) {
    getApp()->beep();
    return 1;
  }
  acceptInput(true);
  const bool selected = isAnythingSelected();
  paste(PastedText(text), selected ? getSelStartRow() : getCurrentRow(),
        selected ? getSelStartColumn() : getCurrentColumn());
  return 1;
}

bool ItemDataTable::pasteWhileEditing() {
  FX::FXString text;
  if (!readClipboard(*this, text)) return false;
  const PastedText pasted(text);
  if (pasted.getNumRows() == 1 && pasted.getNumColumns() == 1) {
    // Without the line feed that a spreadsheet puts behind a single cell, too.
    FX::FXString cell = pasted.getCell(0, 0);
    editor->handle(this, FXSEL(FX::SEL_COMMAND, FX::FXTextField::ID_INSERT_STRING), &cell[0]);
    return true;
  }
  acceptInput(true);
  paste(pasted, getCurrentRow(), getCurrentColumn());
  return true;
}

void ItemDataTable::paste(const PastedText& pasted, FXint row, FXint col) {
  if (!isCell(row, col) || pasted.getNumRows() == 0) return;
  const FXint columnsLeft = getNumColumns() - col;
  if (pasted.getNumColumns() > columnsLeft) {
    const FX::FXString explanation = fillIn(
        dgettext(kTextDomain, "A vágólapon %d oszlop van, innen kezdve a táblázatban csak %d. Semmi sem változott."),
        {FX::FXStringVal(pasted.getNumColumns()), FX::FXStringVal(columnsLeft)});
    FX::FXMessageBox::information(this, FX::MBOX_OK, dgettext(kTextDomain, "A beillesztés nem lehetséges"), "%s",
                                  wrappedForBox(getApp(), explanation).text());
    return;
  }
  const FXint missing = row + pasted.getNumRows() - getNumRows();
  if (missing > 0 && !appendRows(missing)) return;
  for (FXint r = 0; r < pasted.getNumRows(); ++r) {
    for (FXint c = 0; c < pasted.getNumColumns(r); ++c) {
      if (getEntry(row + r, col + c) != nullptr) setItemText(row + r, col + c, pasted.getCell(r, c));
    }
  }
  const FXint lastRow = row + pasted.getNumRows() - 1;
  const FXint lastColumn = col + pasted.getNumColumns() - 1;
  tellReplaced({{row, col}, {lastRow, lastColumn}});
  setCurrentItem(row, col, true);
  selectRange(row, lastRow, col, lastColumn, true);
  scrollTo(lastRow, lastColumn);
}

bool ItemDataTable::appendRows(FXint count) {
  const FXint before = getNumRows();
  insertRows(before, count, true);
  if (getEntry(before, 0) != nullptr) return true;
  // Without entry they would lose what is put into them.
  removeRows(before, count, false);
  return false;
}

}  // namespace Brontel::Plugin::ItemData::UI
