#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/database/BoundValue.h"

struct sqlite3;
struct sqlite3_stmt;
class DataBaseValueLoader;

namespace Brontel::Database {

/// One compiled statement of a connection. It can be run any number of times, but not while it is running; it must be
/// destroyed before the connection closes.
class PreparedStatement {
 public:
  /// Compiles sql, whose parameters are written %name. Null when the engine refuses it or when the text holds more than
  /// one statement, since only the first would run; code then holds SQLite's result.
  static std::unique_ptr<PreparedStatement> prepare(sqlite3* connection, const FX::FXString& sql, int& code);

  PreparedStatement(const PreparedStatement&) = delete;
  PreparedStatement& operator=(const PreparedStatement&) = delete;

  /// Binds the values by name (a parameter without value is NULL, a value without parameter is ignored), runs to the
  /// end or until the loader asks to stop, and resets. Returns SQLite's result: SQLITE_DONE, SQLITE_ROW when the loader
  /// stopped it, or an error. The loader may be null. A value that the engine has no memory to hand out is an error.
  int run(const BoundValues& values, DataBaseValueLoader* loader);

  /// True while run is under way, for example when a loader runs further statements.
  bool isRunning() const { return running_; }
  /// Whether it leaves the file as it is and needs no writer's lock.
  bool isReadOnly() const;

 private:
  struct Finalizer {
    void operator()(sqlite3_stmt* statement) const;
  };
  using Handle = std::unique_ptr<sqlite3_stmt, Finalizer>;

  /// As long as it lives the statement runs.
  class Run {
   public:
    explicit Run(PreparedStatement& statement);
    Run(const Run&) = delete;
    Run& operator=(const Run&) = delete;
    ~Run();

   private:
    PreparedStatement& statement_;
  };

  PreparedStatement(Handle statement, std::vector<std::string> parameters);

  const BoundValue* valueOf(size_t parameter, const BoundValues& values);
  int bind(const BoundValues& values);
  int step(DataBaseValueLoader* loader);
  /// SQLITE_OK, SQLITE_ROW when the loader has had enough, or an error.
  int deliverRow(DataBaseValueLoader& loader) const;
  /// The text of a column of the row that is being read: null for NULL and when there is no memory for it. An integer's
  /// is written into digits.
  const char* textOf(int column, char* digits) const;

  Handle statement_;
  std::vector<std::string> parameters_;
  std::vector<size_t> places_;            // of each parameter's value the last time
  std::vector<const char*> columnNames_;  // the engine's, read anew for each run
  bool running_ = false;
};

}  // namespace Brontel::Database
