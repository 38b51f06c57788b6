// How a cell is read from its row and written to it.

#include "itemdata/Codes.h"
#include "itemdata/ItemDataStringEntry.h"
#include "tests/itemdata/ItemDataFixture.h"
#include "tests/support/FaultObserver.h"
#include "tests/support/RecordingObserver.h"

using namespace Brontel::Plugin::ItemData;

namespace {

/// Counts how often it is asked for its quantity.
class AskedEntry : public ItemDataStringEntry {
 public:
  explicit AskedEntry(Brontel::Entity* owner) { owner_ = owner; }

  FXExt::FXDecimal getQuantity() const override {
    ++asked;
    return ItemDataStringEntry::getQuantity();
  }

  mutable int asked = 0;
};

class ItemDataEntryStorageTest : public ItemDataFixture {
 protected:
  ItemDataEntryStorageTest() : item(*new Brontel::InvoiceItem) {
    invoice.appendItem(&item);
    item.setId(10);
  }

  std::unique_ptr<ItemDataEntry> cell(int type, int variable, int row, const std::string& value = "", int key = 0) {
    return std::unique_ptr<ItemDataEntry>(newCell(type, variable, row, value, key, &item));
  }

  /// The statements of one save.
  Texts saved(ItemDataEntry& entry) {
    RecordingObserver recorder(database.handle());
    EXPECT_EQ(entry.save(database.get()), 0);
    return recorder.texts();
  }

  Brontel::Invoice invoice;
  Brontel::InvoiceItem& item;
};

}  // namespace

TEST_F(ItemDataEntryStorageTest, readsValueAndKeyOfItsRow) {
  insertCell(10, 12, 1, "x", 7);
  insertCell(10, 12, 2, "other row");
  insertCell(10, 13, 1, "other variable");
  insertCell(11, 12, 1, "other item");
  const auto entry = cell(TYPE_TEXT, 12, 1);
  RecordingObserver recorder(database.handle());
  EXPECT_EQ(entry->load(database.get()), 0);
  EXPECT_STREQ(entry->value.text(), "x");
  EXPECT_EQ(entry->pk, 7);
  ASSERT_EQ(recorder.records().size(), 1u);
  EXPECT_EQ(recorder.records()[0].sql,
            "select value, t_invoiceitemdata_id from t_invoiceitemdata where t_invoiceitem_1=%t_invoiceitem_1 and "
            "t_itemvariable_1=%t_itemvariable_1 and row=%row");
  EXPECT_EQ(recorder.records()[0].value("t_invoiceitem_1"), "10");
  EXPECT_EQ(recorder.records()[0].value("t_itemvariable_1"), "12");
  EXPECT_EQ(recorder.records()[0].value("row"), "1");
}

// The quantity stands in another cell of the row: a cell that looked for it would make reading a list quadratic.
TEST_F(ItemDataEntryStorageTest, readingDoesNotLookForTheQuantity) {
  insertCell(10, 12, 1, "x", 7);
  AskedEntry entry(&item);
  entry.itemvariable = 12;
  entry.row = 1;
  EXPECT_EQ(entry.load(database.get()), 0);
  EXPECT_STREQ(entry.value.text(), "x");
  EXPECT_EQ(entry.asked, 0);
}

TEST_F(ItemDataEntryStorageTest, readsACellWithoutVariable) {
  insertCell(10, 0, 0, "x", 7);
  insertCell(10, 12, 0, "with variable");
  const auto entry = cell(TYPE_TEXT, VARIABLE_NONE, 0);
  RecordingObserver recorder(database.handle());
  EXPECT_EQ(entry->load(database.get()), 0);
  EXPECT_STREQ(entry->value.text(), "x");
  EXPECT_EQ(entry->pk, 7);
  EXPECT_EQ(recorder.texts(), Texts{"select value, t_invoiceitemdata_id from t_invoiceitemdata where "
                                    "t_invoiceitem_1=%t_invoiceitem_1 and t_itemvariable_1 is NULL and row=%row "
                                    "[t_invoiceitem_1=10, row=0]"});
}

TEST_F(ItemDataEntryStorageTest, readsAStoredQuantityLikeAnyOtherCell) {
  insertCell(10, VARIABLE_QUANTITY, 1, "5", 8);
  const auto entry = cell(TYPE_QUANTITY, VARIABLE_QUANTITY, 1);
  entry->load(database.get());
  EXPECT_STREQ(entry->value.text(), "5");
  EXPECT_EQ(entry->pk, 8);
}

TEST_F(ItemDataEntryStorageTest, readsNullAsTheEmptyText) {
  database.exec(
      "insert into t_invoiceitemdata (t_invoiceitemdata_id, t_itemvariable_1, t_invoiceitem_1, row) "
      "values (7, 12, 10, 1)");
  const auto entry = cell(TYPE_TEXT, 12, 1, "before");
  entry->load(database.get());
  EXPECT_STREQ(entry->value.text(), "");
  EXPECT_EQ(entry->pk, 7);
}

TEST_F(ItemDataEntryStorageTest, keepsWhatItHoldsWhenNothingIsStored) {
  const auto entry = cell(TYPE_TEXT, 12, 1, "x");
  EXPECT_EQ(entry->load(database.get()), 0);
  EXPECT_STREQ(entry->value.text(), "x");
  EXPECT_EQ(entry->pk, 0);
}

TEST_F(ItemDataEntryStorageTest, keepsWhatItHoldsWhenTheQueryFails) {
  insertCell(10, 12, 1, "stored", 7);
  const auto entry = cell(TYPE_TEXT, 12, 1, "x");
  FaultObserver fault(database.handle(), 1);
  EXPECT_EQ(entry->load(database.get()), 0);
  EXPECT_STREQ(entry->value.text(), "x");
  EXPECT_EQ(entry->pk, 0);
}

TEST_F(ItemDataEntryStorageTest, takesTheLastOfSeveralRows) {
  insertCell(10, 12, 1, "first", 7);
  insertCell(10, 12, 1, "last", 9);
  const auto entry = cell(TYPE_TEXT, 12, 1);
  entry->load(database.get());
  EXPECT_STREQ(entry->value.text(), "last");
  EXPECT_EQ(entry->pk, 9);
}

TEST_F(ItemDataEntryStorageTest, tellsTheInvoiceThatDataWereLoaded) {
  EXPECT_EQ(invoice.getLoadedDataMarker(), 0);
  cell(TYPE_TEXT, 12, 1)->load(database.get());
  EXPECT_EQ(invoice.getLoadedDataMarker(), 1);
}

TEST_F(ItemDataEntryStorageTest, insertsANewCellAndDoesNotLearnItsKey) {
  const auto entry = cell(TYPE_TEXT, 12, 3, "S1");
  EXPECT_EQ(saved(*entry), Texts{"insert into \"t_invoiceitemdata\" "
                                 "(\"t_itemvariable_1\",\"t_invoiceitem_1\",\"value\",\"row\") values "
                                 "(%t_itemvariable_1,%t_invoiceitem_1,%value,%row) "
                                 "[t_itemvariable_1=12, t_invoiceitem_1=10, value='S1', row=3]"});
  EXPECT_EQ(stored(10), Texts{"12/3=S1"});
  EXPECT_EQ(entry->pk, 0);
}

TEST_F(ItemDataEntryStorageTest, readsBackTheKeyOfWhatItInserted) {
  const auto entry = cell(TYPE_TEXT, 12, 3, "S1");
  entry->save(database.get());
  entry->load(database.get());
  EXPECT_EQ(std::to_string(entry->pk), database.text("select t_invoiceitemdata_id from t_invoiceitemdata"));
}

TEST_F(ItemDataEntryStorageTest, updatesAStoredCellInPlace) {
  insertCell(10, 12, 3, "old", 7);
  insertCell(10, 12, 4, "other", 8);
  const auto entry = cell(TYPE_TEXT, 12, 3, "new", 7);
  const std::string before = entry->toDebugString().text();
  const Texts statements = saved(*entry);
  ASSERT_EQ(statements.size(), 1u);
  EXPECT_EQ(statements[0].find("update \"t_invoiceitemdata\" set"), 0u) << statements[0];
  EXPECT_NE(statements[0].find("where t_invoiceitemdata_id=%t_invoiceitemdata_id [t_invoiceitemdata_id=7, "
                               "t_itemvariable_1=12, t_invoiceitem_1=10, value='new', row=3]"),
            std::string::npos)
      << statements[0];
  EXPECT_EQ(stored(10), (Texts{"12/3=new", "12/4=other"}));
  EXPECT_EQ(database.text("select t_invoiceitemdata_id from t_invoiceitemdata where value='new'"), "7");
  EXPECT_STREQ(entry->toDebugString().text(), before.c_str());
}

TEST_F(ItemDataEntryStorageTest, deletesAMarkedCellByItsKeyAlone) {
  insertCell(10, 12, 3, "mine", 7);
  insertCell(10, 12, 4, "other", 8);
  const auto entry = cell(TYPE_TEXT, 12, 3, "mine", 7);
  entry->markForDelete(1);
  EXPECT_EQ(saved(*entry), Texts{"delete from \"t_invoiceitemdata\" where "
                                 "\"t_invoiceitemdata_id\"=%t_invoiceitemdata_id [t_invoiceitemdata_id=7]"});
  EXPECT_EQ(stored(10), Texts{"12/4=other"});
}

TEST_F(ItemDataEntryStorageTest, runsNoStatementForAMarkedCellThatWasNeverStored) {
  const auto entry = cell(TYPE_TEXT, 12, 3, "x");
  entry->markForDelete(1);
  EXPECT_TRUE(saved(*entry).empty());
  EXPECT_TRUE(stored(10).empty());
}

TEST_F(ItemDataEntryStorageTest, storesAValueWithoutVariableWithNull) {
  const auto entry = cell(TYPE_TEXT, VARIABLE_NONE, 0, "x");
  saved(*entry);
  EXPECT_EQ(database.rows("select t_itemvariable_1, t_invoiceitem_1, row, value from t_invoiceitemdata"),
            (std::vector<Texts>{{"NULL", "10", "0", "x"}}));
}

TEST_F(ItemDataEntryStorageTest, storesTheQuantityUnderItsOwnVariable) {
  saved(*cell(TYPE_QUANTITY, VARIABLE_QUANTITY, 1, "5"));
  EXPECT_EQ(stored(10), Texts{"-1/1=5"});
}

TEST_F(ItemDataEntryStorageTest, storesEmptyValuesAndTheChoiceOfNoneAsEmptyTexts) {
  saved(*cell(TYPE_TEXT, 12, 1, ""));
  saved(*cell(TYPE_LIST, 13, 1, " "));
  EXPECT_EQ(database.rows("select typeof(value), value from t_invoiceitemdata"),
            (std::vector<Texts>{{"text", ""}, {"text", ""}}));
}

TEST_F(ItemDataEntryStorageTest, storesValuesAsTextWhateverTheyLookLike) {
  saved(*cell(TYPE_QUANTITY, VARIABLE_QUANTITY, 1, "1.10"));
  EXPECT_EQ(database.rows("select typeof(value), value from t_invoiceitemdata"),
            (std::vector<Texts>{{"text", "1.10"}}));
}

TEST_F(ItemDataEntryStorageTest, reportsNothingWhenAStatementFails) {
  insertCell(10, 12, 3, "old", 7);
  for (const int key : {0, 7}) {
    FaultObserver fault(database.handle(), 1);
    EXPECT_EQ(cell(TYPE_TEXT, 12, 3, "new", key)->save(database.get()), 0);
  }
  EXPECT_EQ(stored(10), Texts{"12/3=old"});
}

TEST_F(ItemDataEntryStorageTest, doesNothingWithoutDatabaseOwnerOrInvoice) {
  const auto entry = cell(TYPE_TEXT, 12, 1, "x", 7);
  EXPECT_EQ(entry->save(nullptr), 0);
  EXPECT_EQ(entry->load(nullptr), 0);
  const std::unique_ptr<ItemDataEntry> orphan(entry->clone(nullptr));
  RecordingObserver recorder(database.handle());
  EXPECT_EQ(orphan->save(database.get()), 0);
  EXPECT_EQ(orphan->load(database.get()), 0);
  EXPECT_TRUE(recorder.texts().empty());
  Brontel::InvoiceItem loose;
  loose.setId(10);
  const std::unique_ptr<ItemDataEntry> looseCell(entry->clone(&loose));
  EXPECT_EQ(looseCell->load(database.get()), 0);
  EXPECT_EQ(recorder.texts().size(), 1u);
}

TEST_F(ItemDataEntryStorageTest, doesNothingForAnOwnerThatIsNoItem) {
  const std::unique_ptr<ItemDataEntry> entry(newCell(TYPE_TEXT, 12, 1, "x", 0, &invoice));
  Messages messages;
  EXPECT_EQ(entry->load(database.get()), 0);
  entry->check(1, messages, "P");
  EXPECT_STREQ(entry->value.text(), "x");
  EXPECT_EQ(messages.no(), 0);
}
