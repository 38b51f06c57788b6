#include <libintl.h>

#include "app/Command.h"
#include "app/InvoiceCheck.h"
#include "app/Session.h"
#include "host/message/FillIn.h"

namespace Brontel::App {

Outcome runClose(Session& session) {
  Outcome outcome;
  const std::unique_ptr<Invoice> invoice = session.loadInvoice(outcome);
  if (invoice == nullptr) return outcome;
  if (invoice->getStatus() != STATUS_OPEN) {
    return failed(
        fillIn(gettext("Ez a számla már nem nyitott, nem lehet lezárni: %s."), {session.line.getArguments().front()}));
  }
  if (printCheck(session, *invoice)) return {ExitCode::Blocked, {}};
  return session.outcomeOf(session.repository.changeStatus(*invoice, STATUS_CLOSED));
}

Outcome runStorno(Session& session) {
  Outcome outcome;
  const std::unique_ptr<Invoice> invoice = session.loadInvoice(outcome);
  if (invoice == nullptr) return outcome;
  if (invoice->getStatus() != STATUS_CLOSED) {
    return failed(
        fillIn(gettext("Csak lezárt számlát lehet stornózni, ez nem az: %s."), {session.line.getArguments().front()}));
  }
  return session.outcomeOf(session.repository.changeStatus(*invoice, STATUS_STORNO));
}

}  // namespace Brontel::App
