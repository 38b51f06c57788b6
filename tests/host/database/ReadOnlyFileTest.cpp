#include <sys/stat.h>

#include <gtest/gtest.h>

#include "host/database/ReadOnlyFile.h"
#include "tests/support/FileConnection.h"
#include "tests/support/TestDatabase.h"
#include "tests/support/Unprivileged.h"

using Brontel::Database::canOnlyBeReadAsItLies;
using Brontel::Database::uriAsItLies;

namespace {

class ReadOnlyFileTest : public ::testing::Test {
 protected:
  ReadOnlyFileTest() {
    FileConnection(path).exec("pragma journal_mode=wal; create table t (a); insert into t values (5)");
    directory.share();
  }
  ~ReadOnlyFileTest() override { chmod(directory.path().c_str(), 0700); }

  bool isOne() const {
    const Unprivileged unprivileged;
    return canOnlyBeReadAsItLies(path.c_str());
  }

  int readUnprivileged(MorvaneDatabase& database) const {
    const Unprivileged unprivileged;
    EXPECT_TRUE(database.open(path.c_str(), MorvaneDatabase::OpenMode::Existing))
        << database.getLastError().message.text();
    return database.queryInt("select a from t", 1, -1);
  }

  TemporaryDirectory directory;
  const std::string path = directory.path("100% ?#.db");
};

}  // namespace

TEST_F(ReadOnlyFileTest, isOneThatMayNotBeWritten) {
  ASSERT_EQ(chmod(directory.path().c_str(), 0777), 0);
  ASSERT_EQ(chmod(path.c_str(), 0666), 0);
  EXPECT_FALSE(isOne());
  ASSERT_EQ(chmod(path.c_str(), 0444), 0);
  EXPECT_TRUE(isOne());
}

TEST_F(ReadOnlyFileTest, isOneInAFolderThatMayNotBeWritten) {
  ASSERT_EQ(chmod(path.c_str(), 0666), 0);
  ASSERT_EQ(chmod(directory.path().c_str(), 0555), 0);
  EXPECT_TRUE(isOne());
}

TEST_F(ReadOnlyFileTest, isNoneWithoutAWriteAheadJournal) {
  FileConnection(path).exec("pragma journal_mode=delete");
  ASSERT_EQ(chmod(path.c_str(), 0444), 0);
  EXPECT_FALSE(isOne());
  EXPECT_FALSE(canOnlyBeReadAsItLies(""));
  EXPECT_FALSE(canOnlyBeReadAsItLies(directory.path("none").c_str()));
  EXPECT_FALSE(canOnlyBeReadAsItLies(directory.path().c_str()));
}

TEST_F(ReadOnlyFileTest, isNoneWithoutAHeader) {
  const std::string header("SQLite format 3\0\x10\0", 18);
  for (const std::string& content : {std::string(), header, header + "\2", header + "\1\2", header + "\2\1"}) {
    directory.write("100% ?#.db", content);
    ASSERT_EQ(chmod(path.c_str(), 0444), 0);
    EXPECT_FALSE(isOne()) << content.size();
  }
  directory.write("100% ?#.db", header + "\2\2");
  EXPECT_TRUE(isOne());
}

TEST_F(ReadOnlyFileTest, isNoneThatAnotherProgramHasOpen) {
  ASSERT_EQ(chmod(path.c_str(), 0444), 0);
  FileConnection other(path);
  other.exec("insert into t values (6)");
  EXPECT_FALSE(isOne());
}

TEST_F(ReadOnlyFileTest, isReadAndNothingIsLeftBesideIt) {
  ASSERT_EQ(chmod(directory.path().c_str(), 0777), 0);
  ASSERT_EQ(chmod(path.c_str(), 0444), 0);
  MorvaneDatabase database;
  EXPECT_EQ(readUnprivileged(database), 5);
  EXPECT_TRUE(database.isReadOnly());
  EXPECT_FALSE(database.useWriteAheadJournal());
  EXPECT_FALSE(database.run("insert into t values (6)"));
  EXPECT_EQ(database.getLastError().kind, Brontel::Database::ErrorKind::ReadOnly);
  database.close();
  struct stat status {};
  EXPECT_NE(stat((path + "-shm").c_str(), &status), 0);
  EXPECT_NE(stat((path + "-wal").c_str(), &status), 0);
}

TEST_F(ReadOnlyFileTest, isReadInAFolderThatMayNotBeWritten) {
  ASSERT_EQ(chmod(path.c_str(), 0666), 0);
  ASSERT_EQ(chmod(directory.path().c_str(), 0555), 0);
  MorvaneDatabase database;
  EXPECT_EQ(readUnprivileged(database), 5);
}

TEST_F(ReadOnlyFileTest, hasAnAddressOfItsOwn) {
  EXPECT_STREQ(uriAsItLies("/a b/100%?#.db").text(), "file:///a b/100%25%3f%23.db?immutable=1");
  EXPECT_STREQ(uriAsItLies("x.db").text(), "file:x.db?immutable=1");
}
