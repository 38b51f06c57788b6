#include <filesystem>

#include <gtest/gtest.h>

#include "host/database/DatabaseBackup.h"
#include "host/database/Transaction.h"
#include "tests/support/TestDatabase.h"
#include "tests/support/Unprivileged.h"

using Brontel::Database::ErrorKind;

namespace {

class DatabaseBackupTest : public ::testing::Test {
 protected:
  DatabaseBackupTest() {
    database.exec("create table t (t_id integer primary key, a text)");
    database.exec("create index i on t (a)");
    database.exec(
        "with recursive n(i) as (select 1 union all select i+1 from n where i<2000) insert into t select i, 'ő'||i "
        "from n");
  }

  std::string copy() const { return database.directory().path("copy.db"); }

  TestDatabase database;
};

}  // namespace

TEST_F(DatabaseBackupTest, copiesEverything) {
  EXPECT_TRUE(database->backupTo(copy().c_str()));
  EXPECT_EQ(TestDatabase::dumpOf(copy()), database.dump());
  EXPECT_EQ(TestDatabase::textOf(copy(), "pragma integrity_check"), "ok");
  database.exec("insert into t (a) values ('later')");
  EXPECT_EQ(TestDatabase::textOf(copy(), "select count(*) from t"), "2000");
}

TEST_F(DatabaseBackupTest, refusesAnExistingFile) {
  database.directory().write("copy.db", "precious");
  EXPECT_FALSE(database->backupTo(copy().c_str()));
  EXPECT_EQ(database->getLastError().kind, ErrorKind::CannotOpen);
  EXPECT_EQ(readFile(copy()), "precious");
}

TEST_F(DatabaseBackupTest, refusesItsOwnFileUnderAnyName) {
  const std::string before = database.dump();
  std::filesystem::create_symlink(database.path(), database.directory().path("link.db"));
  EXPECT_FALSE(database->backupTo(database.path().c_str()));
  EXPECT_FALSE(database->backupTo((database.directory().path() + "/./test.db").c_str()));
  EXPECT_FALSE(database->backupTo(database.directory().path("link.db").c_str()));
  EXPECT_EQ(database.dump(), before);
}

TEST_F(DatabaseBackupTest, refusesWhatIsNoFileName) {
  EXPECT_FALSE(database->backupTo(""));
  EXPECT_FALSE(database->backupTo(database.directory().path().c_str()));
  EXPECT_FALSE(database->backupTo(database.directory().path("missing/copy.db").c_str()));
  EXPECT_EQ(database->getFailures(), 3);
}

TEST_F(DatabaseBackupTest, refusesAFolderThatMayNotBeWritten) {
  database.directory().share();
  {
    const Unprivileged nobody;
    EXPECT_FALSE(database->backupTo(copy().c_str()));
  }
  EXPECT_EQ(database->getLastError().kind, ErrorKind::CannotOpen);
  EXPECT_FALSE(std::filesystem::exists(copy()));
}

TEST_F(DatabaseBackupTest, copiesNothingThatMayStillBeRolledBack) {
  Brontel::Database::Transaction transaction(database.handle());
  database.exec("delete from t");
  EXPECT_FALSE(database->backupTo(copy().c_str()));
  EXPECT_FALSE(std::filesystem::exists(copy()));
  transaction.rollback();
  EXPECT_TRUE(database->backupTo(copy().c_str()));
  EXPECT_EQ(TestDatabase::textOf(copy(), "select count(*) from t"), "2000");
}

TEST_F(DatabaseBackupTest, takesAnyNameForAFile) {
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(database.directory().path());
  EXPECT_TRUE(database->backupTo(":memory:"));
  std::filesystem::current_path(before);
  EXPECT_EQ(TestDatabase::textOf(database.directory().path(":memory:"), "select count(*) from t"), "2000");
}
