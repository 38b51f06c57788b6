#include <chrono>
#include <memory>
#include <thread>

#include "tests/app/AppTest.h"
#include "tests/support/ChildProcess.h"

namespace {

using Clock = std::chrono::steady_clock;

class LockedDatabaseTest : public AppTest {
 protected:
  void SetUp() override { makeSample(); }

  // All refused after waiting for the lock that another program has taken, which is the one wait of each run.
  void expectBusy(const std::string& lock, const std::vector<Arguments>& commands) const {
    const auto before = files();
    auto other = std::make_unique<FileConnection>(database);
    other->exec(lock);
    // From here on nobody may look into the file: closing it would take this process's lock away.
    const auto start = Clock::now();
    std::vector<std::unique_ptr<ChildProcess>> children;
    for (const Arguments& arguments : commands) {
      children.push_back(std::make_unique<ChildProcess>(commandLine(arguments)));
      ASSERT_TRUE(children.back()->start());
    }
    for (size_t i = 0; i < commands.size(); ++i) {
      SCOPED_TRACE(commands[i].front());
      EXPECT_EQ(children[i]->wait(), 2);
      EXPECT_EQ(children[i]->getOutput(), "");
      EXPECT_EQ(children[i]->getErrors(), "brontel-host: Az adatbázist most egy másik program használja: " + database +
                                              ". Próbálja újra, ha az befejezte.\n");
    }
    const auto waited = std::chrono::duration_cast<std::chrono::milliseconds>(Clock::now() - start).count();
    EXPECT_GE(waited, 4500);
    EXPECT_LT(waited, 9000);
    // The last connection takes the journal's files with it.
    other.reset();
    EXPECT_TRUE(files() == before);
  }
};

}  // namespace

TEST_F(LockedDatabaseTest, WhileAnotherProgramHasItAloneNothingWorks) {
  expectBusy("pragma locking_mode=exclusive; begin exclusive",
             {{"list"}, {"print", "1"}, {"save", "1"}, {"backup", directory.path("backup.db")}});
}

TEST_F(LockedDatabaseTest, WhileAnotherProgramWritesNobodyElseDoes) {
  expectBusy("begin immediate", {{"init", "--sample"}, {"save", "1"}, {"derive", "4"}, {"close", "1"}});
}

TEST_F(LockedDatabaseTest, TheTablesThatLackSomethingShareOneWait) {
  {
    FileConnection preparation(database);
    for (const auto& row : preparation.rows("select name from sqlite_master where type='index' and sql is not null")) {
      preparation.exec("drop index \"" + row[0] + "\"");
    }
  }
  expectBusy("begin immediate", {{"init", "--sample"}});
}

TEST_F(LockedDatabaseTest, WhileAnotherProgramWritesReadingGoesOn) {
  const std::string expected = output({"print", "1"});
  FileConnection other(database);
  other.exec("begin immediate");
  EXPECT_EQ(output({"print", "1"}), expected);
}

TEST_F(LockedDatabaseTest, ALockThatIsReleasedInTimeIsWaitedFor) {
  FileConnection other(database);
  other.exec("begin exclusive");
  std::thread release([&other] {
    std::this_thread::sleep_for(std::chrono::milliseconds(1500));
    other.exec("commit");
  });
  EXPECT_EQ(output({"save", "1"}), "");
  release.join();
  EXPECT_EQ(text("select version from t_invoice where t_invoice_id=1"), "2");
}
