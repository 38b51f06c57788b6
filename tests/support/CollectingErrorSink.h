#pragma once

#include <vector>

#include "host/database/DatabaseError.h"

class MorvaneDatabase;

/// Keeps every failure that a handle tells. Attached for the object's life.
class CollectingErrorSink : public Brontel::Database::DatabaseErrorSink {
 public:
  explicit CollectingErrorSink(MorvaneDatabase& database);
  CollectingErrorSink(const CollectingErrorSink&) = delete;
  CollectingErrorSink& operator=(const CollectingErrorSink&) = delete;
  ~CollectingErrorSink() override;

  void databaseFailed(const Brontel::Database::DatabaseError& error) override { errors_.push_back(error); }

  const std::vector<Brontel::Database::DatabaseError>& errors() const { return errors_; }

 private:
  MorvaneDatabase& database_;
  std::vector<Brontel::Database::DatabaseError> errors_;
};
