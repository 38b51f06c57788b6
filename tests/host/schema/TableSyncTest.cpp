#include <filesystem>

#include <gtest/gtest.h>

#include "host/database/Transaction.h"
#include "host/schema/Schema.h"
#include "host/schema/TableSync.h"
#include "tests/host/schema/TestTable.h"
#include "tests/support/FaultObserver.h"
#include "tests/support/FileConnection.h"
#include "tests/support/RecordingObserver.h"
#include "tests/support/TestDatabase.h"
#include "tests/support/Unprivileged.h"

// Databases that older versions, other programs and accidents have left.

using Brontel::Model::Column;
using Brontel::Model::Schema;
using Brontel::Model::Table;

namespace {

using Rows = std::vector<std::vector<std::string>>;

void declareData(Table& t) {
  t.addReference("t_item_1", Column::INTEGER, 0, "t_item", 1, "", Column::BY_DECLARATION);
  t.addReference("t_variable_1", Column::INTEGER, 1, "t_variable", 1, "", Column::BY_DECLARATION);
  t.addColumn("row", Column::INTEGER);
  t.addColumn("value", Column::TEXT);
}

int syncData(MorvaneDatabase* database) {
  Schema schema;
  new TestTable(&schema, "t_data", declareData);
  return schema.sync(database);
}

class TableSyncTest : public ::testing::Test {
 protected:
  int sync() { return syncData(database.get()); }
  std::string freshDump() const {
    TestDatabase fresh;
    EXPECT_EQ(syncData(fresh.get()), 1);
    return fresh.dump();
  }
  Rows indexColumns(const char* index) const {
    return database.rows(std::string("select name from pragma_index_info('") + index + "') order by seqno");
  }

  TestDatabase database;
};

}  // namespace

TEST_F(TableSyncTest, onlyReadsWhatIsInLine) {
  EXPECT_EQ(sync(), 1);
  const RecordingObserver recorder(database.handle());
  EXPECT_EQ(sync(), 1);
  EXPECT_EQ(recorder.count("select"), static_cast<int>(recorder.records().size()));
  EXPECT_FALSE(recorder.records().empty());
}

TEST_F(TableSyncTest, addsWhatAnOlderTableLacksAndKeepsTheRest) {
  database.exec("create table t_data (t_data_id integer primary key, value text, extra text)");
  database.exec("insert into t_data values (3, 'x', 'more'), (5, null, 'other')");
  EXPECT_EQ(sync(), 1) << database->getLastError().message.text();
  EXPECT_EQ(
      database.rows("select name, \"notnull\" from pragma_table_info('t_data')"),
      (Rows{
          {"t_data_id", "0"}, {"value", "0"}, {"extra", "0"}, {"t_item_1", "0"}, {"t_variable_1", "0"}, {"row", "0"}}));
  EXPECT_EQ(database.rows("select * from t_data"),
            (Rows{{"3", "x", "more", "NULL", "NULL", "NULL"}, {"5", "NULL", "other", "NULL", "NULL", "NULL"}}));
  EXPECT_EQ(database.rows("select \"from\", on_delete from pragma_foreign_key_list('t_data') order by 1"),
            (Rows{{"t_item_1", "CASCADE"}, {"t_variable_1", "SET NULL"}}));
  EXPECT_EQ(indexColumns("t_data_t_item_1_idx"), (Rows{{"t_item_1"}, {"t_variable_1"}, {"row"}}));
}

TEST_F(TableSyncTest, addsReferencesWhileForeignKeysAreEnforced) {
  database.exec("create table t_item (t_item_id integer primary key)");
  database.exec("create table t_data (t_data_id integer primary key)");
  database.exec("insert into t_data values (1)");
  EXPECT_TRUE(database->setForeignKeys(true));
  EXPECT_EQ(sync(), 1) << database->getLastError().message.text();
  EXPECT_EQ(database.text("select count(*) from t_data"), "1");
}

TEST_F(TableSyncTest, knowsColumnsInAnyCase) {
  database.exec(
      "create table T_DATA (t_data_id integer primary key, T_Item_1 integer, T_VARIABLE_1 integer, ROW integer,"
      " Value text)");
  EXPECT_EQ(sync(), 1) << database->getLastError().message.text();
  EXPECT_EQ(database.text("select count(*) from pragma_table_info('t_data')"), "5");
  const std::string before = database.dump();
  EXPECT_EQ(sync(), 1);
  EXPECT_EQ(database.dump(), before);
}

TEST_F(TableSyncTest, rebuildsAnIndexOfOtherColumns) {
  EXPECT_EQ(sync(), 1);
  for (const char* columns : {"t_item_1", "t_variable_1, t_item_1, row", "t_item_1, t_variable_1, row, value",
                              "t_item_1, row, t_variable_1"}) {
    database.exec("drop index t_data_t_item_1_idx");
    database.exec(std::string("create index t_data_t_item_1_idx on t_data (") + columns + ")");
    EXPECT_EQ(sync(), 1) << columns;
    EXPECT_EQ(indexColumns("t_data_t_item_1_idx"), (Rows{{"t_item_1"}, {"t_variable_1"}, {"row"}})) << columns;
  }
  EXPECT_EQ(database.dump(), freshDump());
}

TEST_F(TableSyncTest, leavesOtherIndexesAndTablesAlone) {
  database.exec("create table t_other (a)");
  EXPECT_EQ(sync(), 1);
  database.exec("create index mine on t_data (value)");
  database.exec("create view v as select * from t_data");
  EXPECT_EQ(sync(), 1);
  EXPECT_EQ(database.text("select group_concat(name) from (select name from sqlite_master where name in "
                          "('mine','v','t_other') order by name)"),
            "mine,t_other,v");
}

TEST_F(TableSyncTest, makesAnIndexAgainThatSomebodyHasDropped) {
  EXPECT_EQ(sync(), 1);
  database.exec("drop index t_data_t_variable_1_idx");
  EXPECT_EQ(sync(), 1);
  EXPECT_EQ(indexColumns("t_data_t_variable_1_idx"), (Rows{{"t_variable_1"}, {"t_item_1"}, {"row"}}));
}

TEST_F(TableSyncTest, takesAnIndexOfThatNameOnAnotherTableForAFailureAndKeepsIt) {
  database.exec("create table t_other (t_item_1, t_variable_1, row)");
  database.exec("create index t_data_t_item_1_idx on t_other (t_item_1, t_variable_1, row)");
  const std::string before = database.dump();
  EXPECT_EQ(sync(), 0);
  EXPECT_GT(database->getFailures(), 0);
  EXPECT_EQ(database.dump(), before);
}

TEST_F(TableSyncTest, changesATableAsAWholeOrNotAtAll) {
  const std::string whole = freshDump();
  int faults = 1;
  for (int number = 1; faults > 0; ++number) {
    TestDatabase broken;
    int done = 0;
    {
      const FaultObserver fault(broken.handle(), number);
      done = syncData(broken.get());
      faults = fault.faults();
    }
    EXPECT_EQ(done, faults == 0 ? 1 : 0) << number;
    EXPECT_EQ(broken.dump(), done == 1 ? whole : "") << number;
    EXPECT_EQ(syncData(broken.get()), 1);
    EXPECT_EQ(broken.dump(), whole);
  }
}

TEST_F(TableSyncTest, keepsTheOldTableWholeWhenAddingFails) {
  database.exec("create table t_data (t_data_id integer primary key, value text)");
  database.exec("insert into t_data values (1, 'x')");
  const std::string before = database.dump();
  for (int number = 4; number <= 9; ++number) {
    const FaultObserver fault(database.handle(), number);
    EXPECT_EQ(sync(), 0) << number;
    EXPECT_EQ(fault.faults(), 1) << number;
    EXPECT_EQ(database.dump(), before) << number;
  }
}

TEST_F(TableSyncTest, takesPartInATransactionOfTheHost) {
  {
    const Brontel::Database::Transaction transaction(database.handle());
    EXPECT_EQ(sync(), 1);
  }
  EXPECT_EQ(database.dump(), "");
  Brontel::Database::Transaction transaction(database.handle());
  EXPECT_EQ(sync(), 1);
  EXPECT_TRUE(transaction.commit());
  EXPECT_EQ(database.dump(), freshDump());
}

TEST_F(TableSyncTest, failsOnAFileThatMayOnlyBeReadUnlessItIsInLine) {
  const std::string path = database.path();
  database.exec("create table t_data (t_data_id integer primary key)");
  database->close();
  database.directory().share();
  MorvaneDatabase readOnly;
  {
    const Unprivileged nobody;
    ASSERT_TRUE(readOnly.open(path.c_str(), MorvaneDatabase::OpenMode::Existing));
    EXPECT_EQ(syncData(&readOnly), 0);
    EXPECT_EQ(readOnly.getLastError().kind, Brontel::Database::ErrorKind::ReadOnly);
    readOnly.close();
  }
  MorvaneDatabase writable;
  ASSERT_TRUE(writable.open(path.c_str(), MorvaneDatabase::OpenMode::Existing));
  EXPECT_EQ(syncData(&writable), 1);
  writable.close();
  const Unprivileged nobody;
  ASSERT_TRUE(readOnly.open(path.c_str(), MorvaneDatabase::OpenMode::Existing));
  EXPECT_EQ(syncData(&readOnly), 1);
}

TEST_F(TableSyncTest, failsOnADamagedSchema) {
  EXPECT_EQ(sync(), 1);
  FileConnection(database.path())
      .exec("pragma writable_schema=on; update sqlite_master set sql='create table nonsense' where name='t_data';");
  database->close();
  MorvaneDatabase damaged;
  if (damaged.open(database.path().c_str(), MorvaneDatabase::OpenMode::Existing)) ADD_FAILURE() << "opened";
  EXPECT_EQ(syncData(&damaged), 0);
  EXPECT_EQ(damaged.getFailures(), 2);
}
