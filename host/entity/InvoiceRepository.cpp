#include "host/entity/InvoiceRepository.h"

#include <vector>

#include "host/database/DeleteStatement.h"
#include "host/database/InsertStatement.h"
#include "host/database/MorvaneDatabase.h"
#include "host/database/Transaction.h"
#include "host/database/UpdateStatement.h"
#include "host/entity/Invoice.h"
#include "host/entity/InvoiceLoader.h"
#include "host/plugin/PluginRegistry.h"

namespace Brontel {

using Database::BoundValue;
using Database::Transaction;
using FX::FXint;

namespace {

// A row that an older version of the program has written may have no version yet.
constexpr const char* kThisVersion = "t_invoice_id=%t_invoice_id and ifnull(version,0)=%loaded_version";

/// The keys of an invoice and its items, which a save gives and a rollback takes back.
class Keys {
 public:
  explicit Keys(const Invoice& invoice) : invoice_(invoice.getId()) {
    for (FXint i = 0; i < invoice.getItems().no(); ++i) items_.push_back(invoice.getItems()[i]->getId());
  }

  void restore(Invoice& invoice) const {
    invoice.setId(invoice_);
    for (FXint i = 0; i < invoice.getItems().no(); ++i) invoice.getItems()[i]->setId(items_[static_cast<size_t>(i)]);
  }

 private:
  int invoice_;
  std::vector<int> items_;
};

void loadItems(const Invoice& invoice, const Plugin::PluginRegistry& plugins) {
  for (FXint i = 0; i < invoice.getItems().no(); ++i) plugins.load(invoice.getItems()[i]);
}

}  // namespace

std::unique_ptr<Invoice> InvoiceRepository::load(int id, Result& result) {
  const FX::FXlong failures = database_.getFailures();
  const Transaction transaction(database_, Transaction::Kind::Read);
  auto invoice = std::make_unique<Invoice>();
  InvoiceLoader head(*invoice);
  InvoiceItemLoader items(*invoice);
  const Database::BoundValues values{BoundValue{"id", false, id, {}}};
  database_.run(InvoiceLoader::kSelect, values, &head);
  database_.run(InvoiceItemLoader::kSelect, values, &items);
  loadItems(*invoice, plugins_);
  result = database_.getFailures() != failures ? Result::Failed
           : invoice->getId() == 0             ? Result::NotFound
                                               : Result::Done;
  return result == Result::Done ? std::move(invoice) : nullptr;
}

void InvoiceRepository::loadPluginData(Invoice& invoice) {
  // What an item refers to may be saved anew by somebody else meanwhile, and must not be read half of each.
  const Transaction transaction(database_, Transaction::Kind::Read);
  loadItems(invoice, plugins_);
}

InvoiceRepository::Result InvoiceRepository::save(Invoice& invoice) {
  if (invoice.isStatusClosed()) return Result::ReadOnly;
  if (invoice.isUnreadable()) {
    database_.fail(Database::ErrorKind::Damaged, "the invoice holds what no program of this kind stores");
    return Result::Failed;
  }
  const Keys keys(invoice);
  Transaction transaction(database_);
  if (!transaction.isOpen()) return Result::Failed;
  const Result result = write(invoice);
  if (result != Result::Done || !transaction.commit()) {
    keys.restore(invoice);
    return result == Result::Done ? Result::Failed : result;
  }
  invoice.setVersion(invoice.getVersion() + 1);
  invoice.deleteRemovedItems();
  for (FXint i = 0; i < invoice.getItems().no(); ++i) invoice.getItems()[i]->setReferenceMode(0);
  return Result::Done;
}

InvoiceRepository::Result InvoiceRepository::changeStatus(Invoice& invoice, int status) {
  Transaction transaction(database_);
  if (!transaction.isOpen()) return Result::Failed;
  UpdateStatement update(&database_, "t_invoice", kThisVersion);
  update.setInt("t_invoice_id", invoice.getId());
  update.setInt("loaded_version", invoice.getVersion());
  update.setInt("t_invoicestatus_1", status);
  update.setInt("version", invoice.getVersion() + 1);
  if (update.execute(nullptr, 1) == 0) return Result::Failed;
  if (database_.changes() != 1) return Result::Overtaken;
  if (!transaction.commit()) return Result::Failed;
  invoice.setStatus(status);
  invoice.setVersion(invoice.getVersion() + 1);
  return Result::Done;
}

InvoiceRepository::Result InvoiceRepository::remove(Invoice& invoice) {
  if (invoice.isStatusClosed()) return Result::ReadOnly;
  Transaction transaction(database_);
  if (!transaction.isOpen()) return Result::Failed;
  for (FXint i = 0; i < invoice.getItems().no(); ++i) deleteItem(*invoice.getItems()[i]);
  deleteRemovedItems(invoice);
  const Database::BoundValues values{BoundValue{"t_invoice_id", false, invoice.getId(), {}},
                                     BoundValue{"loaded_version", false, invoice.getVersion(), {}}};
  if (!database_.run(FX::FXString("delete from t_invoice where ") + kThisVersion, values)) return Result::Failed;
  if (database_.changes() != 1) return Result::Overtaken;
  return transaction.commit() ? Result::Done : Result::Failed;
}

InvoiceRepository::Result InvoiceRepository::write(Invoice& invoice) {
  const Result head = writeHead(invoice);
  if (head != Result::Done) return head;
  deleteRemovedItems(invoice);
  for (FXint i = 0; i < invoice.getItems().no(); ++i) writeItem(*invoice.getItems()[i], i + 1);
  return Result::Done;
}

InvoiceRepository::Result InvoiceRepository::writeHead(Invoice& invoice) {
  InsertStatement insert(&database_, "t_invoice");
  UpdateStatement update(&database_, "t_invoice", kThisVersion);
  const bool isNew = invoice.getId() == 0;
  Statement& statement = isNew ? static_cast<Statement&>(insert) : static_cast<Statement&>(update);
  if (!isNew) {
    statement.setInt("t_invoice_id", invoice.getId());
    statement.setInt("loaded_version", invoice.getVersion());
  } else if (invoice.getReferencedInvoiceId() != 0) {
    statement.setInt("t_invoice_1", invoice.getReferencedInvoiceId());
  }
  statement.setString("number", invoice.getNumber());
  statement.setInt("t_invoicetype_1", invoice.getTypeCode());
  statement.setInt("t_invoicestatus_1", invoice.getStatus());
  statement.setString("partner", invoice.getPartner());
  statement.setString("date", invoice.getDate());
  statement.setInt("version", invoice.getVersion() + 1);
  if (statement.execute(nullptr, 1) == 0) return Result::Failed;
  if (isNew) {
    if (!isStored(true)) return Result::Failed;
    invoice.setId(database_.lastInsertId());
    return Result::Done;
  }
  return database_.changes() == 1 ? Result::Done : Result::Overtaken;
}

void InvoiceRepository::deleteRemovedItems(Invoice& invoice) {
  for (FXint i = 0; i < invoice.getRemovedItems().no(); ++i) deleteItem(*invoice.getRemovedItems()[i]);
}

void InvoiceRepository::deleteItem(InvoiceItem& item) {
  plugins_.del(&item);
  DeleteStatement statement(&database_, "t_invoiceitem");
  statement.setInt("t_invoiceitem_id", item.getId());
  statement.execute(nullptr, 1);
}

void InvoiceRepository::writeItem(InvoiceItem& item, int position) {
  InsertStatement insert(&database_, "t_invoiceitem");
  UpdateStatement update(&database_, "t_invoiceitem", "t_invoiceitem_id=%t_invoiceitem_id");
  const bool isNew = item.getId() == 0;
  Statement& statement = isNew ? static_cast<Statement&>(insert) : static_cast<Statement&>(update);
  if (!isNew) {
    statement.setInt("t_invoiceitem_id", item.getId());
  } else if (item.getReferencedItemId() != 0) {
    statement.setInt("t_invoiceitem_1", item.getReferencedItemId());
  }
  statement.setInt("t_invoice_1", item.getInvoice()->getId());
  statement.setInt("position", position);
  statement.setString("name", item.getName());
  statement.setInt("goodskind", item.getGoodsKind());
  statement.setInt("goods", item.getGoodsId());
  statement.setString("quantity", item.getQuantity().toString());
  statement.setString("unit", item.getUnit());
  statement.setString("price", item.getPrice());
  if (statement.execute(nullptr, 1) == 0 || !isStored(isNew)) return;
  if (isNew) item.setId(database_.lastInsertId());
  plugins_.save(&item);
}

// A trigger can swallow a row without an error, and a key beyond 32 bits could never be found again.
bool InvoiceRepository::isStored(bool isNew) {
  if (database_.changes() == 1 && (!isNew || database_.lastInsertId() != 0)) return true;
  database_.fail(Database::ErrorKind::Other, "a row was not stored");
  return false;
}

}  // namespace Brontel
