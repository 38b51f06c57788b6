#include "host/database/DatabaseError.h"

#include <sqlite3.h>

namespace Brontel::Database {

ErrorKind errorKindOf(int sqliteCode) {
  switch (sqliteCode & 0xff) {
    case SQLITE_OK:
    case SQLITE_ROW:
    case SQLITE_DONE:
      return ErrorKind::None;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return ErrorKind::Busy;
    case SQLITE_READONLY:
      return ErrorKind::ReadOnly;
    case SQLITE_NOTADB:
      return ErrorKind::NotADatabase;
    case SQLITE_CORRUPT:
      return ErrorKind::Damaged;
    case SQLITE_FULL:
      return ErrorKind::Full;
    case SQLITE_CANTOPEN:
      return ErrorKind::CannotOpen;
    case SQLITE_CONSTRAINT:
      return ErrorKind::Constraint;
    default:
      return ErrorKind::Other;
  }
}

}  // namespace Brontel::Database
