#include "tests/trust/FaultRun.h"

#include <iostream>

#include <gtest/gtest.h>

#include "host/database/DatabaseError.h"

FaultRun::FaultRun(FaultWorld& world, Journey journey, long stride)
    : world_(world), journey_(std::move(journey)), stride_(stride) {}

FaultRun::Counts FaultRun::run(const std::string& faults, const Faulty& faulty) {
  SCOPED_TRACE(journey_.name + ", " + faults);
  counts_ = {};
  rehearse();
  long number = 1;
  while (!testing::Test::HasFailure() && runOnce(number, faulty)) number += stride_;
  if (testing::Test::HasFailure()) std::cout << "failed at fault " << number << "\n";
  return counts_;
}

// What the file holds before, and what a run without faults makes of it.
void FaultRun::rehearse() {
  world_.restore();
  journey_.prepare(world_);
  before_ = world_.dump();
  EXPECT_TRUE(world_.reopen());
  EXPECT_TRUE(journey_.act(world_)) << world_.handle().getLastError().message.text();
  after_ = world_.dump();
}

bool FaultRun::runOnce(long number, const Faulty& faulty) {
  SCOPED_TRACE("fault " + std::to_string(number));
  world_.restore();
  journey_.prepare(world_);
  EXPECT_TRUE(world_.reopen());
  const FX::FXlong failures = world_.handle().getFailures();
  bool claimed = false;
  const long met = faulty(number, [this, &claimed] { claimed = journey_.act(world_); });
  if (met == 0) {
    EXPECT_TRUE(claimed);
    EXPECT_EQ(world_.dump(), after_);
    return false;
  }
  ++counts_.points;
  judge(claimed, failures);
  if (!claimed && !testing::Test::HasFailure()) repeat();
  return true;
}

void FaultRun::judge(bool claimed, FX::FXlong failures) {
  EXPECT_EQ(world_.damage(), "");
  const std::string now = world_.dump();
  if (claimed) {
    ++counts_.survived;
    EXPECT_EQ(now, after_);
    return;
  }
  EXPECT_GT(world_.handle().getFailures(), failures) << "failed without an error";
  EXPECT_NE(world_.handle().getLastError().kind, Brontel::Database::ErrorKind::None);
  EXPECT_FALSE(world_.handle().getLastError().message.empty());
  if (!journey_.hasWholeParts && now != before_ && now == after_) {
    ++counts_.undecided;
    return;
  }
  ++counts_.refused;
  // Its parts are judged when it has been repeated.
  if (!journey_.hasWholeParts) {
    EXPECT_EQ(now, before_);
  }
}

// With the fault gone the same objects can do it, on the same connection when there still is one.
void FaultRun::repeat() {
  if (!world_.handle().isOpen()) {
    EXPECT_TRUE(world_.reopen());
  }
  EXPECT_TRUE(journey_.act(world_)) << world_.handle().getLastError().message.text();
  EXPECT_EQ(world_.dump(), after_) << "after repeating";
  EXPECT_EQ(world_.damage(), "");
}

void runAllJourneys(FaultWorld::Journal journal, long stride, const std::string& faults, const FaultRun::Faulty& faulty,
                    const std::vector<Journey>& journeys) {
  FaultWorld world(journal);
  for (const Journey& journey : journeys) {
    const FaultRun::Counts counts = FaultRun(world, journey, stride).run(faults, faulty);
    std::cout << faults << ", " << (journal == FaultWorld::Journal::Rollback ? "rollback" : "write-ahead")
              << " journal, " << journey.name << ": " << counts.points << " fault points, " << counts.refused
              << " refused, " << counts.survived << " survived, " << counts.undecided << " undecided\n";
    EXPECT_GT(counts.points, 0) << journey.name << ": no fault was met";
    if (testing::Test::HasFailure()) return;
  }
}
