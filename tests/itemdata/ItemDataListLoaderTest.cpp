#include <type_traits>

#include "itemdata/Codes.h"
#include "itemdata/ItemDataList.h"
#include "itemdata/ItemDataListLoader.h"
#include "tests/itemdata/ListFixture.h"

using namespace Brontel::Plugin::ItemData;
using Cells = std::vector<std::string>;

static_assert(std::is_base_of_v<DataBaseValueLoader, ItemDataListLoader>);

namespace {

/// Feeds result rows to a loader of a list that belongs to the fixture's item.
class ItemDataListLoaderTest : public ListFixture {
 protected:
  ItemDataListLoaderTest() : list(newList()), loader(list, &item) {}

  /// One result row: type, key, variable, name, mandatory, process or row, parameter or value; null is SQL NULL.
  void feed(const std::vector<const char*>& row) { feed(loader, row); }

  static void feed(ItemDataListLoader& to, const std::vector<const char*>& row) {
    for (size_t column = 0; column < row.size(); ++column) {
      EXPECT_NE(to.processValue(static_cast<int>(column), "c", row[column]), 0);
    }
  }

  ItemDataList& list;
  ItemDataListLoader loader;
};

}  // namespace

TEST_F(ItemDataListLoaderTest, readsAVariableOfTheItem) {
  feed({"1", nullptr, "11", "Megjegyzés", "1", "0", "p"});
  ASSERT_EQ(cellsOf(list), Cells{"11/0="});
  const ItemDataEntry& cell = *list[0];
  EXPECT_EQ(cell.type, TYPE_TEXT);
  EXPECT_EQ(cell.pk, 0);
  EXPECT_STREQ(cell.name.text(), "Megjegyzés");
  EXPECT_EQ(cell.mandatory, 1);
  EXPECT_EQ(cell.process, 0);
  EXPECT_STREQ(cell.vvalue.text(), "p");
  EXPECT_EQ(cell.getOwner(), &item);
  EXPECT_EQ(list.columns, 0);
  EXPECT_EQ(list.firstRowIndex, -1);
  EXPECT_EQ(list.rows, 0);
}

TEST_F(ItemDataListLoaderTest, putsTheQuantityBeforeTheFirstVariablePerUnit) {
  feed({"1", nullptr, "11", "Megjegyzés", "0", "0", ""});
  feed({"3", nullptr, "13", "Szín", "0", "1", "a,b"});
  feed({"1", nullptr, "12", "Sarzs", "1", "1", ""});
  EXPECT_EQ(cellsOf(list), (Cells{"11/0=", "-1/1=", "13/1=", "12/1="}));
  EXPECT_EQ(list.firstRowIndex, 1);
  EXPECT_EQ(list.columns, 3);
  EXPECT_EQ(list.rows, 1);
  const ItemDataEntry& quantity = *list[1];
  EXPECT_EQ(quantity.type, TYPE_QUANTITY);
  EXPECT_EQ(quantity.itemvariable, -1);
  EXPECT_STREQ(quantity.name.text(), "Mennyiség");
  EXPECT_EQ(quantity.mandatory, 1);
  EXPECT_EQ(quantity.process, 1);
  EXPECT_EQ(quantity.row, 1);
  EXPECT_EQ(quantity.pk, 0);
  EXPECT_EQ(quantity.getOwner(), &item);
}

TEST_F(ItemDataListLoaderTest, makesNoSecondQuantity) {
  list.firstRowIndex = 0;
  feed({"1", "0", "12", "Sarzs", "1", "2", "S1"});
  EXPECT_EQ(cellsOf(list), Cells{"12/2="});
  EXPECT_STREQ(list[0]->vvalue.text(), "S1");
  EXPECT_EQ(list.columns, 1);
  EXPECT_EQ(list.rows, 2);
}

TEST_F(ItemDataListLoaderTest, keepsTheSourcesQuantityBesideTheOneItMakes) {
  feed({"-1", "0", "-1", "Mennyiség", "1", "1", "5"});
  EXPECT_EQ(cellsOf(list), (Cells{"-1/1=", "-1/1="}));
  EXPECT_EQ(list.firstRowIndex, 0);
  EXPECT_EQ(list.columns, 2);
}

TEST_F(ItemDataListLoaderTest, anyProcessButZeroIsPerUnitAndGivesTheRow) {
  feed({"1", nullptr, "11", "a", "0", nullptr, ""});
  feed({"1", nullptr, "12", "b", "0", "2", ""});
  feed({"1", nullptr, "13", "c", "0", "-1", ""});
  EXPECT_EQ(cellsOf(list), (Cells{"11/0=", "-1/1=", "12/2=", "13/-1="}));
  EXPECT_EQ(list[0]->process, 0);
  EXPECT_EQ(list[2]->process, 1);
  EXPECT_EQ(list[3]->process, 1);
  EXPECT_EQ(list.rows, -1);
}

TEST_F(ItemDataListLoaderTest, readsAStoredCell) {
  feed({"1", "7", "12", "Sarzs", "1", "2", "S1"});
  EXPECT_EQ(cellsOf(list), Cells{"12/2=S1"});
  EXPECT_EQ(keysOf(list), std::vector<int>{7});
  EXPECT_EQ(list[0]->process, 1);
  EXPECT_STREQ(list[0]->vvalue.text(), "");
  EXPECT_EQ(list.rows, 2);
  EXPECT_EQ(list.firstRowIndex, -1);
}

TEST_F(ItemDataListLoaderTest, aStoredCellOfRowZeroIsPerItem) {
  feed({"1", "7", "11", "Megjegyzés", "1", "0", "M"});
  feed({"1", "8", "11", "Megjegyzés", "1", nullptr, "M"});
  EXPECT_EQ(list[0]->process, 0);
  EXPECT_EQ(list[1]->row, 0);
  EXPECT_EQ(list.columns, 0);
}

TEST_F(ItemDataListLoaderTest, theFirstStoredRowCountsTheColumns) {
  feed({"1", "1", "11", "n", "0", "0", ""});
  for (const char* row : {"2", "2", "2", "4", "4"}) feed({"1", "9", "12", "n", "0", row, ""});
  EXPECT_EQ(list.columns, 3);
  EXPECT_EQ(list.rows, 4);
}

TEST_F(ItemDataListLoaderTest, skipsRowsThatNoKindHandles) {
  feed({"1", "1", "11", "a", "0", "0", "x"});
  feed({"7", "2", "12", "b", "1", "5", "y"});
  feed({nullptr, "3", nullptr, nullptr, nullptr, "6", "z"});
  feed({"0", nullptr, "12", "b", "1", "1", "y"});
  feed({"junk", "4", "12", "b", "1", "1", "y"});
  feed({"2", "5", "14", "c", "0", "0", "v"});
  EXPECT_EQ(cellsOf(list), (Cells{"11/0=x", "14/0=v"}));
  EXPECT_EQ(list.rows, 0);
  EXPECT_EQ(list.columns, 0);
  EXPECT_EQ(list.firstRowIndex, -1);
}

TEST_F(ItemDataListLoaderTest, readsNullsAsNothing) {
  feed({"1", nullptr, nullptr, nullptr, nullptr, nullptr, nullptr});
  feed({"1", "7", nullptr, nullptr, nullptr, nullptr, nullptr});
  EXPECT_EQ(cellsOf(list), (Cells{"0/0=", "0/0="}));
  EXPECT_EQ(keysOf(list), (std::vector<int>{0, 7}));
  EXPECT_STREQ(list[0]->name.text(), "");
  EXPECT_STREQ(list[0]->vvalue.text(), "");
}

TEST_F(ItemDataListLoaderTest, onlyOneMeansMandatory) {
  for (const char* mandatory : {"1", "2", "0", "-1", "yes", ""}) feed({"1", nullptr, "11", "n", mandatory, "0", ""});
  std::vector<int> flags;
  for (FX::FXint i = 0; i < list.no(); ++i) flags.push_back(list[i]->mandatory);
  EXPECT_EQ(flags, (std::vector<int>{1, 0, 0, 0, 0, 0}));
}

TEST_F(ItemDataListLoaderTest, countsTheResultRows) {
  feed({"1", nullptr, "11", "n", "0", "0", ""});
  feed({"99", nullptr, "11", "n", "0", "0", ""});
  EXPECT_EQ(loader.getNumRows(), 2);
}

TEST_F(ItemDataListLoaderTest, forgetsARowThatIsCutOff) {
  feed({"1", "7", "11"});
  feed({"1", "8", "12", "n", "0", "0", "x"});
  EXPECT_EQ(cellsOf(list), Cells{"12/0=x"});
}

TEST_F(ItemDataListLoaderTest, canTakeTheRowsOnly) {
  list.firstRowIndex = 1;
  ItemDataListLoader rows(list, &item, ItemDataListLoader::Filter::OnlyPerUnit);
  feed(rows, {"1", "0", "11", "n", "0", "0", "M"});
  feed(rows, {"-1", "0", "-1", "q", "1", "1", "5"});
  feed(rows, {"1", "0", "12", "n", "0", "1", "S1"});
  EXPECT_EQ(cellsOf(list), (Cells{"-1/1=", "12/1="}));
  EXPECT_EQ(list.rows, 1);
}
