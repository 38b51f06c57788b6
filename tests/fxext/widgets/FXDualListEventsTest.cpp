#include <chrono>
#include <iostream>

#include <fxkeys.h>

#include "fxext/widgets/gallery/Picture.h"
#include "tests/fxext/widgets/OpenDualList.h"
#include "tests/fxext/widgets/WidgetTest.h"

using namespace FX;
using FXExt::FXDualList;

// The dual list under somebody's hands.

class FXDualListEventsTest : public WidgetTest {
 protected:
  FXDualListEventsTest() : lists(new OpenDualList(content, "From", "To", LAYOUT_FILL_X | LAYOUT_FILL_Y)) {
    for (const char* item : {"apple", "banana", "cherry", "date", "elder"}) {
      lists->appendFromListItem(item, nullptr, nullptr);
    }
  }

  void moveToItem(const FXList* list, FXint index) {
    const FXint height = list->getItemHeight(0);
    moveTo(list, 20, index * height + height / 2);
  }
  void clickItem(const FXList* list, FXint index) {
    moveToItem(list, index);
    events.click();
    settle();
  }
  void clickItem(const FXList* list, FXint index, unsigned held) {
    events.pressKey(held);
    clickItem(list, index);
    events.releaseKey(held);
    settle();
  }
  // In the order right, left, up, down.
  FXWindow* arrow(size_t index) {
    std::vector<FXWindow*> arrows;
    for (FXArrowButton* found : descendants<FXArrowButton>(lists)) {
      if (found->getTarget() == lists) arrows.push_back(found);
    }
    return arrows.at(index);
  }
  std::string from() const { return itemsOf(lists->fromList); }
  std::string to() const { return itemsOf(lists->toList); }

  OpenDualList* lists;
};

TEST_F(FXDualListEventsTest, aDoubleClickMovesAcrossAndBack) {
  show();
  moveToItem(lists->fromList, 4);
  events.doubleClick();
  settle();
  EXPECT_EQ(from(), "apple banana cherry date");
  EXPECT_EQ(to(), "elder");
  moveToItem(lists->fromList, 0);
  events.doubleClick();
  settle();
  EXPECT_EQ(to(), "elder apple");
  moveToItem(lists->toList, 0);
  events.doubleClick();
  settle();
  EXPECT_EQ(from(), "banana cherry date elder");
  EXPECT_EQ(to(), "apple");
}

TEST_F(FXDualListEventsTest, theArrowsMoveWhatIsSelected) {
  show();
  clickItem(lists->fromList, 0);
  clickItem(lists->fromList, 2, KEY_Control_L);
  clickItem(lists->fromList, 4, KEY_Control_L);
  click(arrow(0));
  EXPECT_EQ(from(), "banana date");
  EXPECT_EQ(to(), "apple cherry elder");
  clickItem(lists->toList, 1);
  clickItem(lists->toList, 2, KEY_Shift_L);
  click(arrow(2));
  EXPECT_EQ(to(), "cherry* elder* apple");
  click(arrow(3));
  EXPECT_EQ(to(), "apple cherry* elder*");
  click(arrow(1));
  EXPECT_EQ(from(), "banana date cherry elder");
  EXPECT_EQ(to(), "apple");
}

TEST_F(FXDualListEventsTest, aDragSelectsARangeToMove) {
  show();
  FXint x = 0;
  FXint y = 0;
  const FXint height = lists->fromList->getItemHeight(0);
  lists->fromList->translateCoordinatesTo(x, y, lists->getRoot(), 10, height / 2);
  clickItem(lists->fromList, 1);
  clickItem(lists->fromList, 3, KEY_Shift_L);
  events.dragTo(x, y + height, x, y + 2 * height);
  events.releaseButton();
  settle();
  click(arrow(0));
  EXPECT_EQ(from() + "|" + to(), "apple elder|banana cherry date");
}

TEST_F(FXDualListEventsTest, canBeUsedByTheKeyboardAlone) {
  show();
  lists->fromList->setFocus();
  key(KEY_Home);
  key(KEY_Down, {KEY_Shift_L});
  key(KEY_Return);
  EXPECT_EQ(from(), "cherry date elder");
  EXPECT_EQ(to(), "apple banana");
  key(KEY_End);
  key(KEY_Tab);
  key(KEY_space);
  EXPECT_EQ(to(), "apple banana elder");
  key(KEY_Tab);
  key(KEY_Tab);
  EXPECT_TRUE(lists->toList->hasFocus());
  key(KEY_End);
  key(KEY_Tab);
  key(KEY_space);
  EXPECT_EQ(to(), "apple elder* banana");
  key(KEY_Tab);
  key(KEY_space);
  EXPECT_EQ(to(), "apple banana elder*");
  EXPECT_STREQ(lists->toList->getItemText(lists->toList->getCurrentItem()).text(), "elder");
  key(KEY_Tab, {KEY_Shift_L});
  key(KEY_Tab, {KEY_Shift_L});
  EXPECT_TRUE(lists->toList->hasFocus());
  key(KEY_Return);
  EXPECT_EQ(from(), "cherry date elder");
}

TEST_F(FXDualListEventsTest, theFocusShowsOnItsArrows) {
  show();
  const auto isFocused = [this](size_t index) {
    const Picture picture(arrow(index));
    int dotted = 0;
    for (FXint x = 3; x < picture.width() - 3; ++x) dotted += picture.at(x, 3) != app->getBaseColor();
    return dotted > 3;
  };
  for (size_t index = 0; index < 4; ++index) {
    EXPECT_FALSE(isFocused(index));
    arrow(index)->setFocus();
    settle();
    EXPECT_TRUE(isFocused(index)) << index;
  }
}

TEST_F(FXDualListEventsTest, theFocusShowsOnAnEmptyList) {
  show();
  const auto isFocused = [](const FXList* list) {
    const Picture picture(list);
    int dotted = 0;
    for (FXint x = 0; x < picture.width(); ++x) dotted += picture.at(x, 2) != FXRGB(255, 255, 255);
    return dotted > picture.width() / 4;
  };
  EXPECT_FALSE(isFocused(lists->toList));
  lists->toList->setFocus();
  settle();
  EXPECT_TRUE(isFocused(lists->toList));
  lists->appendToListItem("apple", nullptr, nullptr);
  settle();
  EXPECT_FALSE(Picture(lists->toList).at(100, lists->toList->getHeight() - 3) != FXRGB(255, 255, 255));
  lists->fromList->setFocus();
  settle();
  EXPECT_FALSE(isFocused(lists->toList));
}

TEST_F(FXDualListEventsTest, showsIconsThatComeAfterTheWindow) {
  show();
  constexpr FXColor kIconColour = FXRGB(10, 200, 30);
  const auto newIcon = [this] {
    auto icon = std::make_unique<FXIcon>(app.get(), nullptr, 0, IMAGE_OWNED | IMAGE_KEEP, 8, 8);
    icon->fill(kIconColour);
    return icon;
  };
  const auto countIconPixels = [](const FXList* list) {
    const Picture picture(list);
    int count = 0;
    for (FXint y = 0; y < picture.height(); ++y) {
      for (FXint x = 0; x < picture.width(); ++x) count += picture.at(x, y) == kIconColour;
    }
    return count;
  };
  const auto one = newIcon();
  const auto two = newIcon();
  lists->appendFromListItem("with icon", one.get(), nullptr);
  lists->appendToListItem("with icon", two.get(), nullptr);
  settle();
  EXPECT_EQ(countIconPixels(lists->fromList), 64);
  EXPECT_EQ(countIconPixels(lists->toList), 64);
  lists->fromList->selectItem(5);
  click(arrow(0));
  EXPECT_EQ(countIconPixels(lists->fromList), 0);
  EXPECT_EQ(countIconPixels(lists->toList), 128);
}

TEST_F(FXDualListEventsTest, takesNothingWhileDisabled) {
  show();
  lists->fromList->selectItem(0);
  lists->disable();
  click(arrow(0));
  moveToItem(lists->fromList, 1);
  events.doubleClick();
  settle();
  EXPECT_EQ(from(), "apple* banana cherry date elder");
  EXPECT_EQ(to(), "");
}

TEST_F(FXDualListEventsTest, fillsTheSpaceThatItIsGiven) {
  show();
  EXPECT_GT(lists->fromList->getWidth(), window->getWidth() / 4);
  EXPECT_GT(lists->toList->getHeight(), window->getHeight() * 3 / 4);
  EXPECT_LE(std::abs(lists->fromList->getWidth() - lists->toList->getWidth()), 20);
}

// Two thousand items on each side.
class LargeDualListTest : public FXDualListEventsTest {
 protected:
  static constexpr FXint kItems = 2000;

  LargeDualListTest() {
    lists->fromList->clearItems();
    for (FXint i = 0; i < kItems; ++i) {
      lists->appendFromListItem(FXStringFormat("from %d", i), nullptr, &data[i]);
      lists->appendToListItem(FXStringFormat("to %d", i), nullptr, &data[kItems + i]);
    }
  }

  // Does something and waits until it shows, and prints how long that took.
  void expectQuick(const char* what, const std::function<void()>& act) {
    const auto start = std::chrono::steady_clock::now();
    act();
    lists->layout();
    app->repaint();
    const auto milliseconds =
        std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start).count();
    std::cout << what << ": " << milliseconds << " ms" << std::endl;
    EXPECT_LT(milliseconds, 2000) << what;
  }

  void send(FXuint id) { lists->handle(window, FXSEL(SEL_COMMAND, id), nullptr); }

  char data[2 * kItems] = {};
};

TEST_F(LargeDualListTest, movesAndReordersAtOnce) {
  show();
  FXList* const to = lists->toList;
  for (FXint i = 0; i < kItems; i += 2) lists->fromList->selectItem(i);
  expectQuick("moving 1000 of 2000", [this] { send(FXDualList::ID_MAKESELECTED); });
  ASSERT_EQ(to->getNumItems(), kItems + kItems / 2);
  for (FXint i = 0; i < kItems / 2; ++i) {
    ASSERT_EQ(to->getItemText(kItems + i), FXStringFormat("from %d", 2 * i));
    ASSERT_EQ(to->getItemData(kItems + i), &data[2 * i]);
    ASSERT_EQ(lists->fromList->getItemText(i), FXStringFormat("from %d", 2 * i + 1));
  }
  for (FXint i = 0; i < to->getNumItems(); ++i) to->selectItem(i);
  expectQuick("moving 3000 back", [this] { send(FXDualList::ID_MAKEUNSELECTED); });
  EXPECT_EQ(to->getNumItems(), 0);
  EXPECT_EQ(lists->fromList->getNumItems(), 2 * kItems);
}

TEST_F(LargeDualListTest, reordersAtOnceAndKeepsOrderSelectionAndCurrentItem) {
  show();
  FXList* const to = lists->toList;
  for (FXint i = kItems / 2; i < kItems; ++i) to->selectItem(i);
  to->setCurrentItem(kItems - 1);
  expectQuick("moving 1000 of 2000 up", [this] { send(FXDualList::ID_MOVEUP); });
  EXPECT_EQ(to->getItemText(kItems - 1), FXStringFormat("to %d", kItems / 2 - 1));
  for (FXint i = kItems / 2 - 1; i < kItems - 1; ++i) {
    ASSERT_EQ(to->getItemText(i), FXStringFormat("to %d", i + 1));
    ASSERT_EQ(to->getItemData(i), &data[kItems + i + 1]);
    ASSERT_TRUE(to->isItemSelected(i));
  }
  EXPECT_EQ(to->getCurrentItem(), kItems - 2);
  EXPECT_TRUE(to->isItemVisible(kItems - 2));
  expectQuick("moving 1000 of 2000 down", [this] { send(FXDualList::ID_MOVEDOWN); });
  for (FXint i = 0; i < kItems; ++i) ASSERT_EQ(to->getItemText(i), FXStringFormat("to %d", i));
  EXPECT_EQ(to->getCurrentItem(), kItems - 1);
}
