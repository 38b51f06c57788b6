// The table at the keyboard.

#include <fxkeys.h>

#include "fxext/widgets/FXComboBox.h"
#include "itemdata/Codes.h"
#include "tests/ui/DialogFixture.h"

using namespace Brontel::Plugin::ItemData;
using FX::FXint;

class ItemDataTableKeysTest : public DialogFixture {
 protected:
  /// Opens the dialog on these rows with the cursor in a cell.
  ItemDataList& openAt(FXint row, FXint col, const std::vector<std::vector<std::string>>& rows = kRows) {
    ItemDataList& list = newRows(rows);
    open();
    goTo(row, col);
    return list;
  }

  /// The editor of the cell being edited; null when none is.
  FX::FXWindow* editor() const { return table()->getFocus(); }

  static inline const std::vector<std::vector<std::string>> kRows = {{"1", "A", "kék"}, {"2", "B", "piros"}};
};

TEST_F(ItemDataTableKeysTest, hasTheCursorInItsFirstEmptyCell) {
  newRows({{"1", "", "kék"}, {"2", "", ""}});
  open();
  EXPECT_EQ(focus(), table());
  EXPECT_EQ(cursor(), "0,1");
}

TEST_F(ItemDataTableKeysTest, aKeyStartsEditingAndReplacesTheText) {
  const ItemDataList& list = openAt(0, 0);
  user.type("4,5");
  EXPECT_NE(editor(), nullptr);
  EXPECT_STREQ(list.at(0)->value.text(), "1");
  user.key(FX::KEY_Return);
  EXPECT_EQ(editor(), nullptr);
  EXPECT_STREQ(list.at(0)->value.text(), "4,5");
  EXPECT_EQ(shown(), (Texts{"4,5|A|kék", "2|B|piros"}));
}

TEST_F(ItemDataTableKeysTest, accentedLettersArriveToo) {
  const ItemDataList& list = openAt(0, 1);
  user.type("őŰ€");
  user.key(FX::KEY_Tab);
  EXPECT_STREQ(list.at(1)->value.text(), "őŰ€");
}

TEST_F(ItemDataTableKeysTest, functionKeyTwoKeepsTheText) {
  const ItemDataList& list = openAt(0, 1);
  user.key(FX::KEY_F2);
  user.key(FX::KEY_End);
  user.type("2");
  user.key(FX::KEY_Return);
  EXPECT_STREQ(list.at(1)->value.text(), "A2");
}

TEST_F(ItemDataTableKeysTest, escapeDropsWhatWasTyped) {
  const ItemDataList& list = openAt(0, 1);
  user.type("half");
  user.key(FX::KEY_Escape);
  EXPECT_EQ(editor(), nullptr);
  EXPECT_TRUE(dialog->shown());
  EXPECT_STREQ(list.at(1)->value.text(), "A");
  EXPECT_EQ(cursor(), "0,1");
  EXPECT_EQ(focus(), table());
}

TEST_F(ItemDataTableKeysTest, enterGoesDownTheColumn) {
  const ItemDataList& list = openAt(0, 1);
  user.type("S1");
  user.key(FX::KEY_Return);
  EXPECT_EQ(cursor(), "1,1");
  user.type("S2");
  user.key(FX::KEY_KP_Enter);
  EXPECT_STREQ(list.at(1)->value.text(), "S1");
  EXPECT_STREQ(list.at(4)->value.text(), "S2");
}

TEST_F(ItemDataTableKeysTest, enterInTheLastRowGoesToTheButtonAndAddsNothing) {
  const ItemDataList& list = openAt(1, 1);
  user.type("S2");
  user.key(FX::KEY_Return);
  EXPECT_EQ(focus(), okButton());
  EXPECT_TRUE(dialog->shown());
  EXPECT_EQ(shown(), (Texts{"1|A|kék", "2|S2|piros"}));
  EXPECT_EQ(list.no(), 6);
}

TEST_F(ItemDataTableKeysTest, aScannerFillsTheColumnAndStopsAtTheEnd) {
  const ItemDataList& list = openAt(0, 1, {{"1", "", ""}, {"1", "", ""}, {"1", "", ""}});
  for (const char* number : {"SN-1", "SN-2", "SN-3"}) {
    user.type(number);
    user.key(FX::KEY_Return);
  }
  EXPECT_EQ(shown(), (Texts{"1|SN-1|", "1|SN-2|", "1|SN-3|"}));
  // A number too many does no harm.
  user.type("SN-4");
  EXPECT_EQ(focus(), okButton());
  EXPECT_EQ(list.no(), 9);
}

TEST_F(ItemDataTableKeysTest, tabGoesFromCellToCellAndThenOn) {
  openAt(0, 0);
  for (const char* next : {"0,1", "0,2", "1,0", "1,1", "1,2"}) {
    user.key(FX::KEY_Tab);
    EXPECT_EQ(cursor(), next);
    EXPECT_EQ(focus(), table());
  }
  user.key(FX::KEY_Tab);
  EXPECT_EQ(focus(), okButton());
  // And round to the table, whose cursor is where it was.
  user.key(FX::KEY_Tab);
  EXPECT_EQ(focus(), table());
  EXPECT_EQ(cursor(), "1,2");
}

TEST_F(ItemDataTableKeysTest, shiftTabGoesBack) {
  openAt(1, 0);
  user.key(FX::KEY_Tab, {FX::KEY_Shift_L});
  EXPECT_EQ(cursor(), "0,2");
  user.key(FX::KEY_Tab, {FX::KEY_Shift_L});
  user.key(FX::KEY_Tab, {FX::KEY_Shift_L});
  EXPECT_EQ(cursor(), "0,0");
  user.key(FX::KEY_Tab, {FX::KEY_Shift_L});
  EXPECT_EQ(focus(), okButton());
}

TEST_F(ItemDataTableKeysTest, tabKeepsWhatWasTyped) {
  const ItemDataList& list = openAt(0, 0);
  user.type("9");
  user.key(FX::KEY_Tab);
  user.type("X");
  user.key(FX::KEY_Tab);
  EXPECT_EQ(cellsOf(list), (Texts{"-1/1=9", "12/1=X", "13/1=kék", "-1/2=2", "12/2=B", "13/2=piros"}));
}

TEST_F(ItemDataTableKeysTest, arrowsMoveTheCursor) {
  openAt(0, 0);
  user.key(FX::KEY_Down);
  user.key(FX::KEY_Right);
  EXPECT_EQ(cursor(), "1,1");
  user.key(FX::KEY_Down);
  EXPECT_EQ(cursor(), "1,1");
  EXPECT_EQ(focus(), table());
}

TEST_F(ItemDataTableKeysTest, insAddsARowAndGoesToItsFirstEmptyCell) {
  const ItemDataList& list = openAt(0, 0);
  user.key(FX::KEY_Insert);
  EXPECT_EQ(shown(), (Texts{"1|A|kék", "2|B|piros", "2||"}));
  EXPECT_EQ(cursor(), "2,1");
  EXPECT_EQ(focus(), table());
  user.type("C");
  user.key(FX::KEY_Return);
  EXPECT_STREQ(list.at(7)->value.text(), "C");
}

TEST_F(ItemDataTableKeysTest, delDeletesTheCurrentRow) {
  const ItemDataList& list = openAt(0, 1);
  user.key(FX::KEY_Delete);
  EXPECT_EQ(shown(), Texts{"2|B|piros"});
  EXPECT_EQ(cellsOf(list), (Texts{"-1/2=2", "12/2=B", "13/2=piros"}));
  EXPECT_EQ(editor(), nullptr);
  // What is current now looks it.
  EXPECT_EQ(cursor(), "0,1");
  EXPECT_TRUE(table()->getItem(0, 1)->hasFocus());
}

TEST_F(ItemDataTableKeysTest, insAfterDelOfTheLastRowStartsAnew) {
  openAt(0, 1, {{"5", "A", ""}});
  user.key(FX::KEY_Delete);
  EXPECT_EQ(table()->getNumRows(), 0);
  user.key(FX::KEY_Delete);
  user.key(FX::KEY_Return);
  EXPECT_EQ(focus(), okButton());
  table()->setFocus();
  user.key(FX::KEY_Insert);
  EXPECT_EQ(shown(), Texts{"5||"});
  EXPECT_EQ(cursor(), "0,1");
  EXPECT_TRUE(table()->getItem(0, 1)->hasFocus());
}

TEST_F(ItemDataTableKeysTest, insAndDelInACellEditItsText) {
  const ItemDataList& list = openAt(0, 1);
  user.type("abc");
  user.key(FX::KEY_Home);
  user.key(FX::KEY_Delete);
  user.key(FX::KEY_Insert);
  user.key(FX::KEY_Return);
  EXPECT_EQ(table()->getNumRows(), 2);
  EXPECT_STREQ(list.at(1)->value.text(), "bc");
}

TEST_F(ItemDataTableKeysTest, insAndDelInAListCellDoNothing) {
  openAt(0, 2);
  user.key(FX::KEY_F2);
  ASSERT_NE(editor(), nullptr);
  user.key(FX::KEY_Delete);
  user.key(FX::KEY_Insert);
  EXPECT_EQ(shown().size(), 2u);
}

TEST_F(ItemDataTableKeysTest, selectAllAndDelLeaveEverySecondRow) {
  const ItemDataList& list = openAt(0, 0, {{"1", "A", ""}, {"1", "B", ""}, {"1", "C", ""}});
  user.key('a', {FX::KEY_Control_L});
  user.key(FX::KEY_Delete);
  // Each row goes as it then stands: the first, then the one that has become the second.
  EXPECT_EQ(shown(), Texts{"1|B|"});
  EXPECT_EQ(cellsOf(list), (Texts{"-1/2=1", "12/2=B", "13/2="}));
  user.key(FX::KEY_Delete);
  EXPECT_EQ(table()->getNumRows(), 0);
  EXPECT_EQ(list.no(), 0);
}

TEST_F(ItemDataTableKeysTest, typingChoosesFromAList) {
  const ItemDataList& list = openAt(0, 2);
  user.type("p");
  EXPECT_NE(editor(), nullptr);
  EXPECT_STREQ(dynamic_cast<FX::FXComboBox*>(editor())->getText().text(), "piros");
  user.key(FX::KEY_Return);
  EXPECT_STREQ(list.at(2)->value.text(), "piros");
  EXPECT_EQ(cursor(), "1,2");
}

TEST_F(ItemDataTableKeysTest, arrowsChooseFromAnOpenedList) {
  const ItemDataList& list = openAt(0, 2);
  user.key(FX::KEY_F2);
  user.key(FX::KEY_Up);
  EXPECT_EQ(cursor(), "0,2");
  user.key(FX::KEY_Tab);
  EXPECT_STREQ(list.at(2)->value.text(), "piros");
}

TEST_F(ItemDataTableKeysTest, escapeDropsAChoice) {
  const ItemDataList& list = openAt(0, 2);
  user.type("p");
  user.key(FX::KEY_Escape);
  EXPECT_EQ(editor(), nullptr);
  EXPECT_STREQ(list.at(2)->value.text(), "kék");
}

TEST_F(ItemDataTableKeysTest, theBlankChoiceEmptiesACell) {
  const ItemDataList& list = openAt(0, 2);
  user.key(FX::KEY_F2);
  user.key(FX::KEY_Home);
  user.key(FX::KEY_Up);
  user.key(FX::KEY_Up);
  user.key(FX::KEY_Return);
  EXPECT_STREQ(list.at(2)->value.text(), " ");
  EXPECT_STREQ(list.at(2)->getValue().text(), "");
}

TEST_F(ItemDataTableKeysTest, aCellWithoutEntryCannotBeEdited) {
  ItemDataList& list = newListOf(perUnitSettings());
  add(list, TYPE_TEXT, 12, 1, "A");
  open();
  goTo(0, 0);
  user.type("5");
  user.key(FX::KEY_F2);
  EXPECT_EQ(editor(), nullptr);
  user.key(FX::KEY_Return);
  EXPECT_EQ(shown(), Texts{"-|A|-"});
  EXPECT_STREQ(table()->getItemText(0, 0).text(), "");
}

TEST_F(ItemDataTableKeysTest, okByHotKeyKeepsTheCellBeingEdited) {
  const ItemDataList& list = openAt(0, 1);
  user.type("kept");
  user.key(FX::KEY_o, {FX::KEY_Alt_L});
  EXPECT_FALSE(dialog->shown());
  EXPECT_STREQ(list.at(1)->value.text(), "kept");
}

TEST_F(ItemDataTableKeysTest, dateCellsTakeTextAsItIsWritten) {
  ItemDataList& list =
      newListOf(settingsOf({{TYPE_QUANTITY, VARIABLE_QUANTITY, "Mennyiség", true}, {TYPE_DATE, 14, "Lejárat", true}}));
  open();
  EXPECT_EQ(cursor(), "0,1");
  user.type("2024.12.31");
  user.key(FX::KEY_Tab);
  EXPECT_STREQ(list.at(1)->value.text(), "2024.12.31");
}
