#include "app/Command.h"
#include "app/Session.h"

namespace Brontel::App {

Outcome runSave(Session& session) {
  Outcome outcome;
  const std::unique_ptr<Invoice> invoice = session.loadInvoice(outcome);
  return invoice == nullptr ? outcome : session.outcomeOf(session.repository.save(*invoice));
}

}  // namespace Brontel::App
