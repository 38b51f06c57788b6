#include <algorithm>
#include <ctime>
#include <vector>

#include "app/Command.h"
#include "app/Session.h"
#include "app/Tabbed.h"
#include "host/database/DataBaseValueLoader.h"
#include "host/database/Transaction.h"

namespace Brontel::App {

using Database::Transaction;
using FX::FXString;

namespace {

class Numbers : public DataBaseValueLoader {
 public:
  int processValue(int column, const char* name, const char* value) override {
    numbers_.emplace_back(value);
    return DataBaseValueLoader::processValue(column, name, value);
  }

  bool contain(const FXString& number) const {
    return std::find(numbers_.begin(), numbers_.end(), number) != numbers_.end();
  }

 private:
  std::vector<FXString> numbers_;
};

// The beginning with the first counter that no invoice has.
FXString freeNumber(MorvaneDatabase& database, const FXString& beginning) {
  Numbers taken;
  database.run("select number from t_invoice where substr(number, 1, length(%beginning))=%beginning",
               {Database::BoundValue{"beginning", true, 0, beginning}}, &taken);
  int counter = 1;
  while (taken.contain(beginning + FX::FXStringVal(counter))) ++counter;
  return beginning + FX::FXStringVal(counter);
}

FXString today() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  char text[sizeof "YYYY-MM-DD"] = "";
  if (localtime_r(&now, &local) == nullptr || std::strftime(text, sizeof text, "%Y-%m-%d", &local) == 0) return {};
  return text;
}

// Saves the new invoice under a number of its own, made from its source's, and prints its id.
Outcome saveNew(Session& session, Invoice& invoice, const FXString& mark) {
  // From choosing the number until it is stored nobody else may take it.
  Transaction transaction(session.database.handle());
  if (!transaction.isOpen()) return databaseFailed();
  invoice.setNumber(freeNumber(session.database.handle(), invoice.getNumber() + mark));
  invoice.setDate(today());
  const InvoiceRepository::Result result = session.repository.save(invoice);
  if (result != InvoiceRepository::Result::Done) return session.outcomeOf(result);
  if (!transaction.commit()) return databaseFailed();
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
  return saveNew(session, *derived, "/J");
}

Outcome runCopy(Session& session) {
  Outcome outcome;
  const std::unique_ptr<Invoice> source = session.loadInvoice(outcome);
  if (source == nullptr) return outcome;
  const std::unique_ptr<Invoice> copy(source->copy());
  return saveNew(session, *copy, "/M");
}

}  // namespace Brontel::App
