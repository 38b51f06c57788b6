#include "host/database/MorvaneDatabase.h"

#include <climits>
#include <thread>

#include <sqlite3.h>

#include "host/database/DataBaseValueLoader.h"
#include "host/database/DatabaseBackup.h"
#include "host/database/FirstRowInteger.h"
#include "host/database/FoldCase.h"
#include "host/database/NextId.h"
#include "host/database/ReadOnlyFile.h"
#include "host/database/StatementObserver.h"
#include "host/database/TextView.h"

using Brontel::Database::BoundValues;
using Brontel::Database::ErrorKind;
using Brontel::Database::FirstRowInteger;
using Brontel::Database::PreparedStatement;
using Brontel::Database::viewOf;
using FX::FXString;

namespace {

// A person waits this long for another program's lock, however many statements meet it.
constexpr std::chrono::milliseconds kLongestWait{5000};
constexpr std::chrono::milliseconds kWaitStep{10};
// A lock met this long after the last one is a new wait.
constexpr std::chrono::milliseconds kSameWait{1000};
constexpr size_t kMostCachedStatements = 256;
// SQLite opens a file without looking into it.
constexpr const char* kLookInside = "select count(*) from sqlite_master";

// fold(text): lower case by Unicode's simple mapping, since SQLite's own lower() knows ASCII only.
void foldCase(sqlite3_context* context, int, sqlite3_value** arguments) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_value_text(arguments[0]));
  if (text == nullptr) return;
  const auto length = static_cast<size_t>(sqlite3_value_bytes(arguments[0]));
  const std::string folded = Brontel::Database::foldCase({text, length});
  sqlite3_result_text(context, folded.data(), static_cast<int>(folded.size()), SQLITE_TRANSIENT);
}

}  // namespace

MorvaneDatabase::MorvaneDatabase() = default;

MorvaneDatabase::~MorvaneDatabase() {
  close();
}

bool MorvaneDatabase::open(const FXString& path, OpenMode mode) {
  close();
  path_ = path;
  const int flags = SQLITE_OPEN_READWRITE | (mode == OpenMode::Create ? SQLITE_OPEN_CREATE : 0);
  int code = SQLITE_CANTOPEN;
  if (Brontel::Database::canOnlyBeReadAsItLies(path)) {
    code = connect(Brontel::Database::uriAsItLies(path), SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
  } else if (!path.empty()) {
    code = connect(Brontel::Database::engineFileName(path), flags);
  }
  if (code == SQLITE_OK) return true;
  fail(code, kLookInside);
  close();
  return false;
}

int MorvaneDatabase::connect(const FXString& file, int flags) {
  // One thread uses the connection, so the engine need not lock it at each step.
  const int code = sqlite3_open_v2(file.text(), &connection_, flags | SQLITE_OPEN_NOMUTEX, nullptr);
  if (code != SQLITE_OK) return code;
  sqlite3_extended_result_codes(connection_, 1);
  // By default the engine takes a misspelled name in double quotes for a text, and a condition on it for true or false.
  sqlite3_db_config(connection_, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
  sqlite3_db_config(connection_, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
  sqlite3_busy_handler(connection_, &MorvaneDatabase::onBusy, this);
  sqlite3_create_function(connection_, "fold", 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, foldCase, nullptr,
                          nullptr);
  const int looked = runPrepared(kLookInside, {}, nullptr);
  return looked == SQLITE_DONE ? SQLITE_OK : looked;
}

void MorvaneDatabase::close() {
  lastUsed_ = nullptr;
  cache_.clear();
  rollback_.reset();
  sqlite3_close(connection_);
  connection_ = nullptr;
  transactionDepth_ = 0;
  rollbackPending_ = false;
}

bool MorvaneDatabase::isReadOnly() const {
  return connection_ != nullptr && sqlite3_db_readonly(connection_, "main") == 1;
}

bool MorvaneDatabase::useWriteAheadJournal() {
  if (connection_ == nullptr || isReadOnly()) return false;
  // Nobody is waited for: the next program that finds the file alone switches it.
  sqlite3_busy_handler(connection_, nullptr, nullptr);
  const int code = runPrepared("pragma journal_mode=wal", {}, nullptr);
  sqlite3_busy_handler(connection_, &MorvaneDatabase::onBusy, this);
  switch (Brontel::Database::errorKindOf(code)) {
    case ErrorKind::None:
    case ErrorKind::Busy:
    case ErrorKind::ReadOnly:
    case ErrorKind::CannotOpen:
      break;
    default:
      return fail(code, "pragma journal_mode=wal");
  }
  // Some builds of the engine would let the last commits go with a power failure.
  run("pragma synchronous=full");
  return queryInt("select count(*) from pragma_journal_mode where journal_mode='wal'", 1, 0) == 1;
}

int MorvaneDatabase::queryInt(const FXString& sql, int, int defaultValue) {
  FirstRowInteger value(0);
  run(sql, {}, &value);
  return value.isFound() ? value.getValue() : defaultValue;
}

bool MorvaneDatabase::run(const FXString& sql, const BoundValues& values, DataBaseValueLoader* loader) {
  if (connection_ == nullptr) {
    fail(ErrorKind::CannotOpen, "no database is open", sql);
    return false;
  }
  if (transactionLost()) {
    // The engine has rolled the transaction back by itself (a full disk, say). Outside of it the statement would be
    // stored on its own; the error that ended the transaction stays the last one.
    ++failures_;
    return false;
  }
  if (observer_ != nullptr && !observer_->beforeRun(sql, values)) {
    fail(ErrorKind::Other, "refused by the observer", sql);
    return false;
  }
  if (rollbackPending_ && !rollBack()) return false;
  std::string_view ran = viewOf(sql);
  const int code = runPrepared(sql, values, loader, &ran);
  if (code == SQLITE_DONE || code == SQLITE_ROW) return true;
  return fail(code, FXString(ran.data(), static_cast<FX::FXint>(ran.size())));
}

int MorvaneDatabase::runPrepared(const FXString& sql, const BoundValues& values, DataBaseValueLoader* loader,
                                 std::string_view* ran) {
  int code = SQLITE_OK;
  PreparedStatement* cached = prepareCached(sql, code);
  if (cached == nullptr) return code;
  if (ran != nullptr) *ran = lastUsed_->first;
  if (!cached->isRunning()) {
    const std::chrono::milliseconds waitedBefore = waited_;
    code = cached->run(values, loader);
    // A look that nobody hinders says nothing about the lock of a writer, which would be waited for again after each.
    const bool locked = !cached->isReadOnly() || waited_ != waitedBefore;
    if (code == SQLITE_DONE && locked) waited_ = std::chrono::milliseconds(0);
    return code;
  }
  // A loader that runs the statement which is feeding it needs a second cursor.
  const std::unique_ptr<PreparedStatement> second = PreparedStatement::prepare(connection_, sql, code);
  return second == nullptr ? code : second->run(values, loader);
}

bool MorvaneDatabase::begin(const FXString& sql) {
  if (connection_ != nullptr && rollback_ == nullptr) {
    // Made while it can be: when a rollback is due there may be no memory left to compile it.
    int code = SQLITE_OK;
    rollback_ = PreparedStatement::prepare(connection_, "rollback", code);
    if (rollback_ == nullptr) return fail(code, sql);
  }
  return run(sql);
}

// Until it has succeeded no other statement runs, which would become part of what is to be undone.
bool MorvaneDatabase::rollBack() {
  if (rollback_ == nullptr) return true;  // closed meanwhile, which has undone it
  const int code = rollback_->run({}, nullptr);
  rollbackPending_ = sqlite3_get_autocommit(connection_) == 0;
  return !rollbackPending_ || fail(code, "rollback");
}

PreparedStatement* MorvaneDatabase::prepareCached(const FXString& sql, int& code) {
  const std::string_view text = viewOf(sql);
  // Thousands of times in a row it is the same one.
  if (lastUsed_ != nullptr && lastUsed_->first == text) return lastUsed_->second.get();
  const auto found = cache_.find(text);
  if (found != cache_.end()) return (lastUsed_ = &*found)->second.get();
  std::unique_ptr<PreparedStatement> prepared = PreparedStatement::prepare(connection_, sql, code);
  if (prepared == nullptr) return nullptr;
  if (cache_.size() >= kMostCachedStatements) {
    lastUsed_ = nullptr;
    std::erase_if(cache_, [](const auto& entry) { return !entry.second->isRunning(); });
  }
  lastUsed_ = &*cache_.emplace(text, std::move(prepared)).first;
  return lastUsed_->second.get();
}

int MorvaneDatabase::changes() const {
  return connection_ == nullptr ? 0 : sqlite3_changes(connection_);
}

int MorvaneDatabase::lastInsertId() const {
  if (connection_ == nullptr) return 0;
  const sqlite3_int64 id = sqlite3_last_insert_rowid(connection_);
  return id > INT_MAX || id < INT_MIN ? 0 : static_cast<int>(id);
}

int MorvaneDatabase::nextId(const FXString& table) {
  return Brontel::Database::nextId(*this, table);
}

bool MorvaneDatabase::setForeignKeys(bool enforced) {
  run(enforced ? "pragma foreign_keys=on" : "pragma foreign_keys=off");
  return queryInt("pragma foreign_keys", 1, -1) == (enforced ? 1 : 0);
}

bool MorvaneDatabase::backupTo(const FXString& path) {
  if (connection_ == nullptr) {
    fail(ErrorKind::CannotOpen, "no database is open");
    return false;
  }
  const int code = Brontel::Database::backUp(connection_, path);
  return code == SQLITE_OK || fail(code, FXString());
}

void MorvaneDatabase::fail(ErrorKind kind, const FXString& message, const FXString& statement) {
  ++failures_;
  lastError_ = {kind, 0, message, statement};
  if (sink_ != nullptr) sink_->databaseFailed(lastError_);
}

bool MorvaneDatabase::fail(int sqliteCode, const FXString& statement) {
  ++failures_;
  // The connection knows more about its own last failure than the code's general text does.
  const bool own = connection_ != nullptr && sqlite3_extended_errcode(connection_) == sqliteCode;
  lastError_ = {Brontel::Database::errorKindOf(sqliteCode), sqliteCode,
                own ? sqlite3_errmsg(connection_) : sqlite3_errstr(sqliteCode), statement};
  if (sink_ != nullptr) sink_->databaseFailed(lastError_);
  return false;
}

bool MorvaneDatabase::transactionLost() const {
  return transactionDepth_ > 0 && sqlite3_get_autocommit(connection_) != 0;
}

int MorvaneDatabase::onBusy(void* self, int) {
  return static_cast<MorvaneDatabase*>(self)->waitForLock() ? 1 : 0;
}

bool MorvaneDatabase::waitForLock() {
  if (Clock::now() - lastWait_ > kSameWait) waited_ = std::chrono::milliseconds(0);
  lastWait_ = Clock::now();
  if (waited_ >= kLongestWait) return false;
  std::this_thread::sleep_for(kWaitStep);
  waited_ += kWaitStep;
  lastWait_ = Clock::now();
  return true;
}
