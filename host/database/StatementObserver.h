#pragma once

#include "host/database/BoundValue.h"

namespace Brontel::Database {

/// Sees every statement before it runs, and can make it fail instead: the seam through which tests record and break
/// what happens. The handle borrows it.
class StatementObserver {
 public:
  /// sql is the text with its %name parameters. False makes the statement fail without having run.
  virtual bool beforeRun(const FX::FXString& sql, const BoundValues& values) = 0;
  virtual ~StatementObserver() = default;
};

}  // namespace Brontel::Database
