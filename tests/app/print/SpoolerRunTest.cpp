#include <cerrno>
#include <csignal>

#include <gtest/gtest.h>

#include "app/print/SpoolerRun.h"
#include "tests/app/print/ToolFolder.h"

using Brontel::App::noStep;
using Brontel::App::runSpooler;
using Brontel::App::SpoolerRun;

TEST(SpoolerRunTest, AProgramGetsItsArgumentsUntouchedAndNothingToRead) {
  const ToolFolder tools;
  tools.add("lp", "for word; do echo \"<$word>\"; done; read line || echo nothing");
  const SpoolerRun run = runSpooler({"lp", "two words", "$(reboot)", "a;b|c", "", "'\""}, noStep());
  EXPECT_TRUE(run.isFound);
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_EQ(run.output, "<two words>\n<$(reboot)>\n<a;b|c>\n<>\n<'\">\nnothing\n");
}

TEST(SpoolerRunTest, ItsErrorsAndItsExitCodeAreKept) {
  const ToolFolder tools;
  tools.add("lp", "echo out; echo err >&2; exit 3");
  const SpoolerRun run = runSpooler({"lp"}, noStep());
  EXPECT_EQ(run.exitCode, 3);
  EXPECT_EQ(run.output, "out\nerr\n");
}

TEST(SpoolerRunTest, AProgramThatIsNotThereIsNotFound) {
  const ToolFolder tools;
  EXPECT_FALSE(runSpooler({"lp"}, noStep()).isFound);
}

TEST(SpoolerRunTest, OneThatDiesHasNoExitCode) {
  const ToolFolder tools;
  tools.add("lp", "kill -KILL $$");
  const SpoolerRun run = runSpooler({"lp"}, noStep());
  EXPECT_TRUE(run.isFound);
  EXPECT_EQ(run.exitCode, -1);
}

TEST(SpoolerRunTest, OneThatNeverEndsIsKilledAndTheWaitIsWatched) {
  const ToolFolder tools;
  // The second closes what it writes to and goes on.
  for (const char* script :
       {"echo $$ > $TOOLS/pid; while :; do :; done", "echo $$ > $TOOLS/pid; exec >&- 2>&-; while :; do :; done"}) {
    tools.add("lp", script);
    int steps = 0;
    const SpoolerRun run = runSpooler(
        {"lp"}, [&](double) { ++steps; }, 1);
    EXPECT_EQ(run.exitCode, -1);
    EXPECT_GT(steps, 2);
    const int process = std::stoi(tools.written("pid"));
    EXPECT_EQ(kill(process, 0), -1);
    EXPECT_EQ(errno, ESRCH);
  }
}

TEST(SpoolerRunTest, OutputWithoutEndIsCutOff) {
  const ToolFolder tools;
  tools.add("lp",
            "i=0; while [ $i -lt 3000 ]; do echo 0123456789012345678901234567890123456789012345678901234567890; "
            "i=$((i+1)); done");
  const SpoolerRun run = runSpooler({"lp"}, noStep());
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_EQ(run.output.size(), 100000u);
}
