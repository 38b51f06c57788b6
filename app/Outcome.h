#pragma once

#include <fx.h>

namespace Brontel::App {

enum class ExitCode { Done = 0, Blocked = 1, Failed = 2 };

/// How a command ended.
struct Outcome {
  ExitCode code = ExitCode::Done;
  FX::FXString error;  ///< for the person, when it failed; empty when the database has told the reason already
};

inline Outcome failed(const FX::FXString& error) {
  return {ExitCode::Failed, error};
}

/// A failure that the database has reported.
inline Outcome databaseFailed() {
  return {ExitCode::Failed, FX::FXString()};
}

}  // namespace Brontel::App
