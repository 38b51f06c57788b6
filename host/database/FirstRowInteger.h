#pragma once

#include "host/database/DataBaseValueLoader.h"

namespace Brontel::Database {

/// Takes the integer in one column of the first row and ends the execution.
class FirstRowInteger : public DataBaseValueLoader {
 public:
  explicit FirstRowInteger(int column) : column_(column) {}

  int processValue(int column, const char* name, const char* value) override;

  /// False when there was no row, no such column, or NULL in it.
  bool isFound() const { return found_; }
  /// 0 when nothing was found. What lies outside the range of int comes as its nearest limit.
  int getValue() const { return value_; }

 private:
  int column_;
  bool found_ = false;
  int value_ = 0;
};

}  // namespace Brontel::Database
