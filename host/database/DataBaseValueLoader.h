#pragma once

#include <fx.h>

/// Receives the result of a statement: one call per column of each row, in column order.
/// Lives as long as its user wants; the statement never keeps it.
class DataBaseValueLoader {
 public:
  DataBaseValueLoader() = default;
  DataBaseValueLoader(const DataBaseValueLoader&) = delete;
  DataBaseValueLoader& operator=(const DataBaseValueLoader&) = delete;

  /// Takes the text of one column; value is null for SQL NULL and valid during the call only.
  /// Counts the rows by their first column. A zero result ends the execution at once.
  virtual int processValue(int column, const char* name, const char* value);

  /// The rows seen so far, as long as an overriding processValue keeps counting them.
  virtual int getNumRows() const;

  virtual ~DataBaseValueLoader() = default;

 protected:
  FX::FXint rows_ = 0;
};
