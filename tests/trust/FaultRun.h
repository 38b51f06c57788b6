#pragma once

#include <functional>
#include <string>
#include <vector>

#include "tests/trust/Journeys.h"

/// Repeats a journey with a fault at every point, or at a sample of the points, until a run meets none. Each time there
/// has to be no crash, no damage, and either all that was to be done or nothing of it and an error.
class FaultRun {
 public:
  struct Counts {
    long points = 0;     ///< runs that met their fault
    long refused = 0;    ///< of them: with an error and nothing done
    long survived = 0;   ///< of them: everything done all the same
    long undecided = 0;  ///< of them: an error after everything was done
  };

  /// Runs the second half of a journey with the fault of that number, and says how often it was met.
  using Faulty = std::function<long(long number, const std::function<void()>& act)>;

  /// stride 1 takes every point.
  FaultRun(FaultWorld& world, Journey journey, long stride);

  Counts run(const std::string& faults, const Faulty& faulty);

 private:
  void rehearse();
  bool runOnce(long number, const Faulty& faulty);
  void judge(bool claimed, FX::FXlong failures);
  void repeat();

  FaultWorld& world_;
  const Journey journey_;
  const long stride_;
  std::string before_;
  std::string after_;
  Counts counts_;
};

/// All journeys, each with its counts printed. Fails when one of them met no fault.
void runAllJourneys(FaultWorld::Journal journal, long stride, const std::string& faults, const FaultRun::Faulty& faulty,
                    const std::vector<Journey>& journeys);
