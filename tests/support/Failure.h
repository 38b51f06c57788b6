#pragma once

#include <cstddef>
#include <string>

/// Hears of what was relied on and has not come true.
using FailureHandler = void (*)(const std::string& what);

/// Names who hears of it from now on. Before anybody is named a failure ends the process, so that none is missed.
void setFailureHandler(FailureHandler handler);

/// A failure of the running test, or whatever a program without tests makes of it. Returns unless the handler ends the
/// process.
void reportFailure(const std::string& what);

/// How many failures have been reported so far.
size_t countFailures();
