#pragma once

#include "host/database/StatementObserver.h"

class MorvaneDatabase;

/// Makes a statement of a handle fail instead of running. Attached for the object's life.
class FaultObserver : public Brontel::Database::StatementObserver {
 public:
  enum class Mode {
    Once,       ///< only the statement of that number fails
    FromThenOn  ///< and every one after it
  };

  /// number counts from 1; 0 makes none fail, so that statements are only counted.
  FaultObserver(MorvaneDatabase& database, int number, Mode mode = Mode::Once);
  FaultObserver(const FaultObserver&) = delete;
  FaultObserver& operator=(const FaultObserver&) = delete;
  ~FaultObserver() override;

  bool beforeRun(const FX::FXString& sql, const Brontel::Database::BoundValues& values) override;

  /// The statements seen so far, failed ones included.
  int count() const { return count_; }
  /// How many of them failed. A loop over all numbers ends when a run meets none.
  int faults() const { return faults_; }

 private:
  MorvaneDatabase& database_;
  const int number_;
  const Mode mode_;
  int count_ = 0;
  int faults_ = 0;
};
