#pragma once

#include <string>
#include <vector>

#include "app/print/Step.h"

namespace Brontel::App {

/// How a program of the printing system ended.
struct SpoolerRun {
  bool isFound = false;  ///< false when there is no such program; nothing else means anything then
  int exitCode = -1;     ///< -1 when it did not end by itself
  std::string output;    ///< the first of what it wrote, errors included
};

/// Runs a program without a shell, with nothing to read, and waits for its end; one that takes longer than that is
/// killed. arguments[0] is looked up in PATH.
SpoolerRun runSpooler(const std::vector<std::string>& arguments, const Step& step, int seconds = 60);

}  // namespace Brontel::App
