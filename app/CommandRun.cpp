#include "app/CommandRun.h"

#include <algorithm>
#include <memory>

#include <libintl.h>

#include "app/Command.h"
#include "app/CommandLine.h"
#include "app/Console.h"
#include "app/Paths.h"
#include "app/Session.h"
#include "host/message/FillIn.h"
#include "host/ui/Morvane.h"

namespace Brontel::App {

using FX::FXString;

namespace {

bool isLoaded(const std::unique_ptr<Plugin::PluginLibrary>& library) {
  return library->getContainer() != nullptr;
}

// Where foreign keys are enforced, a recorded quantity cannot be stored without the variable that it refers to.
bool lacksQuantityVariable(MorvaneDatabase& database) {
  const FXString table = "select count(*) from sqlite_master where type='table' and name='t_itemvariable'";
  return database.queryInt(table, 1, 0) > 0 &&
         database.queryInt("select count(*) from t_itemvariable where t_itemvariable_id=-1", 1, -1) == 0;
}

}  // namespace

int CommandRun::run() {
  const Command& command = *line_.getCommand();
  if (!database_.open(findDatabase(line_.getDatabase()), command.use)) return report(database_.getError());
  Session session(line_, database_, registry_, loader_);
  Outcome outcome = loadPlugins(command);
  if (outcome.code == ExitCode::Done) outcome = command.run(session);
  if (database_.errors().hasError()) return report(database_.describeError());
  return outcome.code == ExitCode::Failed ? report(outcome.error) : print(session.output, outcome.code);
}

Outcome CommandRun::loadPlugins(const Command& command) {
  if (!command.usesPlugins) return {};
  if (database_.handle().isOpen()) app_.setDB(&database_.handle());
  const FXString folder = findPluginDirectory(line_.getPlugins());
  if (!loader_.loadFolder(folder)) {
    return failed(fillIn(gettext("A bővítmények mappája nem olvasható: %s. Adja meg így: --plugins MAPPA"), {folder}));
  }
  forgetErrorsOfFailedPlugins();
  // That command shows all this itself.
  if (command.use == HostDatabase::Use::IfPresent) return {};
  const auto& libraries = loader_.getLibraries();
  if (std::none_of(libraries.begin(), libraries.end(), isLoaded)) {
    return failed(
        fillIn(gettext("Innen nem tölthető be bővítmény: %s. Az okát ez írja ki: brontel-host plugins"), {folder}));
  }
  warnOfFailures();
  if (database_.errors().hasError()) return databaseFailed();
  return command.use == HostDatabase::Use::Read ? Outcome() : checkQuantityVariable();
}

// A statement that was wrong is the failed plug-in's own and stops nobody else; what ails the file itself counts.
void CommandRun::forgetErrorsOfFailedPlugins() {
  const auto& libraries = loader_.getLibraries();
  const Database::ErrorKind kind = database_.errors().getFirst().kind;
  const bool isStatements = kind == Database::ErrorKind::Other || kind == Database::ErrorKind::Constraint;
  if (isStatements && !std::all_of(libraries.begin(), libraries.end(), isLoaded)) database_.errors().forget();
}

void CommandRun::warnOfFailures() const {
  for (const auto& library : loader_.getLibraries()) {
    if (isLoaded(library)) continue;
    report(fillIn(gettext("Figyelmeztetés: a bővítmény nem tölthető be: %s (%s)"),
                  {library->getPath(), library->getReason()}));
  }
}

Outcome CommandRun::checkQuantityVariable() {
  if (!lacksQuantityVariable(database_.handle())) return {};
  return failed(fillIn(gettext("Az adatbázisból hiányzik a „Mennyiség” változó (-1), ezért nem módosítható: %s. "
                               "Állítsa vissza egy biztonsági mentésből."),
                       {database_.getPath()}));
}

}  // namespace Brontel::App
