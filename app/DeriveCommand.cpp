#include "app/Command.h"
#include "app/NewInvoice.h"
#include "app/Session.h"
#include "app/Tabbed.h"

namespace Brontel::App {

namespace {

// Saves the new invoice and prints its id.
Outcome saveNew(Session& session, Invoice& invoice, const char* mark) {
  const InvoiceRepository::Result result =
      saveUnderFreeNumber(session.database.handle(), session.repository, invoice, mark);
  if (result != InvoiceRepository::Result::Done) return session.outcomeOf(result);
  appendLine(session.output, {FX::FXStringVal(invoice.getId())});
  return {};
}

}  // namespace

Outcome runDerive(Session& session) {
  Outcome outcome;
  const std::unique_ptr<Invoice> source = session.loadInvoice(outcome);
  if (source == nullptr) return outcome;
  const std::unique_ptr<Invoice> derived(source->derive());
  session.repository.loadPluginData(*derived);
  // Saving what could not be read in full would make the gap look recorded.
  if (session.database.errors().hasError()) return databaseFailed();
  return saveNew(session, *derived, kDerivedMark);
}

Outcome runCopy(Session& session) {
  Outcome outcome;
  const std::unique_ptr<Invoice> source = session.loadInvoice(outcome);
  if (source == nullptr) return outcome;
  const std::unique_ptr<Invoice> copy(source->copy());
  return saveNew(session, *copy, kCopyMark);
}

}  // namespace Brontel::App
