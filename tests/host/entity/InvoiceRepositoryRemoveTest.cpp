#include "tests/host/entity/RepositoryFixture.h"
#include "tests/support/FaultObserver.h"

using Brontel::Invoice;

namespace {

class InvoiceRepositoryRemoveTest : public InvoiceRepositoryTest {
 protected:
  InvoiceRepositoryRemoveTest() {
    EXPECT_EQ(repository.save(*makeInvoice()), Result::Done);
    EXPECT_EQ(repository.save(*makeInvoice({"other"})), Result::Done);
    invoice = load(1);
  }

  std::unique_ptr<Invoice> invoice;
};

}  // namespace

TEST_F(InvoiceRepositoryRemoveTest, takesItemsAndDataAlongAndLeavesOthers) {
  EXPECT_EQ(repository.remove(*invoice), Result::Done);
  EXPECT_EQ(database.text("select group_concat(t_invoice_id) from t_invoice"), "2");
  EXPECT_EQ(database.text("select group_concat(name) from t_invoiceitem"), "other");
  EXPECT_EQ(database.text("select group_concat(value) from t_data"), "other");
  EXPECT_EQ(repository.remove(*invoice), Result::Overtaken);
}

TEST_F(InvoiceRepositoryRemoveTest, tellsThePlugInsOfEachItemFirst) {
  log.clear();
  invoice->removeItem(0);
  EXPECT_EQ(repository.remove(*invoice), Result::Done);
  EXPECT_EQ(log.size(), 2u);
  EXPECT_EQ(database.text("select count(*) from t_invoiceitem where t_invoice_1=1"), "0");
}

TEST_F(InvoiceRepositoryRemoveTest, leavesAnInvoiceThatRefersToIt) {
  const std::unique_ptr<Invoice> derived(invoice->derive());
  EXPECT_EQ(repository.save(*derived), Result::Done);
  EXPECT_EQ(repository.remove(*invoice), Result::Done);
  EXPECT_EQ(database.text("select t_invoice_1 from t_invoice where t_invoice_id=3"), "NULL");
  EXPECT_EQ(database.text("select count(*) from t_invoiceitem where t_invoice_1=3 and t_invoiceitem_1 is null"), "2");
}

TEST_F(InvoiceRepositoryRemoveTest, refusesClosedAndCancelledInvoices) {
  EXPECT_EQ(repository.changeStatus(*invoice, Brontel::STATUS_CLOSED), Result::Done);
  const std::string before = database.dump();
  EXPECT_EQ(repository.remove(*invoice), Result::ReadOnly);
  invoice->setStatus(Brontel::STATUS_STORNO);
  EXPECT_EQ(repository.remove(*invoice), Result::ReadOnly);
  EXPECT_EQ(database.dump(), before);
}

TEST_F(InvoiceRepositoryRemoveTest, refusesWhatSomebodyElseHasSavedMeanwhile) {
  EXPECT_EQ(repository.save(*load(1)), Result::Done);
  const std::string before = database.dump();
  EXPECT_EQ(repository.remove(*invoice), Result::Overtaken);
  EXPECT_EQ(database.dump(), before);
}

TEST_F(InvoiceRepositoryRemoveTest, removesAllOrNothing) {
  const std::string before = database.dump();
  int number = 0;
  for (bool met = true; met;) {
    const FaultObserver fault(database.handle(), ++number);
    const Result result = repository.remove(*invoice);
    met = fault.faults() > 0;
    if (!met) {
      EXPECT_EQ(result, Result::Done);
      break;
    }
    EXPECT_EQ(result, Result::Failed) << number;
    EXPECT_EQ(database.dump(), before) << number;
  }
  EXPECT_GT(number, 3);
}
