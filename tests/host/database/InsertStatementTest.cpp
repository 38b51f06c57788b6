#include <gtest/gtest.h>

#include "host/database/InsertStatement.h"
#include "tests/support/RecordingObserver.h"
#include "tests/support/TestDatabase.h"

namespace {

using Rows = std::vector<std::vector<std::string>>;

class InsertStatementTest : public ::testing::Test {
 protected:
  InsertStatementTest() { database.exec("create table t (t_id integer primary key, a text, b integer, c, \"row\")"); }

  TestDatabase database;
};

}  // namespace

TEST_F(InsertStatementTest, fillsExactlyTheBoundColumns) {
  InsertStatement insert(database.get(), "t");
  insert.setInt("row", 5);
  insert.setString("a", "x");
  EXPECT_EQ(insert.execute(nullptr, 1), 1);
  EXPECT_EQ(database.rows("select * from t"), (Rows{{"1", "x", "NULL", "NULL", "5"}}));
  EXPECT_EQ(database->lastInsertId(), 1);
}

TEST_F(InsertStatementTest, namesColumnsInBindingOrder) {
  const RecordingObserver recorder(database.handle());
  InsertStatement insert(database.get(), "t");
  insert.setInt("c", 1);
  insert.setString("a", "x");
  insert.setInt("c", 2);
  insert.execute(nullptr, 1);
  EXPECT_EQ(recorder.texts(), std::vector<std::string>{"insert into \"t\" (\"c\",\"a\") values (%c,%a) [c=2, a='x']"});
}

TEST_F(InsertStatementTest, takesTheKeyThatIsBoundOrANewOne) {
  InsertStatement insert(database.get(), "t");
  insert.setInt("t_id", -1);
  EXPECT_EQ(insert.execute(nullptr, 1), 1);
  insert.setInt("t_id", 40);
  EXPECT_EQ(insert.execute(nullptr, 1), 1);
  insert.setString("a", "x");
  EXPECT_EQ(insert.execute(nullptr, 1), 1);
  EXPECT_EQ(database.rows("select t_id, a from t"), (Rows{{"-1", "NULL"}, {"40", "NULL"}, {"41", "x"}}));
}

TEST_F(InsertStatementTest, refusesAKeyThatIsTaken) {
  database.exec("insert into t (t_id, a) values (1, 'old')");
  InsertStatement insert(database.get(), "t");
  insert.setInt("t_id", 1);
  insert.setString("a", "new");
  EXPECT_EQ(insert.execute(nullptr, 1), 0);
  EXPECT_EQ(database->getLastError().kind, Brontel::Database::ErrorKind::Constraint);
  EXPECT_EQ(database.rows("select t_id, a from t"), (Rows{{"1", "old"}}));
}

TEST_F(InsertStatementTest, insertsARowOfDefaultsWhenNothingIsBound) {
  InsertStatement insert(database.get(), "t");
  EXPECT_EQ(insert.execute(nullptr, 1), 1);
  EXPECT_EQ(database.rows("select * from t"), (Rows{{"1", "NULL", "NULL", "NULL", "NULL"}}));
}

TEST_F(InsertStatementTest, refusesNamesThatAreNoColumns) {
  for (const char* name : {"missing", "a b", "", "a) values (1); drop table t; --", "a\"", "%a", "ő"}) {
    InsertStatement insert(database.get(), "t");
    insert.setInt(name, 1);
    EXPECT_EQ(insert.execute(nullptr, 1), 0) << name;
  }
  InsertStatement missing(database.get(), "missing");
  missing.setInt("a", 1);
  EXPECT_EQ(missing.execute(nullptr, 1), 0);
  EXPECT_EQ(database.text("select count(*) from t"), "0");
}

TEST_F(InsertStatementTest, takesAnyTableName) {
  database.exec("create table \"odd \"\"%name\" (a)");
  InsertStatement insert(database.get(), "odd \"%name");
  insert.setInt("a", 1);
  EXPECT_EQ(insert.execute(nullptr, 1), 1);
  EXPECT_EQ(database.text("select a from \"odd \"\"%name\""), "1");
}
