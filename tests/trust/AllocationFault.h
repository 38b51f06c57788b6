#pragma once

/// Makes an allocation of the database engine fail, as if memory had run out. In force for the object's life; one at a
/// time. Every allocation of the engine counts: its small ones are not served from a pool of their own here.
class AllocationFault {
 public:
  enum class Mode {
    Once,       ///< only the allocation of that number fails
    FromThenOn  ///< and every one after it
  };

  /// number counts from 1; 0 makes none fail, so that allocations are only counted.
  AllocationFault(long number, Mode mode);
  AllocationFault(const AllocationFault&) = delete;
  AllocationFault& operator=(const AllocationFault&) = delete;
  ~AllocationFault();

  /// The allocations seen so far, failed ones included.
  static long count();
  /// How many of them failed. A loop over all numbers ends when a run meets none.
  static long faults();
};
