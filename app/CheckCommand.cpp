#include "app/Command.h"
#include "app/InvoiceCheck.h"
#include "app/Session.h"

namespace Brontel::App {

Outcome runCheck(Session& session) {
  Outcome outcome;
  const std::unique_ptr<Invoice> invoice = session.loadInvoice(outcome);
  if (invoice != nullptr && printCheck(session, *invoice)) outcome.code = ExitCode::Blocked;
  return outcome;
}

}  // namespace Brontel::App
