#pragma once

#include <memory>

#include "host/database/MorvaneDatabase.h"
#include "host/entity/Invoice.h"
#include "host/entity/InvoiceRepository.h"
#include "host/plugin/PluginRegistry.h"
#include "host/ui/Morvane.h"
#include "itemdata/ItemDataList.h"
#include "plugin/ItemDataContainer.h"

/// A database of its own with a product that carries three per-unit variables (so four cells a row with the quantity)
/// and another with one variable per item, and the plug-in at work on it. The container is linked in, since what is
/// measured is the code and not the loading of a library.
class Workload {
 public:
  /// The sizes that everything is measured at.
  static constexpr int kSizes[] = {10, 100, 1000, 10000};
  static constexpr int kProduct = 1;
  static constexpr int kCellsInARow = 4;

  explicit Workload(Brontel::Morvane& app);
  Workload(const Workload&) = delete;
  Workload& operator=(const Workload&) = delete;
  ~Workload();

  /// A new invoice with one item of that many rows, all cells filled and different, not saved.
  std::unique_ptr<Brontel::Invoice> makeInvoice(int rows);
  /// A new invoice whose item has that many cells recorded once per item, all different; not to be saved.
  std::unique_ptr<Brontel::Invoice> makePerItemInvoice(int cells);
  /// What makeInvoice makes, saved; its key.
  int saveInvoice(int rows);
  std::unique_ptr<Brontel::Invoice> load(int invoice);
  bool save(Brontel::Invoice& invoice);
  void removeAll();

  /// The first item, and its recorded data.
  static Brontel::InvoiceItem* itemOf(Brontel::Invoice& invoice) { return invoice.getItems()[0]; }
  static Brontel::Plugin::ItemData::ItemDataList& listOf(Brontel::Invoice& invoice) {
    return *Brontel::Plugin::ItemData::ItemDataList::of(itemOf(invoice));
  }

  const Brontel::Plugin::PluginRegistry& plugins() const { return plugins_; }
  Brontel::InvoiceRepository& invoices() { return *invoices_; }
  MorvaneDatabase& database() { return database_; }
  const FX::FXString& file() const { return file_; }

 private:
  Brontel::Morvane& app_;
  FX::FXString file_;
  MorvaneDatabase database_;
  std::unique_ptr<Brontel::Plugin::ItemData::ItemDataContainer> container_;
  Brontel::Plugin::PluginRegistry plugins_;
  std::unique_ptr<Brontel::InvoiceRepository> invoices_;
};
