#include "app/ErrorText.h"

#include <libintl.h>

#include "host/message/FillIn.h"

namespace Brontel::App {

using Database::ErrorKind;
using FX::FXString;

FXString describe(const Database::DatabaseError& error, const FXString& path) {
  switch (error.kind) {
    case ErrorKind::Busy:
      return fillIn(gettext("Az adatbázist most egy másik program használja: %s. Próbálja újra, ha az befejezte."),
                    {path});
    case ErrorKind::ReadOnly:
      return fillIn(
          gettext("Az adatbázis csak olvasható: %s. A módosításhoz írási jog kell a fájlra és a mappájára is."),
          {path});
    case ErrorKind::NotADatabase:
      return fillIn(gettext("Ez a fájl nem adatbázis: %s. Ellenőrizze a nevét."), {path});
    case ErrorKind::Damaged:
      return fillIn(gettext("Az adatbázis sérült: %s. Állítsa vissza egy biztonsági mentésből."), {path});
    case ErrorKind::Full:
      return fillIn(gettext("Megtelt a lemez, az adatbázis nem változott: %s. Szabadítson fel helyet."), {path});
    case ErrorKind::CannotOpen:
      return fillIn(gettext("Az adatbázis nem nyitható meg: %s. Ellenőrizze a helyét és a jogosultságokat."), {path});
    case ErrorKind::Constraint:
      return fillIn(gettext("Az adatbázis nem fogadta el a módosítást, ezért nem változott: %s (%s)"),
                    {path, error.message});
    case ErrorKind::None:
    case ErrorKind::Other:
      break;
  }
  return fillIn(gettext("Adatbázishiba: %s (%s)"), {path, error.message});
}

FXString describe(InvoiceRepository::Result result, const FXString& invoice) {
  switch (result) {
    case InvoiceRepository::Result::NotFound:
      return fillIn(gettext("Nincs ilyen számla: %s. A számlákat ez sorolja fel: brontel-host list"), {invoice});
    case InvoiceRepository::Result::Overtaken:
      return fillIn(gettext("A számlát közben más módosította vagy törölte: %s. Próbálja újra."), {invoice});
    case InvoiceRepository::Result::ReadOnly:
      return fillIn(gettext("A számla lezárt vagy stornózott, ezért csak olvasható: %s."), {invoice});
    case InvoiceRepository::Result::Done:
    case InvoiceRepository::Result::Failed:
      break;
  }
  return FXString();
}

FXString toOneLine(const FXString& text) {
  FXString line(text);
  for (const FX::FXchar c : {'\t', '\n', '\r'}) line.substitute(c, ' ');
  return line;
}

}  // namespace Brontel::App
