#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "host/database/BoundValue.h"
#include "host/database/DatabaseError.h"
#include "host/database/PreparedStatement.h"

struct sqlite3;
class DataBaseValueLoader;

namespace Brontel::Database {
class StatementObserver;
class Transaction;
}  // namespace Brontel::Database

/// The one open connection to the invoicing database. Plug-ins reach it through statements only.
///
/// Nothing here throws: a failure gives the stated result, is kept as the last error and is told to the error sink.
/// GUI thread only.
class MorvaneDatabase {
 public:
  enum class OpenMode {
    Existing,  ///< the file must be there; a file that may not be written is opened for reading
    Create     ///< a missing file is created
  };

  MorvaneDatabase();
  MorvaneDatabase(const MorvaneDatabase&) = delete;
  MorvaneDatabase& operator=(const MorvaneDatabase&) = delete;
  virtual ~MorvaneDatabase();

  /// Runs a query of one value and returns it; defaultValue when there is no row, the value is NULL or the query fails.
  /// The flag is part of the plug-in interface and has no meaning here.
  virtual int queryInt(const FX::FXString& sql, int flag, int defaultValue);

  /// Opens the file and reads its schema once, so that a file that is no database is refused here and not later. Closes
  /// what was open before.
  bool open(const FX::FXString& path, OpenMode mode);
  void close();
  bool isOpen() const { return connection_ != nullptr; }
  bool isReadOnly() const;

  /// Switches the file to a write-ahead journal, which it keeps: reading goes on while another program writes, and a
  /// commit is on the disk when it returns. False, without an error, when the file has to stay with its rollback
  /// journal for now, since another program uses it or its folder cannot have the journal's files; that is no less
  /// safe.
  bool useWriteAheadJournal();
  const FX::FXString& getPath() const { return path_; }

  /// Runs one statement with %name parameters to its end. The statement classes are its usual callers.
  bool run(const FX::FXString& sql, const Brontel::Database::BoundValues& values = {},
           DataBaseValueLoader* loader = nullptr);

  /// Rows that the last insert, update or delete changed.
  int changes() const;
  /// The key that the last insert gave; 0 when there was none.
  int lastInsertId() const;

  /// A new key for a row of the table: one more than the largest of 0, the table's own keys and the references to it
  /// (columns named <table>_1 in any table), so that a row never adopts what a deleted one left behind. 0 on failure.
  int nextId(const FX::FXString& table);

  /// Switches foreign-key enforcement; impossible (false) while a transaction is open.
  bool setForeignKeys(bool enforced);

  /// Writes a consistent copy into a new file; an existing file is refused. A copy that fails half-way is removed.
  bool backupTo(const FX::FXString& path);

  const Brontel::Database::DatabaseError& getLastError() const { return lastError_; }
  /// Failures since the handle was made, but for those that a rolled-back savepoint has undone.
  FX::FXlong getFailures() const { return failures_; }
  /// Notes a failure that the host itself found, as if a statement had met it.
  void fail(Brontel::Database::ErrorKind kind, const FX::FXString& message, const FX::FXString& statement = {});

  /// Both are borrowed; null takes them away.
  void setErrorSink(Brontel::Database::DatabaseErrorSink* sink) { sink_ = sink; }
  void setObserver(Brontel::Database::StatementObserver* observer) { observer_ = observer; }

 private:
  friend class Brontel::Database::Transaction;

  using Clock = std::chrono::steady_clock;
  struct TextHash {
    using is_transparent = void;
    size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
  };
  using Cache =
      std::unordered_map<std::string, std::unique_ptr<Brontel::Database::PreparedStatement>, TextHash, std::equal_to<>>;

  static int onBusy(void* self, int attempt);
  bool waitForLock();
  int connect(const FX::FXString& file, int flags);
  bool fail(int sqliteCode, const FX::FXString& statement);
  bool transactionLost() const;
  Brontel::Database::PreparedStatement* prepareCached(const FX::FXString& sql, int& code);
  /// Sets ran, if given, to a text of the statement that stays until the next one runs: the caller's can be another by
  /// then, since a loader may do as it likes. Left as it is when nothing ran.
  int runPrepared(const FX::FXString& sql, const Brontel::Database::BoundValues& values, DataBaseValueLoader* loader,
                  std::string_view* ran = nullptr);
  bool begin(const FX::FXString& sql);
  bool rollBack();

  sqlite3* connection_ = nullptr;  // owned; closed by close()
  FX::FXString path_;
  Cache cache_;
  Cache::value_type* lastUsed_ = nullptr;                           // lies in the cache
  std::unique_ptr<Brontel::Database::PreparedStatement> rollback_;  // there before any transaction begins
  bool rollbackPending_ = false;
  Brontel::Database::DatabaseError lastError_;
  Brontel::Database::DatabaseErrorSink* sink_ = nullptr;
  Brontel::Database::StatementObserver* observer_ = nullptr;
  FX::FXlong failures_ = 0;
  int transactionDepth_ = 0;
  std::chrono::milliseconds waited_{0};
  Clock::time_point lastWait_;
};
