#include "tests/host/entity/RepositoryFixture.h"

// Two people edit one invoice, or one of them twice.

using Brontel::Invoice;

namespace {

class InvoiceRepositoryConflictTest : public InvoiceRepositoryTest {
 protected:
  InvoiceRepositoryConflictTest() {
    EXPECT_EQ(repository.save(*makeInvoice()), Result::Done);
    mine = load(1);
    theirs = load(1);
  }

  std::unique_ptr<Invoice> mine;
  std::unique_ptr<Invoice> theirs;
};

}  // namespace

TEST_F(InvoiceRepositoryConflictTest, theSecondSaveIsRefusedAndLosesNothing) {
  theirs->setNumber("theirs");
  EXPECT_EQ(repository.save(*theirs), Result::Done);
  const std::string before = database.dump();
  mine->setNumber("mine");
  mine->removeItem(0);
  appendItem(*mine, "three");
  EXPECT_EQ(repository.save(*mine), Result::Overtaken);
  EXPECT_EQ(database.dump(), before);
  EXPECT_STREQ(mine->getNumber().text(), "mine");
  EXPECT_EQ(mine->getVersion(), 1);
  EXPECT_EQ(mine->getItems()[1]->getId(), 0);
  EXPECT_EQ(mine->getRemovedItems().no(), 1);
  EXPECT_EQ(repository.save(*mine), Result::Overtaken);
}

TEST_F(InvoiceRepositoryConflictTest, aDeletedInvoiceIsNotSavedAgain) {
  database.exec("delete from t_invoice");
  const std::string before = database.dump();
  EXPECT_EQ(repository.save(*mine), Result::Overtaken);
  EXPECT_EQ(database.dump(), before);
}

TEST_F(InvoiceRepositoryConflictTest, aStatusIsChangedAlone) {
  mine->setNumber("not saved");
  EXPECT_EQ(repository.changeStatus(*mine, Brontel::STATUS_CLOSED), Result::Done);
  EXPECT_TRUE(mine->isStatusClosed());
  EXPECT_EQ(mine->getVersion(), 2);
  EXPECT_EQ(database.text("select number||' '||t_invoicestatus_1||' '||version from t_invoice"), "N/1 151 2");
  EXPECT_EQ(repository.changeStatus(*mine, Brontel::STATUS_STORNO), Result::Done);
  EXPECT_EQ(database.text("select t_invoicestatus_1 from t_invoice"), "152");
}

TEST_F(InvoiceRepositoryConflictTest, anInvoiceThatSomebodyHasClosedIsNotSaved) {
  EXPECT_EQ(repository.changeStatus(*theirs, Brontel::STATUS_CLOSED), Result::Done);
  const std::string before = database.dump();
  mine->setNumber("mine");
  EXPECT_EQ(repository.save(*mine), Result::Overtaken);
  EXPECT_EQ(repository.changeStatus(*mine, Brontel::STATUS_CLOSED), Result::Overtaken);
  EXPECT_FALSE(mine->isStatusClosed());
  EXPECT_EQ(mine->getVersion(), 1);
  EXPECT_EQ(database.dump(), before);
}

TEST_F(InvoiceRepositoryConflictTest, anInvoiceThatWasNeverSavedHasNoStatusToChange) {
  const auto invoice = makeInvoice();
  EXPECT_EQ(repository.changeStatus(*invoice, Brontel::STATUS_CLOSED), Result::Overtaken);
  EXPECT_FALSE(invoice->isStatusClosed());
  EXPECT_EQ(database.text("select count(*) from t_invoice"), "1");
}

TEST_F(InvoiceRepositoryConflictTest, theHandleGoesOnAfterARefusal) {
  EXPECT_EQ(repository.save(*theirs), Result::Done);
  EXPECT_EQ(repository.save(*mine), Result::Overtaken);
  const auto again = load(1);
  again->setNumber("again");
  EXPECT_EQ(repository.save(*again), Result::Done);
  EXPECT_EQ(database.text("select number from t_invoice"), "again");
}
