#pragma once

#include <memory>

class MorvaneDatabase;

namespace Brontel {

class Invoice;
class InvoiceItem;

namespace Plugin {
class PluginRegistry;
}

/// Reads and writes invoices with their items, and lets the plug-ins do the same with their data.
class InvoiceRepository {
 public:
  enum class Result {
    Done,
    NotFound,   ///< no such invoice
    Failed,     ///< the database refused a statement; its handle says why
    Overtaken,  ///< somebody else has saved or deleted the invoice since it was loaded
    ReadOnly    ///< closed and storno invoices do not change
  };

  /// Borrows both.
  InvoiceRepository(MorvaneDatabase& database, const Plugin::PluginRegistry& plugins)
      : database_(database), plugins_(plugins) {}

  /// A new object of a stored invoice, read as one state of the database; null unless the result is Done. What could
  /// not be read in full is not handed out, since saving it would lose the rest.
  std::unique_ptr<Invoice> load(int id, Result& result);

  /// Lets the plug-ins attach their data to the items of an invoice that was not loaded from here, reading one state of
  /// the database.
  void loadPluginData(Invoice& invoice);

  /// Writes the invoice in one transaction. When it fails, the database and the objects' keys are as they were before,
  /// the objects keep all they hold, and saving again stores everything once. After a success the objects stay in use.
  Result save(Invoice& invoice);

  /// Changes the status of a stored invoice and nothing else.
  Result changeStatus(Invoice& invoice, int status);

  /// Deletes a stored invoice with its items and what the plug-ins keep for them; only open ones may go. The object
  /// stays as it is.
  Result remove(Invoice& invoice);

 private:
  Result write(Invoice& invoice);
  Result writeHead(Invoice& invoice);
  void deleteRemovedItems(Invoice& invoice);
  void deleteItem(InvoiceItem& item);
  void writeItem(InvoiceItem& item, int position);
  bool isStored(bool isNew);

  MorvaneDatabase& database_;
  const Plugin::PluginRegistry& plugins_;
};

}  // namespace Brontel
