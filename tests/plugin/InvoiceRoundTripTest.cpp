// Item data from an invoice to the database and back, as the host does it.

#include <gtest/gtest.h>

#include "host/xml/Document.h"
#include "tests/plugin/PluginWorld.h"
#include "tests/support/RecordingObserver.h"

using Brontel::Invoice;
using Brontel::InvoiceItem;
using Result = PluginWorld::Result;
using Texts = std::vector<std::string>;

namespace {

class InvoiceRoundTripTest : public testing::Test {
 protected:
  /// A stored sofa of 5 with rows of 3 and 2.
  std::unique_ptr<Invoice> storedInvoice() {
    std::unique_ptr<Invoice> invoice = newInvoice();
    world_.addSofa(*invoice, "5", "A", {{"3", "S1", "kék"}, {"2", "S2", "piros"}});
    save(*invoice);
    return invoice;
  }
  void save(Invoice& invoice) { EXPECT_EQ(world_.repository().save(invoice), Result::Done); }
  void close(Invoice& invoice, int status = Brontel::STATUS_CLOSED) {
    EXPECT_EQ(world_.repository().changeStatus(invoice, status), Result::Done);
  }
  /// A new invoice that refers to the given one, with the data that the plug-in reads for it.
  std::unique_ptr<Invoice> derive(const Invoice& source) {
    std::unique_ptr<Invoice> invoice(source.derive());
    world_.repository().loadPluginData(*invoice);
    return invoice;
  }
  std::string count() { return world_.database().text("select count(*) from t_invoiceitemdata"); }

  PluginWorld world_;
};

const Texts kStored = {"11/0=A", "-1/1=3", "12/1=S1", "13/1=kék", "-1/2=2", "12/2=S2", "13/2=piros"};

}  // namespace

TEST_F(InvoiceRoundTripTest, oneRowIsStoredForEachCell) {
  const std::unique_ptr<Invoice> invoice = storedInvoice();
  EXPECT_EQ(world_.stored(*invoice->getItems()[0]), kStored);
  EXPECT_EQ(count(), "7");
}

TEST_F(InvoiceRoundTripTest, whatWasSavedIsLoadedAndWhatWasEditedIsSaved) {
  std::unique_ptr<Invoice> invoice = world_.load(*storedInvoice());
  InvoiceItem* item = invoice->getItems()[0];
  EXPECT_EQ(cells(item), kStored);
  EXPECT_EQ(world_.print(*item), "A; 3 db S1, kék; 2 db S2, piros");
  EXPECT_EQ(world_.check(*invoice), Texts());
  type(item, SampleGoods::NOTE, 0, "B");
  type(item, SampleGoods::QUANTITY, 2, "1");
  addRow(item, {"1", "S3", "kék"});
  save(*invoice);
  invoice = world_.load(*invoice);
  EXPECT_EQ(cells(invoice->getItems()[0]), (Texts{"11/0=B", "-1/1=3", "12/1=S1", "13/1=kék", "-1/2=1", "12/2=S2",
                                                  "13/2=piros", "-1/3=1", "12/3=S3", "13/3=kék"}));
  EXPECT_EQ(world_.check(*invoice), Texts());
  EXPECT_EQ(count(), "10");
}

TEST_F(InvoiceRoundTripTest, theSameObjectsAreSavedAsOftenAsOneLikes) {
  const std::unique_ptr<Invoice> invoice = storedInvoice();
  InvoiceItem* item = invoice->getItems()[0];
  const std::string keys = world_.database().text("select group_concat(t_invoiceitemdata_id) from t_invoiceitemdata");
  EXPECT_EQ(cells(item, true), cells(world_.load(*invoice)->getItems()[0], true));
  for (int i = 0; i < 3; ++i) save(*invoice);
  EXPECT_EQ(world_.stored(*item), kStored);
  EXPECT_EQ(world_.database().text("select group_concat(t_invoiceitemdata_id) from t_invoiceitemdata"), keys);
  type(item, SampleGoods::BATCH, 2, "other");
  addRow(item, {"1", "S3"});
  save(*invoice);
  save(*invoice);
  EXPECT_EQ(cells(item, true), cells(world_.load(*invoice)->getItems()[0], true));
  EXPECT_EQ(count(), "10");
}

TEST_F(InvoiceRoundTripTest, aDeletedRowStaysDeleted) {
  std::unique_ptr<Invoice> invoice = world_.load(*storedInvoice());
  InvoiceItem* item = invoice->getItems()[0];
  dataOf(item)->markRowForDelete(1);
  type(item, SampleGoods::QUANTITY, 2, "5");
  EXPECT_EQ(world_.check(*invoice), Texts());
  EXPECT_EQ(count(), "7");
  save(*invoice);
  const Texts rest = {"11/0=A", "-1/2=5", "12/2=S2", "13/2=piros"};
  EXPECT_EQ(world_.stored(*item), rest);
  save(*invoice);
  EXPECT_EQ(world_.stored(*item), rest);
  invoice = world_.load(*invoice);
  EXPECT_EQ(cells(invoice->getItems()[0]), rest);
  EXPECT_EQ(world_.print(*invoice->getItems()[0]), "A; 5 db S2, piros");
}

TEST_F(InvoiceRoundTripTest, aRowAddedAndSavedCanBeDeletedInTheSameSession) {
  const std::unique_ptr<Invoice> invoice = storedInvoice();
  InvoiceItem* item = invoice->getItems()[0];
  dataOf(item)->markRowForDelete(2);
  save(*invoice);
  EXPECT_EQ(cells(world_.load(*invoice)->getItems()[0]), (Texts{"11/0=A", "-1/1=3", "12/1=S1", "13/1=kék"}));
}

TEST_F(InvoiceRoundTripTest, aRowCanBeDeletedAndAddedAgainManyTimes) {
  const std::unique_ptr<Invoice> invoice = storedInvoice();
  InvoiceItem* item = invoice->getItems()[0];
  for (const char* batch : {"S3", "S4", "S5"}) {
    dataOf(item)->markRowForDelete(2);
    addRow(item, {"2", batch, "piros"});
    save(*invoice);
    const Texts expected = {"11/0=A",    "-1/1=3", "12/1=S1", "13/1=kék", "-1/2=2", std::string("12/2=") + batch,
                            "13/2=piros"};
    EXPECT_EQ(world_.stored(*item), expected);
    EXPECT_EQ(cells(world_.load(*invoice)->getItems()[0]), expected);
    // The new row may have got the keys of the old one, and is now as firmly stored as any other.
    const RecordingObserver recorder(world_.handle());
    save(*invoice);
    EXPECT_EQ(recorder.count("delete"), 0);
    EXPECT_EQ(recorder.count("insert"), 0);
  }
}

TEST_F(InvoiceRoundTripTest, aCellThatWasNeverTypedInIsStoredEmptyAndZeroIsNotStored) {
  std::unique_ptr<Invoice> invoice = newInvoice();
  world_.addSofa(*invoice, "5", "A", {{"0", "S1"}});
  save(*invoice);
  EXPECT_EQ(world_.stored(*invoice->getItems()[0]), (Texts{"11/0=A", "12/1=S1", "13/1="}));
  invoice = world_.load(*invoice);
  EXPECT_EQ(cells(invoice->getItems()[0]), (Texts{"11/0=A", "-1/1=0", "12/1=S1", "13/1="}));
  save(*invoice);
  EXPECT_EQ(count(), "3");
}

TEST_F(InvoiceRoundTripTest, anInvoiceWithGoodsOfEveryKindComesBackWhole) {
  std::unique_ptr<Invoice> invoice = newInvoice();
  world_.addSofa(*invoice, "1", "A", {{"1", "S1", "kék"}});
  type(world_.addItem(*invoice, Brontel::GOODS_SERVICE, SampleGoods::ASSEMBLY, "1"), SampleGoods::DATE, 0,
       "2024.01.31");
  world_.addItem(*invoice, Brontel::GOODS_PRODUCT, SampleGoods::NAIL, "100");
  addRow(world_.addItem(*invoice, Brontel::GOODS_SUITE, SampleGoods::SET, "2"), {"2", "G1"});
  save(*invoice);
  invoice = world_.load(*invoice);
  const auto& items = invoice->getItems();
  EXPECT_EQ(cells(items[1]), Texts{"14/0=2024.01.31"});
  EXPECT_EQ(dataOf(items[2]), nullptr);
  EXPECT_EQ(cells(items[3]), (Texts{"-1/1=2", "12/1=G1"}));
  EXPECT_EQ(world_.check(*invoice), Texts());
  XMLBuilder::Document document("item");
  world_.plugins().toXml(items[3], document.getRoot());
  EXPECT_NE(document.toText().find("xmlns:itemdata=\"urn:brontel:plugin:itemdata\""), -1);
  EXPECT_NE(document.toText().find("<itemdata:itemdata row=\"1\" name=\"Mennyiség\">2</itemdata:itemdata>"), -1);
}

TEST_F(InvoiceRoundTripTest, variablesDifferByDirection) {
  std::unique_ptr<Invoice> invoice = newInvoice(201);
  InvoiceItem* item = world_.addItem(*invoice, Brontel::GOODS_PRODUCT, SampleGoods::SOFA, "2");
  addRow(item, {"2", "S1"});
  save(*invoice);
  EXPECT_EQ(cells(world_.load(*invoice)->getItems()[0]), (Texts{"-1/1=2", "12/1=S1"}));
}

TEST_F(InvoiceRoundTripTest, aRemovedItemTakesItsDataAlong) {
  std::unique_ptr<Invoice> invoice = world_.load(*storedInvoice());
  invoice->removeItem(0);
  EXPECT_EQ(count(), "7");
  save(*invoice);
  EXPECT_EQ(count(), "0");
}

TEST_F(InvoiceRoundTripTest, aCopyIsStoredOnceAndForItself) {
  const std::unique_ptr<Invoice> source = world_.load(*storedInvoice());
  std::unique_ptr<Invoice> copy(source->copy());
  EXPECT_EQ(world_.check(*copy), Texts());
  save(*copy);
  save(*copy);
  EXPECT_EQ(world_.stored(*copy->getItems()[0]), kStored);
  type(copy->getItems()[0], SampleGoods::BATCH, 1, "of the copy");
  save(*copy);
  EXPECT_EQ(world_.stored(*source->getItems()[0]), kStored);
  copy = world_.load(*copy);
  EXPECT_EQ(world_.print(*copy->getItems()[0]), "A; 3 db of the copy, kék; 2 db S2, piros");
  EXPECT_EQ(count(), "14");
}

TEST_F(InvoiceRoundTripTest, aCopyIsPrintedAndExportedAsItsSource) {
  const std::unique_ptr<Invoice> source = world_.load(*storedInvoice());
  XMLBuilder::Document expected("item");
  world_.plugins().toXml(source->getItems()[0], expected.getRoot());
  const std::unique_ptr<Invoice> exported(source->copy());
  XMLBuilder::Document document("item");
  world_.plugins().toXml(exported->getItems()[0], document.getRoot());
  EXPECT_STREQ(document.toText().text(), expected.toText().text());
  const std::unique_ptr<Invoice> printed(source->copy());
  EXPECT_EQ(world_.print(*printed->getItems()[0]), "A; 3 db S1, kék; 2 db S2, piros");
  EXPECT_EQ(cells(printed->getItems()[0]), kStored);
}

TEST_F(InvoiceRoundTripTest, aDeletedRowIsNotCopied) {
  const std::unique_ptr<Invoice> source = world_.load(*storedInvoice());
  dataOf(source->getItems()[0])->markRowForDelete(2);
  const std::unique_ptr<Invoice> copy(source->copy());
  addRow(copy->getItems()[0], {"2", "S3", "kék"});
  save(*copy);
  EXPECT_EQ(cells(world_.load(*copy)->getItems()[0]),
            (Texts{"11/0=A", "-1/1=3", "12/1=S1", "13/1=kék", "-1/2=2", "12/2=S3", "13/2=kék"}));
}

TEST_F(InvoiceRoundTripTest, aDerivedInvoiceTakesOverWhatIsLeftOfEachRow) {
  const std::unique_ptr<Invoice> source = storedInvoice();
  close(*source);
  std::unique_ptr<Invoice> first = derive(*source);
  EXPECT_EQ(cells(first->getItems()[0]), kStored);
  type(first->getItems()[0], SampleGoods::QUANTITY, 1, "1.25");
  type(first->getItems()[0], SampleGoods::QUANTITY, 2, "2");
  save(*first);
  EXPECT_EQ(cells(world_.load(*first)->getItems()[0]),
            (Texts{"11/0=A", "-1/1=1.25", "12/1=S1", "13/1=kék", "-1/2=2", "12/2=S2", "13/2=piros"}));
  // An open invoice takes nothing yet.
  EXPECT_EQ(cells(derive(*source)->getItems()[0]), kStored);
  close(*first);
  EXPECT_EQ(cells(derive(*source)->getItems()[0]),
            (Texts{"11/0=A", "-1/1=1.75", "12/1=S1", "13/1=kék", "-1/2=0", "12/2=S2", "13/2=piros"}));
}

TEST_F(InvoiceRoundTripTest, aSavedDerivedInvoiceKeepsItsOwnData) {
  const std::unique_ptr<Invoice> source = storedInvoice();
  close(*source);
  const std::unique_ptr<Invoice> derived = derive(*source);
  InvoiceItem* item = derived->getItems()[0];
  dataOf(item)->markRowForDelete(2);
  type(item, SampleGoods::NOTE, 0, "returned");
  save(*derived);
  save(*derived);
  const Texts expected = {"11/0=returned", "-1/1=3", "12/1=S1", "13/1=kék"};
  EXPECT_EQ(world_.stored(*item), expected);
  EXPECT_EQ(cells(world_.load(*derived)->getItems()[0]), expected);
  EXPECT_EQ(world_.stored(*source->getItems()[0]), kStored);
}

TEST_F(InvoiceRoundTripTest, aVariableAddedMeanwhileIsOfferedAndOneTakenAwayIsKept) {
  const std::unique_ptr<Invoice> stored = storedInvoice();
  world_.database().exec("delete from t_productitemdata where t_itemvariable_1=13");
  world_.database().exec(
      "insert into t_productitemdata (t_product_1, t_itemvariable_1, position, direction) "
      "values (1,14,2,100)");
  world_.database().exec(
      "insert into t_itemvariable (t_itemvariable_id, name, type, process, mandatory) "
      "values (15,'Súly',1,1,1)");
  world_.database().exec(
      "insert into t_productitemdata (t_product_1, t_itemvariable_1, position, direction) "
      "values (1,15,0,100)");
  std::unique_ptr<Invoice> invoice = world_.load(*stored);
  InvoiceItem* item = invoice->getItems()[0];
  EXPECT_EQ(cells(item), (Texts{"11/0=A", "14/0=", "-1/1=3", "15/1=", "12/1=S1", "13/1=kék", "-1/2=2",
                                "15/2=", "12/2=S2", "13/2=piros"}));
  for (const int row : {1, 2}) type(item, 15, row, "10 kg");
  type(item, SampleGoods::DATE, 0, "2024.01.31");
  save(*invoice);
  invoice = world_.load(*invoice);
  EXPECT_EQ(world_.print(*invoice->getItems()[0]), "A; 2024.01.31; 3 db 10 kg, S1, kék; 2 db 10 kg, S2, piros");
  EXPECT_EQ(world_.check(*invoice), Texts());
  EXPECT_EQ(count(), "10");
}

TEST_F(InvoiceRoundTripTest, aVariableMovedBetweenItemAndUnitKeepsWhatWasRecorded) {
  const std::unique_ptr<Invoice> stored = storedInvoice();
  world_.database().exec("update t_itemvariable set process=0 where t_itemvariable_id=12");
  std::unique_ptr<Invoice> invoice = world_.load(*stored);
  type(invoice->getItems()[0], SampleGoods::BATCH, 0, "S9");
  save(*invoice);
  invoice = world_.load(*invoice);
  EXPECT_EQ(world_.stored(*invoice->getItems()[0]),
            (Texts{"11/0=A", "12/0=S9", "-1/1=3", "12/1=S1", "13/1=kék", "-1/2=2", "12/2=S2", "13/2=piros"}));
}

TEST_F(InvoiceRoundTripTest, aDeletedVariableLeavesItsValuesInTheTable) {
  const std::unique_ptr<Invoice> stored = storedInvoice();
  world_.database().exec("delete from t_itemvariable where t_itemvariable_id=13");
  const std::unique_ptr<Invoice> invoice = world_.load(*stored);
  type(invoice->getItems()[0], SampleGoods::BATCH, 1, "S9");
  save(*invoice);
  EXPECT_EQ(world_.database().text("select count(*) from t_invoiceitemdata where t_itemvariable_1 is null"), "2");
  EXPECT_EQ(cells(world_.load(*stored)->getItems()[0]), (Texts{"11/0=A", "-1/1=3", "12/1=S9", "-1/2=2", "12/2=S2"}));
}

TEST_F(InvoiceRoundTripTest, aClosedInvoiceIsShownAsItWas) {
  const std::unique_ptr<Invoice> stored = storedInvoice();
  close(*stored);
  world_.database().exec(
      "insert into t_productitemdata (t_product_1, t_itemvariable_1, position, direction) "
      "values (1,14,2,100)");
  const std::unique_ptr<Invoice> invoice = world_.load(*stored);
  EXPECT_EQ(cells(invoice->getItems()[0]), kStored);
  EXPECT_EQ(world_.check(*invoice), Texts());
  EXPECT_EQ(world_.repository().save(*invoice), Result::ReadOnly);
}

TEST_F(InvoiceRoundTripTest, aSaveReadsTheKeysOfAnItemTwiceHoweverManyCellsItHas) {
  const std::unique_ptr<Invoice> invoice = storedInvoice();
  const RecordingObserver recorder(world_.handle());
  save(*invoice);
  EXPECT_EQ(recorder.count("select"), 2);
  EXPECT_EQ(recorder.count("update \"t_invoiceitemdata\""), 7);
  EXPECT_EQ(recorder.count("insert"), 0);
}
