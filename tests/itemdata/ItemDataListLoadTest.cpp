// Reading an item's cells.

#include <algorithm>

#include "itemdata/Codes.h"
#include "itemdata/ItemDataList.h"
#include "itemdata/ListSelect.h"
#include "tests/itemdata/ItemDataFixture.h"
#include "tests/itemdata/ProbeEntry.h"
#include "tests/support/FaultObserver.h"
#include "tests/support/RecordingObserver.h"

using namespace Brontel::Plugin::ItemData;
using namespace Brontel;

namespace {

class ItemDataListLoadTest : public ItemDataFixture {
 protected:
  ItemDataListLoadTest() : item(*new InvoiceItem) {
    invoice.setTypeCode(101);
    invoice.appendItem(&item);
    item.setGoods(GOODS_PRODUCT, 100);
    addGoods();
  }

  /// A new list of the item; the item owns it. With settings it has its goods' template.
  ItemDataList& newList(bool withSettings) {
    ItemDataList* settings = nullptr;
    if (withSettings) {
      settings = new ItemDataList;
      settings->loadSettings(database.get(), 101, &item);
    }
    auto* list = new ItemDataList(&item, settings);
    if (settings != nullptr) list->adoptTemplate();
    item.addMiscData(kMiscDataKey, list);
    return *list;
  }

  void deriveFrom(int source) {
    item.setReferenceMode(InvoiceItem::MODE_DERIVED);
    item.setReferencedItemId(source);
  }

  Invoice invoice;
  InvoiceItem& item;
};

}  // namespace

TEST_F(ItemDataListLoadTest, readsStoredCellsByRowAndKey) {
  item.setId(10);
  insertCell(10, 13, 2, "kék", 5);
  insertCell(10, 12, 2, "S2", 6);
  insertCell(10, 11, 0, "M", 7);
  insertCell(10, 12, 1, "S1", 4);
  insertCell(11, 12, 1, "other item", 1);
  ItemDataList& list = newList(false);
  list.columns = 9;
  RecordingObserver recorder(database.handle());
  list.loadSavedItemData(database.get());
  EXPECT_EQ(recorder.texts(), Texts{std::string(kStoredCells) + " [id=10]"});
  EXPECT_EQ(cellsOf(list), (Texts{"11/0=M", "12/1=S1", "13/2=kék", "12/2=S2"}));
  EXPECT_EQ(keysOf(list), (std::vector<int>{7, 4, 5, 6}));
  EXPECT_EQ(list.columns, 1);
  EXPECT_EQ(list.rows, 2);
  EXPECT_EQ(list.firstRowIndex, -1);
  for (FX::FXint i = 0; i < list.no(); ++i) EXPECT_EQ(list[i]->getOwner(), &item);
}

TEST_F(ItemDataListLoadTest, readingAgainDoesNotAddUpTheColumns) {
  item.setId(10);
  insertRow(10, 1, "5", "S1", "kék");
  ItemDataList& list = newList(false);
  list.loadSavedItemData(database.get());
  list.loadSavedItemData(database.get());
  EXPECT_EQ(list.columns, 3);
  EXPECT_EQ(list.no(), 6);
}

TEST_F(ItemDataListLoadTest, readsTheSourceOfANewDerivedItem) {
  deriveFrom(10);
  insertRow(10, 1, "5", "S1", "kék");
  ItemDataList& list = newList(false);
  RecordingObserver recorder(database.handle());
  list.loadSavedItemData(database.get());
  EXPECT_EQ(recorder.texts(), Texts{std::string(kDerivedCells) + " [id=10]"});
  // The quantity that begins the row and the source's own both stand there.
  EXPECT_EQ(cellsOf(list), (Texts{"-1/1=", "-1/1=", "12/1=", "13/1="}));
  EXPECT_EQ(keysOf(list), std::vector<int>(4, 0));
}

TEST_F(ItemDataListLoadTest, readsNothingWithoutOwnerOrForANewItem) {
  RecordingObserver recorder(database.handle());
  ItemDataList loose;
  loose.loadSavedItemData(database.get());
  ItemDataList& list = newList(false);
  list.loadSavedItemData(database.get());
  item.setReferenceMode(InvoiceItem::MODE_DERIVED);
  list.loadSavedItemData(database.get());
  item.setReferencedItemId(10);
  item.setReferenceMode(0);
  list.loadSavedItemData(database.get());
  item.setId(-1);
  list.loadSavedItemData(database.get());
  EXPECT_TRUE(recorder.texts().empty());
}

TEST_F(ItemDataListLoadTest, aSavedDerivedItemReadsItsOwnCells) {
  deriveFrom(10);
  item.setId(20);
  insertCell(10, 11, 0, "source");
  insertCell(20, 11, 0, "own");
  ItemDataList& list = newList(true);
  EXPECT_EQ(list.load(database.get()), 0);
  EXPECT_EQ(cellsOf(list), Texts{"11/0=own"});
}

TEST_F(ItemDataListLoadTest, namesAStoredQuantityAsTheTableDoes) {
  item.setId(10);
  insertCell(10, VARIABLE_QUANTITY, 1, "5");
  database.exec("update t_itemvariable set name='Qty' where t_itemvariable_id=-1");
  ItemDataList& list = newList(false);
  list.loadSavedItemData(database.get());
  ASSERT_EQ(list.no(), 1);
  EXPECT_EQ(list[0]->type, TYPE_QUANTITY);
  EXPECT_STREQ(list[0]->name.text(), "Qty");
  EXPECT_EQ(list[0]->mandatory, 1);
}

TEST_F(ItemDataListLoadTest, cellsWithoutKnownVariableStayInTheTable) {
  item.setId(10);
  addVariable(14, "strange", 7, 0);
  insertCell(10, 77, 0, "no variable row");
  insertCell(10, 0, 0, "no variable");
  insertCell(10, 14, 0, "unknown type");
  insertCell(10, 11, 0, "M");
  ItemDataList& list = newList(true);
  list.load(database.get());
  EXPECT_EQ(cellsOf(list), Texts{"11/0=M"});
  list.save(database.get());
  EXPECT_EQ(stored(10).size(), 4u);
}

TEST_F(ItemDataListLoadTest, readsTheListOnceAndThenEachCellInOrder) {
  item.setId(10);
  insertCell(10, 11, 0, "M", 7);
  insertCell(10, 12, 1, "S1", 4);
  ItemDataList& list = newList(false);
  RecordingObserver recorder(database.handle());
  EXPECT_EQ(list.load(database.get()), 0);
  ASSERT_EQ(recorder.records().size(), 3u);
  EXPECT_EQ(recorder.records()[1].value("t_itemvariable_1"), "11");
  EXPECT_EQ(recorder.records()[2].value("t_itemvariable_1"), "12");
  EXPECT_EQ(keysOf(list), (std::vector<int>{7, 4}));
  EXPECT_EQ(invoice.getLoadedDataMarker(), 1);
}

TEST_F(ItemDataListLoadTest, aListWithCellsIsNotReadAgainAsAWhole) {
  ItemDataList& list = newList(true);
  ASSERT_EQ(list.no(), 1);
  RecordingObserver recorder(database.handle());
  list.load(database.get());
  EXPECT_EQ(recorder.records().size(), 1u);
  EXPECT_EQ(recorder.count("select value, t_invoiceitemdata_id"), 1);
  EXPECT_EQ(cellsOf(list), Texts{"11/0="});
}

TEST_F(ItemDataListLoadTest, letsKindsLoadTheirOwnWay) {
  ProbeEntry::Notes notes;
  ItemDataList list(&item, nullptr);
  list.append(new ProbeEntry(notes, 3));
  list.append(nullptr);
  list.append(new ProbeEntry(notes, 1));
  list.load(database.get());
  EXPECT_EQ(notes.loadedRows, (std::vector<int>{3, 1}));
}

TEST_F(ItemDataListLoadTest, takesTheTemplatesColumns) {
  item.setId(10);
  insertCell(10, VARIABLE_QUANTITY, 1, "5");
  ItemDataList& list = newList(true);
  list.load(database.get());
  EXPECT_EQ(list.columns, 3);
  ItemDataList& bare = newList(false);
  bare.load(database.get());
  EXPECT_EQ(bare.columns, 1);
}

TEST_F(ItemDataListLoadTest, listsHaveTheirChoicesBack) {
  item.setId(10);
  insertRow(10, 1, "5", "S1", "kék");
  ItemDataList& list = newList(true);
  list.load(database.get());
  EXPECT_STREQ(findCell(list, 13, 1)->vvalue.text(), "piros,kék");
  EXPECT_STREQ(findCell(list, 13, 1)->value.text(), "kék");
}

TEST_F(ItemDataListLoadTest, aDerivedItemTakesPerItemCellsAndRows) {
  deriveFrom(10);
  insertItem(1, STATUS_CLOSED, 10);
  insertCell(10, 11, 0, "M");
  insertRow(10, 1, "5", "S1", "kék");
  insertRow(10, 2, "3", "S2", "piros");
  ItemDataList& list = newList(true);
  list.load(database.get());
  EXPECT_EQ(cellsOf(list), (Texts{"11/0=M", "-1/1=5", "12/1=S1", "13/1=kék", "-1/2=3", "12/2=S2", "13/2=piros"}));
  EXPECT_EQ(keysOf(list), std::vector<int>(7, 0));
  EXPECT_STREQ(findCell(list, 13, 2)->vvalue.text(), "piros,kék");
  EXPECT_EQ(list.rows, 2);
  EXPECT_EQ(list.firstRowIndex, 1);
  EXPECT_EQ(list.columns, 3);
}

TEST_F(ItemDataListLoadTest, aDerivedItemTakesRowsOnlyOnce) {
  deriveFrom(10);
  insertItem(1, STATUS_CLOSED, 10);
  insertRow(10, 1, "5", "S1", "kék");
  ItemDataList& list = newList(true);
  list.load(database.get());
  list.load(database.get());
  EXPECT_EQ(cellsOf(list), (Texts{"11/0=", "-1/1=5", "12/1=S1", "13/1=kék"}));
}

TEST_F(ItemDataListLoadTest, aDerivedItemWhoseGoodsHaveNoPerItemVariables) {
  dissociate(11);
  deriveFrom(10);
  insertItem(1, STATUS_CLOSED, 10);
  insertRow(10, 1, "5", "S1", "kék");
  ItemDataList& list = newList(true);
  EXPECT_EQ(list.no(), 0);
  list.load(database.get());
  EXPECT_EQ(cellsOf(list), (Texts{"-1/1=5", "12/1=S1", "13/1=kék"}));
}

TEST_F(ItemDataListLoadTest, aDerivedItemWhoseGoodsAreNoLongerRecordedPerUnit) {
  dissociate(12);
  dissociate(13);
  deriveFrom(10);
  insertItem(1, STATUS_CLOSED, 10);
  insertRow(10, 1, "5", "S1", "kék");
  ItemDataList& list = newList(true);
  list.load(database.get());
  EXPECT_EQ(cellsOf(list), (Texts{"11/0=", "-1/1=5", "12/1=S1", "13/1=kék"}));
  EXPECT_EQ(list.firstRowIndex, -1);
}

TEST_F(ItemDataListLoadTest, ofTwoStoredRowsForOneCellEachKeepsItsOwn) {
  item.setId(10);
  insertCell(10, 11, 0, "first", 4);
  insertCell(10, 11, 0, "second", 5);
  insertCell(10, 12, 1, "S1", 6);
  ItemDataList& list = newList(false);
  list.load(database.get());
  EXPECT_EQ(cellsOf(list), (Texts{"11/0=first", "11/0=second", "12/1=S1"}));
  EXPECT_EQ(keysOf(list), (std::vector<int>{4, 5, 6}));
  list[0]->value = "changed";
  list[1]->markForDelete(1);
  list.save(database.get());
  EXPECT_EQ(stored(10), (Texts{"11/0=changed", "12/1=S1"}));
}

TEST_F(ItemDataListLoadTest, twoDerivedCellsForOnePlaceBecomeOne) {
  deriveFrom(10);
  insertItem(1, STATUS_CLOSED, 10);
  insertRow(10, 1, "5", "S1", "kék");
  insertCell(10, 12, 1, "S1b");
  ItemDataList& list = newList(true);
  list.load(database.get());
  EXPECT_EQ(cellsOf(list), (Texts{"11/0=", "-1/1=5", "12/1=S1b", "13/1=kék"}));
}

TEST_F(ItemDataListLoadTest, aFailureAtAnyStatementLosesNoCellAndDoublesNone) {
  item.setId(10);
  insertCell(10, 11, 0, "M");
  insertRow(10, 1, "5", "S1", "kék");
  ItemDataList settings;
  settings.loadSettings(database.get(), 101, &item);
  for (int number = 1, faults = 1; faults > 0; ++number) {
    ItemDataList list(&item, &settings);
    FaultObserver fault(database.handle(), number);
    list.load(database.get());
    faults = fault.faults();
    // Without its first statement the list knows of no stored cells; each later one only confirms a cell.
    if (number == 1) {
      EXPECT_EQ(cellsOf(list), Texts{"11/0="});
    } else {
      EXPECT_EQ(cellsOf(list), (Texts{"11/0=M", "-1/1=5", "12/1=S1", "13/1=kék"})) << number;
    }
  }
}

TEST_F(ItemDataListLoadTest, aFailureWhileDerivingLosesNoRow) {
  dissociate(12);
  dissociate(13);
  deriveFrom(10);
  insertItem(1, STATUS_CLOSED, 10);
  insertRow(10, 1, "5", "S1", "kék");
  for (int number = 2, faults = 1; faults > 0; ++number) {
    ItemDataList settings;
    settings.loadSettings(database.get(), 101, &item);
    ItemDataList list(&item, &settings);
    FaultObserver fault(database.handle(), number);
    list.load(database.get());
    faults = fault.faults();
    // What could not be read is missing, and has been told to the error sink; the others are there once.
    const Texts cells = cellsOf(list);
    int found = 0;
    for (const char* cell : {"-1/1=5", "12/1=S1", "13/1=kék"}) {
      const auto count = std::count(cells.begin(), cells.end(), cell);
      EXPECT_LE(count, 1) << cell << " at " << number;
      found += count > 0 ? 1 : 0;
    }
    EXPECT_GE(found, 3 - faults) << number;
  }
}

TEST_F(ItemDataListLoadTest, manyListsLeaveNothingBehind) {
  item.setId(10);
  insertCell(10, 11, 0, "M");
  insertRow(10, 1, "5", "S1", "kék");
  for (int i = 0; i < 20; ++i) {
    newList(true).load(database.get());
    const std::unique_ptr<InvoiceItem> copy(item.copy());
    EXPECT_EQ(ItemDataList::of(copy.get())->no(), 5);
  }
}
