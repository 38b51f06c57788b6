#include "app/Command.h"
#include "app/InvoiceText.h"
#include "app/Session.h"

namespace Brontel::App {

Outcome runPrint(Session& session) {
  Outcome outcome;
  const std::unique_ptr<Invoice> invoice = session.loadInvoice(outcome);
  if (invoice != nullptr) session.output += toText(*invoice, session.plugins);
  return outcome;
}

}  // namespace Brontel::App
