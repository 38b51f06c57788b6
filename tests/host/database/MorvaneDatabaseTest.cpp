#include <climits>

#include <gtest/gtest.h>

#include "host/database/MorvaneDatabase.h"
#include "host/database/Statement.h"
#include "tests/host/database/RecordingLoader.h"
#include "tests/support/CollectingErrorSink.h"
#include "tests/support/FaultObserver.h"
#include "tests/support/FileConnection.h"
#include "tests/support/TestDatabase.h"

using Brontel::Database::BoundValue;
using Brontel::Database::ErrorKind;

namespace {

using Values = std::vector<std::string>;

class MorvaneDatabaseTest : public ::testing::Test {
 protected:
  MorvaneDatabaseTest() {
    database.exec("create table t (t_id integer primary key, parent integer, name text)");
    database.exec("insert into t values (1, 0, 'a'), (2, 1, 'b'), (3, 1, 'c'), (4, 2, 'd')");
  }

  TestDatabase database;
};

/// Walks a tree by running one statement text inside itself.
class TreeLoader : public DataBaseValueLoader {
 public:
  TreeLoader(MorvaneDatabase& database, std::string& path) : database_(database), path_(path) {}

  int processValue(int column, const char* name, const char* value) override {
    if (column == 0) id_ = atoi(value);
    if (column == 1) {
      path_ += value;
      walk(database_, id_, path_);
    }
    return DataBaseValueLoader::processValue(column, name, value);
  }

  static void walk(MorvaneDatabase& database, int parent, std::string& path) {
    TreeLoader loader(database, path);
    EXPECT_TRUE(database.run("select t_id, name from t where parent=%parent order by t_id",
                             {BoundValue{"parent", false, parent, {}}}, &loader));
    path += '.';
  }

 private:
  MorvaneDatabase& database_;
  std::string& path_;
  int id_ = 0;
};

}  // namespace

TEST_F(MorvaneDatabaseTest, queriesTheFirstValue) {
  EXPECT_EQ(database->queryInt("select 7", 1, -1), 7);
  EXPECT_EQ(database->queryInt("select 7, 8 union all select 9, 9", 1, -1), 7);
  EXPECT_EQ(database->queryInt("select -5;", 1, -1), -5);
}

TEST_F(MorvaneDatabaseTest, queriesTheDefaultWhenThereIsNoValue) {
  EXPECT_EQ(database->queryInt("select 1 where 0", 1, -1), -1);
  EXPECT_EQ(database->queryInt("select null", 1, -1), -1);
  EXPECT_EQ(database->queryInt("select max(t_id) from t where 0", 1, 5), 5);
  EXPECT_EQ(database->getFailures(), 0);
  EXPECT_EQ(database->queryInt("select a from missing", 1, -1), -1);
  EXPECT_EQ(database->queryInt("nonsense", 1, -1), -1);
  EXPECT_EQ(database->queryInt("", 1, -1), -1);
  EXPECT_EQ(database->getFailures(), 3);
}

TEST_F(MorvaneDatabaseTest, queriesIntegersWithinTheirRange) {
  EXPECT_EQ(database->queryInt("select 3000000000", 1, -1), INT_MAX);
  EXPECT_EQ(database->queryInt("select 'abc'", 1, -1), 0);
}

TEST_F(MorvaneDatabaseTest, letsSubclassesAnswerQueries) {
  class Answering : public MorvaneDatabase {
   public:
    int queryInt(const FX::FXString&, int flag, int defaultValue) override { return flag * 100 + defaultValue; }
  };
  Answering answering;
  MorvaneDatabase& base = answering;
  EXPECT_EQ(base.queryInt("select 1", 1, -1), 99);
}

TEST_F(MorvaneDatabaseTest, keepsAndTellsEachFailure) {
  const CollectingErrorSink sink(database.handle());
  EXPECT_FALSE(database->run("select * from missing"));
  EXPECT_FALSE(database->run("insert into t (t_id) values (1)"));
  EXPECT_TRUE(database->run("select 1"));
  ASSERT_EQ(sink.errors().size(), 2u);
  EXPECT_EQ(sink.errors()[0].kind, ErrorKind::Other);
  EXPECT_STREQ(sink.errors()[0].message.text(), "no such table: missing");
  EXPECT_STREQ(sink.errors()[0].statement.text(), "select * from missing");
  EXPECT_EQ(sink.errors()[1].kind, ErrorKind::Constraint);
  EXPECT_NE(sink.errors()[1].code & 0xff, sink.errors()[1].code);
  EXPECT_EQ(database->getLastError().kind, ErrorKind::Constraint);
  EXPECT_EQ(database->getFailures(), 2);
}

TEST_F(MorvaneDatabaseTest, notesWhatTheHostFindsItself) {
  const CollectingErrorSink sink(database.handle());
  database->fail(ErrorKind::Full, "no room", "insert");
  ASSERT_EQ(sink.errors().size(), 1u);
  EXPECT_EQ(sink.errors()[0].code, 0);
  EXPECT_STREQ(sink.errors()[0].message.text(), "no room");
  EXPECT_STREQ(database->getLastError().statement.text(), "insert");
  EXPECT_EQ(database->getFailures(), 1);
}

TEST_F(MorvaneDatabaseTest, asksTheObserverBeforeItRunsAnything) {
  {
    const FaultObserver fault(database.handle(), 1, FaultObserver::Mode::FromThenOn);
    EXPECT_FALSE(database->run("delete from t"));
    EXPECT_EQ(database->queryInt("select 1", 1, -1), -1);
    EXPECT_EQ(Statement(database.get(), "delete from t").execute(nullptr, 1), 0);
  }
  EXPECT_EQ(database->getFailures(), 3);
  EXPECT_EQ(database.text("select count(*) from t"), "4");
  EXPECT_TRUE(database->run("delete from t"));
}

TEST_F(MorvaneDatabaseTest, countsChangesAndKnowsTheLastKey) {
  EXPECT_TRUE(database->run("update t set name='x' where parent=1"));
  EXPECT_EQ(database->changes(), 2);
  EXPECT_TRUE(database->run("insert into t (t_id) values (77)"));
  EXPECT_EQ(database->lastInsertId(), 77);
  EXPECT_TRUE(database->run("insert into t (t_id) values (5000000000)"));
  EXPECT_EQ(database->lastInsertId(), 0);
  EXPECT_TRUE(database->run("insert into t (t_id) values (-5000000000)"));
  EXPECT_EQ(database->lastInsertId(), 0);
}

TEST_F(MorvaneDatabaseTest, switchesItsJournalAndKeepsIt) {
  EXPECT_EQ(database.text("pragma journal_mode"), "delete");
  EXPECT_TRUE(database->useWriteAheadJournal());
  EXPECT_EQ(database.text("pragma journal_mode"), "wal");
  EXPECT_TRUE(database->useWriteAheadJournal());
}

TEST_F(MorvaneDatabaseTest, keepsItsJournalWhenItCannotBeSwitched) {
  const CollectingErrorSink sink(database.handle());
  {
    FileConnection other(database.path());
    other.exec("begin immediate");
    EXPECT_FALSE(database->useWriteAheadJournal());
  }
  EXPECT_TRUE(sink.errors().empty());
  MorvaneDatabase closed;
  EXPECT_FALSE(closed.useWriteAheadJournal());
  EXPECT_EQ(closed.getFailures(), 0);
  // Nobody else is in the way here: that the caller asks within a transaction is an error.
  EXPECT_TRUE(database->run("begin"));
  EXPECT_FALSE(database->useWriteAheadJournal());
  EXPECT_EQ(sink.errors().size(), 1u);
  EXPECT_TRUE(database->run("commit"));
  EXPECT_EQ(database.text("pragma journal_mode"), "delete");
  EXPECT_TRUE(database->useWriteAheadJournal());
}

// A misspelled column in double quotes would otherwise count as a text: "delete where "nmae"='nmae'" would hit all
// rows.
TEST_F(MorvaneDatabaseTest, takesDoubleQuotesForNamesOnly) {
  EXPECT_FALSE(database->run("delete from t where \"nmae\"='nmae'"));
  EXPECT_FALSE(database->run("create index i on t (\"nmae\")"));
  EXPECT_EQ(database.text("select count(*) from t"), "4");
}

TEST_F(MorvaneDatabaseTest, foldsTheCaseOfAllLetters) {
  RecordingLoader loader;
  EXPECT_TRUE(database->run("select fold('ÁRVÍZTŰRŐ Tükör ABC 1'), fold(null), fold('')", {}, &loader));
  EXPECT_EQ(loader.values(), (Values{"árvíztűrő tükör abc 1", "NULL", ""}));
}

TEST_F(MorvaneDatabaseTest, runsAStatementInsideItself) {
  std::string path;
  TreeLoader::walk(database.handle(), 0, path);
  EXPECT_EQ(path, "abd..c...");
}

TEST_F(MorvaneDatabaseTest, keepsARunningStatementWhileManyOthersRun) {
  RecordingLoader loader;
  int others = 0;
  loader.onCell = [&] {
    for (int i = 0; i < 300; ++i) {
      EXPECT_TRUE(database->run("select " + FX::FXStringVal(others++)));
    }
  };
  EXPECT_TRUE(database->run("select t_id from t order by t_id", {}, &loader));
  EXPECT_EQ(loader.values(), (Values{"1", "2", "3", "4"}));
}

TEST_F(MorvaneDatabaseTest, seesNewColumnsInAStatementThatItHasRunBefore) {
  RecordingLoader before;
  RecordingLoader after;
  const FX::FXString sql = "select * from t where t_id=1";
  EXPECT_TRUE(database->run(sql, {}, &before));
  FileConnection(database.path()).exec("alter table t add column extra text default 'new'");
  EXPECT_TRUE(database->run(sql, {}, &after));
  EXPECT_EQ(before.values(), (Values{"1", "0", "a"}));
  EXPECT_EQ(after.values(), (Values{"1", "0", "a", "new"}));
}

TEST_F(MorvaneDatabaseTest, holdsNoLockWhenAQueryEndsEarly) {
  EXPECT_EQ(database->queryInt("select t_id from t order by t_id", 1, -1), 1);
  FileConnection(database.path()).exec("begin exclusive; delete from t; commit;");
  EXPECT_EQ(database->queryInt("select count(*) from t", 1, -1), 0);
}

TEST_F(MorvaneDatabaseTest, switchesForeignKeysOutsideOfTransactionsOnly) {
  EXPECT_EQ(database->queryInt("pragma foreign_keys", 1, -1), 0);
  EXPECT_TRUE(database->setForeignKeys(true));
  EXPECT_EQ(database->queryInt("pragma foreign_keys", 1, -1), 1);
  database.exec("begin");
  EXPECT_FALSE(database->setForeignKeys(false));
  database.exec("commit");
  EXPECT_TRUE(database->setForeignKeys(false));
  EXPECT_EQ(database->queryInt("pragma foreign_keys", 1, -1), 0);
}

TEST_F(MorvaneDatabaseTest, runsAStatementAgainAfterItHasForgottenIt) {
  const FX::FXString sql = "select count(*) from t";
  for (int i = 0; i < 600; ++i) {
    EXPECT_EQ(database->queryInt("select " + FX::FXStringVal(i), 1, -1), i);
    if (i % 250 != 0) continue;
    EXPECT_EQ(database->queryInt(sql, 1, -1), 4);
  }
  const FX::FXString path = database->getPath();
  EXPECT_EQ(database->queryInt(sql, 1, -1), 4);
  database->close();
  ASSERT_TRUE(database->open(path, MorvaneDatabase::OpenMode::Existing));
  EXPECT_EQ(database->queryInt(sql, 1, -1), 4);
}
