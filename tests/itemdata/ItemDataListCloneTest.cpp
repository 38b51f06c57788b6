// Copies of cells and of whole lists.

#include <algorithm>

#include "itemdata/Codes.h"
#include "itemdata/ItemDataList.h"
#include "tests/itemdata/ListFixture.h"
#include "tests/itemdata/ProbeEntry.h"

using namespace Brontel::Plugin::ItemData;
using Cells = std::vector<std::string>;

namespace {

class ItemDataListCloneTest : public ListFixture {
 protected:
  /// The item's list with its per-item cell and two rows, all stored.
  ItemDataList& filledList() {
    ItemDataList& list = newListOf(newTemplate());
    list[0]->value = "M";
    list[0]->pk = 1;
    addRow(list, 1, "5", "S1", "kék", 11);
    addRow(list, 2, "3", "S2", "piros", 21);
    return list;
  }

  /// A copy for another item, which owns it.
  ItemDataList& copyOf(const ItemDataList& list, int id = 0) {
    other.setId(id);
    auto* copy = list.clone(&other);
    other.addMiscData("ItemData", copy);
    return *copy;
  }

  Brontel::InvoiceItem other;
};

const Cells kRows = {"-1/1=5", "12/1=S1", "13/1=kék", "-1/2=3", "12/2=S2", "13/2=piros"};

Cells with(const Cells& first) {
  Cells all = first;
  all.insert(all.end(), kRows.begin(), kRows.end());
  return all;
}

}  // namespace

TEST_F(ItemDataListCloneTest, takesThePerItemCellsOrAll) {
  const ItemDataList& source = filledList();
  ItemDataList list(&other, nullptr);
  list.rows = 7;
  list.cloneItemsFrom(&source, 0);
  EXPECT_EQ(cellsOf(list), Cells{"11/0=M"});
  EXPECT_EQ(keysOf(list), std::vector<int>{0});
  EXPECT_EQ(list[0]->getOwner(), &other);
  EXPECT_EQ(list.rows, 0);
  list.cloneItemsFrom(&source, 1);
  EXPECT_EQ(cellsOf(list), with({"11/0=M", "11/0=M"}));
  EXPECT_EQ(list.rows, 2);
}

TEST_F(ItemDataListCloneTest, aNegativeFirstRowIndexMeansThatAllArePerItem) {
  ItemDataList& source = filledList();
  source.firstRowIndex = -1;
  ItemDataList list(&other, nullptr);
  list.cloneItemsFrom(&source, 0);
  EXPECT_EQ(list.no(), 7);
}

TEST_F(ItemDataListCloneTest, nothingClonedChangesNothing) {
  ItemDataList& source = filledList();
  source.firstRowIndex = 0;
  ItemDataList list(&other, nullptr);
  list.rows = 7;
  list.cloneItemsFrom(&source, 0);
  list.cloneItemsFrom(nullptr, 1);
  EXPECT_EQ(list.no(), 0);
  EXPECT_EQ(list.rows, 7);
}

TEST_F(ItemDataListCloneTest, skipsEmptySlots) {
  ItemDataList& source = filledList();
  source.prepend(nullptr);
  ItemDataList list(&other, nullptr);
  list.cloneItemsFrom(&source, 1);
  EXPECT_EQ(list.no(), 7);
  EXPECT_EQ(cellsOf(copyOf(source)), with({"11/0=", "11/0=M"}));
}

TEST_F(ItemDataListCloneTest, aCopyForANewItemHasItsPerItemCellsTwice) {
  const ItemDataList& source = filledList();
  const ItemDataList& copy = copyOf(source);
  EXPECT_EQ(cellsOf(copy), with({"11/0=", "11/0=M"}));
  EXPECT_EQ(keysOf(copy), std::vector<int>(8, 0));
  for (FX::FXint i = 0; i < copy.no(); ++i) EXPECT_EQ(copy[i]->getOwner(), &other);
  EXPECT_EQ(copy.getOwner(), &other);
  EXPECT_EQ(copy.rows, 2);
  EXPECT_EQ(copy.columns, 3);
  EXPECT_EQ(copy.firstRowIndex, 1);
}

TEST_F(ItemDataListCloneTest, aCopyForAStoredItemHasEachCellOnce) {
  EXPECT_EQ(cellsOf(copyOf(filledList(), 30)), with({"11/0=M"}));
}

TEST_F(ItemDataListCloneTest, theTemplateIsCopiedToo) {
  ItemDataList& source = filledList();
  source.templateList->rows = 4;
  const ItemDataList& copy = copyOf(source);
  ASSERT_NE(copy.templateList, nullptr);
  EXPECT_NE(copy.templateList, source.templateList);
  EXPECT_EQ(cellsOf(*copy.templateList), cellsOf(*source.templateList));
  EXPECT_EQ(copy.templateList->getOwner(), &other);
  EXPECT_EQ(copy.templateList->rows, 4);
  EXPECT_EQ(copy.templateList->columns, 3);
  EXPECT_EQ(copy.templateList->firstRowIndex, 1);
  EXPECT_STREQ(copy.templateList->at(3)->vvalue.text(), "piros,kék");
}

TEST_F(ItemDataListCloneTest, aListWithoutTemplateIsCopiedWithoutOne) {
  ItemDataList& source = newList();
  addRow(source, 1, "5", "S1", "kék", 11);
  const ItemDataList& copy = copyOf(source);
  EXPECT_EQ(copy.templateList, nullptr);
  EXPECT_EQ(cellsOf(copy), (Cells{"-1/1=5", "12/1=S1", "13/1=kék"}));
}

TEST_F(ItemDataListCloneTest, theSourceStaysAsItIs) {
  ItemDataList& source = filledList();
  source.markRowForDelete(2);
  const Cells cells = cellsOf(source);
  const std::vector<int> keys = keysOf(source);
  copyOf(source);
  EXPECT_EQ(cellsOf(source), cells);
  EXPECT_EQ(keysOf(source), keys);
  EXPECT_EQ(source.rows, 1);
}

TEST_F(ItemDataListCloneTest, aDeletedRowStaysDeletedInTheCopy) {
  ItemDataList& source = filledList();
  source.markRowForDelete(2);
  const ItemDataList& copy = copyOf(source);
  EXPECT_EQ(cellsOf(copy), (Cells{"11/0=", "11/0=M", "-1/1=5", "12/1=S1", "13/1=kék", "-1/2= marked", "12/2= marked",
                                  "13/2= marked"}));
  EXPECT_EQ(keysOf(copy), std::vector<int>(8, 0));
  EXPECT_EQ(copy.rows, 1);
}

TEST_F(ItemDataListCloneTest, aCopyMayHaveNoOwner) {
  const std::unique_ptr<ItemDataList> copy(filledList().clone(nullptr));
  EXPECT_EQ(copy->getOwner(), nullptr);
  EXPECT_EQ(cellsOf(*copy), with({"11/0=M"}));
}

TEST_F(ItemDataListCloneTest, copiesOutliveTheirSource) {
  ItemDataList& copy = copyOf(filledList());
  newList();
  copy.addRows(1);
  EXPECT_EQ(copy.no(), 11);
  EXPECT_STREQ(findCell(copy, 13, 3)->vvalue.text(), "piros,kék");
}

TEST_F(ItemDataListCloneTest, settlingLeavesEachPerItemCellOnce) {
  ItemDataList& copy = copyOf(filledList());
  copy.settle();
  EXPECT_EQ(cellsOf(copy), with({"11/0=M"}));
  EXPECT_EQ(copy.firstRowIndex, 1);
  EXPECT_EQ(copy.rows, 2);
  EXPECT_EQ(copy.columns, 3);
  copy.settle();
  EXPECT_EQ(cellsOf(copy), with({"11/0=M"}));
}

TEST_F(ItemDataListCloneTest, settlingKeepsAnEmptyCellWithoutTwin) {
  ItemDataList& source = filledList();
  source[0]->value = "";
  ItemDataList& copy = copyOf(source);
  copy.settle();
  EXPECT_EQ(cellsOf(copy), with({"11/0="}));
}

TEST_F(ItemDataListCloneTest, settlingKeepsWhatIsFilledStoredOrMarked) {
  ItemDataList& list = newList();
  add(list, TYPE_TEXT, 11, 0, "filled");
  add(list, TYPE_TEXT, 11, 0, "", 7);
  add(list, TYPE_TEXT, 11, 0)->markForDelete(1);
  add(list, TYPE_LIST, 11, 0, " ");
  list.append(nullptr);
  add(list, TYPE_TEXT, 11, 0, "last");
  list.settle();
  EXPECT_EQ(cellsOf(list), (Cells{"11/0=filled", "11/0=", "11/0= marked", "null", "11/0=last"}));
}

TEST_F(ItemDataListCloneTest, settlingTouchesNoRows) {
  ItemDataList& list = newList();
  addRow(list, 1, "", "", "");
  addRow(list, 1, "", "", "");
  list.settle();
  EXPECT_EQ(list.no(), 6);
}

TEST_F(ItemDataListCloneTest, settlingEndsTheDeletedRowsOfACopy) {
  ItemDataList& source = filledList();
  source.markRowForDelete(2);
  source.addRows(1);
  setCell(source, 12, 2, "new");
  ItemDataList& copy = copyOf(source);
  copy.settle();
  EXPECT_EQ(cellsOf(copy), (Cells{"11/0=M", "-1/1=5", "12/1=S1", "13/1=kék", "-1/2=", "12/2=new", "13/2="}));
  EXPECT_EQ(copy.rows, 2);
}

TEST_F(ItemDataListCloneTest, settlingCompletesACopyOfAClosedInvoicesList) {
  // A closed invoice shows what was recorded and no more; its copy is open, and everything can be filled in.
  invoice.setStatus(Brontel::STATUS_CLOSED);
  ItemDataList& source = newListOf(newTemplate());
  delete source[0];
  source.clear();
  source.firstRowIndex = 0;
  add(source, TYPE_QUANTITY, VARIABLE_QUANTITY, 1, "5", 11);
  add(source, TYPE_LIST, 13, 1, "kék", 13);
  source.rows = 1;
  ItemDataList& copy = copyOf(source);
  copy.settle();
  EXPECT_EQ(cellsOf(copy), (Cells{"11/0=", "-1/1=5", "12/1=", "13/1=kék"}));
  EXPECT_EQ(copy.firstRowIndex, 1);
  EXPECT_EQ(copy.rows, 1);
  copy[2]->value = "S1";
  copy.settle();
  EXPECT_EQ(cellsOf(copy), (Cells{"11/0=", "-1/1=5", "12/1=S1", "13/1=kék"}));
}

TEST_F(ItemDataListCloneTest, settlingLosesNoneOfTwoValuesForOnePlace) {
  ItemDataList& source = filledList();
  add(source, TYPE_TEXT, 12, 2, "S2 again", 31);
  add(source, TYPE_TEXT, 11, 0, "M again", 32);
  ItemDataList& copy = copyOf(source);
  copy.settle();
  EXPECT_EQ(cellsOf(copy), (Cells{"11/0=M", "-1/1=5", "12/1=S1", "13/1=kék", "-1/2=3", "12/2=S2", "13/2=piros",
                                  "12/2=S2 again", "11/0=M again"}));
}

TEST_F(ItemDataListCloneTest, settlingAgainKeepsACellThatWasEmptiedMeanwhile) {
  ItemDataList& source = filledList();
  add(source, TYPE_TEXT, 11, 0, "M again", 32);
  ItemDataList& copy = copyOf(source);
  copy.settle();
  copy[0]->value = "";
  copy.settle();
  EXPECT_EQ(cellsOf(copy).front(), "11/0=");
  EXPECT_EQ(copy.firstRowIndex, 1);
  EXPECT_EQ(copy[1]->row, 1);
}

TEST_F(ItemDataListCloneTest, settlingLosesNoRowThatRepeatsAnother) {
  ItemDataList& source = filledList();
  add(source, TYPE_QUANTITY, VARIABLE_QUANTITY, 2, "3", 31);
  add(source, TYPE_TEXT, 12, 2, "S2", 32);
  add(source, TYPE_LIST, 13, 2, "", 33);
  ItemDataList& copy = copyOf(source);
  copy.settle();
  const Cells cells = cellsOf(copy);
  EXPECT_EQ(std::count(cells.begin(), cells.end(), "-1/2=3"), 2);
  EXPECT_EQ(std::count(cells.begin(), cells.end(), "12/2=S2"), 2);
  EXPECT_EQ(std::count(cells.begin(), cells.end(), "13/2="), 1);
}

TEST_F(ItemDataListCloneTest, copiesOfCopiesAreLikeTheFirst) {
  ItemDataList& first = copyOf(filledList());
  Brontel::InvoiceItem third;
  ItemDataList* unsettled = first.clone(&third);
  third.addMiscData("ItemData", unsettled);
  EXPECT_EQ(cellsOf(*unsettled), with({"11/0=", "11/0=", "11/0=M"}));
  unsettled->settle();
  EXPECT_EQ(cellsOf(*unsettled), with({"11/0=M"}));
  first.settle();
  ItemDataList* settled = first.clone(&third);
  third.addMiscData("ItemData", settled);
  settled->settle();
  EXPECT_EQ(cellsOf(*settled), with({"11/0=M"}));
  EXPECT_EQ(settled->firstRowIndex, 1);
}
