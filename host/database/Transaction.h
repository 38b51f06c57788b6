#pragma once

#include <fx.h>

class MorvaneDatabase;

namespace Brontel::Database {

/// A scope in which the database changes as a whole or not at all: what is not committed is rolled back when the object
/// goes. Transactions nest; an inner one is a savepoint, and rolling it back takes its failures with it, so that the
/// outer one can go on.
class Transaction {
 public:
  enum class Kind {
    Write,  ///< takes the write lock at once, so that a save waits before it starts and never half-way
    Read    ///< sees one state of the database throughout
  };

  /// Begins at once. Inside another transaction the kind is that one's.
  explicit Transaction(MorvaneDatabase& database, Kind kind = Kind::Write);
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;
  ~Transaction();

  /// False when it could not begin (closed, locked), and after commit or rollback. Statements that run although it
  /// could not begin are stored on their own. In a file that may only be read it begins, and the first change fails.
  bool isOpen() const { return open_; }

  /// Keeps the changes if no statement has failed since the beginning, else rolls back and returns false.
  bool commit();
  void rollback();

 private:
  void undoSavepoint();
  bool isWhole() const;
  FX::FXString savepoint() const;

  MorvaneDatabase& database_;
  FX::FXlong failuresBefore_ = 0;
  int depth_ = 0;
  bool open_ = false;
};

}  // namespace Brontel::Database
