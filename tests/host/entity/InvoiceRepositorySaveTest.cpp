#include <climits>

#include "tests/host/entity/RepositoryFixture.h"
#include "tests/support/RecordingObserver.h"

using Brontel::Invoice;
using Brontel::InvoiceItem;

namespace {

using Rows = std::vector<std::vector<std::string>>;
using Log = RecordingEntityPlugin::Log;

class InvoiceRepositorySaveTest : public InvoiceRepositoryTest {};

}  // namespace

TEST_F(InvoiceRepositorySaveTest, storesANewInvoiceWithItsItems) {
  const auto invoice = makeInvoice();
  EXPECT_EQ(repository.save(*invoice), Result::Done);
  EXPECT_EQ(invoice->getId(), 1);
  EXPECT_EQ(invoice->getVersion(), 1);
  EXPECT_EQ(database.rows("select * from t_invoice"),
            (Rows{{"1", "N/1", "101", "150", "NULL", "O'Brien \"%id\"", "2024-01-02", "1"}}));
  EXPECT_EQ(database.rows("select * from t_invoiceitem"),
            (Rows{{"1", "1", "1", "one", "1", "3", "2.5", "kg", "10.00", "NULL"},
                  {"2", "1", "2", "two", "1", "3", "2.5", "kg", "10.00", "NULL"}}));
}

TEST_F(InvoiceRepositorySaveTest, letsPlugInsSaveOnceTheItemHasItsKey) {
  const auto invoice = makeInvoice();
  EXPECT_EQ(repository.save(*invoice), Result::Done);
  EXPECT_EQ(log, (Log{"p.save 1", "p.save 2"}));
  EXPECT_EQ(database.rows("select t_invoiceitem_1, value from t_data"), (Rows{{"1", "one"}, {"2", "two"}}));
}

TEST_F(InvoiceRepositorySaveTest, asksOnlyPlugInsThatAcceptTheClass) {
  plugin->accepted = &Invoice::metaClass;
  const auto invoice = makeInvoice();
  EXPECT_EQ(repository.save(*invoice), Result::Done);
  EXPECT_TRUE(log.empty());
}

TEST_F(InvoiceRepositorySaveTest, isOneTransaction) {
  const auto invoice = makeInvoice();
  const RecordingObserver recorder(database.handle());
  EXPECT_EQ(repository.save(*invoice), Result::Done);
  EXPECT_EQ(recorder.records().front().sql, "begin immediate");
  EXPECT_EQ(recorder.records().back().sql, "commit");
  EXPECT_EQ(recorder.count("begin"), 1);
  EXPECT_EQ(recorder.count("commit"), 1);
}

TEST_F(InvoiceRepositorySaveTest, updatesWhatIsStored) {
  const auto invoice = makeInvoice();
  EXPECT_EQ(repository.save(*invoice), Result::Done);
  const std::string before = database.dump();
  EXPECT_EQ(repository.save(*invoice), Result::Done);
  EXPECT_EQ(invoice->getVersion(), 2);
  database.exec("update t_invoice set version=1");
  database.exec("update t_data set t_data_id=t_invoiceitem_1");
  EXPECT_EQ(database.dump(), before);
}

TEST_F(InvoiceRepositorySaveTest, storesChangesAdditionsAndRemovals) {
  const auto invoice = makeInvoice({"one", "two", "three"});
  EXPECT_EQ(repository.save(*invoice), Result::Done);
  invoice->setNumber("N/2");
  invoice->getItems()[2]->setName("changed");
  invoice->removeItem(0);
  appendItem(*invoice, "four");
  appendItem(*invoice, "never stored");
  invoice->removeItem(3);
  log.clear();
  EXPECT_EQ(repository.save(*invoice), Result::Done);
  EXPECT_EQ(log, (Log{"p.del 1", "p.save 2", "p.save 3", "p.save 4"}));
  EXPECT_EQ(database.rows("select t_invoiceitem_id, position, name from t_invoiceitem"),
            (Rows{{"2", "1", "two"}, {"3", "2", "changed"}, {"4", "3", "four"}}));
  EXPECT_EQ(database.rows("select t_invoiceitem_1, value from t_data order by 1"),
            (Rows{{"2", "two"}, {"3", "changed"}, {"4", "four"}}));
  EXPECT_EQ(invoice->getRemovedItems().no(), 0);
  EXPECT_EQ(database.text("select number from t_invoice"), "N/2");
}

TEST_F(InvoiceRepositorySaveTest, leavesOtherInvoicesAlone) {
  const auto first = makeInvoice();
  const auto second = makeInvoice({"three"});
  EXPECT_EQ(repository.save(*first), Result::Done);
  EXPECT_EQ(repository.save(*second), Result::Done);
  first->setNumber("changed");
  first->getItems()[0]->setName("changed");
  EXPECT_EQ(repository.save(*first), Result::Done);
  EXPECT_EQ(database.rows("select number, version from t_invoice"), (Rows{{"changed", "2"}, {"N/1", "1"}}));
  EXPECT_EQ(database.text("select name from t_invoiceitem where t_invoice_1=2"), "three");
}

TEST_F(InvoiceRepositorySaveTest, storesAnInvoiceWithoutItems) {
  const auto invoice = makeInvoice({});
  EXPECT_EQ(repository.save(*invoice), Result::Done);
  EXPECT_EQ(database.text("select count(*) from t_invoice"), "1");
  EXPECT_EQ(database.text("select count(*) from t_invoiceitem"), "0");
}

TEST_F(InvoiceRepositorySaveTest, refusesClosedAndCancelledInvoices) {
  const auto invoice = makeInvoice();
  EXPECT_EQ(repository.save(*invoice), Result::Done);
  const std::string before = database.dump();
  for (const int status : {Brontel::STATUS_CLOSED, Brontel::STATUS_STORNO}) {
    invoice->setStatus(status);
    invoice->setNumber("changed");
    EXPECT_EQ(repository.save(*invoice), Result::ReadOnly);
    EXPECT_EQ(database.dump(), before);
  }
}

TEST_F(InvoiceRepositorySaveTest, keepsReferencesOfADerivedInvoiceAndEndsItsMode) {
  const auto source = makeInvoice();
  EXPECT_EQ(repository.save(*source), Result::Done);
  const std::unique_ptr<Invoice> derived(source->derive());
  log.clear();
  repository.loadPluginData(*derived);
  EXPECT_EQ(log, (Log{"p.load 0", "p.load 0"}));
  EXPECT_EQ(repository.save(*derived), Result::Done);
  EXPECT_EQ(database.rows("select t_invoice_id, t_invoice_1 from t_invoice"), (Rows{{"1", "NULL"}, {"2", "1"}}));
  EXPECT_EQ(database.rows("select t_invoiceitem_id, t_invoiceitem_1 from t_invoiceitem where t_invoice_1=2"),
            (Rows{{"3", "1"}, {"4", "2"}}));
  EXPECT_EQ(derived->getItems()[0]->getReferenceMode(), 0);
  EXPECT_EQ(derived->getItems()[0]->getReferencedItemId(), 1);
  EXPECT_EQ(repository.save(*derived), Result::Done);
  EXPECT_EQ(load(2)->getItems()[1]->getReferencedItemId(), 2);
  EXPECT_EQ(load(2)->getReferencedInvoiceId(), 1);
}

TEST_F(InvoiceRepositorySaveTest, storesACopyAsANewInvoice) {
  const auto source = makeInvoice();
  EXPECT_EQ(repository.save(*source), Result::Done);
  const std::unique_ptr<Invoice> copy(source->copy());
  EXPECT_EQ(repository.save(*copy), Result::Done);
  EXPECT_EQ(copy->getId(), 2);
  EXPECT_EQ(database.text("select count(*) from t_invoiceitem where t_invoiceitem_1 is null"), "4");
}

TEST_F(InvoiceRepositorySaveTest, failsWhenTheEngineGivesNoKeyThatFits) {
  database.exec("insert into t_invoice (t_invoice_id) values (2147483647)");
  const std::string before = database.dump();
  const auto invoice = makeInvoice();
  EXPECT_EQ(repository.save(*invoice), Result::Failed);
  EXPECT_EQ(invoice->getId(), 0);
  EXPECT_EQ(database.dump(), before);
  database.exec("delete from t_invoice");
  EXPECT_EQ(repository.save(*invoice), Result::Done);
  database.exec("insert into t_invoiceitem (t_invoiceitem_id, t_invoice_1) values (2147483647, 1)");
  appendItem(*invoice, "three");
  EXPECT_EQ(repository.save(*invoice), Result::Failed);
  EXPECT_EQ(invoice->getItems()[2]->getId(), 0);
}

TEST_F(InvoiceRepositorySaveTest, isReadBackAsItWas) {
  const auto invoice = makeInvoice();
  EXPECT_EQ(repository.save(*invoice), Result::Done);
  const auto loaded = load(1);
  EXPECT_STREQ(loaded->getPartner().text(), "O'Brien \"%id\"");
  EXPECT_EQ(loaded->getVersion(), 1);
  ASSERT_EQ(loaded->getItems().no(), 2);
  EXPECT_STREQ(loaded->getItems()[1]->getQuantity().toString().text(), "2.5");
  EXPECT_EQ(loaded->getItems()[1]->getInvoice(), loaded.get());
  loaded->setNumber("N/3");
  EXPECT_EQ(repository.save(*loaded), Result::Done);
  EXPECT_EQ(database.rows("select number, version from t_invoice"), (Rows{{"N/3", "2"}}));
}
