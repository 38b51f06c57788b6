#pragma once

#include "host/database/DatabaseError.h"

namespace Brontel::App {

/// Keeps the first database error: those that follow are usually its consequences.
class ErrorCollector : public Database::DatabaseErrorSink {
 public:
  void databaseFailed(const Database::DatabaseError& error) override {
    if (!hasError()) first_ = error;
  }

  bool hasError() const { return first_.kind != Database::ErrorKind::None; }
  const Database::DatabaseError& getFirst() const { return first_; }
  void forget() { first_ = Database::DatabaseError(); }

 private:
  Database::DatabaseError first_;
};

}  // namespace Brontel::App
