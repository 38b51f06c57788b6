#include "app/Command.h"
#include "app/InvoiceXml.h"
#include "app/Session.h"

namespace Brontel::App {

using FX::FXString;

Outcome runExport(Session& session) {
  Outcome outcome;
  const std::unique_ptr<Invoice> invoice = session.loadInvoice(outcome);
  if (invoice == nullptr) return outcome;
  const FXString text = toXml(*invoice, session.plugins);
  const FXString& file = session.line.getOutputFile();
  if (file.empty()) {
    session.output.append(text.text(), static_cast<size_t>(text.length()));
    return outcome;
  }
  const FXString error = writeExport(file, text, session.database);
  return error.empty() ? outcome : failed(error);
}

}  // namespace Brontel::App
