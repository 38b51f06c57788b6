#include <gtest/gtest.h>

#include "host/database/UpdateStatement.h"
#include "tests/support/RecordingObserver.h"
#include "tests/support/TestDatabase.h"

namespace {

using Rows = std::vector<std::vector<std::string>>;

class UpdateStatementTest : public ::testing::Test {
 protected:
  UpdateStatementTest() {
    database.exec("create table t (t_id integer primary key, a text, b integer)");
    database.exec("insert into t values (1, 'one', 1), (2, 'two', 2)");
  }

  void expectUnchanged() { EXPECT_EQ(database.rows("select * from t"), (Rows{{"1", "one", "1"}, {"2", "two", "2"}})); }

  TestDatabase database;
};

}  // namespace

TEST_F(UpdateStatementTest, setsTheBoundColumnsOfTheMatchingRows) {
  UpdateStatement update(database.get(), "t", "t_id=%t_id");
  update.setString("a", "new");
  update.setInt("t_id", 2);
  EXPECT_EQ(update.execute(nullptr, 1), 1);
  EXPECT_EQ(database->changes(), 1);
  EXPECT_EQ(database.rows("select * from t"), (Rows{{"1", "one", "1"}, {"2", "new", "2"}}));
}

TEST_F(UpdateStatementTest, takesParametersOfTheConditionThatAreNoColumns) {
  const RecordingObserver recorder(database.handle());
  UpdateStatement update(database.get(), "t", "t_id = %assignId and b=%b");
  update.setInt("assignId", 1);
  update.setInt("b", 1);
  update.setString("a", "new");
  EXPECT_EQ(update.execute(nullptr, 1), 1);
  EXPECT_EQ(recorder.records().at(0).sql, "update \"t\" set \"a\"=%a where t_id = %assignId and b=%b");
  EXPECT_EQ(database.text("select a from t where t_id=1"), "new");
}

TEST_F(UpdateStatementTest, doesWhatItShouldHoweverManyShapesThereAre) {
  constexpr int kShapes = 300;
  for (int round = 0; round < 2; ++round) {
    database.exec("begin");
    for (int shape = 1; shape <= kShapes; ++shape) {
      UpdateStatement update(database.get(), "t", ("t_id=%t_id and " + std::to_string(shape) + ">0").c_str());
      update.setInt("t_id", 2);
      update.setInt(shape % 2 == 0 ? "a" : "b", round * kShapes + shape);
      ASSERT_EQ(update.execute(nullptr, 1), 1) << shape;
      ASSERT_EQ(database->changes(), 1) << shape;
    }
    database.exec("commit");
    EXPECT_EQ(database.rows("select * from t"),
              (Rows{{"1", "one", "1"},
                    {"2", std::to_string((round + 1) * kShapes), std::to_string((round + 1) * kShapes - 1)}}));
  }
}

TEST_F(UpdateStatementTest, succeedsWithoutMatchingRow) {
  UpdateStatement update(database.get(), "t", "t_id=%t_id");
  update.setInt("t_id", 3);
  update.setInt("b", 9);
  EXPECT_EQ(update.execute(nullptr, 1), 1);
  EXPECT_EQ(database->changes(), 0);
  expectUnchanged();
}

TEST_F(UpdateStatementTest, doesNothingWithoutConditionOrColumn) {
  for (const char* where : {"", "1", "t_id>0", "t_id='%t_id'"}) {
    UpdateStatement update(database.get(), "t", where);
    update.setInt("b", 9);
    EXPECT_EQ(update.execute(nullptr, 1), 0) << where;
  }
  UpdateStatement unbound(database.get(), "t", "t_id=%t_id or b=%other");
  unbound.setInt("t_id", 1);
  unbound.setInt("b", 9);
  EXPECT_EQ(unbound.execute(nullptr, 1), 0);
  UpdateStatement noColumn(database.get(), "t", "t_id=%t_id");
  noColumn.setInt("t_id", 1);
  EXPECT_EQ(noColumn.execute(nullptr, 1), 0);
  expectUnchanged();
}

TEST_F(UpdateStatementTest, refusesNamesThatAreNoColumns) {
  for (const char* name : {"missing", "b=9 --", "", "a\"=1"}) {
    UpdateStatement update(database.get(), "t", "t_id=%t_id");
    update.setInt("t_id", 1);
    update.setInt(name, 9);
    EXPECT_EQ(update.execute(nullptr, 1), 0) << name;
  }
  expectUnchanged();
}

TEST_F(UpdateStatementTest, tellsNamesApartThatBeginAlike) {
  database.exec("alter table t add column t_id_1 integer");
  UpdateStatement update(database.get(), "t", "t_id=%t_id");
  update.setInt("t_id_1", 7);
  update.setInt("t_id", 1);
  EXPECT_EQ(update.execute(nullptr, 1), 1);
  EXPECT_EQ(database.rows("select t_id, t_id_1 from t"), (Rows{{"1", "7"}, {"2", "NULL"}}));
}
