#include "bench/PlainSqlite.h"

#include <cstdlib>
#include <iostream>

namespace {

[[noreturn]] void giveUp(sqlite3* handle) {
  std::cerr << "The reference failed: " << sqlite3_errmsg(handle) << '\n';
  std::abort();
}

}  // namespace

PlainDatabase::PlainDatabase(const char* file) {
  if (sqlite3_open_v2(file, &handle_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr) != SQLITE_OK) {
    giveUp(handle_);
  }
  sqlite3_busy_timeout(handle_, 5000);
  run("pragma foreign_keys=on");
}

PlainDatabase::~PlainDatabase() {
  sqlite3_close(handle_);
}

void PlainDatabase::run(const char* sql) {
  if (sqlite3_exec(handle_, sql, nullptr, nullptr, nullptr) != SQLITE_OK) giveUp(handle_);
}

PlainStatement::PlainStatement(PlainDatabase& database, const char* sql) {
  if (sqlite3_prepare_v3(database.handle(), sql, -1, SQLITE_PREPARE_PERSISTENT, &statement_, nullptr) != SQLITE_OK) {
    giveUp(database.handle());
  }
}

PlainStatement::~PlainStatement() {
  sqlite3_finalize(statement_);
}

bool PlainStatement::step() {
  const int code = sqlite3_step(statement_);
  if (code == SQLITE_ROW) return true;
  if (code != SQLITE_DONE) giveUp(sqlite3_db_handle(statement_));
  return false;
}
