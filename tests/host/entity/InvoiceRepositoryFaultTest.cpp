#include <functional>

#include "tests/host/entity/RepositoryFixture.h"
#include "tests/support/CollectingErrorSink.h"
#include "tests/support/FaultObserver.h"

// Whichever statement of a save fails: nothing of it is stored, the objects are as before, and the next save stores
// everything once.

using Brontel::Invoice;
using Brontel::InvoiceItem;

namespace {

/// Keys, modes and counts: what a failed save must give back.
std::string stateOf(const Invoice& invoice) {
  std::string state = std::to_string(invoice.getId()) + " v" + std::to_string(invoice.getVersion()) + " removed " +
                      std::to_string(invoice.getRemovedItems().no());
  for (int i = 0; i < invoice.getItems().no(); ++i) {
    const InvoiceItem* item = invoice.getItems()[i];
    state += " " + std::to_string(item->getId()) + "/" + std::to_string(item->getReferenceMode());
  }
  return state;
}

using Prepare = std::function<std::unique_ptr<Invoice>(RepositoryFixture&)>;

std::string dumpAfterSaving(const Prepare& prepare) {
  RepositoryFixture fixture;
  const auto invoice = prepare(fixture);
  EXPECT_EQ(fixture.repository.save(*invoice), RepositoryFixture::Result::Done);
  return fixture.database.dump();
}

void expectWholeOrNothing(const Prepare& prepare, FaultObserver::Mode mode) {
  const std::string whole = dumpAfterSaving(prepare);
  int faults = 1;
  int number = 0;
  while (faults > 0) {
    RepositoryFixture fixture;
    const auto invoice = prepare(fixture);
    const std::string dump = fixture.database.dump();
    const std::string state = stateOf(*invoice);
    ++number;
    auto result = RepositoryFixture::Result::Done;
    {
      const FaultObserver fault(fixture.database.handle(), number, mode);
      result = fixture.repository.save(*invoice);
      faults = fault.faults();
    }
    if (faults > 0) {
      EXPECT_EQ(result, RepositoryFixture::Result::Failed) << number;
      EXPECT_EQ(fixture.database.dump(), dump) << number;
      EXPECT_EQ(stateOf(*invoice), state) << number;
      EXPECT_EQ(fixture.repository.save(*invoice), RepositoryFixture::Result::Done) << number;
    }
    EXPECT_EQ(fixture.database.dump(), whole) << number;
  }
  EXPECT_GE(number, 10);
}

std::unique_ptr<Invoice> prepareNew(RepositoryFixture&) {
  return RepositoryFixture::makeInvoice({"one", "two", "three"});
}

std::unique_ptr<Invoice> prepareChanged(RepositoryFixture& fixture) {
  auto invoice = prepareNew(fixture);
  EXPECT_EQ(fixture.repository.save(*invoice), RepositoryFixture::Result::Done);
  invoice->getItems()[2]->setName("changed");
  invoice->removeItem(0);
  RepositoryFixture::appendItem(*invoice, "four");
  return invoice;
}

std::unique_ptr<Invoice> prepareDerived(RepositoryFixture& fixture) {
  const auto source = prepareNew(fixture);
  EXPECT_EQ(fixture.repository.save(*source), RepositoryFixture::Result::Done);
  return std::unique_ptr<Invoice>(source->derive());
}

class InvoiceRepositoryFaultTest : public InvoiceRepositoryTest {};

}  // namespace

TEST_F(InvoiceRepositoryFaultTest, aNewInvoiceIsStoredAsAWholeOrNotAtAll) {
  expectWholeOrNothing(prepareNew, FaultObserver::Mode::Once);
  expectWholeOrNothing(prepareNew, FaultObserver::Mode::FromThenOn);
}

TEST_F(InvoiceRepositoryFaultTest, changesAreStoredAsAWholeOrNotAtAll) {
  expectWholeOrNothing(prepareChanged, FaultObserver::Mode::Once);
  expectWholeOrNothing(prepareChanged, FaultObserver::Mode::FromThenOn);
}

TEST_F(InvoiceRepositoryFaultTest, aDerivedInvoiceIsStoredAsAWholeOrNotAtAll) {
  expectWholeOrNothing(prepareDerived, FaultObserver::Mode::Once);
  expectWholeOrNothing(prepareDerived, FaultObserver::Mode::FromThenOn);
}

TEST_F(InvoiceRepositoryFaultTest, aStatusIsChangedOrNot) {
  const auto invoice = makeInvoice();
  EXPECT_EQ(repository.save(*invoice), Result::Done);
  const std::string before = database.dump();
  int faults = 1;
  for (int number = 1; faults > 0; ++number) {
    const FaultObserver fault(database.handle(), number);
    const Result result = repository.changeStatus(*invoice, Brontel::STATUS_CLOSED);
    faults = fault.faults();
    EXPECT_EQ(result, faults > 0 ? Result::Failed : Result::Done) << number;
    EXPECT_EQ(invoice->isStatusClosed(), faults == 0) << number;
    EXPECT_EQ(invoice->getVersion(), faults > 0 ? 1 : 2) << number;
    EXPECT_EQ(database.dump() == before, faults > 0) << number;
  }
}

TEST_F(InvoiceRepositoryFaultTest, nothingIsStoredOnItsOwnAfterTheEngineHasRolledBack) {
  database.exec(
      "create trigger ended before insert on t_invoiceitem when new.name='two' begin select raise(rollback,'ended'); "
      "end");
  const std::string before = database.dump();
  const CollectingErrorSink sink(database.handle());
  const auto invoice = makeInvoice({"one", "two", "three"});
  EXPECT_EQ(repository.save(*invoice), Result::Failed);
  EXPECT_EQ(database.dump(), before);
  EXPECT_EQ(stateOf(*invoice), "0 v0 removed 0 0/0 0/0 0/0");
  ASSERT_EQ(sink.errors().size(), 1u);
  EXPECT_STREQ(sink.errors()[0].message.text(), "ended");
  database.exec("drop trigger ended");
  EXPECT_EQ(repository.save(*invoice), Result::Done);
  EXPECT_EQ(database.text("select count(*) from t_invoiceitem"), "3");
}

TEST_F(InvoiceRepositoryFaultTest, nothingIsStoredWhenAPlugInCannotStoreItsData) {
  database.exec("alter table t_data rename to t_gone");
  const std::string before = database.dump();
  const auto invoice = makeInvoice();
  EXPECT_EQ(repository.save(*invoice), Result::Failed);
  EXPECT_EQ(database.dump(), before);
  EXPECT_EQ(stateOf(*invoice), "0 v0 removed 0 0/0 0/0");
}

TEST_F(InvoiceRepositoryFaultTest, nothingIsStoredInAClosedDatabase) {
  const auto invoice = makeInvoice();
  const std::string path = database.path();
  database->close();
  EXPECT_EQ(repository.save(*invoice), Result::Failed);
  EXPECT_EQ(repository.changeStatus(*invoice, Brontel::STATUS_CLOSED), Result::Failed);
  EXPECT_EQ(TestDatabase::textOf(path, "select count(*) from t_invoice"), "0");
  ASSERT_TRUE(database->open(path.c_str(), MorvaneDatabase::OpenMode::Existing));
  EXPECT_EQ(repository.save(*invoice), Result::Done);
}
