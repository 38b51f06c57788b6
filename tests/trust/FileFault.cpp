#include "tests/trust/FileFault.h"

#include <cstdio>
#include <cstdlib>

#include <sqlite3.h>

namespace {

using Kind = FileFault::Kind;

bool active = false;
Kind wantedKind = Kind::Read;
long wanted = 0;
bool stays = false;
long seen = 0;
long failed = 0;

bool fails(Kind kind) {
  if (!active || kind != wantedKind) return false;
  ++seen;
  const bool now = wanted > 0 && (seen == wanted || (stays && seen > wanted));
  if (now) ++failed;
  return now;
}

/// A file of the engine; the real one lies behind it in the same memory.
struct File {
  sqlite3_file base;
};

sqlite3_file* realOf(sqlite3_file* file) {
  return reinterpret_cast<sqlite3_file*>(file + 1);
}

int closeFile(sqlite3_file* file) {
  return realOf(file)->pMethods->xClose(realOf(file));
}
int readFile(sqlite3_file* file, void* bytes, int count, sqlite3_int64 offset) {
  if (fails(Kind::Read)) return SQLITE_IOERR_READ;
  return realOf(file)->pMethods->xRead(realOf(file), bytes, count, offset);
}
int writeFile(sqlite3_file* file, const void* bytes, int count, sqlite3_int64 offset) {
  if (fails(Kind::Write)) return SQLITE_IOERR_WRITE;
  if (fails(Kind::FullDisk)) return SQLITE_FULL;
  if (!fails(Kind::ShortWrite)) return realOf(file)->pMethods->xWrite(realOf(file), bytes, count, offset);
  realOf(file)->pMethods->xWrite(realOf(file), bytes, count / 2, offset);
  return SQLITE_IOERR_WRITE;
}
int truncateFile(sqlite3_file* file, sqlite3_int64 size) {
  if (fails(Kind::Truncate)) return SQLITE_IOERR_TRUNCATE;
  return realOf(file)->pMethods->xTruncate(realOf(file), size);
}
int syncFile(sqlite3_file* file, int flags) {
  if (fails(Kind::Sync)) return SQLITE_IOERR_FSYNC;
  return realOf(file)->pMethods->xSync(realOf(file), flags);
}
int sizeOfFile(sqlite3_file* file, sqlite3_int64* size) {
  return realOf(file)->pMethods->xFileSize(realOf(file), size);
}
int lockFile(sqlite3_file* file, int lock) {
  return realOf(file)->pMethods->xLock(realOf(file), lock);
}
int unlockFile(sqlite3_file* file, int lock) {
  return realOf(file)->pMethods->xUnlock(realOf(file), lock);
}
int checkReservedLock(sqlite3_file* file, int* reserved) {
  return realOf(file)->pMethods->xCheckReservedLock(realOf(file), reserved);
}
int controlFile(sqlite3_file* file, int operation, void* argument) {
  return realOf(file)->pMethods->xFileControl(realOf(file), operation, argument);
}
int sectorSize(sqlite3_file* file) {
  return realOf(file)->pMethods->xSectorSize(realOf(file));
}
int characteristics(sqlite3_file* file) {
  return realOf(file)->pMethods->xDeviceCharacteristics(realOf(file));
}
int mapShared(sqlite3_file* file, int page, int size, int extend, void volatile** memory) {
  if (fails(Kind::SharedMemory)) return SQLITE_IOERR_SHMMAP;
  return realOf(file)->pMethods->xShmMap(realOf(file), page, size, extend, memory);
}
int lockShared(sqlite3_file* file, int offset, int count, int flags) {
  return realOf(file)->pMethods->xShmLock(realOf(file), offset, count, flags);
}
void shareBarrier(sqlite3_file* file) {
  realOf(file)->pMethods->xShmBarrier(realOf(file));
}
int unmapShared(sqlite3_file* file, int remove) {
  return realOf(file)->pMethods->xShmUnmap(realOf(file), remove);
}

// Version 2: without direct access to mapped pages, which would bypass reads and writes.
const sqlite3_io_methods kMethods = {
    2,          closeFile,    readFile,          writeFile,   truncateFile, syncFile,        sizeOfFile,
    lockFile,   unlockFile,   checkReservedLock, controlFile, sectorSize,   characteristics, mapShared,
    lockShared, shareBarrier, unmapShared,       nullptr,     nullptr};

sqlite3_vfs* real = nullptr;
sqlite3_vfs shim;

int openFile(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags) {
  file->pMethods = nullptr;
  if (fails(Kind::Open)) return SQLITE_CANTOPEN;
  realOf(file)->pMethods = nullptr;
  const int code = real->xOpen(real, name, realOf(file), flags, outFlags);
  // The engine closes whatever has methods, also when opening failed.
  if (realOf(file)->pMethods != nullptr) file->pMethods = &kMethods;
  return code;
}

int deleteFile(sqlite3_vfs*, const char* name, int syncFolder) {
  if (fails(Kind::Delete)) return SQLITE_IOERR_DELETE;
  return real->xDelete(real, name, syncFolder);
}

bool install() {
  real = sqlite3_vfs_find(nullptr);
  if (real == nullptr) return false;
  shim = *real;
  shim.zName = "faulty";
  shim.szOsFile = real->szOsFile + static_cast<int>(sizeof(File));
  shim.pNext = nullptr;
  shim.xOpen = openFile;
  shim.xDelete = deleteFile;
  return sqlite3_vfs_register(&shim, 1) == SQLITE_OK;
}

// Connections that are open already keep the system's own files, so this has to be done before the first one.
void requireInstalled() {
  static const bool installed = install();
  if (installed) return;
  std::fputs("the engine does not take a file system\n", stderr);
  std::abort();
}

}  // namespace

void useFaultyFiles() {
  requireInstalled();
}

FileFault::FileFault(Kind kind, long number, Mode mode) {
  wantedKind = kind;
  wanted = number;
  stays = mode == Mode::FromThenOn || kind == Kind::FullDisk;
  seen = 0;
  failed = 0;
  active = true;
}

FileFault::~FileFault() {
  active = false;
}

long FileFault::count() {
  return seen;
}

long FileFault::faults() {
  return failed;
}
