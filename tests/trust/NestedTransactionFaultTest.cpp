// Memory runs out in a transaction inside another.

#include <set>

#include <gtest/gtest.h>

#include "host/database/Transaction.h"
#include "tests/support/TestDatabase.h"
#include "tests/trust/AllocationFault.h"

using Brontel::Database::Transaction;
using Mode = AllocationFault::Mode;

namespace {

class NestedTransactionFaultTest : public ::testing::Test {
 protected:
  NestedTransactionFaultTest() { database.exec("create table t (a)"); }

  bool insert(int value) { return database->run("insert into t values (" + FX::FXStringVal(value) + ")"); }

  /// 1, then 2 and 3 in an inner transaction that is given up or may fail, then 4.
  bool write(bool keepsInner) {
    Transaction outer(database.handle());
    if (!outer.isOpen()) return false;
    insert(1);
    {
      Transaction inner(database.handle());
      insert(2);
      insert(3);
      if (keepsInner) inner.commit();
    }
    insert(4);
    return outer.commit();
  }

  long writeWithFault(long number, Mode mode, bool keepsInner) {
    database->close();
    EXPECT_TRUE(database->open(database.path().c_str(), MorvaneDatabase::OpenMode::Existing));
    bool done = false;
    long faults = 0;
    {
      const AllocationFault fault(number, mode);
      done = write(keepsInner);
      faults = AllocationFault::faults();
    }
    const std::string stored = database.text("select ifnull(group_concat(a), '') from (select a from t order by a)");
    EXPECT_EQ(done, !stored.empty()) << number;
    outcomes.insert(stored);
    database.exec("delete from t");
    return faults;
  }

  void writeWithEveryFault(bool keepsInner) {
    for (const Mode mode : {Mode::Once, Mode::FromThenOn}) {
      long number = 1;
      while (!HasFailure() && writeWithFault(number, mode, keepsInner) > 0) ++number;
      EXPECT_GT(number, 20);
    }
  }

  TestDatabase database;
  std::set<std::string> outcomes;
};

}  // namespace

TEST_F(NestedTransactionFaultTest, anInnerOneIsThereAsAWholeOrNotAtAll) {
  writeWithEveryFault(true);
  EXPECT_EQ(outcomes, (std::set<std::string>{"", "1,4", "1,2,3,4"}));
}

TEST_F(NestedTransactionFaultTest, anInnerOneThatIsGivenUpIsNeverStored) {
  writeWithEveryFault(false);
  EXPECT_EQ(outcomes, (std::set<std::string>{"", "1,4"}));
}
