#include "fuzz/FuzzInput.h"

#include <cstdio>
#include <cstdlib>

void require(bool condition, const char* what) {
  if (condition) return;
  static_cast<void>(std::fprintf(stderr, "does not hold: %s\n", what));
  std::abort();
}
