// Rows and quantities of a list.

#include "itemdata/Codes.h"
#include "itemdata/ItemDataList.h"
#include "itemdata/ItemDataStringEntry.h"
#include "tests/itemdata/ListFixture.h"

using namespace Brontel::Plugin::ItemData;

namespace {

/// A cell that gives another value than it holds.
class SevenEntry : public ItemDataStringEntry {
 public:
  FX::FXString getValue() const override { return "7"; }
};

class ItemDataListQuantityTest : public ListFixture {
 protected:
  ItemDataListQuantityTest() : list(newList()) {}

  ItemDataEntry* addQuantity(int row, const std::string& value, int key = 0) {
    return add(list, TYPE_QUANTITY, VARIABLE_QUANTITY, row, value, key);
  }

  std::string sum() { return list.getSumQuantity().toString().text(); }
  std::string ofRow(int row) { return list.getQuantityForRow(row).toString().text(); }

  ItemDataList& list;
};

}  // namespace

TEST_F(ItemDataListQuantityTest, anEmptyListHasNoRows) {
  EXPECT_EQ(list.getRowNum(), 0);
  list.firstRowIndex = 0;
  EXPECT_EQ(list.getRowNum(), 0);
  EXPECT_FALSE(list.hasQuantityColumn());
}

TEST_F(ItemDataListQuantityTest, aFreshItemHasNoRows) {
  EXPECT_EQ(newListOf(newTemplate()).getRowNum(), 0);
}

TEST_F(ItemDataListQuantityTest, countsRowNumbersFromTheFirstPerUnitCell) {
  add(list, TYPE_TEXT, 11, 0, "a");
  add(list, TYPE_TEXT, 14, 0, "b");
  for (const int row : {1, 2, 5}) addRow(list, row, "1", "x", "");
  EXPECT_EQ(list.firstRowIndex, 2);
  EXPECT_EQ(list.getRowNum(), 3);
}

TEST_F(ItemDataListQuantityTest, aSingleRowIsOne) {
  addRow(list, 1, "1", "x", "");
  EXPECT_EQ(list.getRowNum(), 1);
}

TEST_F(ItemDataListQuantityTest, deletedRowsDoNotCount) {
  for (const int row : {1, 2, 3}) addRow(list, row, "1", "x", "", 10 * row);
  list.markRowForDelete(2);
  EXPECT_EQ(list.getRowNum(), 2);
}

TEST_F(ItemDataListQuantityTest, aRowWithOneLiveCellCounts) {
  addRow(list, 1, "1", "x", "", 11);
  list[0]->markForDelete(1);
  list[2]->markForDelete(1);
  EXPECT_EQ(list.getRowNum(), 1);
}

TEST_F(ItemDataListQuantityTest, countsNoRowsWithoutPerUnitVariables) {
  addRow(list, 1, "1", "x", "", 11);
  list.firstRowIndex = -1;
  EXPECT_EQ(list.getRowNum(), 0);
  list.firstRowIndex = 99;
  EXPECT_EQ(list.getRowNum(), 0);
}

TEST_F(ItemDataListQuantityTest, perItemCellsBehindTheRowsAreNoRow) {
  addRow(list, 1, "1", "x", "");
  list.append(nullptr);
  add(list, TYPE_TEXT, 11, 0, "left over");
  EXPECT_EQ(list.getRowNum(), 1);
}

TEST_F(ItemDataListQuantityTest, aLiveQuantityOfARowMakesAQuantityColumn) {
  ItemDataEntry* cell = addQuantity(1, "", 5);
  EXPECT_TRUE(list.hasQuantityColumn());
  cell->markForDelete(1);
  EXPECT_FALSE(list.hasQuantityColumn());
  addQuantity(0, "3");
  add(list, TYPE_TEXT, 12, 1, "x");
  list.append(nullptr);
  EXPECT_FALSE(list.hasQuantityColumn());
}

TEST_F(ItemDataListQuantityTest, theLastLiveQuantityOfARowIsTheRows) {
  addQuantity(1, "2");
  addQuantity(1, "3.5");
  addQuantity(2, "4");
  EXPECT_EQ(ofRow(1), "3.5");
  EXPECT_EQ(ofRow(2), "4");
  EXPECT_EQ(ofRow(9), "0");
  list[1]->markForDelete(1);
  EXPECT_EQ(ofRow(1), "2");
  list[0]->markForDelete(1);
  EXPECT_EQ(ofRow(1), "0");
}

TEST_F(ItemDataListQuantityTest, aRowWithoutQuantityIsZero) {
  add(list, TYPE_TEXT, 12, 1, "7");
  list.append(nullptr);
  EXPECT_EQ(ofRow(1), "0");
}

TEST_F(ItemDataListQuantityTest, readsTextsAsDecimalsDo) {
  ItemDataEntry* cell = addQuantity(1, "");
  const std::vector<std::pair<const char*, const char*>> cases = {{"1.10", "1.1"},  {"abc", "0"}, {"1,5", "10"},
                                                                  {"1.5 ", "0.15"}, {"", "0"},    {"-2", "-2"}};
  for (const auto& [text, quantity] : cases) {
    cell->value = text;
    EXPECT_EQ(ofRow(1), quantity) << text;
  }
}

TEST_F(ItemDataListQuantityTest, theSumIsExact) {
  EXPECT_EQ(sum(), "0");
  EXPECT_EQ(list.getSumQuantity().precision, 4);
  addQuantity(1, "1.5");
  addQuantity(2, "2.25");
  EXPECT_EQ(sum(), "3.75");
  addQuantity(3, "0.1");
  addQuantity(4, "0.2");
  EXPECT_EQ(sum(), "4.05");
}

TEST_F(ItemDataListQuantityTest, theSumKeepsFurtherPlaces) {
  addQuantity(1, "0.00001");
  addQuantity(2, "0");
  EXPECT_EQ(sum(), "0.00001");
}

TEST_F(ItemDataListQuantityTest, theSumLeavesOutWhatIsDeleted) {
  addQuantity(1, "5");
  addQuantity(2, "3", 7);
  list.append(nullptr);
  list.markRowForDelete(2);
  EXPECT_EQ(sum(), "5");
}

TEST_F(ItemDataListQuantityTest, theSumTakesQuantitiesOfAnyRow) {
  addQuantity(0, "1");
  addQuantity(-3, "2");
  addQuantity(7, "4");
  add(list, TYPE_TEXT, VARIABLE_QUANTITY, 1, "100");
  EXPECT_EQ(sum(), "7");
}

TEST_F(ItemDataListQuantityTest, aKindMayGiveAnotherValueThanItHolds) {
  auto* seven = new SevenEntry;
  seven->type = TYPE_QUANTITY;
  seven->row = 2;
  seven->value = "100";
  addQuantity(1, "1");
  list.append(seven);
  EXPECT_EQ(sum(), "8");
  EXPECT_EQ(ofRow(2), "7");
}
