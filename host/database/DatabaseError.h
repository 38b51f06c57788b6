#pragma once

#include <fx.h>

namespace Brontel::Database {

/// What went wrong, as far as it changes what a person can do about it.
enum class ErrorKind { None, Busy, ReadOnly, NotADatabase, Damaged, Full, CannotOpen, Constraint, Other };

/// One failure of the database, kept by the handle until the next one.
struct DatabaseError {
  ErrorKind kind = ErrorKind::None;
  int code = 0;            ///< SQLite's extended result code; 0 when the failure is the host's own finding
  FX::FXString message;    ///< the engine's own words
  FX::FXString statement;  ///< the SQL text that failed; empty when no statement was involved
};

/// Is told of every failure as it happens. The handle borrows it.
class DatabaseErrorSink {
 public:
  virtual void databaseFailed(const DatabaseError& error) = 0;
  virtual ~DatabaseErrorSink() = default;
};

/// The kind that an SQLite result code (plain or extended) stands for.
ErrorKind errorKindOf(int sqliteCode);

}  // namespace Brontel::Database
