#include "app/Command.h"

#include "app/Translation.h"

namespace Brontel::App {

namespace {

using Use = HostDatabase::Use;

constexpr const char* kInvoice = gettext_noop("SZÁMLA");
constexpr const char* kInvoiceToFile = gettext_noop("SZÁMLA [-o FÁJL]");

}  // namespace

const std::vector<Command>& allCommands() {
  static const std::vector<Command> commands{
      {"init", "[--sample]", gettext_noop("az adatbázis létrehozása vagy kiegészítése, egyszer mintaadatokkal is"), 0,
       's', Use::Create, true, runInit},
      {"list", "", gettext_noop("a számlák felsorolása: azonosító, szám, típus, állapot, partner, tételek száma"), 0, 0,
       Use::Read, false, runList},
      {"check", kInvoice, gettext_noop("a számla ellenőrzése; a kilépési kód 1, ha valamit javítani kell"), 1, 0,
       Use::Read, true, runCheck},
      {"print", kInvoiceToFile, gettext_noop("a számla tételei szövegként, vagy a számla PDF-ben a fájlba"), 1, 'o',
       Use::Read, true, runPrint},
      {"export", kInvoiceToFile, gettext_noop("a számla XML-ben a kimenetre vagy a fájlba"), 1, 'o', Use::Read, true,
       runExport},
      {"save", kInvoice, gettext_noop("a számla betöltése és mentése változatlanul"), 1, 0, Use::Write, true, runSave},
      {"derive", kInvoice, gettext_noop("új, a számlára hivatkozó helyesbítő számla; kiírja az azonosítóját"), 1, 0,
       Use::Write, true, runDerive},
      {"copy", kInvoice, gettext_noop("új számla másolatként; kiírja az azonosítóját"), 1, 0, Use::Write, true,
       runCopy},
      {"close", kInvoice, gettext_noop("a számla ellenőrzése és lezárása, ha nincs javítanivaló"), 1, 0, Use::Write,
       true, runClose},
      {"storno", kInvoice, gettext_noop("lezárt számla stornózása"), 1, 0, Use::Write, false, runStorno},
      {"find", gettext_noop("SZÖVEG"), gettext_noop("a rögzített tételadatok között keres, és kiírja, hol szerepel"), 1,
       0, Use::Read, false, runFind},
      {"backup", gettext_noop("FÁJL"), gettext_noop("az adatbázis másolata egy új fájlba"), 1, 0, Use::Read, false,
       runBackup},
      {"plugins", "", gettext_noop("a bővítmények: fájl, név, változat, vagy hogy miért nem tölthető be"), 0, 0,
       Use::IfPresent, true, runPlugins},
  };
  return commands;
}

const Command* findCommand(const FX::FXString& name) {
  for (const Command& command : allCommands()) {
    if (name == command.name) return &command;
  }
  return nullptr;
}

}  // namespace Brontel::App
