// The table under the mouse.

#include <fxkeys.h>

#include "itemdata/Codes.h"
#include "tests/ui/DialogFixture.h"

using namespace Brontel::Plugin::ItemData;
using FX::FXint;

class ItemDataTableMouseTest : public DialogFixture {
 protected:
  ItemDataTableMouseTest() : list(newRows({{"1", "A", "kék"}, {"2", "B", "piros"}, {"2", "C", ""}})) {}

  /// The table's menu.
  FX::FXMenuPane* menu() {
    for (FX::FXWindow* child = app->getRootWindow()->getFirst(); child != nullptr; child = child->getNext()) {
      auto* pane = dynamic_cast<FX::FXMenuPane*>(child);
      if (pane != nullptr && pane->getOwner() == dialog.get()) return pane;
    }
    return nullptr;
  }

  /// Opens the menu over a cell and does something with it.
  void withMenu(FXint row, FXint col, WindowUser::Script script) {
    user.whenModal(std::move(script));
    clickCell(row, col, 3);
  }
  void choose(FXint command) { user.click(menu()->childAtIndex(command)); }

  ItemDataList& list;
};

TEST_F(ItemDataTableMouseTest, theRightButtonOpensTheMenuWhereItIs) {
  open();
  FXint x = 0;
  FXint y = 0;
  table()->translateCoordinatesTo(x, y, table()->getRoot(), cellX(1), cellY(1));
  bool isOpen = false;
  withMenu(1, 1, [&](FX::FXWindow& modal) {
    isOpen = true;
    EXPECT_EQ(&modal, menu());
    EXPECT_TRUE(menu()->shown());
    EXPECT_NEAR(menu()->getX(), x, 2);
    EXPECT_NEAR(menu()->getY(), y, 2);
    user.key(FX::KEY_Escape);
  });
  EXPECT_TRUE(isOpen);
  EXPECT_FALSE(menu()->shown());
  EXPECT_EQ(shown().size(), 3u);
}

TEST_F(ItemDataTableMouseTest, theMenuAddsARow) {
  open();
  withMenu(0, 0, [this](FX::FXWindow&) { choose(0); });
  EXPECT_EQ(shown().size(), 4u);
  EXPECT_EQ(cursor(), "3,1");
  EXPECT_EQ(list.no(), 12);
}

TEST_F(ItemDataTableMouseTest, theOpenMenuTakesKeys) {
  open();
  withMenu(1, 1, [this](FX::FXWindow&) {
    user.key(FX::KEY_Down);
    user.key(FX::KEY_Down);
    user.key(FX::KEY_Return);
  });
  EXPECT_EQ(shown(), (Texts{"1|A|kék", "2|C|"}));
  // And no longer once it is closed.
  user.key(FX::KEY_Insert);
  EXPECT_EQ(shown().size(), 3u);
}

TEST_F(ItemDataTableMouseTest, theMenuDeletesTheRowUnderThePointer) {
  open();
  goTo(0, 1);
  withMenu(1, 2, [this](FX::FXWindow&) {
    EXPECT_EQ(cursor(), "1,2");
    choose(1);
  });
  EXPECT_EQ(shown(), (Texts{"1|A|kék", "2|C|"}));
}

TEST_F(ItemDataTableMouseTest, theMenuLeavesTheChosenRowsChosen) {
  open();
  goTo(0, 0);
  table()->selectRange(0, 1, 0, 2);
  withMenu(1, 1, [this](FX::FXWindow&) {
    EXPECT_EQ(cursor(), "0,0");
    EXPECT_TRUE(table()->isRowSelected(1));
    user.key(FX::KEY_Escape);
  });
  withMenu(0, 2, [this](FX::FXWindow&) {
    EXPECT_EQ(cursor(), "0,0");
    user.key(FX::KEY_Escape);
  });
  withMenu(2, 0, [this](FX::FXWindow&) {
    EXPECT_EQ(cursor(), "2,0");
    EXPECT_FALSE(table()->isAnythingSelected());
    user.key(FX::KEY_Escape);
  });
}

TEST_F(ItemDataTableMouseTest, theMenuOpensBesideTheRowsToo) {
  open();
  goTo(1, 1);
  user.whenModal([this](FX::FXWindow&) {
    EXPECT_EQ(cursor(), "1,1");
    choose(1);
  });
  user.clickAt(table(), cellX(1), table()->getHeight() - 10, 3);
  EXPECT_EQ(shown(), (Texts{"1|A|kék", "2|C|"}));
}

TEST_F(ItemDataTableMouseTest, aClosedMenuLeavesTheMouseFree) {
  open();
  withMenu(1, 1, [this](FX::FXWindow&) { user.key(FX::KEY_Escape); });
  EXPECT_FALSE(table()->grabbed());
  user.click(okButton());
  EXPECT_FALSE(dialog->shown());
}

TEST_F(ItemDataTableMouseTest, aRightDragOpensNothingAndLeavesTheMouseFree) {
  open();
  user.drag(table(), cellX(1), cellY(1), cellX(1) - 60, cellY(1) + 40, 3);
  EXPECT_FALSE(menu()->shown());
  EXPECT_FALSE(table()->grabbed());
  const FXint x = table()->getXPosition();
  const FXint y = table()->getYPosition();
  user.moveTo(table(), 20, 60);
  EXPECT_EQ(table()->getXPosition(), x);
  EXPECT_EQ(table()->getYPosition(), y);
  user.click(okButton());
  EXPECT_FALSE(dialog->shown());
}

TEST_F(ItemDataTableMouseTest, afterARightDragMovingScrollsNoLonger) {
  open();
  for (int row = 0; row < 40; ++row) table()->handle(form, FXSEL(FX::SEL_COMMAND, ItemDataTable::ID_ADD_ROW), nullptr);
  user.settle();
  const FXint before = table()->getYPosition();
  user.drag(table(), 200, 100, 200, 180, 3);
  const FXint after = table()->getYPosition();
  EXPECT_NE(after, before);
  user.moveTo(table(), 200, 60);
  EXPECT_EQ(table()->getYPosition(), after);
}

TEST_F(ItemDataTableMouseTest, okKeepsTheCellBeingEdited) {
  open();
  clickCell(0, 1);
  user.type("kept");
  user.click(okButton());
  EXPECT_FALSE(dialog->shown());
  EXPECT_STREQ(list.at(1)->value.text(), "kept");
}

TEST_F(ItemDataTableMouseTest, aClickElsewhereKeepsTheCellBeingEdited) {
  open();
  clickCell(0, 1);
  user.type("kept");
  clickCell(2, 0);
  EXPECT_STREQ(list.at(1)->value.text(), "kept");
  EXPECT_EQ(cursor(), "2,0");
}

TEST_F(ItemDataTableMouseTest, theMenuKeepsTheCellBeingEditedElsewhere) {
  open();
  clickCell(0, 1);
  user.type("kept");
  withMenu(2, 0, [this](FX::FXWindow&) { choose(1); });
  EXPECT_EQ(shown(), (Texts{"1|kept|kék", "2|B|piros"}));
}

TEST_F(ItemDataTableMouseTest, aNewRowCountsTheQuantityBeingTyped) {
  item.setQuantity(FXExt::FXDecimal("10", 4));
  open();
  clickCell(0, 0);
  user.type("4");
  withMenu(0, 1, [this](FX::FXWindow&) { choose(0); });
  EXPECT_EQ(shown().front(), "4|A|kék");
  EXPECT_EQ(shown().back(), "2||");
}

TEST_F(ItemDataTableMouseTest, aDoubleClickEdits) {
  open();
  user.moveTo(table(), cellX(1), cellY(0));
  user.events.doubleClick();
  user.settle();
  ASSERT_NE(table()->getFocus(), nullptr);
  user.type("X");
  user.key(FX::KEY_Return);
  EXPECT_STREQ(list.at(1)->value.text(), "X");
}

TEST_F(ItemDataTableMouseTest, aChoiceIsMadeFromTheListByClick) {
  open();
  clickCell(0, 2);
  user.key(FX::KEY_F2);
  auto* combo = dynamic_cast<FX::FXComboBox*>(table()->getFocus());
  ASSERT_NE(combo, nullptr);
  user.click(descendantsOf<FX::FXMenuButton>(combo).front());
  ASSERT_TRUE(combo->isPaneShown());
  FX::FXList* choices = nullptr;
  for (FX::FXWindow* child = app->getRootWindow()->getFirst(); child != nullptr; child = child->getNext()) {
    const auto lists = descendantsOf<FX::FXList>(child);
    if (child->shown() && !lists.empty()) choices = lists.front();
  }
  ASSERT_NE(choices, nullptr);
  user.clickAt(choices, 10, choices->getItemHeight(0) * 3 / 2);
  user.key(FX::KEY_Return);
  EXPECT_STREQ(list.at(2)->value.text(), "piros");
}

TEST_F(ItemDataTableMouseTest, eachCellTellsItsVariable) {
  auto* tip = new FX::FXToolTip(app.get(), FX::TOOLTIP_PERMANENT);
  tip->create();
  app->setTooltipPause(1);
  open();
  for (const auto& [col, name] : {std::pair{0, "Mennyiség"}, {1, "Sarzs"}, {2, "Szín"}}) {
    user.moveTo(table(), cellX(col), cellY(1));
    app.waitUntil([&, name = name] { return tip->shown() && tip->getText() == name; });
    EXPECT_STREQ(tip->getText().text(), name);
  }
}

TEST_F(ItemDataTableMouseTest, emptySpaceTellsNothing) {
  open();
  user.moveTo(table(), cellX(1), table()->getHeight() - 10);
  struct Asker : FX::FXObject {
    long handle(FXObject*, FX::FXSelector, void*) override { return ++answers; }
    int answers = 0;
  } asker;
  EXPECT_EQ(table()->handle(&asker, FXSEL(FX::SEL_QUERY_TIP, 0), nullptr), 0);
  EXPECT_EQ(asker.answers, 0);
}
