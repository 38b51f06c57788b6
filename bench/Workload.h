#pragma once

#include <memory>

#include "host/database/MorvaneDatabase.h"
#include "host/entity/Invoice.h"
#include "host/entity/InvoiceRepository.h"
#include "host/plugin/PluginRegistry.h"
#include "host/ui/Morvane.h"
#include "plugin/ItemDataContainer.h"

/// A database with one invoice of one item whose product carries three per-unit variables, and the plug-in at work on
/// it. The container is linked in, since what is measured is the code and not the loading of a library.
class Workload {
 public:
  /// The file must not exist yet.
  Workload(Brontel::Morvane& app, const FX::FXString& file);
  Workload(const Workload&) = delete;
  Workload& operator=(const Workload&) = delete;
  ~Workload();

  /// A new invoice with that many rows, all cells filled, not saved.
  std::unique_ptr<Brontel::Invoice> makeInvoice(int rows);
  /// The same, saved; its key.
  int saveInvoice(int rows);
  std::unique_ptr<Brontel::Invoice> load(int invoice);
  bool save(Brontel::Invoice& invoice);
  void removeAll();

  const Brontel::Plugin::PluginRegistry& getPlugins() const { return plugins_; }

 private:
  Brontel::Morvane& app_;
  MorvaneDatabase database_;
  std::unique_ptr<Brontel::Plugin::ItemData::ItemDataContainer> container_;
  Brontel::Plugin::PluginRegistry plugins_;
  std::unique_ptr<Brontel::InvoiceRepository> invoices_;
};
