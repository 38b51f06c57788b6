#include <sstream>

#include "fxext/widgets/FXDualList.h"
#include "tests/fxext/widgets/OpenDualList.h"
#include "tests/fxext/widgets/Recorder.h"
#include "tests/fxext/widgets/WidgetTest.h"

using namespace FX;
using FXExt::FXDualList;

// What the dual list is and does, by messages.

class FXDualListTest : public WidgetTest {
 protected:
  FXDualListTest() : lists(new OpenDualList(content, "From", "To", LAYOUT_FILL_X | LAYOUT_FILL_Y)) {}

  // Fills a list with items such as "A B* C", of which those with a star are selected.
  void fill(FXList* list, const char* items) {
    list->clearItems();
    std::istringstream words(items);
    for (std::string word; words >> word;) {
      const bool selected = word.back() == '*';
      if (selected) word.pop_back();
      const FXint index = list == lists->fromList ? lists->appendFromListItem(word.c_str(), nullptr, nullptr)
                                                  : lists->appendToListItem(word.c_str(), nullptr, nullptr);
      if (selected) list->selectItem(index);
    }
  }

  long send(FXuint id) { return lists->handle(nullptr, FXSEL(SEL_COMMAND, id), nullptr); }

  std::string movedUp(const char* items) {
    fill(lists->toList, items);
    EXPECT_EQ(send(FXDualList::ID_MOVEUP), 1);
    return itemsOf(lists->toList);
  }
  std::string movedDown(const char* items) {
    fill(lists->toList, items);
    EXPECT_EQ(send(FXDualList::ID_MOVEDOWN), 1);
    return itemsOf(lists->toList);
  }

  OpenDualList* lists;
};

TEST_F(FXDualListTest, isAFrame) {
  EXPECT_STREQ(FXDualList::metaClass.getClassName(), "FXDualList");
  EXPECT_EQ(FXDualList::metaClass.getBaseClass(), &FXHorizontalFrame::metaClass);
  EXPECT_EQ(FXMetaClass::getMetaClassFromName("FXDualList"), &FXDualList::metaClass);
  auto* made = dynamic_cast<FXDualList*>(manufacture(FXDualList::metaClass));
  ASSERT_TRUE(made);
  EXPECT_EQ(OpenDualList::fromListOf(*made), nullptr);
  EXPECT_EQ(OpenDualList::toListOf(*made), nullptr);
}

TEST_F(FXDualListTest, mapsItsSixMessages) {
  const auto handlerOf = [](FXuint type, FXuint id) {
    return static_cast<const FXDualList::FXMapEntry*>(FXDualList::metaClass.search(FXSEL(type, id)))->func;
  };
  EXPECT_EQ(handlerOf(SEL_DOUBLECLICKED, 55), &FXDualList::onCmdMakeSelected);
  EXPECT_EQ(handlerOf(SEL_COMMAND, 57), &FXDualList::onCmdMakeSelected);
  EXPECT_EQ(handlerOf(SEL_DOUBLECLICKED, 56), &FXDualList::onCmdMakeUnSelected);
  EXPECT_EQ(handlerOf(SEL_COMMAND, 58), &FXDualList::onCmdMakeUnSelected);
  EXPECT_EQ(handlerOf(SEL_COMMAND, 59), &FXDualList::onCmdMoveUp);
  EXPECT_EQ(handlerOf(SEL_COMMAND, 60), &FXDualList::onCmdMoveDown);
  EXPECT_EQ(countOfMappedMessages(FXDualList::metaClass), 6);
  EXPECT_EQ(send(FXDualList::ID_FROMLIST), 0);
}

void expectPadding(const FXPacker* packer, FXint padding, FXint spacing) {
  EXPECT_EQ(packer->getPadLeft(), padding);
  EXPECT_EQ(packer->getPadRight(), padding);
  EXPECT_EQ(packer->getPadTop(), padding);
  EXPECT_EQ(packer->getPadBottom(), padding);
  EXPECT_EQ(packer->getHSpacing(), spacing);
  EXPECT_EQ(packer->getVSpacing(), spacing);
}

void expectArrow(FXWindow* window, FXObject* target, FXuint id, FXuint style) {
  auto* arrow = dynamic_cast<FXArrowButton*>(window);
  ASSERT_TRUE(arrow);
  EXPECT_EQ(arrow->getArrowStyle(), style);
  EXPECT_EQ(arrow->getTarget(), target);
  EXPECT_EQ(arrow->getSelector(), id);
  EXPECT_EQ(arrow->getFrameStyle(), static_cast<FXuint>(FRAME_RAISED | FRAME_THICK));
  EXPECT_EQ(arrow->getArrowSize(), 10);
  EXPECT_EQ(arrow->getPadLeft() + arrow->getPadRight() + arrow->getPadTop() + arrow->getPadBottom(), 8);
}

void expectColumn(OpenDualList* lists, bool left, const char* title) {
  const FXuint fill = LAYOUT_FILL_X | LAYOUT_FILL_Y;
  auto* column = dynamic_cast<FXVerticalFrame*>(left ? lists->getFirst() : lists->getLast());
  ASSERT_TRUE(column);
  EXPECT_EQ(column->getLayoutHints(), fill);
  expectPadding(column, 0, 2);
  ASSERT_EQ(column->numChildren(), 2);
  auto* label = dynamic_cast<FXLabel*>(column->getFirst());
  ASSERT_TRUE(label);
  EXPECT_STREQ(label->getText().text(), title);
  EXPECT_EQ(label->getIcon(), nullptr);
  EXPECT_EQ(label->getPadLeft() + label->getPadRight() + label->getPadTop() + label->getPadBottom(), 8);
  auto* row = dynamic_cast<FXHorizontalFrame*>(column->getLast());
  ASSERT_TRUE(row);
  EXPECT_EQ(row->getLayoutHints(), fill);
  expectPadding(row, 0, 0);
  auto* sunken = dynamic_cast<FXHorizontalFrame*>(row->getFirst());
  ASSERT_TRUE(sunken);
  EXPECT_EQ(sunken->getFrameStyle(), static_cast<FXuint>(FRAME_SUNKEN | FRAME_THICK));
  EXPECT_EQ(sunken->getLayoutHints(), fill);
  expectPadding(sunken, 0, left ? 0 : 4);
  FXList* const list = left ? lists->fromList : lists->toList;
  EXPECT_EQ(sunken->getFirst(), list);
  EXPECT_EQ(list->getTarget(), lists);
  EXPECT_EQ(list->getSelector(), left ? 55u : 56u);
  EXPECT_EQ(list->getLayoutHints() & fill, fill);
  EXPECT_EQ(list->getListStyle(), static_cast<FXuint>(LIST_EXTENDEDSELECT));
  auto* buttons = dynamic_cast<FXVerticalFrame*>(row->getLast());
  ASSERT_TRUE(buttons);
  EXPECT_EQ(buttons->getLayoutHints(), static_cast<FXuint>(LAYOUT_FILL_Y));
  expectPadding(buttons, 4, 4);
  ASSERT_EQ(buttons->numChildren(), 2);
  expectArrow(buttons->getFirst(), lists, left ? 57 : 59, left ? ARROW_RIGHT : ARROW_UP);
  expectArrow(buttons->getLast(), lists, left ? 58 : 60, left ? ARROW_LEFT : ARROW_DOWN);
}

TEST_F(FXDualListTest, consistsOfTwoColumns) {
  EXPECT_EQ(lists->getLayoutHints(), static_cast<FXuint>(LAYOUT_FILL_X | LAYOUT_FILL_Y));
  expectPadding(lists, 4, 4);
  EXPECT_EQ(lists->numChildren(), 2);
  expectColumn(lists, true, "From");
  expectColumn(lists, false, "To");
  EXPECT_EQ(lists->getFromList(), lists->fromList);
  EXPECT_EQ(lists->getToList(), lists->toList);
}

TEST_F(FXDualListTest, appendsItems) {
  FXIcon icon(app.get());
  int data = 0;
  EXPECT_EQ(lists->appendFromListItem("a", &icon, &data), 0);
  EXPECT_EQ(lists->appendFromListItem("b", nullptr, nullptr), 1);
  EXPECT_EQ(lists->appendToListItem("c", nullptr, &data), 0);
  EXPECT_EQ(lists->appendToListItem("d", &icon, nullptr), 1);
  EXPECT_EQ(itemsOf(lists->fromList), "a b");
  EXPECT_EQ(itemsOf(lists->toList), "c d");
  EXPECT_EQ(lists->fromList->getItemIcon(0), &icon);
  EXPECT_EQ(lists->fromList->getItemData(0), &data);
  EXPECT_EQ(lists->fromList->getItemIcon(1), nullptr);
  EXPECT_EQ(lists->toList->getItemIcon(1), &icon);
  EXPECT_EQ(lists->toList->getItemData(1), nullptr);
}

TEST_F(FXDualListTest, movesSelectedItemsToTheEndInOrder) {
  fill(lists->fromList, "A* B C* D E*");
  fill(lists->toList, "X Y");
  EXPECT_EQ(send(FXDualList::ID_MAKESELECTED), 1);
  EXPECT_EQ(itemsOf(lists->fromList), "B D");
  EXPECT_EQ(itemsOf(lists->toList), "X Y A C E");
  fill(lists->toList, "X* Y* Z");
  EXPECT_EQ(send(FXDualList::ID_MAKEUNSELECTED), 1);
  EXPECT_EQ(itemsOf(lists->fromList), "B D X Y");
  EXPECT_EQ(itemsOf(lists->toList), "Z");
}

TEST_F(FXDualListTest, movesNothingWhenNothingIsSelected) {
  fill(lists->fromList, "A B");
  fill(lists->toList, "X Y");
  EXPECT_EQ(send(FXDualList::ID_MAKESELECTED), 1);
  EXPECT_EQ(send(FXDualList::ID_MAKEUNSELECTED), 1);
  EXPECT_EQ(itemsOf(lists->fromList), "A B");
  EXPECT_EQ(itemsOf(lists->toList), "X Y");
}

TEST_F(FXDualListTest, movesEverything) {
  fill(lists->fromList, "A* B* C*");
  fill(lists->toList, "");
  send(FXDualList::ID_MAKESELECTED);
  EXPECT_EQ(itemsOf(lists->fromList), "");
  EXPECT_EQ(itemsOf(lists->toList), "A B C");
  EXPECT_EQ(send(FXDualList::ID_MAKESELECTED), 1);
  EXPECT_EQ(itemsOf(lists->toList), "A B C");
}

TEST_F(FXDualListTest, movesTextIconAndDataToANewUsableItem) {
  FXIcon icon(app.get());
  int data = 0;
  lists->appendFromListItem("a", &icon, &data);
  FXListItem* const old = lists->fromList->getItem(0);
  old->setSelected(TRUE);
  old->setFocus(TRUE);
  old->setDraggable(TRUE);
  old->setEnabled(FALSE);
  send(FXDualList::ID_MAKESELECTED);
  ASSERT_EQ(lists->toList->getNumItems(), 1);
  const FXListItem* moved = lists->toList->getItem(0);
  EXPECT_NE(moved, old);
  EXPECT_STREQ(moved->getText().text(), "a");
  EXPECT_EQ(moved->getIcon(), &icon);
  EXPECT_EQ(moved->getData(), &data);
  EXPECT_TRUE(moved->isEnabled());
  EXPECT_FALSE(moved->isSelected() || moved->hasFocus() || moved->isDraggable());
}

TEST_F(FXDualListTest, movesItemsUp) {
  EXPECT_EQ(movedUp("A B* C"), "B* A C");
  EXPECT_EQ(movedUp("A* B"), "A* B");
  EXPECT_EQ(movedUp("A* B* C"), "B* A* C") << "there is no stop at the end";
  EXPECT_EQ(movedUp("A* B* C*"), "B* C* A*");
  EXPECT_EQ(movedUp("A B* C D*"), "B* A D* C");
  EXPECT_EQ(movedUp("A"), "A");
  EXPECT_EQ(movedUp("A*"), "A*");
  EXPECT_EQ(movedUp(""), "");
  EXPECT_EQ(movedUp("A B C"), "A B C");
}

TEST_F(FXDualListTest, movesItemsDown) {
  EXPECT_EQ(movedDown("A B* C"), "A C B*");
  EXPECT_EQ(movedDown("A B*"), "A B*");
  EXPECT_EQ(movedDown("A B* C*"), "A C* B*") << "there is no stop at the end";
  EXPECT_EQ(movedDown("A* B* C*"), "C* A* B*");
  EXPECT_EQ(movedDown("A* B C* D"), "B A* D C*");
  EXPECT_EQ(movedDown("A*"), "A*");
  EXPECT_EQ(movedDown(""), "");
}

TEST_F(FXDualListTest, reordersTheRightListOnlyWithIconsAndData) {
  FXIcon icon(app.get());
  int data[2];
  fill(lists->fromList, "P* Q*");
  lists->appendToListItem("a", nullptr, &data[0]);
  lists->appendToListItem("b", &icon, &data[1]);
  lists->toList->selectItem(1);
  send(FXDualList::ID_MOVEUP);
  EXPECT_EQ(itemsOf(lists->fromList), "P* Q*");
  EXPECT_EQ(itemsOf(lists->toList), "b* a");
  EXPECT_EQ(lists->toList->getItemIcon(0), &icon);
  EXPECT_EQ(lists->toList->getItemData(0), &data[1]);
  EXPECT_EQ(lists->toList->getItemData(1), &data[0]);
}

TEST_F(FXDualListTest, keepsTheCurrentItemWhenReordering) {
  for (const FXuint id : {FXDualList::ID_MOVEUP, FXDualList::ID_MOVEDOWN}) {
    for (FXint current = 0; current < 5; ++current) {
      fill(lists->toList, "A B* C* D E*");
      lists->toList->setCurrentItem(current);
      lists->toList->setAnchorItem(current);
      const std::string before = lists->toList->getItemText(current).text();
      send(id);
      EXPECT_EQ(lists->toList->getItemText(lists->toList->getCurrentItem()).text(), before) << id;
      EXPECT_EQ(lists->toList->getAnchorItem(), lists->toList->getCurrentItem()) << id;
    }
  }
  fill(lists->toList, "");
  send(FXDualList::ID_MOVEUP);
  EXPECT_EQ(lists->toList->getCurrentItem(), -1);
}

TEST_F(FXDualListTest, keepsACurrentItemThatExistsWhenMoving) {
  fill(lists->fromList, "A B C*");
  lists->fromList->setCurrentItem(2);
  send(FXDualList::ID_MAKESELECTED);
  EXPECT_EQ(lists->fromList->getCurrentItem(), 1);
  fill(lists->fromList, "A*");
  send(FXDualList::ID_MAKESELECTED);
  EXPECT_EQ(lists->fromList->getCurrentItem(), -1);
}

TEST_F(FXDualListTest, tellsNobodyOfAnything) {
  Recorder recorder;
  lists->setTarget(&recorder);
  lists->fromList->setTarget(&recorder);
  lists->toList->setTarget(&recorder);
  fill(lists->fromList, "A* B C*");
  fill(lists->toList, "X Y");
  recorder.clear();
  send(FXDualList::ID_MAKESELECTED);
  lists->toList->getItem(2)->setSelected(TRUE);
  send(FXDualList::ID_MOVEUP);
  send(FXDualList::ID_MOVEDOWN);
  send(FXDualList::ID_MAKEUNSELECTED);
  lists->appendFromListItem("x", nullptr, nullptr);
  EXPECT_EQ(recorder.messages().size(), 0u);
}

TEST_F(FXDualListTest, leavesTheDataToItsOwner) {
  const auto data = std::make_unique<int>(7);
  lists->appendFromListItem("a", nullptr, data.get());
  lists->fromList->selectItem(0);
  send(FXDualList::ID_MAKESELECTED);
  EXPECT_EQ(*data, 7);
  delete lists;
  EXPECT_EQ(*data, 7);
}

TEST_F(FXDualListTest, disablesItsParts) {
  lists->disable();
  EXPECT_FALSE(lists->isEnabled() || lists->fromList->isEnabled() || lists->toList->isEnabled());
  for (const FXArrowButton* arrow : descendants<FXArrowButton>(lists)) EXPECT_FALSE(arrow->isEnabled());
  EXPECT_EQ(lists->fromList->getBackColor(), app->getBaseColor());
  lists->enable();
  EXPECT_TRUE(lists->isEnabled() && lists->fromList->isEnabled() && lists->toList->isEnabled());
  EXPECT_EQ(lists->toList->getBackColor(), app->getBackColor());
}
