#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/entity/Invoice.h"
#include "host/entity/InvoiceRepository.h"
#include "host/plugin/PluginContainer.h"
#include "host/plugin/PluginRegistry.h"
#include "host/ui/Morvane.h"
#include "tests/support/TestDatabase.h"

/// The example plug-in at work in a host: the host's tables with foreign keys enforced, and an invoice of two items.
class RemarkWorld {
 public:
  using Result = Brontel::InvoiceRepository::Result;

  /// Gives the application the database.
  explicit RemarkWorld(Brontel::Morvane& app);

  TestDatabase& database() { return database_; }
  Brontel::Plugin::PluginRegistry& plugins() { return registry_; }
  Brontel::InvoiceRepository& repository() { return repository_; }
  Brontel::Plugin::PluginContainer& container() { return *container_; }
  Brontel::Invoice& invoice() { return invoice_; }
  Brontel::InvoiceItem& item(int index) { return *invoice_.getItems()[index]; }

  /// The invoice as somebody else would load it.
  std::unique_ptr<Brontel::Invoice> reload();
  /// What the check finds: "level code text" each.
  std::vector<std::string> check(FX::FXWindow* form = nullptr);
  /// The remarks that are stored, by item.
  std::vector<std::string> stored() const;

 private:
  TestDatabase database_;
  std::unique_ptr<Brontel::Plugin::PluginContainer> container_;
  Brontel::Plugin::PluginRegistry registry_;
  Brontel::InvoiceRepository repository_;
  Brontel::Invoice invoice_;
};
