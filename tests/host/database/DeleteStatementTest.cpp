#include <gtest/gtest.h>

#include "host/database/DeleteStatement.h"
#include "tests/support/TestDatabase.h"

namespace {

using Rows = std::vector<std::vector<std::string>>;

class DeleteStatementTest : public ::testing::Test {
 protected:
  DeleteStatementTest() {
    database.exec("create table t (t_id integer primary key, a text, b integer)");
    database.exec("insert into t values (1, 'x', 1), (2, 'x', 2), (3, 'y', 2), (4, null, null)");
  }

  TestDatabase database;
};

}  // namespace

TEST_F(DeleteStatementTest, deletesRowsThatMatchAllValues) {
  DeleteStatement statement(database.get(), "t");
  statement.setString("a", "x");
  statement.setInt("b", 2);
  EXPECT_EQ(statement.execute(nullptr, 1), 1);
  EXPECT_EQ(database->changes(), 1);
  EXPECT_EQ(database.rows("select t_id from t"), (Rows{{"1"}, {"3"}, {"4"}}));
}

TEST_F(DeleteStatementTest, deletesEveryMatchingRow) {
  DeleteStatement statement(database.get(), "t");
  statement.setInt("b", 2);
  EXPECT_EQ(statement.execute(nullptr, 1), 1);
  EXPECT_EQ(database.rows("select t_id from t"), (Rows{{"1"}, {"4"}}));
}

TEST_F(DeleteStatementTest, neverEmptiesATableByOversight) {
  DeleteStatement statement(database.get(), "t");
  EXPECT_EQ(statement.execute(nullptr, 1), 0);
  statement.setInt("t_id", 1);
  EXPECT_EQ(statement.execute(nullptr, 1), 1);
  EXPECT_EQ(statement.execute(nullptr, 1), 0);
  EXPECT_EQ(database.text("select count(*) from t"), "3");
}

TEST_F(DeleteStatementTest, refusesNamesThatAreNoColumns) {
  for (const char* name : {"missing", "1 or 1", "", "a\" or 1 --"}) {
    DeleteStatement statement(database.get(), "t");
    statement.setInt(name, 1);
    EXPECT_EQ(statement.execute(nullptr, 1), 0) << name;
  }
  EXPECT_EQ(database.text("select count(*) from t"), "4");
}
