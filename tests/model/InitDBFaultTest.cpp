// Starting on a database that refuses.

#include <filesystem>

#include <gtest/gtest.h>

#include "model/InitDB.h"
#include "tests/support/FaultObserver.h"
#include "tests/support/FileConnection.h"
#include "tests/support/TestDatabase.h"
#include "tests/support/Unprivileged.h"

using Brontel::Plugin::ItemData::Model::initDB;

namespace {

const char* const kQuantities = "select count(*) from t_itemvariable where t_itemvariable_id=-1";

}  // namespace

TEST(InitDBFaultTest, noDatabaseIsNoProblem) {
  initDB(nullptr);
  MorvaneDatabase closed;
  initDB(&closed);
  EXPECT_FALSE(closed.isOpen());
}

TEST(InitDBFaultTest, whateverStatementFailsTheNextStartCompletes) {
  TestDatabase complete;
  initDB(complete.get());
  int number = 1;
  for (int faults = 1; faults > 0; ++number) {
    TestDatabase database;
    {
      FaultObserver fault(database.handle(), number);
      initDB(database.get());
      faults = fault.faults();
    }
    initDB(database.get());
    EXPECT_EQ(database.text(kQuantities), "1") << number;
    EXPECT_EQ(database.rows("select name, sql from sqlite_master order by type, name"),
              complete.rows("select name, sql from sqlite_master order by type, name"))
        << number;
  }
  EXPECT_GT(number, 10);
}

TEST(InitDBFaultTest, aDatabaseThatBreaksOffNeverGetsHalfAQuantity) {
  int number = 1;
  for (int faults = 1; faults > 0; ++number) {
    TestDatabase database;
    {
      FaultObserver fault(database.handle(), number, FaultObserver::Mode::FromThenOn);
      initDB(database.get());
      faults = fault.faults();
    }
    initDB(database.get());
    initDB(database.get());
    EXPECT_EQ(
        database.text("select group_concat(name||type||process||mandatory||ifnull(vvalue,'')) from t_itemvariable"),
        "Mennyiség-111")
        << number;
  }
}

TEST(InitDBFaultTest, aReadOnlyDatabaseIsCompletedOnceItCanBeWritten) {
  TestDatabase database;
  initDB(database.get());
  database.exec("delete from t_itemvariable");
  const std::string before = database.dump();
  database->close();
  database.directory().share();
  std::filesystem::permissions(database.path(), std::filesystem::perms::owner_read |
                                                    std::filesystem::perms::group_read |
                                                    std::filesystem::perms::others_read);
  {
    const Unprivileged nobody;
    ASSERT_TRUE(database->open(database.path().c_str(), MorvaneDatabase::OpenMode::Existing));
    EXPECT_TRUE(database->isReadOnly());
    initDB(database.get());
    database->close();
  }
  EXPECT_EQ(database.dump(), before);
  std::filesystem::permissions(database.path(), std::filesystem::perms::owner_all);
  ASSERT_TRUE(database->open(database.path().c_str(), MorvaneDatabase::OpenMode::Existing));
  initDB(database.get());
  EXPECT_EQ(database.text(kQuantities), "1");
}

TEST(InitDBFaultTest, aLockedDatabaseIsCompletedLater) {
  TestDatabase database;
  {
    FileConnection other(database.path());
    other.exec("begin exclusive");
    initDB(database.get());
    other.exec("rollback");
  }
  EXPECT_EQ(database.text("select count(*) from sqlite_master"), "0");
  initDB(database.get());
  EXPECT_EQ(database.text(kQuantities), "1");
}
