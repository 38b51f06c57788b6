#include "host/database/PreparedStatement.h"

#include <charconv>
#include <cstring>
#include <utility>

#include <sqlite3.h>

#include "host/database/DataBaseValueLoader.h"
#include "host/database/SqlText.h"

namespace Brontel::Database {

namespace {

// Enough for a 64-bit integer, its sign and the zero byte.
constexpr size_t kMostDigits = 24;

bool isNamed(const BoundValue& value, const std::string& name) {
  const auto length = static_cast<size_t>(value.name.length());
  return length == name.size() && std::memcmp(value.name.text(), name.data(), length) == 0;
}

}  // namespace

std::unique_ptr<PreparedStatement> PreparedStatement::prepare(sqlite3* connection, const FX::FXString& sql, int& code) {
  SqlText translated = translateParameters(sql);
  sqlite3_stmt* compiled = nullptr;
  const char* rest = nullptr;
  code = sqlite3_prepare_v3(connection, translated.text.c_str(), static_cast<int>(translated.text.size()),
                            SQLITE_PREPARE_PERSISTENT, &compiled, &rest);
  Handle statement(compiled);
  if (code != SQLITE_OK) return nullptr;
  const bool further = rest != nullptr && rest[std::strspn(rest, "; \t\r\n")] != '\0';
  if (statement == nullptr || further) {
    code = SQLITE_MISUSE;
    return nullptr;
  }
  return std::unique_ptr<PreparedStatement>(
      new PreparedStatement(std::move(statement), std::move(translated.parameters)));
}

void PreparedStatement::Finalizer::operator()(sqlite3_stmt* statement) const {
  sqlite3_finalize(statement);
}

PreparedStatement::Run::Run(PreparedStatement& statement) : statement_(statement) {
  statement_.running_ = true;
}

PreparedStatement::Run::~Run() {
  // reset repeats the error of the last step, which the caller has already; an open cursor would hold the file's lock.
  sqlite3_reset(statement_.statement_.get());
  sqlite3_clear_bindings(statement_.statement_.get());
  statement_.running_ = false;
}

PreparedStatement::PreparedStatement(Handle statement, std::vector<std::string> parameters)
    : statement_(std::move(statement)), parameters_(std::move(parameters)), places_(parameters_.size()) {}

int PreparedStatement::run(const BoundValues& values, DataBaseValueLoader* loader) {
  const Run running(*this);
  const int code = bind(values);
  return code == SQLITE_OK ? step(loader) : code;
}

bool PreparedStatement::isReadOnly() const {
  return sqlite3_stmt_readonly(statement_.get()) != 0;
}

const BoundValue* PreparedStatement::valueOf(size_t parameter, const BoundValues& values) {
  const std::string& name = parameters_[parameter];
  size_t& place = places_[parameter];
  // The same names are mostly bound in the same order each time.
  if (place < values.size() && isNamed(values[place], name)) return &values[place];
  const BoundValue* value = findValue(values, name.c_str());
  if (value != nullptr) place = static_cast<size_t>(value - values.data());
  return value;
}

int PreparedStatement::bind(const BoundValues& values) {
  int code = SQLITE_OK;
  for (size_t i = 0; i < parameters_.size() && code == SQLITE_OK; ++i) {
    const BoundValue* value = valueOf(i, values);
    if (value == nullptr) continue;
    const int number = static_cast<int>(i) + 1;
    // The values outlive the run, so the engine needs no copy of its own.
    code = value->isText
               ? sqlite3_bind_text(statement_.get(), number, value->text.text(), value->text.length(), SQLITE_STATIC)
               : sqlite3_bind_int64(statement_.get(), number, value->number);
  }
  return code;
}

int PreparedStatement::step(DataBaseValueLoader* loader) {
  int code = sqlite3_step(statement_.get());
  columnNames_.clear();
  if (code == SQLITE_ROW && loader != nullptr) {
    const int columns = sqlite3_column_count(statement_.get());
    for (int i = 0; i < columns; ++i) columnNames_.push_back(sqlite3_column_name(statement_.get(), i));
  }
  while (code == SQLITE_ROW) {
    code = loader == nullptr ? SQLITE_OK : deliverRow(*loader);
    if (code != SQLITE_OK) return code;
    code = sqlite3_step(statement_.get());
  }
  return code;
}

int PreparedStatement::deliverRow(DataBaseValueLoader& loader) const {
  char digits[kMostDigits];
  for (size_t i = 0; i < columnNames_.size(); ++i) {
    const int column = static_cast<int>(i);
    const char* text = textOf(column, digits);
    // Without memory for the text the engine gives what it gives for NULL; taken for that, it would be saved as empty.
    if (text == nullptr && sqlite3_errcode(sqlite3_db_handle(statement_.get())) == SQLITE_NOMEM) return SQLITE_NOMEM;
    if (loader.processValue(column, columnNames_[i], text) == 0) return SQLITE_ROW;
  }
  return SQLITE_OK;
}

const char* PreparedStatement::textOf(int column, char* digits) const {
  if (sqlite3_column_type(statement_.get(), column) == SQLITE_INTEGER) {
    // The engine would allocate room for the text first.
    *std::to_chars(digits, digits + kMostDigits - 1, sqlite3_column_int64(statement_.get(), column)).ptr = '\0';
    return digits;
  }
  return reinterpret_cast<const char*>(sqlite3_column_text(statement_.get(), column));
}

}  // namespace Brontel::Database
