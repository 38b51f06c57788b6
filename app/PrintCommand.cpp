#include <algorithm>
#include <string_view>

#include "app/Command.h"
#include "app/Session.h"
#include "app/Tabbed.h"

namespace Brontel::App {

using FX::FXint;
using FX::FXString;

namespace {

void appendIndented(std::string& output, const FXString& text) {
  std::string_view rest(text.text(), static_cast<size_t>(text.length()));
  while (!rest.empty()) {
    const std::string_view line = rest.substr(0, rest.find('\n'));
    output.append("    ").append(line).push_back('\n');
    rest.remove_prefix(std::min(rest.size(), line.size() + 1));
  }
}

}  // namespace

Outcome runPrint(Session& session) {
  Outcome outcome;
  const std::unique_ptr<Invoice> invoice = session.loadInvoice(outcome);
  if (invoice == nullptr) return outcome;
  for (FXint i = 0; i < invoice->getItems().no(); ++i) {
    InvoiceItem* item = invoice->getItems()[i];
    appendLine(session.output, {FX::FXStringVal(i + 1), item->getName(), item->getQuantity().toString(),
                                item->getUnit(), item->getPrice()});
    appendIndented(session.output, session.plugins.toString(item));
  }
  return outcome;
}

}  // namespace Brontel::App
