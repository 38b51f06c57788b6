#include "host/database/Transaction.h"
#include "itemdata/Codes.h"
#include "itemdata/StoredKeys.h"
#include "tests/itemdata/ItemDataFixture.h"
#include "tests/support/FaultObserver.h"
#include "tests/support/RecordingObserver.h"

using namespace Brontel::Plugin::ItemData;
using namespace Brontel;

namespace {

/// A list of item 10, written as the plug-in writes it.
class StoredKeysTest : public ItemDataFixture {
 protected:
  StoredKeysTest() { item.setId(10); }

  ItemDataEntry* add(int type, int variable, int row, const std::string& value, int key = 0) {
    ItemDataEntry* cell = newCell(type, variable, row, value, key, &item);
    list.append(cell);
    return cell;
  }

  /// A row of quantity and 12.
  void addRow(int row, const std::string& quantity, const std::string& batch) {
    add(TYPE_QUANTITY, VARIABLE_QUANTITY, row, quantity);
    add(TYPE_TEXT, 12, row, batch);
    list.rows = std::max(list.rows, row);
  }

  void save(ItemDataList& cells) {
    StoredKeys(database.get(), cells).repair(cells);
    cells.save(database.get());
    StoredKeys(database.get(), cells).assign(cells);
  }
  void save() { save(list); }

  /// A save of which nothing stays.
  void saveAndRollBack() {
    Database::Transaction transaction(database.handle());
    ASSERT_TRUE(transaction.isOpen());
    save();
  }

  /// Stores two rows, puts one of that quantity in place of the second, saves while the statement of that number fails,
  /// which is rolled back, and saves again. Returns how many statements failed.
  int replaceARowWithFault(int number, const char* quantity);

  void repair() { StoredKeys(database.get(), list).repair(list); }

  InvoiceItem item;
  ItemDataList list{&item, nullptr};
};

int StoredKeysTest::replaceARowWithFault(int number, const char* quantity) {
  database.exec("delete from t_invoiceitemdata");
  insertCell(11, 12, 1, "theirs", 5);
  ItemDataList cells(&item, nullptr);
  const auto append = [&](int type, int variable, int row, const char* value) {
    cells.append(newCell(type, variable, row, value, 0, &item));
  };
  append(TYPE_TEXT, 11, 0, "M");
  append(TYPE_QUANTITY, VARIABLE_QUANTITY, 1, "5");
  append(TYPE_QUANTITY, VARIABLE_QUANTITY, 2, "3");
  save(cells);
  cells[0]->value = "N";
  cells.markRowForDelete(2);
  append(TYPE_QUANTITY, VARIABLE_QUANTITY, 2, quantity);
  int faults = 0;
  {
    Database::Transaction transaction(database.handle());
    FaultObserver fault(database.handle(), number);
    save(cells);
    faults = fault.faults();
  }
  save(cells);
  return faults;
}

}  // namespace

TEST_F(StoredKeysTest, readsTheKeysOfTheItemWithOneStatement) {
  RecordingObserver recorder(database.handle());
  const StoredKeys keys(database.get(), list);
  ASSERT_EQ(recorder.records().size(), 1u);
  EXPECT_EQ(recorder.records()[0].value("t_invoiceitem_1"), "10");
}

TEST_F(StoredKeysTest, cellsLearnTheKeysOfTheirRows) {
  add(TYPE_TEXT, 11, 0, "M");
  addRow(1, "5", "S1");
  save();
  EXPECT_EQ(stored(10), (Texts{"11/0=M", "-1/1=5", "12/1=S1"}));
  EXPECT_EQ(keysOf(list), (std::vector<int>{1, 2, 3}));
}

TEST_F(StoredKeysTest, aSecondSaveUpdates) {
  add(TYPE_TEXT, 11, 0, "M");
  add(TYPE_TEXT, VARIABLE_NONE, 0, "without variable");
  addRow(1, "5", "S1");
  save();
  list[0]->value = "N";
  list[3]->value = "";
  for (int i = 0; i < 3; ++i) save();
  EXPECT_EQ(stored(10), (Texts{"11/0=N", "NULL/0=without variable", "-1/1=5", "12/1="}));
  EXPECT_EQ(keysOf(list), (std::vector<int>{1, 2, 3, 4}));
}

TEST_F(StoredKeysTest, aCellWhoseRowIsGoneAfterASaveIsNotTakenForStored) {
  addRow(1, "5", "S1");
  save();
  EXPECT_TRUE(StoredKeys::hasAll(list));
  database.exec(
      "create trigger vanish after update on t_invoiceitemdata when new.value='6' begin "
      "delete from t_invoiceitemdata where t_invoiceitemdata_id=new.t_invoiceitemdata_id; end");
  list[0]->value = "6";
  save();
  EXPECT_EQ(stored(10), (Texts{"12/1=S1"}));
  EXPECT_EQ(keysOf(list), (std::vector<int>{0, 2}));
  EXPECT_FALSE(StoredKeys::hasAll(list));
  // The next save stores it as if it had never been.
  save();
  EXPECT_EQ(stored(10), (Texts{"12/1=S1", "-1/1=6"}));
  EXPECT_TRUE(StoredKeys::hasAll(list));
}

TEST_F(StoredKeysTest, aRowDeletedAfterASaveIsDeletedByTheNext) {
  addRow(1, "5", "S1");
  addRow(2, "3", "S2");
  save();
  list.markRowForDelete(2);
  save();
  EXPECT_EQ(stored(10), (Texts{"-1/1=5", "12/1=S1"}));
  save();
  EXPECT_EQ(stored(10), (Texts{"-1/1=5", "12/1=S1"}));
}

TEST_F(StoredKeysTest, aRolledBackSaveIsRepeatedAsAWhole) {
  add(TYPE_TEXT, 11, 0, "M");
  addRow(1, "5", "S1");
  saveAndRollBack();
  EXPECT_TRUE(stored(10).empty());
  save();
  EXPECT_EQ(stored(10), (Texts{"11/0=M", "-1/1=5", "12/1=S1"}));
  saveAndRollBack();
  save();
  EXPECT_EQ(stored(10), (Texts{"11/0=M", "-1/1=5", "12/1=S1"}));
}

TEST_F(StoredKeysTest, aRolledBackDeletionIsRepeated) {
  addRow(1, "5", "S1");
  addRow(2, "3", "S2");
  save();
  list.markRowForDelete(2);
  saveAndRollBack();
  EXPECT_EQ(stored(10).size(), 4u);
  save();
  EXPECT_EQ(stored(10), (Texts{"-1/1=5", "12/1=S1"}));
}

TEST_F(StoredKeysTest, aRolledBackReplacementOfARowIsRepeated) {
  addRow(1, "5", "S1");
  addRow(2, "3", "S2");
  save();
  list.markRowForDelete(2);
  addRow(2, "4", "new");
  saveAndRollBack();
  EXPECT_EQ(stored(10), (Texts{"-1/1=5", "12/1=S1", "-1/2=3", "12/2=S2"}));
  save();
  EXPECT_EQ(stored(10), (Texts{"-1/1=5", "12/1=S1", "-1/2=4", "12/2=new"}));
  list[4]->value = "6";
  save();
  EXPECT_EQ(stored(10), (Texts{"-1/1=5", "12/1=S1", "-1/2=6", "12/2=new"}));
}

TEST_F(StoredKeysTest, aRowMayTakeTheNumberOfADeletedOneAgainAndAgain) {
  for (const char* batch : {"a", "b", "c"}) {
    addRow(1, "5", batch);
    save();
    EXPECT_EQ(stored(10), (Texts{"-1/1=5", std::string("12/1=") + batch}));
    list.markRowForDelete(1);
  }
  save();
  EXPECT_TRUE(stored(10).empty());
}

TEST_F(StoredKeysTest, anotherItemsCellWithAReusedKeyIsNeverTouched) {
  addRow(1, "5", "S1");
  save();
  list.markRowForDelete(1);
  save();
  InvoiceItem other;
  other.setId(11);
  ItemDataList others(&other, nullptr);
  others.append(newCell(TYPE_QUANTITY, VARIABLE_QUANTITY, 1, "7", 0, &other));
  others.append(newCell(TYPE_TEXT, 12, 1, "theirs", 0, &other));
  save(others);
  // The engine gives the freed keys again; the first list still has them with its deleted cells.
  EXPECT_EQ(keysOf(others), keysOf(list));
  save();
  EXPECT_EQ(stored(11), (Texts{"-1/1=7", "12/1=theirs"}));
  EXPECT_EQ(keysOf(list), (std::vector<int>{0, 0}));
}

TEST_F(StoredKeysTest, aKeyOfARolledBackSaveThatAnotherItemHasGotIsDropped) {
  addRow(1, "5", "S1");
  saveAndRollBack();
  insertCell(11, VARIABLE_QUANTITY, 1, "7", 1);
  insertCell(11, 12, 1, "theirs", 2);
  save();
  EXPECT_EQ(stored(11), (Texts{"-1/1=7", "12/1=theirs"}));
  EXPECT_EQ(stored(10), (Texts{"-1/1=5", "12/1=S1"}));
}

TEST_F(StoredKeysTest, aKeyOfAnotherCellOfTheSameItemIsDropped) {
  insertCell(10, 12, 2, "row 2", 7);
  add(TYPE_TEXT, 12, 1, "row 1", 7);
  save();
  EXPECT_EQ(stored(10), (Texts{"12/1=row 1", "12/2=row 2"}));
}

TEST_F(StoredKeysTest, ofTwoCellsWithOneKeyTheLiveOneKeepsIt) {
  insertCell(10, 12, 1, "old", 7);
  add(TYPE_TEXT, 12, 1, "deleted", 7)->markForDelete(1);
  add(TYPE_TEXT, 12, 1, "live", 7);
  repair();
  EXPECT_EQ(keysOf(list), (std::vector<int>{0, 7}));
  save();
  EXPECT_EQ(stored(10), Texts{"12/1=live"});
}

TEST_F(StoredKeysTest, ofTwoLiveCellsWithOneKeyTheFirstKeepsIt) {
  insertCell(10, 12, 1, "old", 7);
  add(TYPE_TEXT, 12, 1, "first", 7);
  add(TYPE_TEXT, 12, 1, "second", 7);
  save();
  EXPECT_EQ(stored(10), (Texts{"12/1=first", "12/1=second"}));
  save();
  EXPECT_EQ(stored(10), (Texts{"12/1=first", "12/1=second"}));
}

TEST_F(StoredKeysTest, aCellWithoutKeyTakesAFreeRowOfItsOwn) {
  insertCell(10, 11, 0, "left behind", 3);
  insertCell(10, 11, 1, "another row", 4);
  insertCell(11, 11, 0, "another item", 5);
  add(TYPE_TEXT, 11, 0, "M");
  save();
  EXPECT_EQ(keysOf(list), std::vector<int>{3});
  EXPECT_EQ(stored(10), (Texts{"11/0=M", "11/1=another row"}));
  EXPECT_EQ(stored(11), Texts{"11/0=another item"});
}

TEST_F(StoredKeysTest, doubledStoredCellsKeepTheirOwnRows) {
  insertCell(10, 12, 1, "x", 7);
  insertCell(10, 12, 1, "y", 8);
  add(TYPE_TEXT, 12, 1, "x2", 7);
  add(TYPE_TEXT, 12, 1, "y2", 8);
  save();
  save();
  EXPECT_EQ(stored(10), (Texts{"12/1=x2", "12/1=y2"}));
  EXPECT_EQ(keysOf(list), (std::vector<int>{7, 8}));
}

TEST_F(StoredKeysTest, twoNewCellsForOnePlaceGetTwoRowsOnce) {
  add(TYPE_TEXT, 12, 1, "x");
  add(TYPE_TEXT, 12, 1, "y");
  for (int i = 0; i < 3; ++i) {
    save();
    EXPECT_EQ(stored(10), (Texts{"12/1=x", "12/1=y"}));
  }
}

TEST_F(StoredKeysTest, aZeroKeepsItsKeyAndItsRow) {
  add(TYPE_QUANTITY, VARIABLE_QUANTITY, 1, "5");
  save();
  list[0]->value = "0";
  save();
  EXPECT_EQ(keysOf(list), std::vector<int>{1});
  EXPECT_EQ(stored(10), Texts{"-1/1=5"});
  list[0]->value = "6";
  save();
  EXPECT_EQ(stored(10), Texts{"-1/1=6"});
}

TEST_F(StoredKeysTest, aZeroThatWasNeverStoredHasNoKey) {
  add(TYPE_QUANTITY, VARIABLE_QUANTITY, 1, "0");
  save();
  EXPECT_EQ(keysOf(list), std::vector<int>{0});
  list[0]->value = "2";
  save();
  save();
  EXPECT_EQ(stored(10), Texts{"-1/1=2"});
}

TEST_F(StoredKeysTest, emptySlotsAreSkipped) {
  list.append(nullptr);
  add(TYPE_TEXT, 11, 0, "M");
  list.append(nullptr);
  save();
  save();
  EXPECT_EQ(stored(10), Texts{"11/0=M"});
  EXPECT_EQ(keysOf(list), (std::vector<int>{0, 1, 0}));
}

TEST_F(StoredKeysTest, keysStayWhenTheTableCannotBeRead) {
  insertCell(10, 11, 0, "M", 3);
  insertCell(10, 12, 1, "S1", 4);
  add(TYPE_TEXT, 11, 0, "N", 3);
  add(TYPE_TEXT, 12, 1, "", 4)->markForDelete(1);
  {
    FaultObserver fault(database.handle(), 1);
    StoredKeys(database.get(), list).repair(list);
    EXPECT_EQ(fault.faults(), 1);
  }
  StoredKeys(nullptr, list).repair(list);
  StoredKeys(nullptr, list).assign(list);
  EXPECT_EQ(keysOf(list), (std::vector<int>{3, 4}));
  save();
  EXPECT_EQ(stored(10), Texts{"11/0=N"});
}

TEST_F(StoredKeysTest, whateverStatementFailsTheNextSaveStoresEverythingOnce) {
  int number = 1;
  while (replaceARowWithFault(number, "4") > 0) {
    EXPECT_EQ(stored(10), (Texts{"11/0=N", "-1/1=5", "-1/2=4"})) << number;
    EXPECT_EQ(stored(11), Texts{"12/1=theirs"}) << number;
    ++number;
  }
  EXPECT_GT(number, 5);
}

TEST_F(StoredKeysTest, whateverStatementFailsAZeroDoesNotKeepTheRowThatItReplaces) {
  int number = 1;
  while (replaceARowWithFault(number, "0") > 0) {
    EXPECT_EQ(stored(10), (Texts{"11/0=N", "-1/1=5"})) << number;
    ++number;
  }
  EXPECT_GT(number, 4);
}

TEST_F(StoredKeysTest, aListWithoutOwnerKeepsItsKeys) {
  ItemDataList loose;
  loose.append(newCell(TYPE_TEXT, 11, 0, "x", 3));
  RecordingObserver recorder(database.handle());
  StoredKeys keys(database.get(), loose);
  keys.repair(loose);
  keys.assign(loose);
  EXPECT_TRUE(recorder.texts().empty());
  EXPECT_EQ(keysOf(loose), std::vector<int>{3});
}

TEST_F(StoredKeysTest, keysAreTrueInAnyOrder) {
  insertCell(10, 12, 1, "a", 7);
  insertCell(10, 12, 2, "b", 8);
  insertCell(10, 12, 3, "c", 9);
  for (const int row : {3, 1, 2}) add(TYPE_TEXT, 12, row, "new", 6 + row);
  repair();
  EXPECT_EQ(keysOf(list), (std::vector<int>{9, 7, 8}));
  list[1]->pk = 6;
  list[2]->pk = 10;
  repair();
  EXPECT_EQ(keysOf(list), (std::vector<int>{9, 7, 8}));
}

TEST_F(StoredKeysTest, cellsTakeTheNewestOfTheirFreeRowsInAnyOrder) {
  insertCell(10, 12, 1, "older", 3);
  insertCell(10, 12, 2, "b", 4);
  insertCell(10, 12, 1, "newer", 5);
  insertCell(10, 11, 0, "M", 6);
  add(TYPE_TEXT, 12, 2, "b");
  add(TYPE_TEXT, 11, 0, "M");
  add(TYPE_TEXT, 12, 1, "a");
  add(TYPE_TEXT, 12, 9, "new");
  repair();
  EXPECT_EQ(keysOf(list), (std::vector<int>{4, 6, 5, 0}));
}

TEST_F(StoredKeysTest, aFreeRowIsTakenOnce) {
  insertCell(10, 12, 1, "a", 3);
  insertCell(10, 12, 1, "b", 4);
  for (int i = 0; i < 3; ++i) add(TYPE_TEXT, 12, 1, "new");
  repair();
  EXPECT_EQ(keysOf(list), (std::vector<int>{0, 3, 4}));
}
