#include "tests/support/AllocationLimit.h"

#include <cstdlib>
#include <new>

namespace {

constexpr int kNone = -1;
int allocationsLeft = kNone;

bool isRefused() {
  if (allocationsLeft == kNone) return false;
  if (allocationsLeft == 0) return true;
  --allocationsLeft;
  return false;
}

}  // namespace

void* operator new(std::size_t size) {
  void* memory = isRefused() ? nullptr : std::malloc(size == 0 ? 1 : size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

void operator delete(void* memory) noexcept {
  std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}

AllocationLimit::AllocationLimit(int allocations) {
  allocationsLeft = allocations;
}

AllocationLimit::~AllocationLimit() {
  allocationsLeft = kNone;
}
