// A host that saves invoices is killed at random points.

#include <chrono>
#include <csignal>
#include <iostream>
#include <map>
#include <random>
#include <sstream>
#include <thread>

#include "tests/support/FileConnection.h"
#include "tests/trust/HostProcess.h"
#include "tests/trust/ProcessTest.h"
#include "tests/trust/Progress.h"

using Brontel::Invoice;
using Clock = std::chrono::steady_clock;
using Result = Brontel::InvoiceRepository::Result;

namespace {

class CrashTest : public ProcessTest {
 protected:
  struct Counts {
    int inside = 0;
    int committing = 0;
    int outside = 0;
    size_t reported = 0;
  };

  /// Kills a saving process at a random moment and judges what it has left.
  void killOnce(int round) {
    SCOPED_TRACE("kill " + std::to_string(round));
    const std::string name = "K" + std::to_string(round);
    Progress progress(directory.path("progress"));
    progress.set(Progress::Starting);
    const std::unique_ptr<ChildProcess> saver = process({"save", directory.path("progress"), name});
    ASSERT_TRUE(saver->start());
    const auto deadline = Clock::now() + std::chrono::seconds(30);
    while (progress.get() == Progress::Starting && Clock::now() < deadline) std::this_thread::yield();
    // No waiting for something to happen: this is the random moment itself.
    std::this_thread::sleep_for(std::chrono::microseconds(random_() % 150000));
    saver->kill(SIGKILL);
    saver->wait();
    ASSERT_EQ(saver->getSignal(), SIGKILL) << saver->getErrors();
    count(progress.get());
    judge(name, reported(saver->getOutput()));
  }

  void killRepeatedly(int kills) {
    for (int round = 1; round <= kills && !HasFailure(); ++round) killOnce(round);
    std::cout << kills << " kills: " << counts_.inside << " inside a transaction, " << counts_.committing
              << " in its commit, " << counts_.outside << " outside; " << counts_.reported
              << " saves were reported and all are there\n";
    // A commit is the end of a transaction and takes most of its time on a slow disk.
    EXPECT_GE(counts_.inside + counts_.committing, kills / 3);
  }

 private:
  void count(Progress::State state) {
    if (state == Progress::Inside) ++counts_.inside;
    if (state == Progress::Committing) ++counts_.committing;
    if (state == Progress::Outside) ++counts_.outside;
  }

  /// The last text that was reported saved for each number. A line that the kill has cut was not reported.
  std::map<std::string, int> reported(const std::string& output) {
    std::map<std::string, int> saved;
    std::istringstream lines(output.substr(0, output.rfind('\n') + 1));
    std::string number;
    for (int text = 0; lines >> number >> text;) {
      saved[number] = text;
      ++counts_.reported;
    }
    return saved;
  }

  void judge(const std::string& name, const std::map<std::string, int>& saved) {
    HostProcess host;
    ASSERT_TRUE(host.open(database, HostProcess::Use::Write));
    std::map<std::string, int> found;
    for (const auto& row : FileConnection(database).rows(
             "select t_invoice_id, number from t_invoice where number like '" + name + "/%'")) {
      Result result = Result::Failed;
      const std::unique_ptr<Invoice> invoice = host.repository().load(std::stoi(row[0]), result);
      ASSERT_EQ(result, Result::Done) << host.takeError();
      found[row[1]] = std::atoi(HostProcess::textOf(*invoice).c_str());
      EXPECT_GT(found[row[1]], 0) << row[1] << ": " << HostProcess::textOf(*invoice);
    }
    for (const auto& [number, text] : saved) {
      ASSERT_TRUE(found.contains(number)) << number << " was reported saved and is gone";
      EXPECT_GE(found[number], text) << number << " was reported saved with a later text";
    }
    // The kill may have come between a save and its report.
    EXPECT_LE(found.size(), saved.size() + 1);
    EXPECT_EQ(host.takeError(), "");
    expectUndamaged();
  }

  std::minstd_rand random_{20130102};
  Counts counts_;
};

using LongCrashTest = CrashTest;

}  // namespace

TEST_F(CrashTest, losesNothingThatWasReportedSaved) {
  killRepeatedly(15);
}

TEST_F(LongCrashTest, losesNothingThatWasReportedSavedIn300Kills) {
  killRepeatedly(300);
}
