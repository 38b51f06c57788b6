#include "app/ErrorText.h"

#include <libintl.h>

#include "host/message/DatabaseErrorText.h"
#include "host/message/FillIn.h"

namespace Brontel::App {

using FX::FXString;

FXString describe(const Database::DatabaseError& error, const FXString& path) {
  return Database::describeError(error, path);
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
