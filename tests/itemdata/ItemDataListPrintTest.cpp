#include "itemdata/Codes.h"
#include "itemdata/ItemDataList.h"
#include "tests/itemdata/ListFixture.h"

using namespace Brontel::Plugin::ItemData;

namespace {

class ItemDataListPrintTest : public ListFixture {
 protected:
  ItemDataListPrintTest() : list(newList()) {}

  void addPerItem(const std::vector<std::string>& values) {
    for (const std::string& value : values) add(list, TYPE_TEXT, 11, 0, value);
  }
  void addCells(int row, const std::vector<std::string>& values) {
    for (const std::string& value : values) add(list, TYPE_TEXT, 12, row, value);
  }
  /// A row with its quantity first.
  void addQuantityRow(int row, const std::string& quantity, const std::vector<std::string>& values) {
    add(list, TYPE_QUANTITY, VARIABLE_QUANTITY, row, quantity);
    addCells(row, values);
  }

  std::string printed() { return list.getPrintableText().text(); }

  ItemDataList& list;
};

}  // namespace

TEST_F(ItemDataListPrintTest, anEmptyListPrintsNothing) {
  EXPECT_EQ(printed(), "");
}

TEST_F(ItemDataListPrintTest, valuesOfTheItemThenRowByRow) {
  addPerItem({"A", "B"});
  addQuantityRow(1, "3", {"x", "y"});
  list.append(nullptr);
  addQuantityRow(2, "2", {"z"});
  EXPECT_EQ(printed(), "A; B; 3 db x, y; 2 db z");
}

TEST_F(ItemDataListPrintTest, aQuantityOfOneGoesWithoutSaying) {
  addPerItem({"A"});
  addQuantityRow(1, "1", {"x", "y"});
  addQuantityRow(2, "2", {"z"});
  EXPECT_EQ(printed(), "A; x, y; 2 db z");
}

TEST_F(ItemDataListPrintTest, aRowOfNoneOrOfUnknownQuantityPrintsItsValues) {
  addQuantityRow(1, "0", {"x"});
  addQuantityRow(2, "", {"y"});
  EXPECT_EQ(printed(), "x; y");
}

TEST_F(ItemDataListPrintTest, aRowMayBeAQuantityOnly) {
  addQuantityRow(1, "3", {""});
  EXPECT_EQ(printed(), "3 db");
  addQuantityRow(2, "2", {});
  EXPECT_EQ(printed(), "3 db; 2 db");
}

TEST_F(ItemDataListPrintTest, emptyCellsLeaveNoTrace) {
  addQuantityRow(1, "3", {"", "y"});
  addQuantityRow(2, "2", {"x", "", "z"});
  addPerItem({"", "late"});
  EXPECT_EQ(printed(), "3 db y; 2 db x, z; late");
}

TEST_F(ItemDataListPrintTest, emptyCellsOfAnotherRowDoNotPartARow) {
  addQuantityRow(1, "3", {"x"});
  addCells(2, {""});
  addCells(1, {"y"});
  EXPECT_EQ(printed(), "3 db x, y");
}

TEST_F(ItemDataListPrintTest, equalValuesOfRowsAreNotCounted) {
  addQuantityRow(1, "3", {"x", "x"});
  EXPECT_EQ(printed(), "3 db x, x");
}

TEST_F(ItemDataListPrintTest, aQuantityMayStandLaterInItsRow) {
  addCells(1, {"S1"});
  add(list, TYPE_QUANTITY, VARIABLE_QUANTITY, 1, "3");
  addCells(1, {"kék"});
  EXPECT_EQ(printed(), "S1, 3 db kék");
}

TEST_F(ItemDataListPrintTest, valuesOfTheItemAreAllPartsOfTheirOwn) {
  addQuantityRow(1, "3", {"x"});
  addPerItem({"A", "B"});
  add(list, TYPE_QUANTITY, VARIABLE_QUANTITY, 0, "4");
  addPerItem({"C"});
  EXPECT_EQ(printed(), "3 db x; A; B; 4 db; C");
}

TEST_F(ItemDataListPrintTest, deletedCellsPrintNothing) {
  addRow(list, 1, "3", "x", "kék", 11);
  addRow(list, 2, "2", "z", "", 21);
  list.markRowForDelete(1);
  EXPECT_EQ(printed(), "2 db z");
}

TEST_F(ItemDataListPrintTest, withoutUnitTheQuantityKeepsItsBlank) {
  item.setUnit("");
  addQuantityRow(1, "3", {"x"});
  EXPECT_EQ(printed(), "3  x");
}

TEST_F(ItemDataListPrintTest, theUnitIsReadAsItStands) {
  item.setUnit("kg ");
  addQuantityRow(1, "3", {"x"});
  EXPECT_EQ(printed(), "3 kg  x");
}

TEST_F(ItemDataListPrintTest, theChoiceOfNonePrintsUntilItIsStored) {
  addQuantityRow(1, "3", {});
  add(list, TYPE_LIST, 13, 1, " ");
  EXPECT_EQ(printed(), "3 db  ");
}

TEST_F(ItemDataListPrintTest, withoutRowsDistinctValuesAreJoined) {
  addPerItem({"A", "B"});
  EXPECT_EQ(printed(), "A, B");
}

TEST_F(ItemDataListPrintTest, withoutRowsRepeatedValuesAreCounted) {
  addPerItem({"A", "A", "B"});
  EXPECT_EQ(printed(), "A (2 db), B (1 db)");
}

TEST_F(ItemDataListPrintTest, valuesKeepTheOrderOfTheirFirstOccurrence) {
  addPerItem({"B", "A", "C", "A", "B", "B"});
  EXPECT_EQ(printed(), "B (3 db), A (2 db), C (1 db)");
}

TEST_F(ItemDataListPrintTest, oneValueStandsAlone) {
  addPerItem({"A"});
  EXPECT_EQ(printed(), "A");
  addPerItem({"A"});
  EXPECT_EQ(printed(), "A (2 db)");
}

TEST_F(ItemDataListPrintTest, emptyValuesAreNeitherCountedNorPrinted) {
  addPerItem({"", "A", "", "B", ""});
  EXPECT_EQ(printed(), "A, B");
}

TEST_F(ItemDataListPrintTest, valuesDifferByCase) {
  addPerItem({"a", "A"});
  EXPECT_EQ(printed(), "a, A");
}

TEST_F(ItemDataListPrintTest, countsWithoutUnit) {
  item.setUnit("");
  addPerItem({"A", "A"});
  EXPECT_EQ(printed(), "A (2 )");
}

TEST_F(ItemDataListPrintTest, rowsWithoutLiveQuantityAreCountedToo) {
  addRow(list, 1, "3", "x", "kék", 11);
  addRow(list, 2, "2", "x", "", 21);
  list[0]->markForDelete(1);
  list[3]->markForDelete(1);
  EXPECT_EQ(printed(), "x (2 db), kék (1 db)");
}

TEST_F(ItemDataListPrintTest, aQuantityOfRowZeroAloneMakesNoRows) {
  add(list, TYPE_QUANTITY, VARIABLE_QUANTITY, 0, "3");
  addPerItem({"A"});
  EXPECT_EQ(printed(), "3 db, A");
}

TEST_F(ItemDataListPrintTest, printingChangesNothing) {
  addPerItem({"A", "A"});
  list.append(nullptr);
  const std::vector<std::string> before = cellsOf(list);
  printed();
  printed();
  EXPECT_EQ(cellsOf(list), before);
}

TEST_F(ItemDataListPrintTest, printsWithoutItemToo) {
  ItemDataList loose;
  loose.append(newCell(TYPE_TEXT, 11, 0, "A"));
  loose.append(newCell(TYPE_TEXT, 11, 0, "A"));
  EXPECT_STREQ(loose.getPrintableText().text(), "A (2 )");
  loose.append(newCell(TYPE_QUANTITY, VARIABLE_QUANTITY, 1, "3"));
  EXPECT_STREQ(loose.getPrintableText().text(), "A; A; 3 ");
}
