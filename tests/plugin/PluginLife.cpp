#include "tests/plugin/PluginLife.h"

#include <memory>

#include "host/database/MorvaneDatabase.h"
#include "host/entity/EntityTables.h"
#include "host/entity/Invoice.h"
#include "host/entity/InvoiceRepository.h"
#include "host/plugin/PluginRegistry.h"
#include "host/xml/Document.h"
#include "tests/plugin/SampleGoods.h"

using Brontel::Invoice;
using Brontel::InvoiceItem;
using Brontel::InvoiceRepository;
using Brontel::ListOfMessage;
using Brontel::Plugin::PluginRegistry;
using FX::FXint;
using Result = InvoiceRepository::Result;

namespace {

constexpr const char* kPrinted = "A; 3 db S1, kék; 2 db S2, piros";

// An invoice with a sofa of 5 in two rows, as an earlier session has stored it.
bool storeInvoice(MorvaneDatabase& database) {
  if (database.queryInt("select count(*) from t_invoice", 1, -1) > 0) return true;
  return SampleGoods::store(database) &&
         database.run(
             "insert into t_invoice (t_invoice_id, number, t_invoicetype_1, t_invoicestatus_1) "
             "values (1,'2024/1',101,150)") &&
         database.run(
             "insert into t_invoiceitem (t_invoiceitem_id, t_invoice_1, goodskind, goods, quantity, unit) "
             "values (1,1,1,1,'5','db')") &&
         database.run(
             "insert into t_invoiceitemdata (t_invoiceitem_1, t_itemvariable_1, row, value) values "
             "(1,11,0,'A'), (1,-1,1,'3'), (1,12,1,'S1'), (1,13,1,'kék'), (1,-1,2,'2'), (1,12,2,'S2'), "
             "(1,13,2,'piros')");
}

/// The steps of a use; each gives what was wrong with it.
class Use {
 public:
  Use(Brontel::Plugin::PluginContainer& container, MorvaneDatabase& database)
      : database_(database), repository_(database, registry_) {
    registry_.add(&container);
  }

  std::string run() {
    if (!storeInvoice(database_)) return "no invoice could be stored";
    Result result = Result::Failed;
    const std::unique_ptr<Invoice> invoice = repository_.load(1, result);
    if (result != Result::Done) return "the invoice could not be loaded";
    InvoiceItem* item = invoice->getItems()[0];
    if (item->getMiscData("ItemData") == nullptr) return "the item got no data";
    if (check(*invoice) != 0) return "the stored invoice got messages";
    if (registry_.toString(item) != kPrinted) return std::string("printed: ") + registry_.toString(item).text();
    XMLBuilder::Document document("item");
    registry_.toXml(item, document.getRoot());
    if (document.toText().find(">S2</itemdata:itemdata>") < 0) return "not exported";
    if (repository_.save(*invoice) != Result::Done || countCells() != 7) return "not saved as it was";
    std::string problem = copy(*invoice);
    return problem.empty() ? checkNewItem() : problem;
  }

 private:
  int countCells() { return database_.queryInt("select count(*) from t_invoiceitemdata", 1, -1); }

  /// How many messages there are, -1 when one cannot be acted upon.
  int check(Invoice& invoice) {
    ListOfMessage messages;
    registry_.checkInvoice(nullptr, &invoice, messages, "LIFE");
    int count = messages.no();
    for (FXint i = 0; i < messages.no(); ++i) {
      Brontel::MessageEvent* event = messages[i]->getRepairEvent();
      if (event == nullptr || event->getKind() != 2) count = -1;
      if (event != nullptr) event->execute(messages[i], 0);
      delete messages[i];
    }
    return count;
  }

  std::string copy(const Invoice& invoice) {
    const std::unique_ptr<Invoice> copied(invoice.copy());
    if (repository_.save(*copied) != Result::Done || countCells() != 14) return "the copy was not saved";
    if (registry_.toString(copied->getItems()[0]) != kPrinted) return "the copy differs";
    database_.run("delete from t_invoice where t_invoice_id>1");
    return countCells() == 7 ? "" : "the copy's data stayed behind";
  }

  std::string checkNewItem() {
    Invoice invoice;
    invoice.setTypeCode(101);
    auto* item = new InvoiceItem;
    item->setGoods(Brontel::GOODS_PRODUCT, SampleGoods::SOFA);
    item->setQuantity(FXExt::FXDecimal(1, 0, 4));
    invoice.appendItem(item);
    registry_.load(item);
    return check(invoice) == 2 ? "" : "a new item got other messages than for its quantity and its note";
  }

  MorvaneDatabase& database_;
  PluginRegistry registry_;
  InvoiceRepository repository_;
};

}  // namespace

bool PluginLife::prepare(MorvaneDatabase& database) {
  return Brontel::Model::initEntityTables(&database) == 1 && database.setForeignKeys(true);
}

std::string PluginLife::use(Brontel::Plugin::PluginContainer& container, MorvaneDatabase& database) {
  return Use(container, database).run();
}
