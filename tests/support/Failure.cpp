#include "tests/support/Failure.h"

#include <cstdio>
#include <cstdlib>

namespace {

void endProcess(const std::string& what) {
  static_cast<void>(std::fprintf(stderr, "%s\n", what.c_str()));
  std::abort();
}

FailureHandler theHandler = endProcess;
size_t theCount = 0;

}  // namespace

void setFailureHandler(FailureHandler handler) {
  theHandler = handler == nullptr ? endProcess : handler;
}

size_t countFailures() {
  return theCount;
}

void reportFailure(const std::string& what) {
  ++theCount;
  theHandler(what);
}
