// What lies beside the database, and who may read it.

#include <filesystem>
#include <sys/stat.h>

#include "tests/app/AppTest.h"

namespace {

class JournalTest : public AppTest {
 protected:
  void SetUp() override { makeSample(); }

  std::string journal() const { return text("pragma journal_mode"); }
};

}  // namespace

TEST_F(JournalTest, IsWrittenAheadAndGoneWithTheProgram) {
  EXPECT_EQ(journal(), "wal");
  output({"save", "1"});
  EXPECT_EQ(files().size(), 1u);
}

TEST_F(JournalTest, OfAnOlderProgramIsReplacedAtTheNextSave) {
  exec("pragma journal_mode=delete");
  output({"list"});
  EXPECT_EQ(journal(), "delete");
  output({"save", "1"});
  EXPECT_EQ(journal(), "wal");
}

TEST_F(JournalTest, StaysWhileSomebodyElseReads) {
  exec("pragma journal_mode=delete");
  FileConnection other(database);
  other.exec("begin");
  EXPECT_EQ(other.rows("select count(*) from t_invoice"), (Rows{{"5"}}));
  // The reader keeps the save from being committed, which is told; nothing is switched behind the reader's back.
  const ProgramRun run = this->run({"save", "1"});
  EXPECT_EQ(run.exitCode, 2);
  other.exec("commit");
  EXPECT_EQ(journal(), "delete");
  output({"save", "1"});
}

TEST_F(JournalTest, LetsOthersReadWhileAProgramWrites) {
  const std::string expected = output({"print", "1"});
  FileConnection other(database);
  other.exec("begin exclusive; update t_invoice set number='half'");
  EXPECT_EQ(output({"print", "1"}), expected);
  other.exec("rollback");
}

TEST_F(JournalTest, LeftByACrashIsReadFromItsFiles) {
  const TemporaryDirectory crashed;
  {
    FileConnection other(database);
    other.exec("pragma wal_autocheckpoint=0; update t_invoice set number='after' where t_invoice_id=1");
    for (const char* companion : {"", "-wal"}) {
      std::filesystem::copy_file(database + companion, crashed.path("brontel.db") + companion);
    }
  }
  // The file itself need not be whole: its last page may be in the journal only.
  std::filesystem::resize_file(crashed.path("brontel.db"), std::filesystem::file_size(crashed.path("brontel.db")) + 9);
  const ProgramRun run = runProgram({"--database", crashed.path("brontel.db"), "list"});
  EXPECT_EQ(run.errors, "");
  EXPECT_EQ(run.output.substr(0, 7), "1\tafter");
}

TEST_F(JournalTest, IsNotNeededToReadAFileThatMayNotBeWritten) {
  const std::string expected = output({"list"});
  directory.share();
  for (const mode_t file : {0444, 0666}) {
    for (const mode_t folder : {0555, 0777}) {
      ASSERT_EQ(chmod(database.c_str(), file), 0);
      ASSERT_EQ(chmod(directory.path().c_str(), folder), 0);
      const ProgramRun run = runUnprivileged({"list"});
      EXPECT_EQ(run.errors, "");
      EXPECT_EQ(run.output, expected);
      EXPECT_EQ(files().size(), 1u);
    }
  }
  directory.share();
}
