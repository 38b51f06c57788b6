#include <chrono>
#include <thread>
#include <type_traits>

#include <gtest/gtest.h>

#include "host/database/Transaction.h"
#include "tests/support/FileConnection.h"
#include "tests/support/RecordingObserver.h"
#include "tests/support/TestDatabase.h"

using Brontel::Database::ErrorKind;
using Brontel::Database::Transaction;

namespace {

class TransactionTest : public ::testing::Test {
 protected:
  TransactionTest() { database.exec("create table t (a unique)"); }

  bool insert(int value) { return database->run("insert into t values (" + FX::FXStringVal(value) + ")"); }
  std::string stored() const {
    return database.text("select ifnull(group_concat(a), '') from (select a from t order by a)");
  }

  TestDatabase database;
};

}  // namespace

TEST_F(TransactionTest, keepsWhatIsCommitted) {
  Transaction transaction(database.handle());
  EXPECT_TRUE(transaction.isOpen());
  EXPECT_TRUE(insert(1));
  EXPECT_EQ(stored(), "");
  EXPECT_TRUE(transaction.commit());
  EXPECT_FALSE(transaction.isOpen());
  EXPECT_EQ(stored(), "1");
}

TEST_F(TransactionTest, rollsBackWhatIsNot) {
  {
    const Transaction transaction(database.handle());
    EXPECT_TRUE(insert(1));
  }
  EXPECT_EQ(stored(), "");
  Transaction transaction(database.handle());
  EXPECT_TRUE(insert(2));
  transaction.rollback();
  EXPECT_FALSE(transaction.isOpen());
  EXPECT_TRUE(insert(3));
  EXPECT_EQ(stored(), "3");
}

TEST_F(TransactionTest, endsOnce) {
  Transaction transaction(database.handle());
  EXPECT_TRUE(insert(1));
  EXPECT_TRUE(transaction.commit());
  EXPECT_FALSE(transaction.commit());
  transaction.rollback();
  EXPECT_TRUE(insert(2));
  EXPECT_EQ(stored(), "1,2");
  Transaction other(database.handle());
  other.rollback();
  other.rollback();
  EXPECT_FALSE(other.commit());
  EXPECT_TRUE(insert(3));
  EXPECT_EQ(stored(), "1,2,3");
  EXPECT_FALSE(std::is_copy_constructible_v<Transaction>);
}

TEST_F(TransactionTest, refusesToCommitAfterAFailure) {
  Transaction transaction(database.handle());
  EXPECT_TRUE(insert(1));
  EXPECT_FALSE(insert(1));
  EXPECT_TRUE(insert(2));
  EXPECT_FALSE(transaction.commit());
  EXPECT_FALSE(transaction.isOpen());
  EXPECT_EQ(stored(), "");
  EXPECT_EQ(database->getLastError().kind, ErrorKind::Constraint);
}

TEST_F(TransactionTest, refusesToCommitAfterAFailureThatTheHostHasNoted) {
  Transaction transaction(database.handle());
  EXPECT_TRUE(insert(1));
  database->fail(ErrorKind::Other, "not so");
  EXPECT_FALSE(transaction.commit());
  EXPECT_EQ(stored(), "");
}

TEST_F(TransactionTest, ignoresFailuresFromBefore) {
  EXPECT_FALSE(database->run("nonsense"));
  Transaction transaction(database.handle());
  EXPECT_TRUE(insert(1));
  EXPECT_TRUE(transaction.commit());
  EXPECT_EQ(stored(), "1");
}

TEST_F(TransactionTest, nestsAndGoesAsAWhole) {
  {
    const Transaction outer(database.handle());
    EXPECT_TRUE(insert(1));
    Transaction inner(database.handle());
    EXPECT_TRUE(insert(2));
    EXPECT_TRUE(inner.commit());
  }
  EXPECT_EQ(stored(), "");
  Transaction outer(database.handle());
  EXPECT_TRUE(insert(1));
  {
    Transaction inner(database.handle());
    EXPECT_TRUE(insert(2));
    {
      Transaction innermost(database.handle());
      EXPECT_TRUE(insert(3));
      EXPECT_TRUE(innermost.commit());
    }
    EXPECT_TRUE(inner.commit());
  }
  EXPECT_EQ(stored(), "");
  EXPECT_TRUE(outer.commit());
  EXPECT_EQ(stored(), "1,2,3");
}

TEST_F(TransactionTest, takesTheFailuresOfARolledBackInnerOneBack) {
  Transaction outer(database.handle());
  EXPECT_TRUE(insert(1));
  {
    Transaction inner(database.handle());
    EXPECT_TRUE(insert(2));
    EXPECT_FALSE(insert(1));
    EXPECT_FALSE(inner.commit());
  }
  EXPECT_EQ(database->getFailures(), 0);
  EXPECT_TRUE(insert(3));
  EXPECT_TRUE(outer.commit());
  EXPECT_EQ(stored(), "1,3");
}

TEST_F(TransactionTest, keepsTheOuterFailureThatHappenedBeforeTheInnerOne) {
  Transaction outer(database.handle());
  EXPECT_TRUE(insert(1));
  EXPECT_FALSE(insert(1));
  {
    Transaction inner(database.handle());
    EXPECT_TRUE(insert(2));
    EXPECT_TRUE(inner.commit());
  }
  EXPECT_FALSE(outer.commit());
  EXPECT_EQ(stored(), "");
}

TEST_F(TransactionTest, canBeRepeatedAfterARollback) {
  for (int run = 0; run < 3; ++run) {
    Transaction outer(database.handle());
    Transaction inner(database.handle());
    EXPECT_TRUE(insert(run));
    if (run == 2) {
      EXPECT_TRUE(inner.commit());
      EXPECT_TRUE(outer.commit());
    }
  }
  EXPECT_EQ(stored(), "2");
}

TEST_F(TransactionTest, takesTheWriteLockAtOnceOrOnlyReads) {
  const RecordingObserver recorder(database.handle());
  { const Transaction write(database.handle()); }
  { const Transaction read(database.handle(), Transaction::Kind::Read); }
  EXPECT_EQ(recorder.texts(), (std::vector<std::string>{"begin immediate", "begin"}));
}

TEST_F(TransactionTest, seesOneStateThroughoutWhileItReads) {
  Transaction transaction(database.handle(), Transaction::Kind::Read);
  EXPECT_EQ(database->queryInt("select count(*) from t", 1, -1), 0);
  std::thread writer(
      [this] { FileConnection(database.path()).exec("pragma busy_timeout=20000; insert into t values (1)"); });
  std::this_thread::sleep_for(std::chrono::milliseconds(100));
  EXPECT_EQ(database->queryInt("select count(*) from t", 1, -1), 0);
  transaction.rollback();
  writer.join();
  EXPECT_EQ(database->queryInt("select count(*) from t", 1, -1), 1);
}

TEST_F(TransactionTest, doesNotOpenInsideOneThatItDoesNotKnow) {
  database.exec("begin");
  {
    Transaction transaction(database.handle());
    EXPECT_FALSE(transaction.isOpen());
    EXPECT_TRUE(insert(1));
  }
  database.exec("commit");
  EXPECT_EQ(stored(), "1");
}
