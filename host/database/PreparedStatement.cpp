#include "host/database/PreparedStatement.h"

#include <cstring>
#include <utility>

#include <sqlite3.h>

#include "host/database/DataBaseValueLoader.h"
#include "host/database/SqlText.h"

namespace Brontel::Database {

std::unique_ptr<PreparedStatement> PreparedStatement::prepare(sqlite3* connection, const FX::FXString& sql, int& code) {
  SqlText translated = translateParameters(sql);
  sqlite3_stmt* statement = nullptr;
  const char* rest = nullptr;
  code = sqlite3_prepare_v3(connection, translated.text.c_str(), static_cast<int>(translated.text.size()),
                            SQLITE_PREPARE_PERSISTENT, &statement, &rest);
  if (code != SQLITE_OK) return nullptr;
  const bool further = rest != nullptr && rest[std::strspn(rest, "; \t\r\n")] != '\0';
  if (statement == nullptr || further) {
    sqlite3_finalize(statement);
    code = SQLITE_MISUSE;
    return nullptr;
  }
  return std::unique_ptr<PreparedStatement>(new PreparedStatement(statement, std::move(translated.parameters)));
}

PreparedStatement::PreparedStatement(sqlite3_stmt* statement, std::vector<std::string> parameters)
    : statement_(statement), parameters_(std::move(parameters)) {}

PreparedStatement::~PreparedStatement() {
  sqlite3_finalize(statement_);
}

int PreparedStatement::run(const BoundValues& values, DataBaseValueLoader* loader) {
  running_ = true;
  int code = bind(values);
  if (code == SQLITE_OK) code = step(loader);
  // reset repeats the error of the last step, which the caller has already; an open cursor would hold the file's lock.
  sqlite3_reset(statement_);
  sqlite3_clear_bindings(statement_);
  running_ = false;
  return code;
}

bool PreparedStatement::isReadOnly() const {
  return sqlite3_stmt_readonly(statement_) != 0;
}

int PreparedStatement::bind(const BoundValues& values) {
  int code = SQLITE_OK;
  for (size_t i = 0; i < parameters_.size() && code == SQLITE_OK; ++i) {
    const BoundValue* value = findValue(values, parameters_[i].c_str());
    if (value == nullptr) continue;
    const int number = static_cast<int>(i) + 1;
    // The values outlive the run, so the engine needs no copy of its own.
    code = value->isText
               ? sqlite3_bind_text(statement_, number, value->text.text(), value->text.length(), SQLITE_STATIC)
               : sqlite3_bind_int64(statement_, number, value->number);
  }
  return code;
}

int PreparedStatement::step(DataBaseValueLoader* loader) {
  int code = sqlite3_step(statement_);
  while (code == SQLITE_ROW) {
    code = loader == nullptr ? SQLITE_OK : deliverRow(*loader);
    if (code != SQLITE_OK) return code;
    code = sqlite3_step(statement_);
  }
  return code;
}

int PreparedStatement::deliverRow(DataBaseValueLoader& loader) const {
  const int columns = sqlite3_column_count(statement_);
  for (int column = 0; column < columns; ++column) {
    const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
    // Without memory for the text the engine gives what it gives for NULL; taken for that, it would be saved as empty.
    if (text == nullptr && sqlite3_errcode(sqlite3_db_handle(statement_)) == SQLITE_NOMEM) return SQLITE_NOMEM;
    if (loader.processValue(column, sqlite3_column_name(statement_, column), text) == 0) return SQLITE_ROW;
  }
  return SQLITE_OK;
}

}  // namespace Brontel::Database
