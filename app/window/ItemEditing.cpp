#include "app/window/ItemEditing.h"

#include <algorithm>
#include <memory>

#include <libintl.h>

#include "app/ErrorText.h"
#include "app/window/Dialogs.h"
#include "app/window/InvoiceEditForm.h"
#include "app/window/ItemGrid.h"
#include "app/window/Workspace.h"
#include "host/entity/TypedDecimal.h"
#include "host/message/FillIn.h"

namespace Brontel::App {

using FX::FXint;
using FX::FXMenuCommand;
using FX::FXString;
using Pause = InvoiceEditForm::Pause;

namespace {

constexpr char kQuantityPlaces = 4;

}  // namespace

bool ItemEditing::acceptInput() {
  refused_ = false;
  grid_.acceptInput(TRUE);
  return !refused_;
}

void ItemEditing::applyCell(FXint row, FXint column) {
  if (row < 0 || row >= editor_.countItems()) return;
  switch (column) {
    case ItemGrid::GOODS:
      return changeGoods(row);
    case ItemGrid::QUANTITY:
      return changeQuantity(row);
    case ItemGrid::UNIT:
      return editor_.getItem(row).setUnit(grid_.getItemText(row, ItemGrid::UNIT));
    case ItemGrid::PRICE:
      return changePrice(row);
    default:
      return;
  }
}

void ItemEditing::changeGoods(FXint row) {
  const InvoiceItem& item = editor_.getItem(row);
  const FXString text = grid_.getItemText(row, ItemGrid::GOODS);
  if (text == toOneLine(item.getName())) return;
  const GoodsCatalogue::Goods* goods = catalogue_.find(text);
  if (goods == nullptr) goods = catalogue_.findBeginning(text);
  if (goods == nullptr) {
    refuse(row, ItemGrid::GOODS,
           fillIn(gettext("Nincs ilyen áru vagy szolgáltatás: %s. Válasszon a listából."), {text}));
    return;
  }
  const bool isSame = goods->kind == item.getGoodsKind() && goods->id == item.getGoodsId();
  if (isSame || !mayReplace(row, goods->name)) {
    grid_.showItem(row, item);
    return;
  }
  grid_.showItem(row, editor_.replaceGoods(row, *goods));
  form_.itemsChanged();
}

bool ItemEditing::mayReplace(FXint row, const FXString& goods) {
  if (!editor_.hasRecordedData(row)) return true;
  grid_.releaseMouse();
  const Pause pause(form_);
  const FXString data = workspace_.getPlugins().toString(&editor_.getItem(row));
  const FXString question = fillIn(gettext("A tételhez már rögzítettek adatokat:\n%s\n\nHa a tétel mostantól ez: %s, "
                                           "ezek az adatok elvesznek. Folytatja?"),
                                   {Dialogs::shortened(data), goods});
  return Dialogs::confirm(&form_, gettext("Másik áru"), question);
}

void ItemEditing::changeQuantity(FXint row) {
  const FXString text = grid_.getItemText(row, ItemGrid::QUANTITY);
  FXString number;
  if (!readDecimal(text, number)) {
    refuse(row, ItemGrid::QUANTITY,
           fillIn(gettext("Ez nem mennyiség: %s. Legfeljebb 12 egész és 4 tizedes számjegyet írjon."), {text}));
    return;
  }
  InvoiceItem& item = editor_.getItem(row);
  item.setQuantity(FXExt::FXDecimal(number, kQuantityPlaces));
  grid_.showItem(row, item);
}

void ItemEditing::changePrice(FXint row) {
  FXString text = grid_.getItemText(row, ItemGrid::PRICE);
  FXString number;
  if (!text.trim().empty() && !readDecimal(text, number)) {
    refuse(row, ItemGrid::PRICE,
           fillIn(gettext("Ez nem ár: %s. Legfeljebb 12 egész és 4 tizedes számjegyet írjon."), {text}));
    return;
  }
  InvoiceItem& item = editor_.getItem(row);
  item.setPrice(number);
  grid_.showItem(row, item);
}

void ItemEditing::refuse(FXint row, FXint column, const FXString& error) {
  refused_ = true;
  grid_.showItem(row, editor_.getItem(row));
  grid_.releaseMouse();
  const Pause pause(form_);
  Dialogs::showError(&form_, error);
  grid_.goTo(row, column);
}

void ItemEditing::addItem() {
  const InvoiceItem& item = editor_.addItem();
  const FXint row = editor_.countItems() - 1;
  grid_.insertItemRow(row, item);
  form_.itemsChanged();
  grid_.setFocus();
  grid_.goTo(row, ItemGrid::GOODS);
  grid_.startInput(row, ItemGrid::GOODS);
}

void ItemEditing::removeItems() {
  grid_.cancelInput();
  FXint first = -1;
  FXint last = -1;
  grid_.getChosenRows(first, last);
  if (first < 0) return;
  bool hasData = false;
  for (FXint row = first; row <= last; ++row) hasData = hasData || editor_.hasRecordedData(row);
  const Pause pause(form_);
  if (hasData && !Dialogs::confirm(&form_, gettext("Tétel törlése"),
                                   gettext("A törlendő tételhez rögzített egyéb adatok is elvesznek.\n\nTörli?"))) {
    return;
  }
  form_.itemsChanged();
  for (FXint row = last; row >= first; --row) {
    grid_.removeItemRow(row);
    editor_.removeItem(row);
  }
  form_.itemsChanged();
}

void ItemEditing::showMenuAt(const FX::FXEvent& click) {
  if (click.moved) return;
  const FXint row = grid_.rowAtY(click.win_y);
  FXint first = -1;
  FXint last = -1;
  grid_.getChosenRows(first, last);
  if (row >= 0 && row < grid_.getNumRows() && (row < first || row > last)) {
    grid_.goTo(row, std::max(0, grid_.getCurrentColumn()));
  }
  showMenu(click.root_x, click.root_y);
}

void ItemEditing::showMenuAtCell() {
  FXint x = 0;
  FXint y = 0;
  const FXint row = grid_.getCurrentRow();
  const FXint below = row < 0 ? grid_.getColumnHeaderHeight() : grid_.getRowY(row) + grid_.getRowHeight(row);
  grid_.translateCoordinatesTo(x, y, form_.getRoot(), grid_.getRowHeaderWidth(), below);
  showMenu(x, y);
}

void ItemEditing::showMenu(FXint x, FXint y) {
  if (!acceptInput()) return;
  const Pause pause(form_);
  // The plug-ins find the table as the owner of their entry's owner.
  const std::unique_ptr<FX::FXMenuPane> pane(grid_.createMenu(workspace_.getPlugins()));
  if (pane->getFirst() != nullptr) new FX::FXMenuSeparator(pane.get());
  new FXMenuCommand(pane.get(), gettext("Ú&j tétel\tIns"), workspace_.getApp().getNewRowIcon(), &form_,
                    InvoiceEditForm::ID_ADD_ITEM);
  new FXMenuCommand(pane.get(), gettext("Tétel tö&rlése\tCtrl+Del"), workspace_.getApp().getDeleteIcon(), &form_,
                    InvoiceEditForm::ID_REMOVE_ITEM);
  pane->create();
  pane->popup(nullptr, x, y);
  workspace_.getApp().runModalWhileShown(pane.get());
}

}  // namespace Brontel::App
