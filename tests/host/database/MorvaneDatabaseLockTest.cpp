#include <chrono>
#include <filesystem>
#include <thread>

#include <gtest/gtest.h>

#include "host/database/MorvaneDatabase.h"
#include "host/database/Transaction.h"
#include "tests/support/FileConnection.h"
#include "tests/support/TestDatabase.h"

// Another program holds the file.

using Brontel::Database::ErrorKind;
using Brontel::Database::Transaction;

namespace {

using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

class MorvaneDatabaseLockTest : public ::testing::Test {
 protected:
  MorvaneDatabaseLockTest() : other(database.path()) { database.exec("create table t (a)"); }

  TestDatabase database;
  FileConnection other;
};

}  // namespace

TEST_F(MorvaneDatabaseLockTest, waitsFiveSecondsInAllAndNotForEachStatement) {
  other.exec("begin exclusive");
  const auto start = Clock::now();
  for (int i = 0; i < 10; ++i) {
    EXPECT_FALSE(database->run("insert into t values (1)"));
    EXPECT_EQ(database->getLastError().kind, ErrorKind::Busy);
    EXPECT_EQ(database->queryInt("select count(*) from t", 1, -1), -1);
  }
  const double waited = secondsSince(start);
  EXPECT_GT(waited, 4.5);
  EXPECT_LT(waited, 9);
  other.exec("commit");
  EXPECT_TRUE(database->run("insert into t values (1)"));
}

TEST_F(MorvaneDatabaseLockTest, goesOnAsSoonAsTheLockIsGone) {
  other.exec("begin exclusive");
  std::thread release([this] {
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    other.exec("commit");
  });
  const auto start = Clock::now();
  EXPECT_TRUE(database->run("insert into t values (1)"));
  EXPECT_GT(secondsSince(start), 0.25);
  release.join();
  EXPECT_EQ(database->getFailures(), 0);
}

TEST_F(MorvaneDatabaseLockTest, doesNotAddUpWaitsThatHadAnEnd) {
  for (int i = 0; i < 8; ++i) {
    other.exec("begin exclusive");
    std::thread release([this] {
      std::this_thread::sleep_for(std::chrono::milliseconds(700));
      other.exec("commit");
    });
    EXPECT_TRUE(database->run("insert into t values (1)")) << i;
    release.join();
  }
}

TEST_F(MorvaneDatabaseLockTest, refusesATransactionBeforeItHasStarted) {
  other.exec("begin immediate");
  {
    Transaction transaction(database.handle());
    EXPECT_FALSE(transaction.isOpen());
    EXPECT_FALSE(transaction.commit());
    EXPECT_EQ(database->getLastError().kind, ErrorKind::Busy);
  }
  EXPECT_TRUE(Transaction(database.handle(), Transaction::Kind::Read).isOpen());
  other.exec("commit");
  EXPECT_TRUE(Transaction(database.handle()).isOpen());
}

TEST_F(MorvaneDatabaseLockTest, rollsBackWhatCannotBeCommitted) {
  // Somebody who reads all the time lets nobody commit.
  other.exec("insert into t values (0); begin");
  EXPECT_EQ(other.rows("select count(*) from t")[0][0], "1");
  {
    Transaction transaction(database.handle());
    EXPECT_TRUE(database->run("insert into t values (1)"));
    EXPECT_FALSE(transaction.commit());
    EXPECT_EQ(database->getLastError().kind, ErrorKind::Busy);
    EXPECT_FALSE(transaction.isOpen());
  }
  other.exec("commit");
  EXPECT_EQ(database.text("select count(*) from t"), "1");
  Transaction again(database.handle());
  EXPECT_TRUE(database->run("insert into t values (1)"));
  EXPECT_TRUE(again.commit());
  EXPECT_EQ(database.text("select count(*) from t"), "2");
}

TEST_F(MorvaneDatabaseLockTest, copiesNothingAndLeavesNoFileBehind) {
  other.exec("begin exclusive");
  EXPECT_FALSE(database->backupTo(database.directory().path("copy.db").c_str()));
  EXPECT_EQ(database->getLastError().kind, ErrorKind::Busy);
  EXPECT_FALSE(std::filesystem::exists(database.directory().path("copy.db")));
  other.exec("commit");
  EXPECT_TRUE(database->backupTo(database.directory().path("copy.db").c_str()));
}
