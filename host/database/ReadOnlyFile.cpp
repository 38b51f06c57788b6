#include "host/database/ReadOnlyFile.h"

#include <fcntl.h>
#include <initializer_list>
#include <sys/stat.h>
#include <unistd.h>

namespace Brontel::Database {

using FX::FXString;

namespace {

bool isThere(const FXString& path) {
  struct stat status {};
  return ::stat(path.text(), &status) == 0;
}

bool isWritable(const FXString& path) {
  return ::faccessat(AT_FDCWD, path.text(), W_OK, AT_EACCESS) == 0;
}

// Bytes 18 and 19 of the file's header are 2 when its changes go to a write-ahead journal first.
bool hasWriteAheadJournal(const FXString& path) {
  const int file = ::open(path.text(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
  if (file < 0) return false;
  char versions[2] = {};
  const bool isRead = ::pread(file, versions, sizeof versions, 18) == static_cast<ssize_t>(sizeof versions);
  ::close(file);
  return isRead && versions[0] == 2 && versions[1] == 2;
}

}  // namespace

bool canOnlyBeReadAsItLies(const FXString& path) {
  if (path.empty() || !isThere(path)) return false;
  if (isWritable(path) && isWritable(FX::FXPath::directory(FX::FXPath::absolute(path)))) return false;
  if (!hasWriteAheadJournal(path)) return false;
  for (const char* companion : {"-wal", "-shm", "-journal"}) {
    if (isThere(path + companion)) return false;
  }
  return true;
}

FXString uriAsItLies(const FXString& path) {
  FXString encoded(path);
  encoded.substitute("%", "%25");
  encoded.substitute("?", "%3f");
  encoded.substitute("#", "%23");
  return (path.left(1) == "/" ? "file://" : "file:") + encoded + "?immutable=1";
}

}  // namespace Brontel::Database
