#include <set>

#include <gtest/gtest.h>

#include "host/database/Transaction.h"
#include "tests/support/CollectingErrorSink.h"
#include "tests/support/FaultObserver.h"
#include "tests/support/TestDatabase.h"

// Whatever fails, and whenever: the database holds a whole or nothing.

using Brontel::Database::Transaction;

namespace {

class TransactionFaultTest : public ::testing::Test {
 protected:
  TransactionFaultTest() {
    database.exec("create table t (a)");
    // What a full disk or a lost file makes the engine do by itself.
    database.exec("create trigger ended before insert on t when new.a=13 begin select raise(rollback, 'ended'); end");
  }

  bool insert(int value) { return database->run("insert into t values (" + FX::FXStringVal(value) + ")"); }
  std::string stored() const {
    return database.text("select ifnull(group_concat(a), '') from (select a from t order by a)");
  }

  /// 1, then 2 and 3 in an inner transaction that may fail, then 4. Returns what the outer commit returned.
  bool writeNested() {
    Transaction outer(database.handle());
    if (!outer.isOpen()) return false;
    insert(1);
    {
      Transaction inner(database.handle());
      insert(2);
      insert(3);
      inner.commit();
    }
    insert(4);
    return outer.commit();
  }

  void expectFreshTransactionWorks() {
    database.exec("delete from t");
    Transaction transaction(database.handle());
    EXPECT_TRUE(insert(9));
    EXPECT_TRUE(transaction.commit());
    EXPECT_EQ(stored(), "9");
    database.exec("delete from t");
  }

  TestDatabase database;
};

}  // namespace

TEST_F(TransactionFaultTest, storesAWholeOrNothingWhicheverStatementFails) {
  std::set<std::string> outcomes;
  int faults = 1;
  for (int number = 1; faults > 0; ++number) {
    bool done = false;
    {
      const FaultObserver fault(database.handle(), number);
      done = writeNested();
      faults = fault.faults();
    }
    EXPECT_EQ(done, !stored().empty()) << number;
    outcomes.insert(stored());
    expectFreshTransactionWorks();
  }
  EXPECT_EQ(outcomes, (std::set<std::string>{"", "1,4", "1,2,3,4"}));
}

TEST_F(TransactionFaultTest, storesNothingWhenEverythingFailsFromSomeStatementOn) {
  int faults = 1;
  for (int number = 1; faults > 0; ++number) {
    bool done = false;
    {
      const FaultObserver fault(database.handle(), number, FaultObserver::Mode::FromThenOn);
      done = writeNested();
      faults = fault.faults();
    }
    EXPECT_EQ(done, faults == 0) << number;
    EXPECT_EQ(stored(), done ? "1,2,3,4" : "") << number;
    expectFreshTransactionWorks();
  }
}

TEST_F(TransactionFaultTest, storesNothingOnItsOwnAfterTheEngineHasRolledBack) {
  Transaction transaction(database.handle());
  EXPECT_TRUE(insert(1));
  EXPECT_FALSE(insert(13));
  EXPECT_STREQ(database->getLastError().message.text(), "ended");
  EXPECT_FALSE(insert(2));
  EXPECT_EQ(database->queryInt("select 1", 1, -1), -1);
  EXPECT_STREQ(database->getLastError().message.text(), "ended");
  EXPECT_EQ(stored(), "");
  EXPECT_FALSE(transaction.commit());
  EXPECT_EQ(stored(), "");
  EXPECT_TRUE(insert(3));
  EXPECT_EQ(stored(), "3");
  expectFreshTransactionWorks();
}

TEST_F(TransactionFaultTest, storesNothingOfTheOuterOneWhenTheEngineRollsBackInTheInnerOne) {
  Transaction outer(database.handle());
  EXPECT_TRUE(insert(1));
  {
    Transaction inner(database.handle());
    EXPECT_TRUE(insert(2));
    EXPECT_FALSE(insert(13));
    EXPECT_FALSE(inner.commit());
  }
  EXPECT_FALSE(insert(3));
  {
    Transaction second(database.handle());
    EXPECT_FALSE(second.isOpen());
    EXPECT_FALSE(insert(4));
    EXPECT_FALSE(second.commit());
  }
  EXPECT_FALSE(outer.commit());
  EXPECT_EQ(stored(), "");
  expectFreshTransactionWorks();
}

TEST_F(TransactionFaultTest, tellsOfTheEnginesRollbackOnce) {
  const CollectingErrorSink sink(database.handle());
  const Transaction transaction(database.handle());
  EXPECT_FALSE(insert(13));
  for (int i = 0; i < 5; ++i) EXPECT_FALSE(insert(i));
  EXPECT_EQ(sink.errors().size(), 1u);
}

TEST_F(TransactionFaultTest, storesNothingWhenTheDiskIsFull) {
  database.exec("pragma max_page_count=20");
  bool done = true;
  {
    Transaction transaction(database.handle());
    for (int i = 0; i < 100; ++i) database->run("insert into t values (zeroblob(4000))");
    EXPECT_EQ(database->getLastError().kind, Brontel::Database::ErrorKind::Full);
    done = transaction.commit();
  }
  EXPECT_FALSE(done);
  EXPECT_EQ(stored(), "");
  expectFreshTransactionWorks();
}
