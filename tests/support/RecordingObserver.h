#pragma once

#include <string>
#include <utility>
#include <vector>

#include "host/database/StatementObserver.h"

class MorvaneDatabase;

/// Writes down every statement that runs through a handle, with its values. Attached for the object's life.
class RecordingObserver : public Brontel::Database::StatementObserver {
 public:
  struct Record {
    std::string sql;
    std::vector<std::pair<std::string, std::string>> values;  ///< in binding order; texts in apostrophes

    /// The value bound under that name, as recorded; empty when there was none.
    std::string value(const std::string& name) const;
    /// "sql [name=1, other='x']"; without values the SQL alone.
    std::string toText() const;
  };

  explicit RecordingObserver(MorvaneDatabase& database);
  RecordingObserver(const RecordingObserver&) = delete;
  RecordingObserver& operator=(const RecordingObserver&) = delete;
  ~RecordingObserver() override;

  bool beforeRun(const FX::FXString& sql, const Brontel::Database::BoundValues& values) override;

  const std::vector<Record>& records() const { return records_; }
  void clear() { records_.clear(); }
  /// The texts of all records.
  std::vector<std::string> texts() const;
  /// How many recorded statements begin with that text.
  int count(const std::string& beginning) const;

 private:
  MorvaneDatabase& database_;
  std::vector<Record> records_;
};
