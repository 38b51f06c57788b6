// dlclose takes the library out of the process, with its classes and all its memory.

#include <gtest/gtest.h>

#include "tests/support/ChildProcess.h"

namespace {

/// The probe with these arguments; it has to answer within the time.
class Probe : public ChildProcess {
 public:
  explicit Probe(std::vector<std::string> arguments) : ChildProcess(command(std::move(arguments))) {
    setTimeout(60000);
    // Otherwise the allocator keeps freed memory aside for later, and it looks as if memory grew.
    setEnvironment("GLIBC_TUNABLES", "glibc.malloc.tcache_count=0");
    run();
  }

 private:
  static std::vector<std::string> command(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), UNLOAD_PROBE);
    return arguments;
  }
};

}  // namespace

TEST(UnloadTest, aHundredLivesLeaveNothingBehind) {
  const Probe probe({PLAIN_PLUGIN_FILE, "100"});
  EXPECT_FALSE(probe.isTimedOut());
  EXPECT_EQ(probe.getSignal(), 0);
  EXPECT_EQ(probe.getExitCode(), 0);
  EXPECT_EQ(probe.getOutput(), "100 rounds, nothing left behind\n");
  EXPECT_EQ(probe.getErrors(), "");
}

TEST(UnloadTest, aLibraryThatStaysWouldBeNoticed) {
  const Probe probe({PLAIN_PLUGIN_FILE, "3", "hold"});
  EXPECT_EQ(probe.getExitCode(), 1);
  EXPECT_NE(probe.getOutput().find("still"), std::string::npos) << probe.getOutput();
}

TEST(UnloadTest, memoryThatStaysWouldBeNoticed) {
  const Probe probe({PLAIN_PLUGIN_FILE, "30", "leak"});
  EXPECT_EQ(probe.getExitCode(), 1);
  EXPECT_NE(probe.getOutput().find("memory grew"), std::string::npos) << probe.getOutput();
}

TEST(UnloadTest, aMissingLibraryWouldBeNoticed) {
  const Probe probe({"/no/such/library.so", "1"});
  EXPECT_EQ(probe.getExitCode(), 1);
  EXPECT_NE(probe.getOutput().find("not loaded"), std::string::npos) << probe.getOutput();
}
