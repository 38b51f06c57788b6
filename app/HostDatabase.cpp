#include "app/HostDatabase.h"

#include <cerrno>
#include <sys/stat.h>

#include <libintl.h>

#include "app/ErrorText.h"
#include "app/Paths.h"
#include "host/entity/EntityTables.h"
#include "host/message/FillIn.h"

namespace Brontel::App {

using Database::ErrorKind;
using FX::FXString;
using Model::Schema;

namespace {

/// Raised when an older program could no longer use the tables.
constexpr int kVersion = 1;

// What a write-ahead journal holds is not in the file yet.
bool hasWriteAheadJournal(const FXString& path) {
  struct stat status {};
  return stat((path + "-wal").text(), &status) == 0 && status.st_size > 0;
}

// An absolute path is never taken for one of SQLite's special names, such as :memory:.
FXString absolute(const FXString& path) {
  return path.empty() || path[0] == '/' ? path : FX::FXSystem::getCurrentDirectory() + "/" + path;
}

}  // namespace

bool HostDatabase::open(const FXString& path, Use use) {
  path_ = path;
  const FXString file = absolute(path);
  struct stat status {};
  const bool isThere = stat(file.text(), &status) == 0;
  if (isThere && !checkFile(status.st_mode)) return false;
  if (!isThere && errno != ENOENT && errno != ENOTDIR) {
    return refuse(gettext("Az adatbázis nem érhető el: %s. Ellenőrizze a jogosultságokat."));
  }
  if (!isThere && use == Use::IfPresent) return true;
  if (!isThere && use != Use::Create) {
    return refuse(gettext("Nincs ilyen adatbázis: %1$s. Ez hozza létre: brontel-host --database \"%1$s\" init"));
  }
  if (!isThere && !makeFolderOf(file)) {
    return refuse(gettext("Az adatbázis mappája nem hozható létre: %s. Ellenőrizze a jogosultságokat."));
  }
  const auto mode = use == Use::Create ? MorvaneDatabase::OpenMode::Create : MorvaneDatabase::OpenMode::Existing;
  if (!handle_.open(file, mode)) return refuseForErrors();
  return checkContent(use) && prepareTables(use);
}

bool HostDatabase::checkFile(mode_t mode) {
  if (S_ISDIR(mode)) {
    return refuse(gettext("Ez egy mappa, nem adatbázis: %s. Adja meg az adatbázis fájlját."));
  }
  // A pipe or device would keep the program waiting.
  return S_ISREG(mode) || refuse(gettext("Ez nem közönséges fájl, így nem lehet adatbázis: %s."));
}

bool HostDatabase::checkContent(Use use) {
  // SQLite would read what is missing of the last page as zeros. Asked only now, since opening has finished what an
  // interrupted program may have left half-written.
  struct stat status {};
  const int pageSize = handle_.queryInt("pragma page_size", 1, 0);
  const bool isWhole = pageSize > 0 && stat(handle_.getPath().text(), &status) == 0 && status.st_size % pageSize == 0;
  if (!isWhole && !hasWriteAheadJournal(handle_.getPath())) {
    handle_.fail(ErrorKind::Damaged, "the last page is not whole");
  }
  const int tables =
      handle_.queryInt("select count(*) from sqlite_master where type='table' and name not glob 'sqlite_*'", 1, -1);
  const Schema::Extent ours = Model::measureEntityTables(&handle_);
  if (errors_.hasError()) return refuseForErrors();
  wasEmpty_ = tables == 0;
  if (tables > 0 && ours == Schema::Extent::None) {
    return refuse(gettext("Ez egy másik program adatbázisa: %s. Adjon meg másik fájlt."));
  }
  if (!checkVersion(use)) return false;
  if (use == Use::Create || (ours == Schema::Extent::All && versionBefore_ == kVersion)) return true;
  return refuse(gettext(
      "Az adatbázis nincs előkészítve, vagy hiányos: %1$s. Ez egészíti ki: brontel-host --database \"%1$s\" init"));
}

bool HostDatabase::checkVersion(Use use) {
  versionBefore_ = handle_.queryInt("pragma user_version", 1, -1);
  schemaBefore_ = handle_.queryInt("pragma schema_version", 1, -1);
  if (errors_.hasError()) return refuseForErrors();
  if (versionBefore_ > kVersion) {
    return refuse(gettext("Az adatbázist a program egy újabb változata készítette: %s. Frissítse a programot."));
  }
  if (use == Use::Create || use == Use::Write) {
    if (handle_.isReadOnly()) handle_.fail(ErrorKind::ReadOnly, "the file is read-only");
  }
  return !errors_.hasError() || refuseForErrors();
}

bool HostDatabase::prepareTables(Use use) {
  if (use == Use::Create || use == Use::Write) handle_.useWriteAheadJournal();
  if (use == Use::Create) Model::initEntityTables(&handle_);
  // Only now: the tables that references point to have to be there first.
  handle_.setForeignKeys(true);
  return !errors_.hasError() || refuseForErrors();
}

HostDatabase::Change HostDatabase::getChange() {
  if (wasEmpty_) return Change::Created;
  const bool same = versionBefore_ == kVersion && handle_.queryInt("pragma schema_version", 1, -1) == schemaBefore_;
  return same ? Change::None : Change::Extended;
}

bool HostDatabase::markComplete() {
  return versionBefore_ == kVersion || handle_.run("pragma user_version=" + FX::FXStringVal(kVersion));
}

FXString HostDatabase::describeError() const {
  return describe(errors_.getFirst(), path_);
}

bool HostDatabase::refuse(const FXString& pattern) {
  error_ = fillIn(pattern, {path_});
  return false;
}

bool HostDatabase::refuseForErrors() {
  error_ = describeError();
  return false;
}

}  // namespace Brontel::App
