#pragma once

#include <initializer_list>
#include <string>

#include "host/database/DataBaseValueLoader.h"

namespace Brontel::App {

/// Appends a line of fields separated by tabs; tabs and line breaks in them become blanks.
void appendLine(std::string& output, std::initializer_list<FX::FXString> fields);

/// Appends a query's rows as such lines; NULL is empty.
class TabbedRows : public DataBaseValueLoader {
 public:
  /// columns is how many the query has. Borrows the output.
  TabbedRows(std::string& output, int columns) : output_(output), columns_(columns) {}

  int processValue(int column, const char* name, const char* value) override;

 private:
  std::string& output_;
  int columns_;
};

}  // namespace Brontel::App
