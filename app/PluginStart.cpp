#include "app/PluginStart.h"

#include <algorithm>
#include <memory>

#include <libintl.h>

#include "app/HostDatabase.h"
#include "host/message/FillIn.h"
#include "host/plugin/PluginLoader.h"
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

bool PluginStart::load(const FXString& folder) {
  if (database_.handle().isOpen()) app_.setDB(&database_.handle());
  if (!loader_.loadFolder(folder)) {
    return refuse(fillIn(gettext("A bővítmények mappája nem olvasható: %s. Adja meg így: --plugins MAPPA"), {folder}));
  }
  forgetErrorsOfFailedPlugins();
  return true;
}

bool PluginStart::requireAny(const FXString& folder) {
  const auto& libraries = loader_.getLibraries();
  if (std::any_of(libraries.begin(), libraries.end(), isLoaded)) return true;
  return refuse(
      fillIn(gettext("Innen nem tölthető be bővítmény: %s. Az okát ez írja ki: brontel-host plugins"), {folder}));
}

bool PluginStart::requireQuantityVariable() {
  if (!lacksQuantityVariable(database_.handle())) return true;
  return refuse(fillIn(gettext("Az adatbázisból hiányzik a „Mennyiség” változó (-1), ezért nem módosítható: %s. "
                               "Állítsa vissza egy biztonsági mentésből."),
                       {database_.getPath()}));
}

std::vector<FXString> PluginStart::describeFailures() const {
  std::vector<FXString> lines;
  for (const auto& library : loader_.getLibraries()) {
    if (isLoaded(library)) continue;
    lines.push_back(fillIn(gettext("Figyelmeztetés: a bővítmény nem tölthető be: %s (%s)"),
                           {library->getPath(), library->getReason()}));
  }
  return lines;
}

// A statement that was wrong is the failed plug-in's own and stops nobody else; what ails the file itself counts.
void PluginStart::forgetErrorsOfFailedPlugins() {
  const auto& libraries = loader_.getLibraries();
  const Database::ErrorKind kind = database_.errors().getFirst().kind;
  const bool isStatements = kind == Database::ErrorKind::Other || kind == Database::ErrorKind::Constraint;
  if (isStatements && !std::all_of(libraries.begin(), libraries.end(), isLoaded)) database_.errors().forget();
}

bool PluginStart::refuse(const FXString& error) {
  error_ = error;
  return false;
}

}  // namespace Brontel::App
