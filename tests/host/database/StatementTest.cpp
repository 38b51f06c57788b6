#include <memory>
#include <type_traits>

#include <gtest/gtest.h>

#include "host/database/DeleteStatement.h"
#include "host/database/InsertStatement.h"
#include "host/database/Statement.h"
#include "host/database/UpdateStatement.h"
#include "tests/host/database/RecordingLoader.h"
#include "tests/support/RecordingObserver.h"
#include "tests/support/TestDatabase.h"

namespace {

using Values = std::vector<std::string>;

class StatementTest : public ::testing::Test {
 protected:
  StatementTest() { database.exec("create table t (t_id integer primary key, a text, b integer)"); }

  /// Runs a statement that is ready and returns what it yields.
  static Values valuesOf(Statement& statement) {
    RecordingLoader loader;
    EXPECT_EQ(statement.execute(&loader, 1), 1);
    return loader.values();
  }

  TestDatabase database;
};

}  // namespace

TEST_F(StatementTest, doesNothingWithoutDatabase) {
  Statement none(nullptr, "select 1");
  RecordingLoader loader;
  EXPECT_EQ(none.execute(&loader, 1), 0);
  EXPECT_EQ(none.queryInt(0), 0);
  EXPECT_TRUE(loader.cells.empty());
  InsertStatement insert(nullptr, "t");
  insert.setInt("b", 1);
  EXPECT_EQ(insert.execute(nullptr, 1), 0);
}

TEST_F(StatementTest, doesNothingWithoutText) {
  Statement statement(database.get());
  EXPECT_EQ(statement.execute(nullptr, 1), 0);
  EXPECT_EQ(statement.queryInt(0), 0);
  EXPECT_EQ(database->getFailures(), 0);
}

TEST_F(StatementTest, fillsTheFieldsThatPlugInsReach) {
  const Statement statement(database.get(), "select 1");
  EXPECT_EQ(statement.database, database.get());
  EXPECT_STREQ(statement.sql.text(), "select 1");
  EXPECT_LT(static_cast<const void*>(&statement.database), static_cast<const void*>(&statement.sql));
}

TEST_F(StatementTest, takesItsTextAfterConstructionToo) {
  Statement statement(database.get());
  statement.sql = "select %a";
  statement.setInt("a", 5);
  EXPECT_EQ(valuesOf(statement), Values{"5"});
}

TEST_F(StatementTest, bindsEachNameAtEveryPlaceAndInAnyOrder) {
  const FX::FXString sql = "select %t_1, %t, (select %t_1) as x, %t as y";
  Statement first(database.get(), sql);
  first.setInt("t", 1);
  first.setInt("t_1", 2);
  Statement second(database.get(), sql);
  second.setInt("t_1", 2);
  second.setInt("t", 1);
  EXPECT_EQ(valuesOf(first), (Values{"2", "1", "2", "1"}));
  EXPECT_EQ(valuesOf(second), (Values{"2", "1", "2", "1"}));
}

TEST_F(StatementTest, keepsTheLastValueOfAName) {
  Statement statement(database.get(), "select %a, typeof(%a)");
  statement.setInt("a", 1);
  statement.setString("a", "x");
  EXPECT_EQ(valuesOf(statement), (Values{"x", "text"}));
  statement.setString("a", "x");
  statement.setInt("a", -1);
  EXPECT_EQ(valuesOf(statement), (Values{"-1", "integer"}));
}

TEST_F(StatementTest, bindsIntegersGivenAsText) {
  Statement statement(database.get(), "select %a, typeof(%a)");
  statement.setInt("a", FX::FXString("42"));
  EXPECT_EQ(valuesOf(statement), (Values{"42", "integer"}));
  statement.setInt("a", FX::FXString(" -9000000000"));
  EXPECT_EQ(valuesOf(statement), (Values{"-9000000000", "integer"}));
}

TEST_F(StatementTest, bindsZeroForTextThatIsNoInteger) {
  database.exec("insert into t (t_id, b) values (1, 7)");
  for (const char* text : {"", " ", "abc", "1;drop table t", "1.5", "12x"}) {
    UpdateStatement update(database.get(), "t", "t_id=%t_id");
    update.setInt("t_id", 1);
    update.setInt("b", FX::FXString(text));
    EXPECT_EQ(update.execute(nullptr, 1), 1) << text;
    EXPECT_EQ(database.rows("select t_id, b, typeof(b) from t"), (std::vector<Values>{{"1", "0", "integer"}})) << text;
  }
}

TEST_F(StatementTest, storesHostileTextUnchanged) {
  for (const char* text : {"O'Brien \"%row\" 50%\nő\t\\", "%id", "'; drop table t; --", "?1", "", " ", "\x1d\x01"}) {
    InsertStatement insert(database.get(), "t");
    insert.setInt("t_id", 1);
    insert.setString("a", text);
    EXPECT_EQ(insert.execute(nullptr, 1), 1) << text;
    EXPECT_EQ(database.rows("select a, typeof(a) from t"), (std::vector<Values>{{text, "text"}}));
    Statement find(database.get(), "select count(*) from t where a=%a and t_id=%id");
    find.setString("a", text);
    find.setInt("id", 1);
    EXPECT_EQ(find.queryInt(0), 1);
    database.exec("delete from t");
  }
}

TEST_F(StatementTest, storesLongTextAndTextWithAZeroByte) {
  const FX::FXString zero("a\0b", 3);
  FX::FXString large;
  large.assign('x', 1000000);
  InsertStatement insert(database.get(), "t");
  insert.setString("a", zero);
  EXPECT_EQ(insert.execute(nullptr, 1), 1);
  insert.setString("a", large);
  EXPECT_EQ(insert.execute(nullptr, 1), 1);
  EXPECT_EQ(database.rows("select hex(substr(cast(a as blob),1,4)), length(cast(a as blob)) from t order by t_id"),
            (std::vector<Values>{{"610062", "3"}, {"78787878", "1000000"}}));
}

TEST_F(StatementTest, runsOnceWithoutLoader) {
  Statement insert(database.get(), "insert into t (b) values (1)");
  EXPECT_EQ(insert.execute(nullptr, 1), 1);
  EXPECT_EQ(database.text("select count(*) from t"), "1");
}

TEST_F(StatementTest, deliversColumnAfterColumnAndRowAfterRow) {
  using Cell = RecordingLoader::Cell;
  Statement statement(database.get(), "select 1 as a, 'x' as b, null as c union all select 2, '', 'z'");
  RecordingLoader loader;
  EXPECT_EQ(statement.execute(&loader, 1), 1);
  EXPECT_EQ(loader.cells,
            (std::vector<Cell>{
                {0, "a", "1"}, {1, "b", "x"}, {2, "c", std::nullopt}, {0, "a", "2"}, {1, "b", ""}, {2, "c", "z"}}));
  EXPECT_EQ(loader.getNumRows(), 2);
}

TEST_F(StatementTest, stopsWhenTheLoaderAnswersZero) {
  Statement statement(database.get(), "select 1, 2, 3 union all select 4, 5, 6");
  RecordingLoader loader;
  loader.stopAt = 2;
  EXPECT_EQ(statement.execute(&loader, 1), 1);
  EXPECT_EQ(loader.values(), (Values{"1", "2"}));
  EXPECT_EQ(database->getFailures(), 0);
}

TEST_F(StatementTest, callsNoLoaderWithoutRows) {
  Statement statement(database.get(), "select 1 where 0");
  RecordingLoader loader;
  EXPECT_EQ(statement.execute(&loader, 1), 1);
  EXPECT_TRUE(loader.cells.empty());
  EXPECT_EQ(loader.getNumRows(), 0);
}

TEST_F(StatementTest, queriesOneIntegerOfTheFirstRow) {
  EXPECT_EQ(Statement(database.get(), "select 3, 4 union all select 5, 6").queryInt(0), 3);
  EXPECT_EQ(Statement(database.get(), "select 3, 4 union all select 5, 6").queryInt(1), 4);
}

TEST_F(StatementTest, queriesZeroWhereThereIsNoInteger) {
  for (const char* sql : {"select 1 where 0", "select null", "select 'abc'", "select ''", "nonsense",
                          "select * from missing", "insert into t (b) values (1)"}) {
    EXPECT_EQ(Statement(database.get(), sql).queryInt(0), 0) << sql;
  }
  EXPECT_EQ(Statement(database.get(), "select 3").queryInt(1), 0);
  EXPECT_EQ(Statement(database.get(), "select 3").queryInt(-1), 0);
}

TEST_F(StatementTest, reportsFailureByItsResultOnly) {
  for (const char* sql :
       {"nonsense", "select * from missing", "insert into t (missing) values (1)", "select 1; select 2"}) {
    EXPECT_EQ(Statement(database.get(), sql).execute(nullptr, 1), 0) << sql;
  }
  EXPECT_EQ(database->getFailures(), 4);
  EXPECT_EQ(Statement(database.get(), "select 1").execute(nullptr, 1), 1);
}

TEST_F(StatementTest, usesOnlyWhatWasBoundSinceTheLastExecution) {
  database.exec("insert into t values (1, 'one', 1), (2, 'two', 2)");
  UpdateStatement update(database.get(), "t", "t_id=%t_id");
  update.setInt("t_id", 1);
  update.setString("a", "new");
  update.setInt("b", 10);
  EXPECT_EQ(update.execute(nullptr, 1), 1);
  update.setInt("t_id", 2);
  update.setString("a", "newer");
  EXPECT_EQ(update.execute(nullptr, 1), 1);
  EXPECT_EQ(database.rows("select * from t"), (std::vector<Values>{{"1", "new", "10"}, {"2", "newer", "2"}}));
}

TEST_F(StatementTest, forgetsItsValuesAfterAFailureAndAfterAQueryToo) {
  Statement statement(database.get(), "select * from missing where a=%a");
  statement.setInt("a", 1);
  EXPECT_EQ(statement.execute(nullptr, 1), 0);
  statement.sql = "select %a is null";
  EXPECT_EQ(statement.queryInt(0), 1);
  statement.setInt("a", 1);
  EXPECT_EQ(statement.queryInt(0), 0);
  EXPECT_EQ(statement.queryInt(0), 1);
}

TEST_F(StatementTest, canBeBoundAndRunAgainByItsOwnLoader) {
  Statement statement(database.get(), "select %n");
  RecordingLoader inner;
  RecordingLoader outer;
  outer.onCell = [&] {
    statement.setInt("n", 2);
    EXPECT_EQ(statement.execute(&inner, 1), 1);
  };
  statement.setInt("n", 1);
  EXPECT_EQ(statement.execute(&outer, 1), 1);
  EXPECT_EQ(outer.values(), Values{"1"});
  EXPECT_EQ(inner.values(), Values{"2"});
}

TEST_F(StatementTest, isDeletedThroughItsBase) {
  for (const std::unique_ptr<Statement>& statement :
       {std::unique_ptr<Statement>(new InsertStatement(database.get(), "t")),
        std::unique_ptr<Statement>(new UpdateStatement(database.get(), "t", "t_id=%t_id")),
        std::unique_ptr<Statement>(new DeleteStatement(database.get(), "t"))}) {
    statement->setInt("t_id", 7);
    statement->setString("a", "x");
    EXPECT_EQ(statement->execute(nullptr, 1), 1);
  }
  EXPECT_TRUE(std::has_virtual_destructor_v<Statement>);
  EXPECT_FALSE(std::is_copy_constructible_v<Statement>);
  EXPECT_EQ(database.text("select count(*) from t"), "0");
}

TEST_F(StatementTest, takesANameAsEitherKindOfText) {
  Statement statement(database.get(), "select %a, %b");
  statement.setInt(FX::FXString("a"), 1);
  statement.setInt("a", 2);
  statement.setString("b", "x");
  statement.setString(FX::FXString("b"), "y");
  EXPECT_EQ(valuesOf(statement), (Values{"2", "y"}));
}

TEST_F(StatementTest, takesNoNameForAnEmptyOne) {
  InsertStatement insert(database.get(), "t");
  insert.setInt(static_cast<const char*>(nullptr), 1);
  EXPECT_EQ(insert.execute(nullptr, 1), 0);
  EXPECT_EQ(database.text("select count(*) from t"), "0");
}

TEST_F(StatementTest, hasNothingOfWhatAnotherOneHasBound) {
  const char* sql = "select %a, %b, %c";
  {
    Statement executed(database.get(), sql);
    for (const char* name : {"a", "b", "c"}) executed.setString(name, "old");
    EXPECT_EQ(valuesOf(executed), (Values{"old", "old", "old"}));
    Statement forgotten(database.get(), sql);
    for (const char* name : {"c", "b", "a"}) forgotten.setInt(name, 7);
  }
  Statement statement(database.get(), sql);
  statement.setInt("b", 1);
  EXPECT_EQ(valuesOf(statement), (Values{"NULL", "1", "NULL"}));
  EXPECT_EQ(valuesOf(statement), (Values{"NULL", "NULL", "NULL"}));
}

TEST_F(StatementTest, showsTheObserverItsOwnValuesOnly) {
  const RecordingObserver recorder(database.handle());
  const auto insert = [this](const std::vector<const char*>& names) {
    InsertStatement statement(database.get(), "t");
    for (const char* name : names) statement.setString(name, name);
    EXPECT_EQ(statement.execute(nullptr, 1), 1);
  };
  insert({"a", "b"});
  insert({"b"});
  insert({"b", "a"});
  EXPECT_EQ(recorder.texts(), (Values{"insert into \"t\" (\"a\",\"b\") values (%a,%b) [a='a', b='b']",
                                      "insert into \"t\" (\"b\") values (%b) [b='b']",
                                      "insert into \"t\" (\"b\",\"a\") values (%b,%a) [b='b', a='a']"}));
}

TEST_F(StatementTest, runsItsTextToTheEndWhateverTheLoaderDoes) {
  database.exec("insert into t (b) values (1), (-9223372036854775807-1)");
  const FX::FXString sql = "select abs(b) from t order by t_id";
  Statement statement(database.get(), sql);
  RecordingLoader loader;
  loader.onCell = [&] { statement.sql = "select 2"; };
  EXPECT_EQ(statement.execute(&loader, 1), 0);
  EXPECT_EQ(loader.values(), Values{"1"});
  EXPECT_STREQ(database->getLastError().statement.text(), sql.text());
}

TEST_F(StatementTest, findsItsTextAmongMoreThanItKeeps) {
  for (int round = 0; round < 2; ++round) {
    for (int i = 0; i < 300; ++i) {
      const FX::FXString column = "c" + FX::FXStringVal(i);
      UpdateStatement update(database.get(), "t", column + "=%" + column);
      update.setInt(column, 1);
      update.setInt("b", 1);
      EXPECT_EQ(update.execute(nullptr, 1), 0);
      EXPECT_STREQ(database->getLastError().statement.text(),
                   ("update \"t\" set \"b\"=%b where " + column + "=%" + column).text());
    }
  }
}
