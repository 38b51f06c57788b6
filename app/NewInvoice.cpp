#include "app/NewInvoice.h"

#include <ctime>
#include <set>
#include <string>

#include "host/database/DataBaseValueLoader.h"
#include "host/database/MorvaneDatabase.h"
#include "host/database/Transaction.h"
#include "host/entity/Invoice.h"

namespace Brontel::App {

using Database::Transaction;
using FX::FXString;

namespace {

class Numbers : public DataBaseValueLoader {
 public:
  int processValue(int column, const char* name, const char* value) override {
    if (value != nullptr) numbers_.emplace(value);
    return DataBaseValueLoader::processValue(column, name, value);
  }

  bool contain(const FXString& number) const { return numbers_.count(number.text()) > 0; }

 private:
  std::set<std::string> numbers_;
};

}  // namespace

FXString today() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  char text[sizeof "YYYY-MM-DD"] = "";
  if (localtime_r(&now, &local) == nullptr || std::strftime(text, sizeof text, "%Y-%m-%d", &local) == 0) return {};
  return text;
}

FXString freeNumber(MorvaneDatabase& database, const FXString& beginning) {
  Numbers taken;
  database.run("select number from t_invoice where substr(number, 1, length(%beginning))=%beginning",
               {Database::BoundValue{"beginning", true, 0, beginning}}, &taken);
  int counter = 1;
  while (taken.contain(beginning + FX::FXStringVal(counter))) ++counter;
  return beginning + FX::FXStringVal(counter);
}

InvoiceRepository::Result saveUnderFreeNumber(MorvaneDatabase& database, InvoiceRepository& repository,
                                              Invoice& invoice, const FXString& mark) {
  // From choosing the number until it is stored nobody else may take it.
  Transaction transaction(database);
  if (!transaction.isOpen()) return InvoiceRepository::Result::Failed;
  invoice.setNumber(freeNumber(database, invoice.getNumber() + mark));
  invoice.setDate(today());
  const InvoiceRepository::Result result = repository.save(invoice);
  if (result != InvoiceRepository::Result::Done) return result;
  return transaction.commit() ? result : InvoiceRepository::Result::Failed;
}

}  // namespace Brontel::App
