// Rows that are added and deleted, in the table and in the list.

#include <fxkeys.h>

#include "itemdata/Codes.h"
#include "tests/itemdata/ProbeEntry.h"
#include "tests/ui/DialogFixture.h"

using namespace Brontel::Plugin::ItemData;
using FX::FXint;

class ItemDataDialogRowsTest : public DialogFixture {
 protected:
  /// Adds a row as the menu does.
  void append() { table()->handle(form, FXSEL(FX::SEL_COMMAND, ItemDataTable::ID_ADD_ROW), nullptr); }
  /// Deletes a row as the menu does.
  void remove(FXint row) {
    table()->killSelection();
    table()->setCurrentItem(row, 0);
    table()->handle(form, FXSEL(FX::SEL_COMMAND, ItemDataTable::ID_DELETE_ROW), nullptr);
  }
  long tell(FX::FXSelector message, FXint row = 0) {
    return dialog->handle(form, FXSEL(FX::SEL_COMMAND, message), reinterpret_cast<void*>(static_cast<FX::FXival>(row)));
  }
  void setQuantity(const char* quantity) { item.setQuantity(FXExt::FXDecimal(quantity, 4)); }
};

TEST_F(ItemDataDialogRowsTest, aNewRowHasTheQuantityStillMissing) {
  ItemDataList& list = newRows({{"2", "A", "kék"}});
  build();
  append();
  EXPECT_EQ(shown(), (Texts{"2|A|kék", "3||"}));
  EXPECT_EQ(cellsOf(list), (Texts{"-1/1=2", "12/1=A", "13/1=kék", "-1/2=3", "12/2=", "13/2="}));
  EXPECT_EQ(list.rows, 2);
  for (FXint i = 3; i < 6; ++i) {
    EXPECT_EQ(list.at(i)->getOwner(), &item);
    EXPECT_EQ(list.at(i)->pk, 0);
    EXPECT_EQ(list.at(i)->del, 0);
    EXPECT_EQ(table()->getItemData(1, i - 3), list.at(i));
  }
  EXPECT_STREQ(list.at(5)->vvalue.text(), "piros,kék");
}

TEST_F(ItemDataDialogRowsTest, aNewRowOffersNothingWhenNothingIsMissing) {
  newRows({{"5", "", ""}});
  build();
  append();
  EXPECT_EQ(shown().back(), "0||");
}

TEST_F(ItemDataDialogRowsTest, aNewRowOffersLessThanNothingWhenThereIsTooMuch) {
  newRows({{"7", "", ""}});
  build();
  append();
  EXPECT_EQ(shown().back(), "-2||");
}

TEST_F(ItemDataDialogRowsTest, fractionsAreExact) {
  newRows({{"1.1", "", ""}, {"0.0001", "", ""}});
  setQuantity("1000000.5");
  build();
  append();
  EXPECT_EQ(shown().back(), "999999.3999||");
}

TEST_F(ItemDataDialogRowsTest, aQuantityOfTheTemplateIsNotOverwritten) {
  auto settings = perUnitSettings();
  settings->at(0)->value = "9";
  newListOf(std::move(settings));
  build();
  EXPECT_EQ(shown(), Texts{"9||"});
}

TEST_F(ItemDataDialogRowsTest, rowsGetEverHigherNumbers) {
  ItemDataList& list = newListOf(perUnitSettings());
  addRow(list, 4, "1", "", "");
  build();
  append();
  append();
  EXPECT_EQ(list.rows, 6);
  EXPECT_EQ(list.at(3)->row, 5);
  EXPECT_EQ(list.at(6)->row, 6);
}

TEST_F(ItemDataDialogRowsTest, newRowsOfAClosedInvoiceComeFromTheTemplatesOwnPlace) {
  ItemDataList& list = newListOf(newTemplate());
  delete list.at(0);
  list.no(0);
  addRow(list, 1, "5", "A", "kék", 101);
  list.firstRowIndex = 0;
  build();
  append();
  EXPECT_EQ(shown(), (Texts{"5|A|kék", "0||"}));
}

TEST_F(ItemDataDialogRowsTest, nothingIsAddedWithoutListOrTemplate) {
  build();
  EXPECT_EQ(tell(88), 1);
  EXPECT_EQ(tell(89), 1);
  ItemDataList& list = newListOf(perItemSettings());
  build();
  EXPECT_EQ(tell(88), 1);
  EXPECT_EQ(list.no(), 3);
  EXPECT_EQ(list.rows, 0);
}

TEST_F(ItemDataDialogRowsTest, nothingIsAddedWithoutPerUnitVariablesInTheTemplate) {
  ItemDataList& list = newRows({{"5", "A", ""}});
  list.templateList->firstRowIndex = -1;
  build();
  EXPECT_EQ(tell(88), 1);
  list.templateList->firstRowIndex = 7;
  EXPECT_EQ(tell(88), 1);
  EXPECT_EQ(list.no(), 3);
  EXPECT_EQ(list.rows, 1);
}

TEST_F(ItemDataDialogRowsTest, aDeletedRowThatIsStoredIsMarked) {
  ItemDataList& list = newRows({{"2", "A", "kék"}, {"3", "B", "piros"}}, true);
  build();
  remove(1);
  EXPECT_EQ(shown(), Texts{"2|A|kék"});
  EXPECT_EQ(cellsOf(list), (Texts{"-1/1=2", "12/1=A", "13/1=kék", "-1/2= marked", "12/2= marked", "13/2= marked"}));
  EXPECT_EQ(keysOf(list), (std::vector{101, 102, 103, 104, 105, 106}));
  EXPECT_EQ(list.rows, 1);
}

TEST_F(ItemDataDialogRowsTest, aDeletedRowThatIsNotStoredIsGone) {
  ItemDataList& list = newRows({{"2", "A", "kék"}, {"3", "B", "piros"}});
  build();
  remove(0);
  EXPECT_EQ(shown(), Texts{"3|B|piros"});
  EXPECT_EQ(cellsOf(list), (Texts{"-1/2=3", "12/2=B", "13/2=piros"}));
  EXPECT_EQ(list.rows, 2);
}

TEST_F(ItemDataDialogRowsTest, cellsThatGoAreDestroyedOnce) {
  ProbeEntry::Notes notes;
  ItemDataList& list = newRows({{"2", "A", ""}});
  auto* probe = new ProbeEntry(notes, 1);
  probe->itemvariable = 12;
  delete list.at(1);
  list.at(1) = probe;
  build();
  remove(0);
  EXPECT_EQ(notes.destroyed, 1);
  EXPECT_EQ(list.no(), 0);
  EXPECT_EQ(list.rows, 0);
}

TEST_F(ItemDataDialogRowsTest, aRowIsKnownByTheNumberOfItsFirstCell) {
  ItemDataList& list = newListOf(perUnitSettings());
  addRow(list, 1, "1", "", "");
  addRow(list, 3, "2", "", "");
  build();
  EXPECT_EQ(tell(89, 1), 1);
  EXPECT_EQ(cellsOf(list), (Texts{"-1/1=1", "12/1=", "13/1="}));
  // Once for the row: number two is free now, and never was in use.
  EXPECT_EQ(list.rows, 2);
}

TEST_F(ItemDataDialogRowsTest, theHighestNumberFallsOnlyWithItsRow) {
  ItemDataList& list = newRows({{"1", "", ""}, {"1", "", ""}, {"1", "", ""}, {"1", "", ""}, {"1", "", ""}});
  build();
  remove(1);
  EXPECT_EQ(list.rows, 5);
  remove(3);
  EXPECT_EQ(list.rows, 4);
  EXPECT_EQ(list.no(), 9);
}

TEST_F(ItemDataDialogRowsTest, cellsAlreadyMarkedStayAsLongAsTheyAreStored) {
  ItemDataList& list = newRows({{"2", "A", "kék"}}, true);
  ItemDataEntry* marked = add(list, TYPE_TEXT, 99, 1, "x", 200);
  marked->markForDelete(1);
  ItemDataEntry* unstored = add(list, TYPE_TEXT, 98, 1, "y");
  unstored->markForDelete(1);
  build();
  remove(0);
  EXPECT_EQ(cellsOf(list), (Texts{"-1/1= marked", "12/1= marked", "13/1= marked", "99/1= marked"}));
}

TEST_F(ItemDataDialogRowsTest, whatIsRecordedOncePerItemStays) {
  ItemDataList& list = newListOf(newTemplate());
  setCell(list, 11, 0, "note");
  build();
  remove(0);
  EXPECT_EQ(cellsOf(list), Texts{"11/0=note"});
}

TEST_F(ItemDataDialogRowsTest, aRowWithoutEntryIsNotDeletedFromTheList) {
  ItemDataList& list = newListOf(perUnitSettings());
  add(list, TYPE_TEXT, 12, 1, "A");
  list.rows = 1;
  build();
  ASSERT_EQ(shown(), Texts{"-|A|-"});
  EXPECT_EQ(tell(89, 0), 1);
  EXPECT_EQ(cellsOf(list), Texts{"12/1=A"});
}

TEST_F(ItemDataDialogRowsTest, rowsOutsideTheTableAreIgnored) {
  ItemDataList& list = newRows({{"5", "A", ""}});
  build();
  for (const FXint row : {-1, 1, 1000000}) EXPECT_EQ(tell(89, row), 1);
  EXPECT_EQ(list.no(), 3);
}

TEST_F(ItemDataDialogRowsTest, deletedQuantitiesAreMissingAgain) {
  newRows({{"2", "A", ""}, {"3", "B", ""}}, true);
  build();
  remove(0);
  append();
  EXPECT_EQ(shown(), (Texts{"3|B|", "2||"}));
}

TEST_F(ItemDataDialogRowsTest, afterTheLastRowComesAFirst) {
  ItemDataList& list = newRows({{"5", "A", ""}});
  build();
  remove(0);
  EXPECT_EQ(table()->getNumRows(), 0);
  append();
  EXPECT_EQ(shown(), Texts{"5||"});
  EXPECT_EQ(list.rows, 1);
}

TEST_F(ItemDataDialogRowsTest, theNumberOfADeletedStoredRowIsTakenAgain) {
  ItemDataList& list = newRows({{"5", "A", ""}}, true);
  build();
  remove(0);
  append();
  table()->setItemText(0, 1, "new");
  EXPECT_EQ(cellsOf(list), (Texts{"-1/1= marked", "12/1= marked", "13/1= marked", "-1/1=5", "12/1=new", "13/1="}));
  remove(0);
  EXPECT_EQ(cellsOf(list), (Texts{"-1/1= marked", "12/1= marked", "13/1= marked"}));
}

TEST_F(ItemDataDialogRowsTest, aCellLeftOnTheScreenForgetsADestroyedEntry) {
  // Cells of one number in two places, as no well-formed list has them.
  ItemDataList& list = newRows({{"1", "A", ""}, {"2", "B", ""}});
  addRow(list, 1, "3", "C", "");
  open();
  ASSERT_EQ(shown(), (Texts{"1|A|", "2|B|", "3|C|"}));
  remove(0);
  EXPECT_EQ(shown(), (Texts{"2|B|", "-|-|-"}));
  goTo(1, 1);
  user.type("typed");
  EXPECT_EQ(cellsOf(list), (Texts{"-1/2=2", "12/2=B", "13/2="}));
}

TEST_F(ItemDataDialogRowsTest, aRowGoesWithTheCellThatIsBeingEdited) {
  ItemDataList& list = newRows({{"1", "A", ""}, {"2", "B", ""}});
  open();
  goTo(1, 1);
  user.type("half");
  ASSERT_NE(table()->getFocus(), nullptr);
  table()->handle(form, FXSEL(FX::SEL_COMMAND, ItemDataTable::ID_DELETE_ROW), nullptr);
  user.settle();
  EXPECT_EQ(shown(), Texts{"1|A|"});
  EXPECT_EQ(cellsOf(list), (Texts{"-1/1=1", "12/1=A", "13/1="}));
}

TEST_F(ItemDataDialogRowsTest, aSecondDialogShowsWhatTheFirstLeft) {
  newRows({{"2", "A", "kék"}}, true);
  open();
  user.key(FX::KEY_Insert);
  user.type("B");
  user.key(FX::KEY_Return);
  close();
  open();
  EXPECT_EQ(shown(), (Texts{"2|A|kék", "3|B|"}));
}
