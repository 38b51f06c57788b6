#pragma once

#include <string>

#include <sqlite3.h>

/// The thinnest layer over the C interface of SQLite that a reference can be written with: whoever uses it prepares
/// each statement once and keeps it. Any failure ends the program, since a benchmark of failures would be worthless.
class PlainDatabase {
 public:
  explicit PlainDatabase(const char* file);
  PlainDatabase(const PlainDatabase&) = delete;
  PlainDatabase& operator=(const PlainDatabase&) = delete;
  ~PlainDatabase();

  void run(const char* sql);
  sqlite3* handle() const { return handle_; }

 private:
  sqlite3* handle_ = nullptr;
};

/// One prepared statement.
class PlainStatement {
 public:
  PlainStatement(PlainDatabase& database, const char* sql);
  PlainStatement(const PlainStatement&) = delete;
  PlainStatement& operator=(const PlainStatement&) = delete;
  ~PlainStatement();

  void bind(int parameter, int value) { sqlite3_bind_int(statement_, parameter, value); }
  /// The text has to live until the statement has run.
  void bind(int parameter, const std::string& value) {
    sqlite3_bind_text(statement_, parameter, value.data(), static_cast<int>(value.size()), SQLITE_STATIC);
  }

  /// True while there is a row.
  bool step();
  /// To be called when the rows have been read.
  void reset() { sqlite3_reset(statement_); }
  /// Runs a statement without rows.
  void run() {
    step();
    reset();
  }

  int integer(int column) const { return sqlite3_column_int(statement_, column); }
  /// Null for NULL; valid until the next step.
  const char* text(int column) const { return reinterpret_cast<const char*>(sqlite3_column_text(statement_, column)); }

 private:
  sqlite3_stmt* statement_ = nullptr;
};
