#include <gtest/gtest.h>
#include <sqlite3.h>

#include "host/database/PreparedStatement.h"
#include "tests/host/database/RecordingLoader.h"

using Brontel::Database::BoundValue;
using Brontel::Database::BoundValues;
using Brontel::Database::PreparedStatement;

namespace {

class PreparedStatementTest : public ::testing::Test {
 protected:
  PreparedStatementTest() { sqlite3_open(":memory:", &connection); }
  ~PreparedStatementTest() override { EXPECT_EQ(sqlite3_close(connection), SQLITE_OK); }

  std::unique_ptr<PreparedStatement> prepare(const FX::FXString& sql) {
    return PreparedStatement::prepare(connection, sql, code);
  }

  std::vector<std::string> run(const FX::FXString& sql, const BoundValues& values = {}) {
    RecordingLoader loader;
    const auto statement = prepare(sql);
    code = statement == nullptr ? code : statement->run(values, &loader);
    return loader.values();
  }

  bool isAnyStatementOpen() {
    for (sqlite3_stmt* at = sqlite3_next_stmt(connection, nullptr); at != nullptr;
         at = sqlite3_next_stmt(connection, at)) {
      if (sqlite3_stmt_busy(at) != 0) return true;
    }
    return false;
  }

  sqlite3* connection = nullptr;
  int code = -1;
};

using Values = std::vector<std::string>;

}  // namespace

TEST_F(PreparedStatementTest, refusesWhatTheEngineRefuses) {
  EXPECT_EQ(prepare("nonsense"), nullptr);
  EXPECT_EQ(code, SQLITE_ERROR);
  EXPECT_EQ(prepare("select * from missing"), nullptr);
  EXPECT_EQ(code, SQLITE_ERROR);
}

TEST_F(PreparedStatementTest, refusesTextWithoutStatement) {
  for (const char* sql : {"", "  ", ";", "-- nothing"}) {
    EXPECT_EQ(prepare(sql), nullptr) << sql;
    EXPECT_EQ(code, SQLITE_MISUSE);
  }
}

TEST_F(PreparedStatementTest, refusesASecondStatementInsteadOfForgettingIt) {
  run("create table t (a)");
  EXPECT_EQ(prepare("insert into t values (1); drop table t"), nullptr);
  EXPECT_EQ(code, SQLITE_MISUSE);
  EXPECT_EQ(run("select count(*) from t"), Values{"0"});
}

TEST_F(PreparedStatementTest, acceptsAClosingSemicolon) {
  EXPECT_EQ(run("select 1;"), Values{"1"});
  EXPECT_EQ(run("select 1 ; \r\n\t;"), Values{"1"});
}

TEST_F(PreparedStatementTest, bindsByNameAtEveryPlace) {
  const BoundValues values{BoundValue{"t", false, 1, {}}, BoundValue{"t_1", true, 0, "x"}};
  EXPECT_EQ(run("select %t_1, %t, (select %t_1) as c", values), (Values{"x", "1", "x"}));
  EXPECT_EQ(code, SQLITE_DONE);
}

TEST_F(PreparedStatementTest, takesNullForAMissingValueAndIgnoresASuperfluousOne) {
  EXPECT_EQ(run("select %a", {BoundValue{"b", false, 1, {}}}), Values{"NULL"});
}

TEST_F(PreparedStatementTest, forgetsItsValuesAfterEachRun) {
  const auto statement = prepare("select %a");
  RecordingLoader loader;
  EXPECT_EQ(statement->run({BoundValue{"a", false, 5, {}}}, &loader), SQLITE_DONE);
  EXPECT_EQ(statement->run({}, &loader), SQLITE_DONE);
  EXPECT_EQ(loader.values(), (Values{"5", "NULL"}));
}

TEST_F(PreparedStatementTest, leavesNothingOpenWhenTheLoaderStopsIt) {
  const auto statement = prepare("select 1 union all select 2");
  RecordingLoader loader;
  loader.stopAt = 1;
  EXPECT_EQ(statement->run({}, &loader), SQLITE_ROW);
  EXPECT_EQ(loader.cells.size(), 1u);
  EXPECT_FALSE(isAnyStatementOpen());
  EXPECT_FALSE(statement->isRunning());
}

TEST_F(PreparedStatementTest, runsOnAfterAnError) {
  run("create table t (a unique)");
  const auto statement = prepare("insert into t values (%a)");
  const BoundValues one{BoundValue{"a", false, 1, {}}};
  EXPECT_EQ(statement->run(one, nullptr), SQLITE_DONE);
  EXPECT_EQ(statement->run(one, nullptr) & 0xff, SQLITE_CONSTRAINT);
  EXPECT_EQ(statement->run({BoundValue{"a", false, 2, {}}}, nullptr), SQLITE_DONE);
  EXPECT_EQ(run("select count(*) from t"), Values{"2"});
}

TEST_F(PreparedStatementTest, knowsThatItIsRunning) {
  const auto statement = prepare("select 1");
  RecordingLoader loader;
  bool seen = false;
  loader.onCell = [&] { seen = statement->isRunning(); };
  EXPECT_FALSE(statement->isRunning());
  statement->run({}, &loader);
  EXPECT_TRUE(seen);
  EXPECT_FALSE(statement->isRunning());
}

TEST_F(PreparedStatementTest, findsItsValuesWhereverTheyStand) {
  const auto statement = prepare("select %a, %b");
  const BoundValue a{"a", false, 1, {}};
  const BoundValue b{"b", false, 2, {}};
  const BoundValue other{"aa", false, 3, {}};
  RecordingLoader loader;
  for (const BoundValues& values : {BoundValues{a, b}, BoundValues{b, a}, BoundValues{b}, BoundValues{other, a},
                                    BoundValues{other, b, a}, BoundValues{}, BoundValues{a, b}}) {
    EXPECT_EQ(statement->run(values, &loader), SQLITE_DONE);
  }
  EXPECT_EQ(loader.values(),
            (Values{"1", "2", "1", "2", "NULL", "2", "1", "NULL", "1", "2", "NULL", "NULL", "1", "2"}));
}

TEST_F(PreparedStatementTest, namesColumnsByTheirLatestNames) {
  run("create table t (a)");
  run("insert into t values (5)");
  const auto statement = prepare("select * from t");
  RecordingLoader loader;
  EXPECT_EQ(statement->run({}, &loader), SQLITE_DONE);
  run("alter table t rename column a to another");
  run("alter table t add column b");
  EXPECT_EQ(statement->run({}, &loader), SQLITE_DONE);
  EXPECT_EQ(loader.cells,
            (std::vector<RecordingLoader::Cell>{{0, "a", "5"}, {0, "another", "5"}, {1, "b", std::nullopt}}));
}

TEST_F(PreparedStatementTest, deliversNumbersAsTheEnginesOwnTexts) {
  for (const char* number : {"0", "-1", "42", "2147483648", "9223372036854775807", "(-9223372036854775807-1)", "1.5",
                             "-0.0", "1e300", "9223372036854775808", "1=1"}) {
    const Values texts = run(FX::FXString("select ") + number + ", cast(" + number + " as text)");
    ASSERT_EQ(texts.size(), 2u);
    EXPECT_EQ(texts[0], texts[1]) << number;
  }
  EXPECT_EQ(run("select -9223372036854775807-1, 7"), (Values{"-9223372036854775808", "7"}));
}
