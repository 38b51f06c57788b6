#include "app/Backup.h"

#include <filesystem>
#include <system_error>

#include <libintl.h>

#include "app/HostDatabase.h"
#include "host/message/FillIn.h"

namespace Brontel::App {

using FX::FXString;

FXString backUp(HostDatabase& database, const FXString& file) {
  if (file.empty()) return gettext("Adja meg az új fájl nevét, amelybe a mentés kerüljön.");
  // An absolute path is never taken for one of SQLite's special names.
  std::error_code error;
  const std::filesystem::path target = std::filesystem::absolute(file.text(), error);
  if (std::filesystem::exists(std::filesystem::symlink_status(target, error))) {
    return fillIn(gettext("Ez a fájl már létezik: %s. A mentéshez új fájlt adjon meg."), {file});
  }
  if (database.handle().backupTo(target.c_str())) return {};
  if (database.errors().getFirst().kind != Database::ErrorKind::CannotOpen) return {};
  // It is the copy that cannot be made; the database itself is open.
  database.errors().forget();
  return fillIn(gettext("A mentés nem hozható létre: %s. Ellenőrizze a mappáját és a jogosultságokat."), {file});
}

}  // namespace Brontel::App
