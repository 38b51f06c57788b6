// Cutting, copying and pasting.

#include <fxkeys.h>

#include "itemdata/Codes.h"
#include "tests/ui/DialogFixture.h"

using namespace Brontel::Plugin::ItemData;
using FX::FXint;

class ItemDataTableClipboardTest : public DialogFixture {
 protected:
  ItemDataTableClipboardTest() : list(newRows({{"1", "A", "kék"}, {"2", "B", "piros"}})) {
    item.setQuantity(FXExt::FXDecimal("20", 4));
  }

  /// Copies a text elsewhere and pastes it into a cell.
  void pasteAt(FXint row, FXint col, const std::string& text) {
    goTo(row, col);
    paste(text);
  }
  void paste(const std::string& text) {
    user.putOnClipboard(text);
    user.giveKeyboardTo(dialog.get());
    user.key('v', {FX::KEY_Control_L});
  }
  /// Every cell of the table is linked to an entry that has its text.
  void expectLinked() const {
    for (FXint row = 0; row < table()->getNumRows(); ++row) {
      for (FXint col = 0; col < table()->getNumColumns(); ++col) {
        ASSERT_NE(table()->getEntry(row, col), nullptr) << row << "," << col;
        EXPECT_STREQ(table()->getEntry(row, col)->value.text(), table()->getItemText(row, col).text());
      }
    }
  }

  ItemDataList& list;
};

TEST_F(ItemDataTableClipboardTest, aCutCellIsEmptyAndStillItsEntrys) {
  open();
  clickCell(0, 1);
  user.key('x', {FX::KEY_Control_L});
  EXPECT_EQ(shown(), (Texts{"1||kék", "2|B|piros"}));
  EXPECT_STREQ(list.at(1)->value.text(), "");
  EXPECT_EQ(user.clipboard(), "A\n");
  user.type("new");
  user.key(FX::KEY_Return);
  EXPECT_STREQ(list.at(1)->value.text(), "new");
  expectLinked();
}

TEST_F(ItemDataTableClipboardTest, allCellsCanBeCutAndPutBack) {
  open();
  goTo(0, 0);
  user.key('a', {FX::KEY_Control_L});
  user.key('x', {FX::KEY_Control_L});
  EXPECT_EQ(shown(), (Texts{"||", "||"}));
  EXPECT_EQ(cellsOf(list), (Texts{"-1/1=", "12/1=", "13/1=", "-1/2=", "12/2=", "13/2="}));
  user.key('v', {FX::KEY_Control_L});
  EXPECT_EQ(shown(), (Texts{"1|A|kék", "2|B|piros"}));
  expectLinked();
}

TEST_F(ItemDataTableClipboardTest, copyingChangesNothing) {
  open();
  goTo(0, 0);
  user.key('a', {FX::KEY_Control_L});
  user.key('c', {FX::KEY_Control_L});
  EXPECT_EQ(shown(), (Texts{"1|A|kék", "2|B|piros"}));
  EXPECT_EQ(user.clipboard(), "1\tA\tkék\n2\tB\tpiros\n");
}

TEST_F(ItemDataTableClipboardTest, aBlockLiesOverTheCells) {
  open();
  pasteAt(0, 1, "X\tpiros\nY\t\n");
  EXPECT_EQ(shown(), (Texts{"1|X|piros", "2|Y|"}));
  expectLinked();
  EXPECT_EQ(cursor(), "0,1");
  EXPECT_TRUE(table()->isItemSelected(0, 1));
  EXPECT_TRUE(table()->isItemSelected(1, 2));
  EXPECT_FALSE(table()->isItemSelected(0, 0));
}

TEST_F(ItemDataTableClipboardTest, tenLinesGoOnPastTheLastRow) {
  open();
  std::string lines;
  for (int line = 1; line <= 10; ++line) lines += "SN-" + std::to_string(line) + "\r\n";
  pasteAt(1, 1, lines);
  ASSERT_EQ(table()->getNumRows(), 11);
  EXPECT_EQ(shown()[0], "1|A|kék");
  EXPECT_EQ(shown()[1], "2|SN-1|piros");
  // The first new row is offered all that is missing, as if it had been added by hand.
  EXPECT_EQ(shown()[2], "17|SN-2|");
  for (int row = 3; row <= 10; ++row) EXPECT_EQ(shown()[row], "0|SN-" + std::to_string(row) + "|");
  expectLinked();
  EXPECT_EQ(list.no(), 33);
  EXPECT_EQ(list.rows, 11);
  EXPECT_TRUE(table()->isItemVisible(10, 1));
}

TEST_F(ItemDataTableClipboardTest, pastedQuantitiesReplaceTheOfferedOnes) {
  open();
  pasteAt(1, 0, "2\tB\n3\tC\n14\tD\n");
  EXPECT_EQ(shown(), (Texts{"1|A|kék", "2|B|piros", "3|C|", "14|D|"}));
  expectLinked();
}

TEST_F(ItemDataTableClipboardTest, aBlockThatIsTooWideIsRefused) {
  open();
  std::string said;
  user.whenModal([this, &said](FX::FXWindow& box) {
    for (const FX::FXLabel* label : descendantsOf<FX::FXLabel>(&box)) said += label->getText().text();
    user.key(FX::KEY_Escape);
  });
  pasteAt(0, 1, "a\tb\tc\n");
  EXPECT_NE(said.find("A vágólapon 3 oszlop van, innen kezdve a táblázatban csak 2."), std::string::npos) << said;
  EXPECT_EQ(shown(), (Texts{"1|A|kék", "2|B|piros"}));
  EXPECT_EQ(list.no(), 6);
}

TEST_F(ItemDataTableClipboardTest, oneRowThatIsTooWideIsEnoughForThat) {
  open();
  user.whenModal([this](FX::FXWindow& box) {
    EXPECT_STREQ(dynamic_cast<FX::FXDialogBox&>(box).getTitle().text(), "A beillesztés nem lehetséges");
    user.key(FX::KEY_Return);
  });
  pasteAt(1, 2, "x\ny\tz\nw\n");
  EXPECT_EQ(shown(), (Texts{"1|A|kék", "2|B|piros"}));
}

TEST_F(ItemDataTableClipboardTest, aDecimalCommaIsPartOfTheNumber) {
  open();
  pasteAt(0, 0, "2,5\n1,25\n");
  EXPECT_EQ(shown(), (Texts{"2,5|A|kék", "1,25|B|piros"}));
  clickCell(0, 0);
  user.key('c', {FX::KEY_Control_L});
  goTo(1, 0);
  user.key('v', {FX::KEY_Control_L});
  EXPECT_EQ(shown(), (Texts{"2,5|A|kék", "2,5|B|piros"}));
}

TEST_F(ItemDataTableClipboardTest, beginsWhereTheSelectionBegins) {
  open();
  goTo(1, 2);
  table()->selectRange(0, 1, 1, 2);
  paste("X");
  EXPECT_EQ(shown(), (Texts{"1|X|kék", "2|B|piros"}));
}

TEST_F(ItemDataTableClipboardTest, anEmptyClipboardDoesNothing) {
  open();
  pasteAt(0, 1, "");
  EXPECT_EQ(shown(), (Texts{"1|A|kék", "2|B|piros"}));
}

TEST_F(ItemDataTableClipboardTest, emptyLinesEmptyTheirCells) {
  open();
  pasteAt(0, 1, "\n\n");
  EXPECT_EQ(shown(), (Texts{"1||kék", "2||piros"}));
  expectLinked();
}

TEST_F(ItemDataTableClipboardTest, cellsWithoutEntryAreLeftAlone) {
  ItemDataList& poor = newListOf(perUnitSettings());
  add(poor, TYPE_TEXT, 12, 1, "A");
  poor.rows = 1;
  open();
  pasteAt(0, 0, "1\tX\tkék\n");
  EXPECT_EQ(shown(), Texts{"-|X|-"});
  EXPECT_STREQ(table()->getItemText(0, 0).text(), "");
}

TEST_F(ItemDataTableClipboardTest, addsNoRowsThatCannotHoldAnything) {
  list.templateList->firstRowIndex = -1;
  open();
  pasteAt(1, 1, "X\nY\nZ\n");
  EXPECT_EQ(list.no(), 6);
  EXPECT_STREQ(list.at(4)->value.text(), "B");
}

TEST_F(ItemDataTableClipboardTest, whatIsPastedIntoAnOpenCellIsPartOfItsText) {
  open();
  goTo(0, 1);
  user.key(FX::KEY_F2);
  user.key(FX::KEY_End);
  paste("-7\r\n");
  ASSERT_NE(table()->getFocus(), nullptr);
  user.key(FX::KEY_Return);
  EXPECT_EQ(shown(), (Texts{"1|A-7|kék", "2|B|piros"}));
}

TEST_F(ItemDataTableClipboardTest, severalLinesPastedIntoAnOpenCellFillTheColumn) {
  open();
  goTo(1, 1);
  user.type("half");
  paste("X\nY\n");
  EXPECT_EQ(table()->getFocus(), nullptr);
  EXPECT_EQ(shown(), (Texts{"1|A|kék", "2|X|piros", "17|Y|"}));
  expectLinked();
}

TEST_F(ItemDataTableClipboardTest, accentsSurvive) {
  open();
  pasteAt(0, 1, "árvíztűrő€");
  EXPECT_STREQ(list.at(1)->value.text(), "árvíztűrő€");
}
