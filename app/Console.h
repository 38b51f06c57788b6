#pragma once

#include <string>

#include "app/Outcome.h"

namespace Brontel::App {

/// Tells the person what is wrong, in one line on standard error. Returns the exit code of a failure.
int report(const FX::FXString& error);

/// Writes to the standard output. Returns the exit code, or that of a failure, which is told, when not all arrived: a
/// full disk must not pass for success.
int print(const std::string& text, ExitCode code);

}  // namespace Brontel::App
