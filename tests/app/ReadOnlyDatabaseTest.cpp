#include <sys/stat.h>

#include "tests/app/AppTest.h"
#include "tests/support/TestDatabase.h"

namespace {

class ReadOnlyDatabaseTest : public AppTest {
 protected:
  void SetUp() override {
    makeSample();
    directory.share();
    ASSERT_EQ(chmod(database.c_str(), 0444), 0);
  }

  // The folder cannot be removed otherwise, when the test does not run as root.
  void TearDown() override { directory.share(); }

  void expectRefusedUnprivileged(const Arguments& arguments, const std::string& error) const {
    SCOPED_TRACE(arguments.front());
    const auto before = files();
    const ProgramRun run = runUnprivileged(arguments);
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(run.errors, "brontel-host: " + error + "\n");
    EXPECT_TRUE(files() == before);
  }
};

}  // namespace

TEST_F(ReadOnlyDatabaseTest, ReadingCommandsWork) {
  for (const Arguments& arguments : readingCommands()) {
    SCOPED_TRACE(arguments.front());
    const std::string expected = output(arguments);
    const auto before = files();
    const ProgramRun run = runUnprivileged(arguments);
    EXPECT_EQ(run.exitCode, 0);
    EXPECT_EQ(run.errors, "");
    EXPECT_EQ(run.output, expected);
    EXPECT_TRUE(files() == before);
  }
  EXPECT_EQ(runUnprivileged({"check", "2"}).exitCode, 1);
}

TEST_F(ReadOnlyDatabaseTest, AnIndexThatIsMissingKeepsNobodyFromReading) {
  ASSERT_EQ(chmod(database.c_str(), 0644), 0);
  const std::string expected = output({"print", "1"});
  {
    FileConnection preparation(database);
    preparation.exec("drop index " + preparation
                                         .rows("select name from sqlite_master where type='index' and "
                                               "tbl_name='t_invoiceitemdata' and sql is not null")
                                         .at(0)
                                         .at(0));
  }
  ASSERT_EQ(chmod(database.c_str(), 0444), 0);
  const ProgramRun run = runUnprivileged({"print", "1"});
  EXPECT_EQ(run.exitCode, 0) << run.errors;
  EXPECT_EQ(run.output, expected);
}

TEST_F(ReadOnlyDatabaseTest, ItCanBeBackedUp) {
  const TemporaryDirectory target;
  ASSERT_EQ(chmod(target.path().c_str(), 0777), 0);
  const ProgramRun run = runUnprivileged({"backup", target.path("backup.db")});
  EXPECT_EQ(run.exitCode, 0) << run.errors;
  EXPECT_EQ(TestDatabase::dumpOf(target.path("backup.db")), TestDatabase::dumpOf(database));
}

TEST_F(ReadOnlyDatabaseTest, WritingCommandsAreRefused) {
  for (const Arguments& arguments : writingCommands()) {
    expectRefusedUnprivileged(arguments, "Az adatbázis csak olvasható: " + database +
                                             ". A módosításhoz írási jog kell a fájlra és a mappájára is.");
  }
}

TEST_F(ReadOnlyDatabaseTest, AFolderThatCannotBeWrittenIsTold) {
  ASSERT_EQ(chmod(database.c_str(), 0666), 0);
  ASSERT_EQ(chmod(directory.path().c_str(), 0555), 0);
  expectRefusedUnprivileged({"copy", "1"}, "Az adatbázis csak olvasható: " + database +
                                               ". A módosításhoz írási jog kell a fájlra és a mappájára is.");
}

TEST_F(ReadOnlyDatabaseTest, AFileThatCannotBeReadIsTold) {
  ASSERT_EQ(chmod(database.c_str(), 0000), 0);
  expectRefusedUnprivileged(
      {"list"}, "Az adatbázis nem nyitható meg: " + database + ". Ellenőrizze a helyét és a jogosultságokat.");
}

TEST_F(ReadOnlyDatabaseTest, AFolderThatCannotBeEnteredIsTold) {
  ASSERT_EQ(chmod(directory.path().c_str(), 0000), 0);
  const ProgramRun run = runUnprivileged({"list"});
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_EQ(run.output, "");
  EXPECT_EQ(run.errors, "brontel-host: Az adatbázis nem érhető el: " + database + ". Ellenőrizze a jogosultságokat.\n");
}
