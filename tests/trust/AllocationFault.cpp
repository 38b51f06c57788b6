#include "tests/trust/AllocationFault.h"

#include <cstdio>
#include <cstdlib>

#include <sqlite3.h>

namespace {

sqlite3_mem_methods real;
bool active = false;
long wanted = 0;
bool stays = false;
long seen = 0;
long failed = 0;

bool fails() {
  if (!active) return false;
  ++seen;
  const bool now = wanted > 0 && (seen == wanted || (stays && seen > wanted));
  if (now) ++failed;
  return now;
}

void* allocate(int size) {
  return fails() ? nullptr : real.xMalloc(size);
}

void* reallocate(void* memory, int size) {
  return fails() ? nullptr : real.xRealloc(memory, size);
}

// The engine takes its allocator before its first use and never again, so this runs before main.
bool install() {
  bool done = sqlite3_config(SQLITE_CONFIG_GETMALLOC, &real) == SQLITE_OK;
  sqlite3_mem_methods shim = real;
  shim.xMalloc = allocate;
  shim.xRealloc = reallocate;
  done = done && sqlite3_config(SQLITE_CONFIG_MALLOC, &shim) == SQLITE_OK;
  done = done && sqlite3_config(SQLITE_CONFIG_LOOKASIDE, 0, 0) == SQLITE_OK;
  if (done) return true;
  std::fputs("the engine does not take an allocator\n", stderr);
  std::abort();
}

[[maybe_unused]] const bool installed = install();

}  // namespace

AllocationFault::AllocationFault(long number, Mode mode) {
  wanted = number;
  stays = mode == Mode::FromThenOn;
  seen = 0;
  failed = 0;
  active = true;
}

AllocationFault::~AllocationFault() {
  active = false;
}

long AllocationFault::count() {
  return seen;
}

long AllocationFault::faults() {
  return failed;
}
