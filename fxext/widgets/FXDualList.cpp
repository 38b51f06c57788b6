#include "fxext/widgets/FXDualList.h"

#include <utility>

#include "fxext/widgets/FXFocusArrowButton.h"
#include "fxext/widgets/FXFocusList.h"
#include "fxext/widgets/FXSubtree.h"

namespace FXExt {

using namespace FX;

FXDEFMAP(FXDualList)
dualListMap[] = {
    FXMAPFUNC(SEL_DOUBLECLICKED, FXDualList::ID_FROMLIST, FXDualList::onCmdMakeSelected),
    FXMAPFUNC(SEL_COMMAND, FXDualList::ID_MAKESELECTED, FXDualList::onCmdMakeSelected),
    FXMAPFUNC(SEL_DOUBLECLICKED, FXDualList::ID_TOLIST, FXDualList::onCmdMakeUnSelected),
    FXMAPFUNC(SEL_COMMAND, FXDualList::ID_MAKEUNSELECTED, FXDualList::onCmdMakeUnSelected),
    FXMAPFUNC(SEL_COMMAND, FXDualList::ID_MOVEUP, FXDualList::onCmdMoveUp),
    FXMAPFUNC(SEL_COMMAND, FXDualList::ID_MOVEDOWN, FXDualList::onCmdMoveDown),
};

FXIMPLEMENT(FXDualList, FXHorizontalFrame, dualListMap, ARRAYNUMBER(dualListMap))

namespace {

static_assert(FXDualList::ID_FROMLIST == 55);
static_assert(FXDualList::ID_TOLIST == 56);
static_assert(FXDualList::ID_MAKESELECTED == 57);
static_assert(FXDualList::ID_MAKEUNSELECTED == 58);
static_assert(FXDualList::ID_MOVEUP == 59);
static_assert(FXDualList::ID_MOVEDOWN == 60);

constexpr FXint kArrowSize = 10;

FXListItem* itemAt(const FXList* list, FXint index) {
  return index < 0 ? nullptr : list->getItem(index);
}

FXint indexOf(const FXList* list, const FXListItem* item) {
  FXint index = list->getNumItems() - 1;
  while (index >= 0 && list->getItem(index) != item) --index;
  return index;
}

// FOX's list leaves current and anchor at their places when neighbours change theirs; people expect them to go along
// with the item.
template <typename Move>
void keepingPlace(FXList* list, Move move) {
  const FXListItem* const current = itemAt(list, list->getCurrentItem());
  const FXListItem* const anchor = itemAt(list, list->getAnchorItem());
  move();
  list->setCurrentItem(indexOf(list, current), FALSE);
  const FXint anchorIndex = indexOf(list, anchor);
  if (anchorIndex != list->getAnchorItem()) list->setAnchorItem(anchorIndex);
  if (current) list->makeItemVisible(list->getCurrentItem());
}

FXint append(FXList* list, const FXString& text, FXIcon* icon, void* data) {
  // The list creates the icons of the items that it has when it is created itself, and could not draw later ones.
  if (icon && list->id()) icon->create();
  return list->appendItem(text, icon, data, FALSE);
}

void moveSelected(FXList* source, FXList* destination) {
  const FXint end = destination->getNumItems();
  for (FXint i = source->getNumItems() - 1; i >= 0; --i) {
    if (!source->isItemSelected(i)) continue;
    auto* item = new FXListItem(source->getItemText(i), source->getItemIcon(i), source->getItemData(i));
    item->setEnabled(TRUE);
    destination->insertItem(end, item, FALSE);
    source->removeItem(i, FALSE);
  }
  const FXint last = destination->getNumItems() - 1;
  if (last >= end) destination->makeItemVisible(last);
}

}  // namespace

FXDualList::FXDualList() = default;

FXDualList::FXDualList(FXComposite* p, const FXString& fromTitle, const FXString& toTitle, FXuint opts)
    : FXHorizontalFrame(p, opts, 0, 0, 0, 0, 4, 4, 4, 4, 4, 4) {
  flags |= FLAG_ENABLED;
  FXHorizontalFrame* const from = createColumn_(fromTitle);
  fromList = createList_(from, ID_FROMLIST, 0);
  createArrows_(from, ID_MAKESELECTED, ARROW_RIGHT, ID_MAKEUNSELECTED, ARROW_LEFT);
  FXHorizontalFrame* const to = createColumn_(toTitle);
  toList = createList_(to, ID_TOLIST, 4);
  createArrows_(to, ID_MOVEUP, ARROW_UP, ID_MOVEDOWN, ARROW_DOWN);
}

FXHorizontalFrame* FXDualList::createColumn_(const FXString& title) {
  auto* column = new FXVerticalFrame(this, LAYOUT_FILL_X | LAYOUT_FILL_Y, 0, 0, 0, 0, 0, 0, 0, 0, 2, 2);
  new FXLabel(column, title, nullptr, LABEL_NORMAL, 0, 0, 0, 0, 2, 2, 2, 2);
  return new FXHorizontalFrame(column, LAYOUT_FILL_X | LAYOUT_FILL_Y, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0);
}

FXList* FXDualList::createList_(FXComposite* column, FXSelector id, FXint spacing) {
  auto* frame = new FXHorizontalFrame(column, FRAME_SUNKEN | FRAME_THICK | LAYOUT_FILL_X | LAYOUT_FILL_Y, 0, 0, 0, 0, 0,
                                      0, 0, 0, spacing, spacing);
  return new FXFocusList(frame, this, id, LIST_NORMAL | LAYOUT_FILL_X | LAYOUT_FILL_Y);
}

void FXDualList::createArrows_(FXComposite* column, FXSelector first, FXuint firstArrow, FXSelector second,
                               FXuint secondArrow) {
  auto* frame = new FXVerticalFrame(column, LAYOUT_FILL_Y, 0, 0, 0, 0, 4, 4, 4, 4, 4, 4);
  for (const auto& [id, arrow] : {std::pair{first, firstArrow}, std::pair{second, secondArrow}}) {
    auto* button = new FXFocusArrowButton(frame, this, id, FRAME_RAISED | FRAME_THICK | arrow, 0, 0, 0, 0, 2, 2, 2, 2);
    button->setArrowSize(kArrowSize);
  }
}

// FOX draws a disabled list as it draws an enabled one.
void FXDualList::enable() {
  FXHorizontalFrame::enable();
  enableDescendants(this);
  fromList->setBackColor(getApp()->getBackColor());
  toList->setBackColor(getApp()->getBackColor());
}

void FXDualList::disable() {
  FXHorizontalFrame::disable();
  disableDescendants(this);
  fromList->setBackColor(getApp()->getBaseColor());
  toList->setBackColor(getApp()->getBaseColor());
}

FXint FXDualList::appendFromListItem(const FXString& text, FXIcon* icon, void* data) {
  return append(fromList, text, icon, data);
}

FXint FXDualList::appendToListItem(const FXString& text, FXIcon* icon, void* data) {
  return append(toList, text, icon, data);
}

long FXDualList::onCmdMakeSelected(FXObject*, FXSelector, void*) {
  moveSelected(fromList, toList);
  return 1;
}

long FXDualList::onCmdMakeUnSelected(FXObject*, FXSelector, void*) {
  moveSelected(toList, fromList);
  return 1;
}

long FXDualList::onCmdMoveUp(FXObject*, FXSelector, void*) {
  keepingPlace(toList, [list = toList] {
    for (FXint i = 1; i < list->getNumItems(); ++i) {
      if (list->isItemSelected(i)) list->moveItem(i, i - 1, FALSE);
    }
  });
  return 1;
}

long FXDualList::onCmdMoveDown(FXObject*, FXSelector, void*) {
  keepingPlace(toList, [list = toList] {
    for (FXint i = list->getNumItems() - 2; i >= 0; --i) {
      if (list->isItemSelected(i)) list->moveItem(i, i + 1, FALSE);
    }
  });
  return 1;
}

}  // namespace FXExt
