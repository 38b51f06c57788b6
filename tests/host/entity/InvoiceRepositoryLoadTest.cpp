#include "tests/host/entity/RepositoryFixture.h"
#include "tests/support/FaultObserver.h"
#include "tests/support/FileConnection.h"
#include "tests/support/RecordingObserver.h"

using Brontel::Invoice;

namespace {

using Log = RecordingEntityPlugin::Log;

class InvoiceRepositoryLoadTest : public InvoiceRepositoryTest {
 protected:
  InvoiceRepositoryLoadTest() {
    EXPECT_EQ(repository.save(*makeInvoice()), Result::Done);
    log.clear();
  }

  void expectNone(int id, Result expected) {
    Result result = Result::Done;
    EXPECT_EQ(repository.load(id, result), nullptr);
    EXPECT_EQ(result, expected);
  }
};

}  // namespace

TEST_F(InvoiceRepositoryLoadTest, findsNoInvoiceUnderAnUnknownKey) {
  for (const int id : {0, -1, 2, 2147483647}) expectNone(id, Result::NotFound);
  EXPECT_EQ(database->getFailures(), 0);
}

TEST_F(InvoiceRepositoryLoadTest, readsItemsByPositionAndThenByKey) {
  database.exec("insert into t_invoiceitem (t_invoice_1, position, name) values (1, 1, 'three'), (1, null, 'four')");
  const auto invoice = load(1);
  std::string names;
  for (int i = 0; i < invoice->getItems().no(); ++i)
    names += std::string(invoice->getItems()[i]->getName().text()) + " ";
  EXPECT_EQ(names, "four one three two ");
}

TEST_F(InvoiceRepositoryLoadTest, letsPlugInsLoadEachItemOnceItIsThere) {
  load(1);
  EXPECT_EQ(log, (Log{"p.load 1", "p.load 2"}));
}

TEST_F(InvoiceRepositoryLoadTest, givesANewObjectEachTime) {
  const auto first = load(1);
  const auto second = load(1);
  EXPECT_NE(first, second);
  EXPECT_NE(first->getItems()[0], second->getItems()[0]);
  EXPECT_EQ(first->getItems()[0]->getReferenceMode(), 0);
}

TEST_F(InvoiceRepositoryLoadTest, readsOneStateOfTheDatabase) {
  const RecordingObserver recorder(database.handle());
  load(1);
  EXPECT_EQ(recorder.records().front().sql, "begin");
  EXPECT_EQ(recorder.count("begin"), 1);
  EXPECT_EQ(recorder.count("select"), 2);
  // Nothing is left open that would keep another program from writing.
  FileConnection(database.path()).exec("begin exclusive; commit");
}

TEST_F(InvoiceRepositoryLoadTest, letsPlugInsReadOneStateForANewInvoiceToo) {
  const auto invoice = makeInvoice();
  log.clear();
  {
    const RecordingObserver recorder(database.handle());
    repository.loadPluginData(*invoice);
    EXPECT_EQ(recorder.texts(), std::vector<std::string>{"begin"});
  }
  EXPECT_EQ(log, (std::vector<std::string>{"p.load 0", "p.load 0"}));
  // Nothing is held once it is done.
  FileConnection(database.path()).exec("begin exclusive; commit");
}

TEST_F(InvoiceRepositoryLoadTest, handsNothingOutThatItCouldNotReadInFull) {
  int faults = 1;
  for (int number = 1; faults > 0; ++number) {
    const FaultObserver fault(database.handle(), number);
    Result result = Result::Done;
    const auto invoice = repository.load(1, result);
    faults = fault.faults();
    EXPECT_EQ(result, faults > 0 ? Result::Failed : Result::Done) << number;
    EXPECT_EQ(invoice == nullptr, faults > 0) << number;
  }
}

TEST_F(InvoiceRepositoryLoadTest, failsWithoutTables) {
  database.exec("drop table t_data");
  database.exec("drop table t_invoiceitem");
  expectNone(1, Result::Failed);
  database.exec("drop table t_invoice");
  expectNone(1, Result::Failed);
  database->close();
  expectNone(1, Result::Failed);
}

TEST_F(InvoiceRepositoryLoadTest, readsARowOfAnOlderVersion) {
  database.exec("insert into t_invoice (t_invoice_id) values (9)");
  const auto invoice = load(9);
  EXPECT_STREQ(invoice->getDisplayText().text(), "#9");
  EXPECT_EQ(invoice->getVersion(), 0);
  EXPECT_FALSE(invoice->isStatusClosed());
  EXPECT_EQ(repository.save(*invoice), Result::Done);
  EXPECT_EQ(database.text("select version from t_invoice where t_invoice_id=9"), "1");
}
