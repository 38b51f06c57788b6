#include "host/database/DatabaseBackup.h"

#include <fcntl.h>
#include <unistd.h>

#include <sqlite3.h>

namespace Brontel::Database {

namespace {

// Creating the file exclusively settles in one step that it is new and that it can be written.
bool createNewFile(const FX::FXString& path) {
  const int file = ::open(path.text(), O_CREAT | O_EXCL | O_WRONLY | O_CLOEXEC, 0666);
  if (file < 0) return false;
  ::close(file);
  return true;
}

int copyInto(sqlite3* target, sqlite3* source) {
  sqlite3_backup* backup = sqlite3_backup_init(target, "main", source, "main");
  if (backup == nullptr) return sqlite3_extended_errcode(target);
  // All pages in one step: the source stays locked for reading, so the copy shows one moment.
  const int stepped = sqlite3_backup_step(backup, -1);
  const int finished = sqlite3_backup_finish(backup);
  if (stepped == SQLITE_DONE) return finished;
  return finished != SQLITE_OK ? finished : stepped;
}

}  // namespace

FX::FXString engineFileName(const FX::FXString& path) {
  // Some builds of the engine take what begins with "file:" for a web address.
  return path.left(1) == ":" || path.left(5) == "file:" ? "./" + path : path;
}

int backUp(sqlite3* source, const FX::FXString& path) {
  if (!createNewFile(path)) return SQLITE_CANTOPEN;
  sqlite3* target = nullptr;
  int code = sqlite3_open_v2(engineFileName(path).text(), &target, SQLITE_OPEN_READWRITE, nullptr);
  if (code == SQLITE_OK) code = copyInto(target, source);
  // The copy is one file that can be read anywhere, whatever journal the database has.
  if (code == SQLITE_OK) code = sqlite3_exec(target, "pragma journal_mode=delete", nullptr, nullptr, nullptr);
  sqlite3_close(target);
  if (code != SQLITE_OK) ::unlink(path.text());
  return code;
}

}  // namespace Brontel::Database
