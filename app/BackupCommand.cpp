#include <filesystem>
#include <system_error>

#include <libintl.h>

#include "app/Command.h"
#include "app/Session.h"
#include "host/message/FillIn.h"

namespace Brontel::App {

Outcome runBackup(Session& session) {
  const FX::FXString& file = session.line.getArguments().front();
  if (file.empty()) return failed(gettext("Adja meg az új fájl nevét, amelybe a mentés kerüljön."));
  // An absolute path is never taken for one of SQLite's special names.
  std::error_code error;
  const std::filesystem::path target = std::filesystem::absolute(file.text(), error);
  if (std::filesystem::exists(std::filesystem::symlink_status(target, error))) {
    return failed(fillIn(gettext("Ez a fájl már létezik: %s. A mentéshez új fájlt adjon meg."), {file}));
  }
  if (session.database.handle().backupTo(target.c_str())) return {};
  if (session.database.errors().getFirst().kind != Database::ErrorKind::CannotOpen) return databaseFailed();
  // It is the copy that cannot be made; the database itself is open.
  session.database.errors().forget();
  return failed(
      fillIn(gettext("A mentés nem hozható létre: %s. Ellenőrizze a mappáját és a jogosultságokat."), {file}));
}

}  // namespace Brontel::App
