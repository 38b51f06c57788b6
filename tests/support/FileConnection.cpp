#include "tests/support/FileConnection.h"

#include <sqlite3.h>

#include "tests/support/Failure.h"

using Rows = std::vector<std::vector<std::string>>;

namespace {

std::string textOf(sqlite3_value* value) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(value));
  return text == nullptr ? "NULL" : std::string(text, static_cast<size_t>(sqlite3_value_bytes(value)));
}

std::string literalOf(sqlite3_value* value) {
  const int type = sqlite3_value_type(value);
  const std::string text = textOf(value);
  if (type == SQLITE_TEXT) return "'" + text + "'";
  return type == SQLITE_BLOB ? "x'" + text + "'" : text;
}

}  // namespace

FileConnection::FileConnection(const std::string& path) {
  expectOk(sqlite3_open(path.c_str(), &connection_), path);
}

FileConnection::~FileConnection() {
  sqlite3_close(connection_);
}

void FileConnection::expectOk(int code, const std::string& what) {
  if (code != SQLITE_OK) reportFailure(what + ": " + sqlite3_errmsg(connection_));
}

void FileConnection::exec(const std::string& script) {
  expectOk(sqlite3_exec(connection_, script.c_str(), nullptr, nullptr, nullptr), script);
}

Rows FileConnection::rows(const std::string& sql) {
  return read(sql, false);
}

Rows FileConnection::literals(const std::string& sql) {
  return read(sql, true);
}

Rows FileConnection::read(const std::string& sql, bool asLiterals) {
  Rows rows;
  sqlite3_stmt* statement = nullptr;
  expectOk(sqlite3_prepare_v2(connection_, sql.c_str(), -1, &statement, nullptr), sql);
  int code = sqlite3_step(statement);
  for (; code == SQLITE_ROW; code = sqlite3_step(statement)) {
    rows.emplace_back();
    for (int column = 0; column < sqlite3_column_count(statement); ++column) {
      sqlite3_value* value = sqlite3_column_value(statement, column);
      rows.back().push_back(asLiterals ? literalOf(value) : textOf(value));
    }
  }
  expectOk(code == SQLITE_DONE ? SQLITE_OK : code, sql);
  sqlite3_finalize(statement);
  return rows;
}
