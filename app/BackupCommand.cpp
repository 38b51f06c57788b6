#include "app/Backup.h"
#include "app/Command.h"
#include "app/Session.h"

namespace Brontel::App {

Outcome runBackup(Session& session) {
  const FX::FXString error = backUp(session.database, session.line.getArguments().front());
  if (session.database.errors().hasError()) return databaseFailed();
  return error.empty() ? Outcome() : failed(error);
}

}  // namespace Brontel::App
