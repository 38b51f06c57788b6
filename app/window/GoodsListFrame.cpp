#include "app/window/GoodsListFrame.h"

#include <cstdint>

#include <fxkeys.h>
#include <libintl.h>

#include "app/ErrorText.h"
#include "app/window/GoodsWindow.h"
#include "app/window/Headers.h"
#include "app/window/Workspace.h"
#include "host/entity/GoodsRepository.h"
#include "host/ui/KeyboardMenu.h"
#include "host/ui/WaitCursor.h"

namespace Brontel::App {

using FX::FXint;
using FX::FXString;
using FX::FXuint;

FXDEFMAP(GoodsListFrame)
goodsListFrameMap[] = {
    FXMAPFUNC(FX::SEL_CHANGED, GoodsListFrame::ID_SEARCH, GoodsListFrame::onSearch),
    FXMAPFUNC(FX::SEL_COMMAND, GoodsListFrame::ID_SEARCH, GoodsListFrame::onSearch),
    FXMAPFUNC(FX::SEL_KEYPRESS, GoodsListFrame::ID_SEARCH, GoodsListFrame::onSearchKey),
    FXMAPFUNC(FX::SEL_KEYPRESS, GoodsListFrame::ID_GOODS, GoodsListFrame::onListKey),
    FXMAPFUNC(FX::SEL_DOUBLECLICKED, GoodsListFrame::ID_GOODS, GoodsListFrame::onDoubleClick),
    FXMAPFUNC(FX::SEL_RIGHTBUTTONRELEASE, GoodsListFrame::ID_GOODS, GoodsListFrame::onMenu),
    FXMAPFUNC(FX::SEL_COMMAND, GoodsListFrame::ID_NEW, GoodsListFrame::onCmdNew),
    FXMAPFUNC(FX::SEL_COMMAND, GoodsListFrame::ID_EDIT, GoodsListFrame::onCmdEdit),
    FXMAPFUNC(FX::SEL_UPDATE, GoodsListFrame::ID_EDIT, GoodsListFrame::onUpdEdit),
};

FXIMPLEMENT(GoodsListFrame, FXVerticalFrame, goodsListFrameMap, ARRAYNUMBER(goodsListFrameMap))

namespace {

constexpr FXuint kFill = FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y;

bool isPlain(const FX::FXEvent& event) {
  return (event.state & (FX::SHIFTMASK | FX::CONTROLMASK | FX::ALTMASK)) == 0;
}

// Of the settings.
const FX::FXchar* sectionOf(GoodsKind kind) {
  if (kind == GOODS_PRODUCT) return "ProductList";
  return kind == GOODS_SERVICE ? "ServiceList" : "SuiteList";
}

// The list's columns are divided by tabs.
FXString lineOf(const Goods& goods) {
  return toOneLine(goods.code) + "\t" + toOneLine(goods.name) + "\t" + toOneLine(goods.unit) + "\t" +
         toOneLine(goods.price);
}

// The toolkit keeps one pointer for each line.
void* toData(int id) {
  // NOLINTNEXTLINE(performance-no-int-to-ptr): the number is kept where a pointer could be
  return reinterpret_cast<void*>(static_cast<std::intptr_t>(id));
}

}  // namespace

GoodsListFrame::GoodsListFrame(FX::FXComposite* parent, Workspace& workspace, GoodsKind kind)
    : FXVerticalFrame(parent, kFill, 0, 0, 0, 0, 4, 4, 4, 4, 4, 4), workspace_(&workspace), kind_(kind) {
  buildSearch();
  buildList();
}

void GoodsListFrame::buildSearch() {
  auto* bar = new FX::FXHorizontalFrame(this, FX::LAYOUT_FILL_X, 0, 0, 0, 0, 0, 0, 0, 0);
  new FX::FXLabel(bar, gettext("&Keresés:"), nullptr, FX::LABEL_NORMAL | FX::LAYOUT_CENTER_Y);
  search_ =
      new FX::FXTextField(bar, 30, this, ID_SEARCH, FX::TEXTFIELD_NORMAL | FX::LAYOUT_FILL_X | FX::LAYOUT_CENTER_Y);
  search_->setTipText(gettext("Kód vagy megnevezés része"));
  new FX::FXButton(bar, gettext("Ú&j...\tÚj felvétele (Ins)"), workspace_->getApp().getNewRowIcon(), this, ID_NEW,
                   FX::BUTTON_NORMAL | FX::LAYOUT_CENTER_Y | FX::ICON_BEFORE_TEXT, 0, 0, 0, 0, 8, 8, 2, 2);
  new FX::FXButton(bar, gettext("S&zerkesztés...\tA kijelölt szerkesztése (Enter)"), nullptr, this, ID_EDIT,
                   FX::BUTTON_NORMAL | FX::LAYOUT_CENTER_Y, 0, 0, 0, 0, 8, 8, 2, 2);
}

void GoodsListFrame::buildList() {
  auto* frame =
      new FX::FXHorizontalFrame(this, kFill | FX::FRAME_SUNKEN | FX::FRAME_THICK, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
  list_ = new FX::FXIconList(frame, this, ID_GOODS,
                             FX::ICONLIST_DETAILED | FX::ICONLIST_BROWSESELECT | FX::ICONLIST_COLUMNS | kFill);
  list_->appendHeader(gettext("Kód"), nullptr, 110);
  list_->appendHeader(gettext("Megnevezés"), nullptr, 330);
  list_->appendHeader(gettext("Egység"), nullptr, 70);
  list_->appendHeader(gettext("Ár"), nullptr, 100);
}

void GoodsListFrame::create() {
  const bool isNew = id() == 0;
  FXVerticalFrame::create();
  if (isNew) restoreHeaders(*list_->getHeader(), sectionOf(kind_));
  fitHeaders(*list_->getHeader());
  if (!isFilled_) refresh();
}

void GoodsListFrame::saveLayout() const {
  saveHeaders(*list_->getHeader(), sectionOf(kind_));
}

void GoodsListFrame::refresh() {
  isFilled_ = true;
  const Brontel::WaitCursor waiting(getApp());
  const int current = getGoodsId(list_->getCurrentItem());
  list_->clearItems();
  for (const Goods& goods : GoodsRepository(workspace_->getDatabase(), kind_).find(search_->getText())) {
    const FXint line = list_->appendItem(lineOf(goods), nullptr, nullptr, toData(goods.id));
    if (goods.id == current) list_->setCurrentItem(line);
  }
  if (list_->getCurrentItem() < 0 && list_->getNumItems() > 0) list_->setCurrentItem(0);
  if (list_->getCurrentItem() < 0) return;
  list_->selectItem(list_->getCurrentItem());
  list_->makeItemVisible(list_->getCurrentItem());
}

int GoodsListFrame::getGoodsId(FXint line) const {
  if (line < 0 || line >= list_->getNumItems()) return 0;
  return static_cast<int>(reinterpret_cast<std::intptr_t>(list_->getItemData(line)));
}

void GoodsListFrame::edit(int id) {
  openGoodsWindow(*workspace_, getShell(), kind_, id);
}

void GoodsListFrame::goToList() {
  if (list_->getNumItems() > 0) list_->setFocus();
}

long GoodsListFrame::onCmdNew(FX::FXObject*, FX::FXSelector, void*) {
  edit(0);
  return 1;
}

long GoodsListFrame::onCmdEdit(FX::FXObject*, FX::FXSelector, void*) {
  const int id = getGoodsId(list_->getCurrentItem());
  if (id != 0) edit(id);
  return 1;
}

long GoodsListFrame::onUpdEdit(FX::FXObject* sender, FX::FXSelector, void*) {
  const bool has = getGoodsId(list_->getCurrentItem()) != 0;
  sender->handle(this, FXSEL(FX::SEL_COMMAND, has ? FX::FXWindow::ID_ENABLE : FX::FXWindow::ID_DISABLE), nullptr);
  return 1;
}

long GoodsListFrame::onSearch(FX::FXObject*, FX::FXSelector sel, void*) {
  if (FXSELTYPE(sel) == FX::SEL_COMMAND) {
    goToList();
  } else {
    refresh();
  }
  return 1;
}

long GoodsListFrame::onSearchKey(FX::FXObject*, FX::FXSelector, void* ptr) {
  const auto& event = *static_cast<const FX::FXEvent*>(ptr);
  if (!isPlain(event) || (event.code != FX::KEY_Down && event.code != FX::KEY_KP_Down)) return 0;
  goToList();
  return 1;
}

long GoodsListFrame::onListKey(FX::FXObject*, FX::FXSelector, void* ptr) {
  const auto& event = *static_cast<const FX::FXEvent*>(ptr);
  if (!isPlain(event)) return 0;
  switch (event.code) {
    case FX::KEY_Insert:
    case FX::KEY_KP_Insert:
      return onCmdNew(nullptr, 0, nullptr);
    case FX::KEY_Return:
    case FX::KEY_KP_Enter:
    case FX::KEY_F2:
      return onCmdEdit(nullptr, 0, nullptr);
    case FX::KEY_F5:
      refresh();
      return 1;
    default:
      return 0;
  }
}

long GoodsListFrame::onDoubleClick(FX::FXObject*, FX::FXSelector, void*) {
  return onCmdEdit(nullptr, 0, nullptr);
}

long GoodsListFrame::onMenu(FX::FXObject*, FX::FXSelector, void* ptr) {
  const auto& event = *static_cast<const FX::FXEvent*>(ptr);
  if (event.moved) return 0;
  const FXint line = list_->getItemAt(event.win_x, event.win_y);
  if (line >= 0) {
    list_->setCurrentItem(line);
    list_->selectItem(line);
  }
  // An entry enters its key into the table of keys of the menu's owner, if that has one, and takes it out again when it
  // goes. The list has none: the keys are its own, and not for the fields beside it.
  KeyboardMenu pane(list_);
  new FX::FXMenuCommand(&pane, gettext("Ú&j...\tIns"), workspace_->getApp().getNewRowIcon(), this, ID_NEW);
  new FX::FXMenuCommand(&pane, gettext("S&zerkesztés...\tEnter"), nullptr, this, ID_EDIT);
  pane.create();
  pane.popup(nullptr, event.root_x, event.root_y);
  getApp()->runModalWhileShown(&pane);
  return 1;
}

}  // namespace Brontel::App
