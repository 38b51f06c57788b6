#include "host/database/Transaction.h"

#include "host/database/MorvaneDatabase.h"

using FX::FXString;

namespace Brontel::Database {

Transaction::Transaction(MorvaneDatabase& database, Kind kind)
    : database_(database), failuresBefore_(database.failures_), depth_(database.transactionDepth_) {
  const char* begin = kind == Kind::Write ? "begin immediate" : "begin";
  open_ = depth_ == 0 ? database_.begin(begin) : database_.run("savepoint " + savepoint());
  if (open_) ++database_.transactionDepth_;
}

Transaction::~Transaction() {
  rollback();
}

bool Transaction::commit() {
  if (!open_) return false;
  if (!isWhole() || !database_.run(depth_ == 0 ? FXString("commit") : "release " + savepoint())) {
    rollback();
    return false;
  }
  open_ = false;
  database_.transactionDepth_ = depth_;
  return true;
}

void Transaction::rollback() {
  if (!open_) return;
  open_ = false;
  // When the engine has ended the whole transaction by itself there is nothing left to roll back.
  const bool lost = database_.transactionLost();
  if (depth_ == 0) {
    if (!lost) database_.rollBack();
  } else if (!lost) {
    undoSavepoint();
  }
  database_.transactionDepth_ = depth_;
}

void Transaction::undoSavepoint() {
  const FXString undo = "rollback to " + savepoint();
  const int code = database_.runPrepared(undo, {}, nullptr);
  if (errorKindOf(code) != ErrorKind::None) {
    // What is still there of it must not be stored with the rest.
    database_.fail(code, undo);
    return;
  }
  database_.runPrepared("release " + savepoint(), {}, nullptr);
  database_.failures_ = failuresBefore_;
}

bool Transaction::isWhole() const {
  return database_.failures_ == failuresBefore_ && !database_.transactionLost();
}

FXString Transaction::savepoint() const {
  return "brontel_" + FX::FXStringVal(depth_);
}

}  // namespace Brontel::Database
