// Writing an item's cells.

#include "itemdata/Codes.h"
#include "itemdata/ItemDataList.h"
#include "tests/itemdata/ItemDataFixture.h"
#include "tests/itemdata/ProbeEntry.h"
#include "tests/support/RecordingObserver.h"

using namespace Brontel::Plugin::ItemData;
using namespace Brontel;

namespace {

class ItemDataListSaveTest : public ItemDataFixture {
 protected:
  ItemDataListSaveTest() { item.setId(10); }

  ItemDataEntry* add(int type, int variable, int row, const std::string& value, int key = 0) {
    ItemDataEntry* cell = newCell(type, variable, row, value, key, &item);
    list.append(cell);
    return cell;
  }

  InvoiceItem item;
  ItemDataList list{&item, nullptr};
};

}  // namespace

TEST_F(ItemDataListSaveTest, anEmptyListRunsNothing) {
  RecordingObserver recorder(database.handle());
  EXPECT_EQ(list.save(database.get()), 0);
  EXPECT_TRUE(recorder.texts().empty());
}

TEST_F(ItemDataListSaveTest, writesEveryCellInOrder) {
  add(TYPE_TEXT, 11, 0, "M");
  add(TYPE_QUANTITY, VARIABLE_QUANTITY, 1, "5");
  list.append(nullptr);
  add(TYPE_TEXT, 12, 1, "");
  RecordingObserver recorder(database.handle());
  EXPECT_EQ(list.save(database.get()), 0);
  EXPECT_EQ(recorder.count("insert"), 3);
  EXPECT_EQ(database.rows("select t_itemvariable_1, row, value, t_invoiceitem_1 from t_invoiceitemdata "
                          "order by t_invoiceitemdata_id"),
            (std::vector<Texts>{{"11", "0", "M", "10"}, {"-1", "1", "5", "10"}, {"12", "1", "", "10"}}));
}

TEST_F(ItemDataListSaveTest, letsKindsSaveTheirOwnWay) {
  ProbeEntry::Notes notes;
  ItemDataList probes(&item, nullptr);
  probes.append(new ProbeEntry(notes, 3));
  probes.append(new ProbeEntry(notes, 1));
  probes.save(database.get());
  EXPECT_EQ(notes.savedRows, (std::vector<int>{3, 1}));
}

TEST_F(ItemDataListSaveTest, takesTheItemsKeyAsItIsByThen) {
  add(TYPE_TEXT, 11, 0, "M");
  item.setId(12);
  list.save(database.get());
  EXPECT_EQ(stored(12), Texts{"11/0=M"});
  EXPECT_TRUE(stored(10).empty());
}

TEST_F(ItemDataListSaveTest, neverInsertsAZero) {
  add(TYPE_TEXT, 11, 0, "0");
  add(TYPE_QUANTITY, VARIABLE_QUANTITY, 1, "0");
  add(TYPE_LIST, 13, 1, "0");
  list.save(database.get());
  EXPECT_TRUE(stored(10).empty());
}

TEST_F(ItemDataListSaveTest, neitherUpdatesNorDeletesAStoredCellThatIsZero) {
  insertCell(10, VARIABLE_QUANTITY, 1, "5", 7);
  add(TYPE_QUANTITY, VARIABLE_QUANTITY, 1, "0", 7);
  RecordingObserver recorder(database.handle());
  list.save(database.get());
  EXPECT_TRUE(recorder.texts().empty());
  EXPECT_EQ(stored(10), Texts{"-1/1=5"});
}

TEST_F(ItemDataListSaveTest, onlyAPlainZeroIsOne) {
  add(TYPE_TEXT, 11, 0, "0.0");
  add(TYPE_TEXT, 12, 0, "00");
  add(TYPE_TEXT, 13, 0, " 0");
  add(TYPE_TEXT, 14, 0, "-0");
  list.save(database.get());
  EXPECT_EQ(stored(10), (Texts{"11/0=0.0", "12/0=00", "13/0= 0", "14/0=-0"}));
}

TEST_F(ItemDataListSaveTest, variableTwoGoesWithAZeroOfItsRow) {
  add(TYPE_TEXT, 2, 1, "before the zero");
  add(TYPE_QUANTITY, VARIABLE_QUANTITY, 1, "0");
  add(TYPE_TEXT, 2, 1, "left out");
  add(TYPE_TEXT, 3, 1, "another variable");
  add(TYPE_TEXT, 2, 2, "another row");
  add(TYPE_TEXT, 2, 1, "left out too");
  add(TYPE_QUANTITY, VARIABLE_QUANTITY, 2, "3");
  add(TYPE_TEXT, 2, 2, "a row with quantity");
  list.save(database.get());
  EXPECT_EQ(stored(10), (Texts{"2/1=before the zero", "3/1=another variable", "2/2=another row", "-1/2=3",
                               "2/2=a row with quantity"}));
}

TEST_F(ItemDataListSaveTest, aLaterZeroTakesTheRowOver) {
  add(TYPE_QUANTITY, VARIABLE_QUANTITY, 1, "0");
  add(TYPE_QUANTITY, VARIABLE_QUANTITY, 2, "0");
  add(TYPE_TEXT, 2, 1, "row 1");
  add(TYPE_TEXT, 2, 2, "row 2");
  list.save(database.get());
  EXPECT_EQ(stored(10), Texts{"2/1=row 1"});
}

TEST_F(ItemDataListSaveTest, aZeroOfAnotherItemDoesNotCount) {
  InvoiceItem other;
  other.setId(11);
  list.append(newCell(TYPE_QUANTITY, VARIABLE_QUANTITY, 1, "0", 0, &other));
  add(TYPE_TEXT, 2, 1, "S1");
  list.save(database.get());
  EXPECT_EQ(stored(10), Texts{"2/1=S1"});
}

TEST_F(ItemDataListSaveTest, aZeroOfNoItemDoesNotCount) {
  item.setId(1);
  list.append(newCell(TYPE_QUANTITY, VARIABLE_QUANTITY, 1, "0"));
  add(TYPE_TEXT, 2, 1, "S1");
  list.save(database.get());
  EXPECT_EQ(stored(1), Texts{"2/1=S1"});
}

TEST_F(ItemDataListSaveTest, variableTwoIsWrittenWithoutAnyZero) {
  add(TYPE_TEXT, 2, 0, "per item");
  add(TYPE_TEXT, 2, 1, "per unit");
  list.save(database.get());
  EXPECT_EQ(stored(10), (Texts{"2/0=per item", "2/1=per unit"}));
}

TEST_F(ItemDataListSaveTest, deletesWhatIsMarked) {
  insertCell(10, 11, 0, "M", 4);
  insertCell(10, VARIABLE_QUANTITY, 1, "0", 7);
  insertCell(10, 2, 1, "S1", 8);
  insertCell(11, 2, 1, "other item", 9);
  add(TYPE_TEXT, 11, 0, "M", 4);
  add(TYPE_QUANTITY, VARIABLE_QUANTITY, 1, "0", 7)->markForDelete(1);
  add(TYPE_TEXT, 2, 1, "S1", 8)->markForDelete(1);
  add(TYPE_TEXT, 12, 1, "never stored")->markForDelete(1);
  EXPECT_EQ(list.save(database.get()), 0);
  EXPECT_EQ(stored(10), Texts{"11/0=M"});
  EXPECT_EQ(stored(11), Texts{"2/1=other item"});
}

TEST_F(ItemDataListSaveTest, aCopyIsStoredAsRowsOfItsOwn) {
  insertCell(10, 11, 0, "M", 4);
  add(TYPE_TEXT, 11, 0, "M", 4);
  InvoiceItem other;
  other.setId(30);
  auto* copy = list.clone(&other);
  other.addMiscData(kMiscDataKey, copy);
  copy->at(0)->value = "copied";
  copy->save(database.get());
  EXPECT_EQ(stored(10), Texts{"11/0=M"});
  EXPECT_EQ(stored(30), Texts{"11/0=copied"});
}

TEST_F(ItemDataListSaveTest, aListWithoutOwnerWritesNothing) {
  ItemDataList loose;
  loose.append(newCell(TYPE_TEXT, 11, 0, "x"));
  RecordingObserver recorder(database.handle());
  EXPECT_EQ(loose.save(database.get()), 0);
  EXPECT_TRUE(recorder.texts().empty());
}
