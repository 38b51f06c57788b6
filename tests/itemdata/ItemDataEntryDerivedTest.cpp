// What a new item that was made from another one takes over from it.

#include "itemdata/Codes.h"
#include "itemdata/ItemDataEntry.h"
#include "tests/itemdata/ItemDataFixture.h"
#include "tests/support/RecordingObserver.h"

using namespace Brontel::Plugin::ItemData;
using Brontel::STATUS_CLOSED;
using Brontel::STATUS_OPEN;
using Brontel::STATUS_STORNO;

namespace {

/// A new item that derives from the stored item 10, whose row 1 has a quantity.
class ItemDataEntryDerivedTest : public ItemDataFixture {
 protected:
  ItemDataEntryDerivedTest() : item(*new Brontel::InvoiceItem) {
    invoice.appendItem(&item);
    item.setReferenceMode(Brontel::InvoiceItem::MODE_DERIVED);
    item.setReferencedItemId(10);
    insertItem(1, STATUS_CLOSED, 10);
  }

  /// Another item that refers to a source with the quantity in the row.
  void take(int status, const std::string& quantity, int source = 10, int row = 1) {
    ++last_;
    insertItem(last_, status, last_, source);
    insertCell(last_, VARIABLE_QUANTITY, row, quantity);
  }

  /// What is left for the new item of the source's row 1, with the stored quantity.
  std::string left(const std::string& quantity) {
    insertCell(10, VARIABLE_QUANTITY, 1, quantity);
    return left();
  }

  std::string left() { return leftInCellOf("before"); }

  std::string leftInCellOf(const char* before) {
    const std::unique_ptr<ItemDataEntry> cell(newCell(TYPE_QUANTITY, VARIABLE_QUANTITY, 1, before, 99, &item));
    cell->load(database.get());
    return cell->value.text();
  }

  /// The statement that reads a cell of that variable.
  RecordingObserver::Record statementOf(int type, int variable) {
    const std::unique_ptr<ItemDataEntry> cell(newCell(type, variable, 1, "", 0, &item));
    RecordingObserver recorder(database.handle());
    EXPECT_EQ(cell->load(database.get()), 0);
    EXPECT_EQ(recorder.records().size(), 1u);
    return recorder.records().at(0);
  }

  Brontel::Invoice invoice;
  Brontel::InvoiceItem& item;

 private:
  int last_ = 20;
};

using Values = std::vector<std::pair<std::string, std::string>>;

}  // namespace

TEST_F(ItemDataEntryDerivedTest, readsAVariableOfTheSource) {
  const RecordingObserver::Record record = statementOf(TYPE_TEXT, 12);
  EXPECT_EQ(record.sql,
            "select value, 0 from t_invoiceitemdata where t_invoiceitem_1=%t_invoiceitem_1 and "
            "t_itemvariable_1=%t_itemvariable_1 and row=%row");
  EXPECT_EQ(record.values, (Values{{"t_itemvariable_1", "12"}, {"t_invoiceitem_1", "10"}, {"row", "1"}}));
}

TEST_F(ItemDataEntryDerivedTest, readsAValueWithoutVariableOfTheSource) {
  const RecordingObserver::Record record = statementOf(TYPE_TEXT, VARIABLE_NONE);
  EXPECT_EQ(record.sql,
            "select value, 0 from t_invoiceitemdata where t_invoiceitem_1=%t_invoiceitem_1 and t_itemvariable_1 is "
            "NULL and row=%row");
  EXPECT_EQ(record.values, (Values{{"t_invoiceitem_1", "10"}, {"row", "1"}}));
}

TEST_F(ItemDataEntryDerivedTest, readsWhatIsLeftOfTheSourcesQuantity) {
  const RecordingObserver::Record record = statementOf(TYPE_QUANTITY, VARIABLE_QUANTITY);
  EXPECT_EQ(record.sql,
            "select iid.value-ifnull(rst.value,0) as value, 0 from t_invoiceitemdata iid left join ( select "
            "(ifnull(n.value,0)+ifnull(s.value,0)) as value, %t_invoiceitem_1 as item from ( select sum(value) value, "
            "row from t_invoiceitemdata iid where  t_itemvariable_1=%t_itemvariable_1 and iid.row=%row and "
            "iid.t_invoiceitem_1 in ( select t_invoiceitem_id from t_invoiceitem ii join t_invoice i on "
            "ii.t_invoice_1=i.t_invoice_id and i.t_invoicestatus_1=%closed and ii.t_invoiceitem_1=%t_invoiceitem_1) ) "
            "n left join ( select sum(-1*value) value, row  from t_invoiceitemdata iid where "
            "t_itemvariable_1=%t_itemvariable_1 and row=%row and iid.t_invoiceitem_1 in (select t_invoiceitem_id from "
            "t_invoiceitem ii join t_invoice i on ii.t_invoice_1=i.t_invoice_id and i.t_invoicestatus_1=%storno and "
            "ii.t_invoiceitem_1=%t_invoiceitem_1) ) s on (s.row=n.row) ) rst on iid.t_invoiceitem_1=rst.item where "
            "t_itemvariable_1=%t_itemvariable_1 and t_invoiceitem_1=%t_invoiceitem_1 and row=%row");
  EXPECT_EQ(record.value("t_itemvariable_1"), "-1");
  EXPECT_EQ(record.value("t_invoiceitem_1"), "10");
  EXPECT_EQ(record.value("row"), "1");
  EXPECT_EQ(record.value("closed"), "151");
  EXPECT_EQ(record.value("storno"), "152");
  EXPECT_EQ(record.values.size(), 5u);
}

TEST_F(ItemDataEntryDerivedTest, isDerivedOnlyWhenNewInDerivedModeAndWithASource) {
  const auto readsTheSource = [this] { return statementOf(TYPE_TEXT, 12).sql.starts_with("select value, 0 "); };
  EXPECT_TRUE(readsTheSource());
  item.setId(5);
  EXPECT_FALSE(readsTheSource());
  item.setId(0);
  item.setReferenceMode(0);
  EXPECT_FALSE(readsTheSource());
  item.setReferenceMode(2);
  EXPECT_FALSE(readsTheSource());
  item.setReferenceMode(1);
  item.setReferencedItemId(0);
  EXPECT_FALSE(readsTheSource());
  item.setReferencedItemId(-10);
  EXPECT_FALSE(readsTheSource());
}

TEST_F(ItemDataEntryDerivedTest, takesTheValueButNotTheKey) {
  insertCell(10, 12, 1, "S1", 7);
  insertCell(10, 0, 0, "loose", 8);
  const std::unique_ptr<ItemDataEntry> cell(newCell(TYPE_TEXT, 12, 1, "", 99, &item));
  EXPECT_EQ(cell->load(database.get()), 0);
  EXPECT_STREQ(cell->value.text(), "S1");
  EXPECT_EQ(cell->pk, 0);
  const std::unique_ptr<ItemDataEntry> loose(newCell(TYPE_TEXT, VARIABLE_NONE, 0, "", 99, &item));
  loose->load(database.get());
  EXPECT_STREQ(loose->value.text(), "loose");
  EXPECT_EQ(loose->pk, 0);
  EXPECT_EQ(invoice.getLoadedDataMarker(), 1);
}

TEST_F(ItemDataEntryDerivedTest, storesTheCopyAsARowOfTheNewItem) {
  insertCell(10, 12, 1, "S1", 7);
  const std::unique_ptr<ItemDataEntry> cell(newCell(TYPE_TEXT, 12, 1, "", 0, &item));
  cell->load(database.get());
  item.setId(30);
  cell->save(database.get());
  EXPECT_EQ(stored(30), Texts{"12/1=S1"});
  EXPECT_EQ(stored(10), Texts{"12/1=S1"});
}

TEST_F(ItemDataEntryDerivedTest, allIsLeftWhenNobodyTookAnything) {
  EXPECT_EQ(left("10"), "10");
}

TEST_F(ItemDataEntryDerivedTest, closedItemsTake) {
  take(STATUS_CLOSED, "4");
  EXPECT_EQ(left("10"), "6");
}

TEST_F(ItemDataEntryDerivedTest, stornoAloneGivesNothingBack) {
  take(STATUS_STORNO, "4");
  EXPECT_EQ(left("10"), "10");
}

TEST_F(ItemDataEntryDerivedTest, stornoGivesBackOfWhatWasTaken) {
  take(STATUS_CLOSED, "4");
  take(STATUS_STORNO, "3");
  EXPECT_EQ(left("10"), "9");
}

TEST_F(ItemDataEntryDerivedTest, severalTakeAndGiveBack) {
  take(STATUS_CLOSED, "4");
  take(STATUS_CLOSED, "3");
  take(STATUS_STORNO, "2");
  take(STATUS_STORNO, "1");
  EXPECT_EQ(left("10"), "6");
}

TEST_F(ItemDataEntryDerivedTest, openItemsTakeNothingYet) {
  take(STATUS_OPEN, "4");
  EXPECT_EQ(left("10"), "10");
}

TEST_F(ItemDataEntryDerivedTest, onlyTheSameRowOfTheSameSourceCounts) {
  take(STATUS_CLOSED, "4", 10, 2);
  insertItem(1, STATUS_CLOSED, 11);
  take(STATUS_CLOSED, "3", 11);
  EXPECT_EQ(left("10"), "10");
}

TEST_F(ItemDataEntryDerivedTest, moreTakenThanThereWasIsNegative) {
  take(STATUS_CLOSED, "12");
  EXPECT_EQ(left("10"), "-2");
}

TEST_F(ItemDataEntryDerivedTest, allTakenIsZero) {
  take(STATUS_CLOSED, "10");
  EXPECT_EQ(left("10"), "0");
}

TEST_F(ItemDataEntryDerivedTest, allTakenInFractionsIsZeroWithoutPoint) {
  take(STATUS_CLOSED, "2.5");
  EXPECT_EQ(left("2.5"), "0");
}

TEST_F(ItemDataEntryDerivedTest, fractionsThatAddUpAreWrittenAsWholeNumbers) {
  take(STATUS_CLOSED, "0.5");
  EXPECT_EQ(left("2.5"), "2");
}

TEST_F(ItemDataEntryDerivedTest, aFractionLosesItsTrailingZero) {
  EXPECT_EQ(left("1.10"), "1.1");
}

TEST_F(ItemDataEntryDerivedTest, smallRemaindersAreExact) {
  take(STATUS_CLOSED, "0.9999");
  EXPECT_EQ(left("1"), "0.0001");
}

TEST_F(ItemDataEntryDerivedTest, noBinaryResidueStays) {
  take(STATUS_CLOSED, "0.1");
  take(STATUS_CLOSED, "0.2");
  EXPECT_EQ(left("0.3"), "0");
}

TEST_F(ItemDataEntryDerivedTest, aFractionOfAHalfComesFromSeveralPlaces) {
  take(STATUS_CLOSED, "3.75");
  take(STATUS_STORNO, "1.25");
  EXPECT_EQ(left("10"), "7.5");
}

TEST_F(ItemDataEntryDerivedTest, anEmptyOrUnreadableQuantityCountsAsNone) {
  EXPECT_EQ(left(""), "0");
  database.exec("update t_invoiceitemdata set value='abc'");
  EXPECT_EQ(left(), "0");
  take(STATUS_CLOSED, "");
  take(STATUS_CLOSED, "many");
  database.exec("update t_invoiceitemdata set value='10' where t_invoiceitem_1=10");
  EXPECT_EQ(left(), "10");
}

TEST_F(ItemDataEntryDerivedTest, aQuantityOfNullStaysEmpty) {
  database.exec("insert into t_invoiceitemdata (t_itemvariable_1, t_invoiceitem_1, row) values (-1, 10, 1)");
  EXPECT_EQ(left(), "");
}

TEST_F(ItemDataEntryDerivedTest, withoutAStoredQuantityTheCellKeepsWhatItHolds) {
  take(STATUS_CLOSED, "4");
  EXPECT_EQ(left(), "before");
  EXPECT_EQ(leftInCellOf("1.50"), "1.50");
}
