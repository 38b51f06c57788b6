#include "app/Session.h"

#include <climits>
#include <cstring>

#include <libintl.h>

#include "app/ErrorText.h"
#include "host/database/IntegerText.h"
#include "host/message/FillIn.h"

namespace Brontel::App {

using FX::FXString;

std::unique_ptr<Invoice> Session::loadInvoice(Outcome& outcome) {
  const FXString& text = line.getArguments().front();
  FX::FXlong id = 0;
  if (std::strspn(text.text(), "0123456789") != static_cast<size_t>(text.length()) || !Database::isInteger(text, id)) {
    outcome =
        failed(fillIn(gettext("Ez nem számlaazonosító: %s. A számlákat ez sorolja fel: brontel-host list"), {text}));
    return nullptr;
  }
  InvoiceRepository::Result result = InvoiceRepository::Result::NotFound;
  std::unique_ptr<Invoice> invoice = id > INT_MAX ? nullptr : repository.load(static_cast<int>(id), result);
  outcome = outcomeOf(result);
  return invoice;
}

Outcome Session::outcomeOf(InvoiceRepository::Result result) const {
  if (result == InvoiceRepository::Result::Done) return {};
  return failed(describe(result, line.getArguments().front()));
}

}  // namespace Brontel::App
