#include <gtest/gtest.h>

#include "host/database/NextId.h"
#include "tests/support/TestDatabase.h"

namespace {

class NextIdTest : public ::testing::Test {
 protected:
  NextIdTest() {
    database.exec("create table t_variable (t_variable_id integer primary key, name text)");
    database.exec("create table t_data (t_data_id integer primary key, t_variable_1 integer)");
    database.exec("create table t_goods (t_goods_id integer primary key, T_Variable_1 integer, t_variable_10 integer)");
  }

  int next() { return database->nextId("t_variable"); }

  TestDatabase database;
};

}  // namespace

TEST_F(NextIdTest, startsAtOne) {
  EXPECT_EQ(next(), 1);
}

TEST_F(NextIdTest, isNeverZeroOrNegative) {
  database.exec("insert into t_variable (t_variable_id) values (-1)");
  EXPECT_EQ(next(), 1);
  database.exec("insert into t_data (t_variable_1) values (-5), (0), (null)");
  EXPECT_EQ(next(), 1);
}

TEST_F(NextIdTest, isAboveEveryKey) {
  database.exec("insert into t_variable (t_variable_id) values (-1), (3), (9)");
  EXPECT_EQ(next(), 10);
}

TEST_F(NextIdTest, isAboveWhatIsStillReferredTo) {
  database.exec("insert into t_variable (t_variable_id) values (5)");
  database.exec("insert into t_data (t_variable_1) values (5), (null)");
  database.exec("delete from t_variable");
  EXPECT_EQ(next(), 6);
  database.exec("insert into t_goods (t_variable_1) values (20)");
  EXPECT_EQ(next(), 21);
}

TEST_F(NextIdTest, readsReferencesToThisTableOnly) {
  database.exec("insert into t_goods (t_variable_10) values (99)");
  EXPECT_EQ(next(), 1);
}

TEST_F(NextIdTest, changesNothing) {
  const std::string before = database.dump();
  EXPECT_EQ(next(), 1);
  EXPECT_EQ(next(), 1);
  EXPECT_EQ(database.dump(), before);
}

TEST_F(NextIdTest, ignoresValuesThatAreNoIntegers) {
  database.exec("insert into t_data (t_variable_1) values ('zzz'), (7.5), (x'ff')");
  EXPECT_EQ(next(), 1);
}

TEST_F(NextIdTest, failsWithoutTheTable) {
  EXPECT_EQ(database->nextId("missing"), 0);
  EXPECT_EQ(database->nextId(""), 0);
  EXPECT_EQ(database->nextId("t_variable; drop table t_data"), 0);
  EXPECT_EQ(database->getFailures(), 3);
  EXPECT_EQ(database.text("select count(*) from t_data"), "0");
}

TEST_F(NextIdTest, failsWhenNoKeyIsLeft) {
  database.exec("insert into t_variable (t_variable_id) values (2147483647)");
  EXPECT_EQ(next(), 0);
  EXPECT_EQ(database->getFailures(), 1);
  EXPECT_FALSE(database->getLastError().message.empty());
}

TEST_F(NextIdTest, takesAnyTableName) {
  database.exec("create table \"a\"\"b\" (\"a\"\"b_id\" integer primary key)");
  database.exec("create table \"of\"\"it\" (\"a\"\"b_1\" integer)");
  database.exec("insert into \"of\"\"it\" values (4)");
  EXPECT_EQ(database->nextId("a\"b"), 5);
}
