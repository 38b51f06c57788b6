#pragma once

/// While it lives, operator new fails after that many further allocations. Only for programs of their own with
/// AllocationLimit.cpp among their sources, which replaces operator new for the whole program. One at a time.
class AllocationLimit {
 public:
  explicit AllocationLimit(int allocations);
  AllocationLimit(const AllocationLimit&) = delete;
  AllocationLimit& operator=(const AllocationLimit&) = delete;
  ~AllocationLimit();
};
