#include "itemdata/Codes.h"
#include "itemdata/RowTidying.h"
#include "tests/itemdata/ListFixture.h"
#include "tests/itemdata/ProbeEntry.h"

using namespace Brontel::Plugin::ItemData;
using Cells = std::vector<std::string>;

namespace {

class RowTidyingTest : public ListFixture {
 protected:
  RowTidyingTest() : list(newList()) {}

  Cells tidied() {
    RowTidying(list).apply();
    return cellsOf(list);
  }

  ItemDataList& list;
};

}  // namespace

TEST_F(RowTidyingTest, leavesAListWithoutMarksAsItIs) {
  add(list, TYPE_TEXT, 11, 0, "M");
  addRow(list, 1, "5", "S1", "kék", 11);
  addRow(list, 2, "3", "S2", "");
  list.append(nullptr);
  EXPECT_EQ(tidied(), (Cells{"11/0=M", "-1/1=5", "12/1=S1", "13/1=kék", "-1/2=3", "12/2=S2", "13/2=", "null"}));
  EXPECT_EQ(list.rows, 2);
}

TEST_F(RowTidyingTest, anEmptyListStaysEmpty) {
  EXPECT_TRUE(tidied().empty());
  EXPECT_EQ(list.rows, 0);
}

TEST_F(RowTidyingTest, oneMarkedCellMarksItsStoredRow) {
  addRow(list, 1, "5", "S1", "kék", 11);
  addRow(list, 2, "3", "S2", "piros", 21);
  list[4]->markForDelete(1);
  EXPECT_EQ(tidied(), (Cells{"-1/1=5", "12/1=S1", "13/1=kék", "-1/2= marked", "12/2= marked", "13/2= marked"}));
  EXPECT_EQ(keysOf(list), (std::vector<int>{11, 12, 13, 21, 22, 23}));
  EXPECT_EQ(list.rows, 1);
}

TEST_F(RowTidyingTest, destroysWhatWasNeverStoredOfTheRow) {
  ProbeEntry::Notes notes;
  addRow(list, 1, "5", "S1", "kék", 11);
  addRow(list, 2, "3", "S2", "piros");
  list[4]->pk = 22;
  list[4]->markForDelete(1);
  list.append(new ProbeEntry(notes, 2));
  EXPECT_EQ(tidied(), (Cells{"-1/1=5", "12/1=S1", "13/1=kék", "12/2= marked"}));
  EXPECT_EQ(notes.destroyed, 1);
  EXPECT_EQ(list.rows, 1);
}

TEST_F(RowTidyingTest, destroysAMarkedCellThatWasNeverStored) {
  addRow(list, 1, "5", "S1", "kék");
  list[1]->markForDelete(1);
  EXPECT_TRUE(tidied().empty());
  EXPECT_EQ(list.rows, 0);
}

TEST_F(RowTidyingTest, tidiesSeveralRowsWhateverVanishesMeanwhile) {
  addRow(list, 1, "1", "a", "");
  addRow(list, 2, "2", "b", "", 21);
  addRow(list, 3, "3", "c", "");
  addRow(list, 4, "4", "d", "", 41);
  addRow(list, 5, "5", "e", "");
  list[0]->markForDelete(1);
  list[4]->markForDelete(1);
  list[8]->markForDelete(1);
  list[14]->markForDelete(1);
  EXPECT_EQ(tidied(), (Cells{"-1/2= marked", "12/2= marked", "13/2= marked", "-1/4=4", "12/4=d", "13/4="}));
  EXPECT_EQ(list.rows, 4);
}

TEST_F(RowTidyingTest, aMiddleRowLeavesAGap) {
  for (const int row : {1, 2, 3}) addRow(list, row, "1", "x", "", 10 * row + 1);
  list[3]->markForDelete(1);
  tidied();
  EXPECT_EQ(list.rows, 3);
  EXPECT_EQ(list.getRowNum(), 2);
}

TEST_F(RowTidyingTest, aNewRowThatTookTheNumberOfADeletedOneStays) {
  addRow(list, 1, "5", "S1", "kék", 11);
  addRow(list, 2, "3", "S2", "piros", 21);
  list.markRowForDelete(2);
  addRow(list, 2, "4", "new", "kék");
  const Cells expected = {"-1/1=5",       "12/1=S1", "13/1=kék", "-1/2= marked", "12/2= marked",
                          "13/2= marked", "-1/2=4",  "12/2=new", "13/2=kék"};
  EXPECT_EQ(tidied(), expected);
  EXPECT_EQ(list.rows, 2);
  EXPECT_EQ(tidied(), expected);
  EXPECT_EQ(list.rows, 2);
}

TEST_F(RowTidyingTest, oneOfTwoRowsOfANumberIsTidied) {
  addRow(list, 1, "5", "old", "", 11);
  addRow(list, 1, "4", "new", "");
  list[4]->markForDelete(1);
  EXPECT_EQ(tidied(), (Cells{"-1/1=5", "12/1=old", "13/1="}));
  EXPECT_EQ(list.rows, 1);
}

TEST_F(RowTidyingTest, aQuantityBeginsARowByItsTypeWhateverItsVariable) {
  addRow(list, 2, "3", "S2", "piros", 21);
  list.markRowForDelete(2);
  add(list, TYPE_QUANTITY, VARIABLE_NONE, 2, "4");
  add(list, TYPE_TEXT, 12, 2, "new");
  EXPECT_EQ(tidied(), (Cells{"-1/2= marked", "12/2= marked", "13/2= marked", "0/2=4", "12/2=new"}));
}

TEST_F(RowTidyingTest, aDeletedRowWithoutItsQuantityEndsWhereTheNextQuantityIs) {
  // The quantity of a row of none is never stored.
  add(list, TYPE_TEXT, 12, 2, "S2", 22)->markForDelete(1);
  add(list, TYPE_LIST, 13, 2, "kék", 23)->markForDelete(1);
  addRow(list, 2, "4", "new", "");
  EXPECT_EQ(tidied(), (Cells{"12/2= marked", "13/2= marked", "-1/2=4", "12/2=new", "13/2="}));
}

TEST_F(RowTidyingTest, countsDownOnceAndNeverAgain) {
  for (const int row : {1, 2, 3}) addRow(list, row, "1", "x", "", 10 * row + 1);
  list.markRowForDelete(3);
  EXPECT_EQ(list.rows, 2);
  for (int i = 0; i < 3; ++i) {
    tidied();
    EXPECT_EQ(list.rows, 2);
  }
}

TEST_F(RowTidyingTest, theCountNeverFallsBelowALiveRow) {
  for (const int row : {1, 2, 3}) addRow(list, row, "1", "x", "", 10 * row + 1);
  list.markRowForDelete(2);
  list.markRowForDelete(3);
  for (int i = 0; i < 3; ++i) {
    tidied();
    EXPECT_EQ(list.rows, 1);
  }
}

TEST_F(RowTidyingTest, aMarkedPerItemCellTakesThePerItemCellsAlong) {
  add(list, TYPE_TEXT, 11, 0, "a", 1)->markForDelete(1);
  add(list, TYPE_TEXT, 14, 0, "b", 2);
  add(list, TYPE_TEXT, 15, 0, "c");
  addRow(list, 1, "5", "S1", "", 11);
  EXPECT_EQ(tidied(), (Cells{"11/0= marked", "14/0= marked", "-1/1=5", "12/1=S1", "13/1="}));
  EXPECT_EQ(list.rows, 1);
}

TEST_F(RowTidyingTest, perItemCellsAreNoRowToCountDown) {
  add(list, TYPE_TEXT, 11, 0, "a", 1)->markForDelete(1);
  EXPECT_EQ(list.rows, 0);
  EXPECT_EQ(tidied(), (Cells{"11/0= marked"}));
  EXPECT_EQ(list.rows, 0);
}

TEST_F(RowTidyingTest, emptySlotsDivideNothingButThemselves) {
  list.append(nullptr);
  addRow(list, 1, "5", "S1", "", 11);
  list.append(nullptr);
  list[2]->markForDelete(1);
  EXPECT_EQ(tidied(), (Cells{"null", "-1/1= marked", "12/1= marked", "13/1= marked", "null"}));
}
