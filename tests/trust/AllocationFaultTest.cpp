// Memory runs out in the database engine, at any of its allocations.

#include <gtest/gtest.h>

#include "tests/trust/AllocationFault.h"
#include "tests/trust/FaultRun.h"

using Journal = FaultWorld::Journal;
using Mode = AllocationFault::Mode;

namespace {

// A prime, so that the sample meets every phase of a journey that repeats itself.
constexpr long kSample = 61;

std::vector<Journey> journeys() {
  return {Journeys::open(),         Journeys::load(),         Journeys::saveNew(),
          Journeys::saveEdited(),   Journeys::saveSettings(), Journeys::saveAssociations(),
          Journeys::extendSchema(), Journeys::backUp()};
}

void runWithFaults(Journal journal, Mode mode, long stride) {
  const auto faulty = [mode](long number, const std::function<void()>& act) {
    const AllocationFault fault(number, mode);
    act();
    return AllocationFault::faults();
  };
  runAllJourneys(journal, stride, mode == Mode::Once ? "one allocation" : "every allocation from one on", faulty,
                 journeys());
}

}  // namespace

TEST(AllocationFaultTest, countsWhatTheEngineAllocates) {
  FaultWorld world(Journal::WriteAhead);
  const AllocationFault counter(0, Mode::Once);
  EXPECT_TRUE(world.reopen());
  EXPECT_GT(AllocationFault::count(), 50);
  EXPECT_EQ(AllocationFault::faults(), 0);
}

TEST(AllocationFaultTest, sampledFailuresLeaveAllOrNothing) {
  runWithFaults(Journal::WriteAhead, Mode::Once, kSample);
}

TEST(AllocationFaultTest, sampledFailuresThatStayLeaveAllOrNothing) {
  runWithFaults(Journal::WriteAhead, Mode::FromThenOn, kSample);
}

TEST(SoakAllocationFaultTest, everyFailureLeavesAllOrNothing) {
  runWithFaults(Journal::WriteAhead, Mode::Once, 1);
}

TEST(SoakAllocationFaultTest, everyFailureThatStaysLeavesAllOrNothing) {
  runWithFaults(Journal::WriteAhead, Mode::FromThenOn, 1);
}

TEST(SoakAllocationFaultTest, everyFailureWithARollbackJournalLeavesAllOrNothing) {
  runWithFaults(Journal::Rollback, Mode::Once, 1);
}

TEST(SoakAllocationFaultTest, everyFailureThatStaysWithARollbackJournalLeavesAllOrNothing) {
  runWithFaults(Journal::Rollback, Mode::FromThenOn, 1);
}
