#include <libintl.h>

#include "app/Command.h"
#include "app/SampleData.h"
#include "app/Session.h"
#include "host/message/FillIn.h"

namespace Brontel::App {

using FX::FXString;

namespace {

void say(Session& session, const FXString& text) {
  session.output.append(text.text()).push_back('\n');
}

FXString textFor(HostDatabase::Change change) {
  switch (change) {
    case HostDatabase::Change::Created:
      return gettext("Elkészült az adatbázis: %s");
    case HostDatabase::Change::Extended:
      return gettext("Kiegészült az adatbázis: %s");
    case HostDatabase::Change::None:
      break;
  }
  return gettext("Az adatbázis már naprakész: %s");
}

}  // namespace

Outcome runInit(Session& session) {
  // The plug-ins have made their tables by now, so that nothing is missing any more.
  if (!session.database.markComplete()) return databaseFailed();
  say(session, fillIn(textFor(session.database.getChange()), {session.database.getPath()}));
  if (!session.line.wantsSample()) return {};
  SampleData sample(session.database.handle());
  switch (sample.insert()) {
    case SampleData::Result::Done:
      say(session, gettext("Bekerültek a mintaadatok."));
      return {};
    case SampleData::Result::NotEmpty:
      say(session, gettext("A mintaadatok kimaradtak, mert az adatbázisban már vannak adatok."));
      return {};
    case SampleData::Result::NoTables:
      return failed(gettext("A mintaadatokhoz a tételadatok bővítménye is kell. Lásd: brontel-host plugins"));
    case SampleData::Result::Failed:
      break;
  }
  return databaseFailed();
}

}  // namespace Brontel::App
