#include <libintl.h>

#include "app/Command.h"
#include "app/RecordedData.h"
#include "app/Session.h"
#include "app/Tabbed.h"

namespace Brontel::App {

Outcome runFind(Session& session) {
  const FX::FXString& text = session.line.getArguments().front();
  if (text.empty()) return failed(gettext("Nincs mit keresni. Adja meg a keresett szöveget."));
  MorvaneDatabase& database = session.database.handle();
  if (!RecordedData::exists(database)) {
    if (session.database.errors().hasError()) return databaseFailed();
    return failed(gettext("Ebben az adatbázisban még nem rögzítettek tételadatot, így nincs miben keresni."));
  }
  TabbedRows rows(session.output, RecordedData::kColumns);
  return RecordedData::find(database, text, rows) ? Outcome() : databaseFailed();
}

}  // namespace Brontel::App
