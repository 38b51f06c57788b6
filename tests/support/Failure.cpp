#include "tests/support/Failure.h"

#include <cstdio>
#include <cstdlib>

namespace {

void endProcess(const std::string& what) {
  static_cast<void>(std::fprintf(stderr, "%s\n", what.c_str()));
  std::abort();
}

FailureHandler theHandler = endProcess;

}  // namespace

void setFailureHandler(FailureHandler handler) {
  theHandler = handler == nullptr ? endProcess : handler;
}

void reportFailure(const std::string& what) {
  theHandler(what);
}
