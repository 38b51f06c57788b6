#include "app/Command.h"
#include "app/InvoiceText.h"
#include "app/Session.h"
#include "app/print/PdfFile.h"
#include "app/print/PrintedPages.h"

namespace Brontel::App {

using FX::FXString;

Outcome runPrint(Session& session) {
  Outcome outcome;
  const std::unique_ptr<Invoice> invoice = session.loadInvoice(outcome);
  if (invoice == nullptr) return outcome;
  const FXString& file = session.line.getOutputFile();
  if (file.empty()) {
    session.output += toText(*invoice, session.plugins);
    return outcome;
  }
  const FXString error = writePdf(file, PrintedPages(*invoice, session.plugins), session.database);
  return error.empty() ? outcome : failed(error);
}

}  // namespace Brontel::App
