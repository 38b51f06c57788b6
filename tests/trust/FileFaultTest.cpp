// The disk fails in the database engine's hands, at any operation.

#include <gtest/gtest.h>

#include "tests/trust/FaultRun.h"
#include "tests/trust/FileFault.h"

using Journal = FaultWorld::Journal;
using Kind = FileFault::Kind;
using Mode = FileFault::Mode;

namespace {

const char* nameOf(Kind kind) {
  switch (kind) {
    case Kind::Read:
      return "read";
    case Kind::Write:
      return "write";
    case Kind::ShortWrite:
      return "short write";
    case Kind::FullDisk:
      return "full disk";
    case Kind::Sync:
      return "sync";
    case Kind::Truncate:
      return "truncate";
    case Kind::Open:
      return "open";
    case Kind::Delete:
      return "delete";
    case Kind::SharedMemory:
      return "shared memory";
  }
  return "";
}

std::vector<Journey> writingJourneys() {
  return {Journeys::saveNew(),          Journeys::saveEdited(),   Journeys::saveAndClose(), Journeys::saveSettings(),
          Journeys::saveAssociations(), Journeys::extendSchema(), Journeys::backUp()};
}

std::vector<Journey> allJourneys() {
  std::vector<Journey> all = writingJourneys();
  all.push_back(Journeys::open());
  all.push_back(Journeys::load());
  return all;
}

void runWithFaults(Journal journal, Kind kind, long stride, const std::vector<Journey>& journeys) {
  useFaultyFiles();
  for (const Mode mode : {Mode::Once, Mode::FromThenOn}) {
    if (kind == Kind::FullDisk && mode == Mode::Once) continue;
    const auto faulty = [kind, mode](long number, const std::function<void()>& act) {
      const FileFault fault(kind, number, mode);
      act();
      return FileFault::faults();
    };
    const std::string faults = std::string(mode == Mode::Once ? "one " : "every ") + nameOf(kind);
    runAllJourneys(journal, stride, faults, faulty, journeys);
  }
}

void runWithBothJournals(Kind kind, long stride, const std::vector<Journey>& journeys) {
  runWithFaults(Journal::WriteAhead, kind, stride, journeys);
  runWithFaults(Journal::Rollback, kind, stride, journeys);
}

// A prime, so that the sample meets every phase of a journey that repeats itself.
constexpr long kSample = 11;

}  // namespace

TEST(FileFaultTest, sampledFailedWritesLeaveAllOrNothing) {
  runWithBothJournals(Kind::Write, kSample, writingJourneys());
}

TEST(FileFaultTest, sampledShortWritesLeaveAllOrNothing) {
  runWithBothJournals(Kind::ShortWrite, kSample, writingJourneys());
}

TEST(FileFaultTest, aDiskThatIsFullFromASampledWriteOnLeavesAllOrNothing) {
  runWithBothJournals(Kind::FullDisk, kSample, writingJourneys());
}

TEST(FileFaultTest, failedSyncsLeaveAllOrNothing) {
  runWithBothJournals(Kind::Sync, 1, writingJourneys());
}

TEST(FileFaultTest, sampledFailedReadsLeaveAllOrNothing) {
  runWithBothJournals(Kind::Read, kSample, allJourneys());
}

TEST(FileFaultTest, failedOpensLeaveAllOrNothing) {
  runWithFaults(Journal::WriteAhead, Kind::Open, 1, {Journeys::open(), Journeys::backUp()});
  std::vector<Journey> journeys = writingJourneys();
  journeys.push_back(Journeys::open());
  runWithFaults(Journal::Rollback, Kind::Open, 1, journeys);
}

TEST(FileFaultTest, aJournalThatCannotBeDeletedLeavesAllOrNothing) {
  runWithFaults(Journal::Rollback, Kind::Delete, 1, writingJourneys());
  runWithFaults(Journal::WriteAhead, Kind::Delete, 1, {Journeys::saveAndClose()});
}

TEST(FileFaultTest, failedTruncationsLeaveAllOrNothing) {
  runWithFaults(Journal::WriteAhead, Kind::Truncate, 1, {Journeys::saveAndClose()});
}

TEST(FileFaultTest, aJournalsIndexThatCannotBeMappedLeavesAllOrNothing) {
  runWithFaults(Journal::WriteAhead, Kind::SharedMemory, 1, {Journeys::open()});
}

TEST(LongFileFaultTest, everyFailedWriteLeavesAllOrNothing) {
  runWithBothJournals(Kind::Write, 1, writingJourneys());
}

TEST(LongFileFaultTest, everyShortWriteLeavesAllOrNothing) {
  runWithBothJournals(Kind::ShortWrite, 1, writingJourneys());
}

TEST(LongFileFaultTest, aDiskThatIsFullFromAnyWriteOnLeavesAllOrNothing) {
  runWithBothJournals(Kind::FullDisk, 1, writingJourneys());
}

TEST(LongFileFaultTest, everyFailedReadLeavesAllOrNothing) {
  runWithBothJournals(Kind::Read, 1, allJourneys());
}
