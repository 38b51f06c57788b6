#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/entity/Invoice.h"
#include "host/entity/InvoiceRepository.h"
#include "host/plugin/PluginContainer.h"
#include "host/plugin/PluginRegistry.h"
#include "host/ui/Morvane.h"
#include "itemdata/ItemDataList.h"
#include "tests/plugin/SampleGoods.h"
#include "tests/support/TestDatabase.h"

/// The plug-in at work in a host, without a display: the host's tables with foreign keys enforced, the sample goods,
/// and the real container, initialised on the real database. FOX allows one at a time.
class PluginWorld {
 public:
  using Result = Brontel::InvoiceRepository::Result;

  PluginWorld();

  TestDatabase& database() { return database_; }
  MorvaneDatabase& handle() { return database_.handle(); }
  Brontel::Morvane& app() { return app_; }
  Brontel::Plugin::PluginContainer& container() { return *container_; }
  const Brontel::Plugin::PluginRegistry& plugins() const { return registry_; }
  Brontel::InvoiceRepository& repository() { return repository_; }

  /// A stored invoice as a new object; a test failure, and null, when it cannot be loaded.
  std::unique_ptr<Brontel::Invoice> load(int id);
  std::unique_ptr<Brontel::Invoice> load(const Brontel::Invoice& invoice) { return load(invoice.getId()); }

  /// Appends an item and lets the plug-in attach its data.
  Brontel::InvoiceItem* addItem(Brontel::Invoice& invoice, Brontel::GoodsKind kind, int goods, const char* quantity);
  /// A sofa with a note and with rows of quantity, batch and colour.
  Brontel::InvoiceItem* addSofa(Brontel::Invoice& invoice, const char* quantity, const char* note,
                                const std::vector<std::vector<const char*>>& rows);

  /// Runs the check plug-ins and returns "level code text" for each message, line feeds as "\n".
  std::vector<std::string> check(Brontel::Invoice& invoice);
  std::string print(Brontel::InvoiceItem& item) const;

  /// What is stored for an item: "variable/row=value" for each cell, ordered by row and variable.
  std::vector<std::string> stored(const Brontel::InvoiceItem& item) const;

 private:
  TestDatabase database_;
  Brontel::Morvane app_;
  std::unique_ptr<Brontel::Plugin::PluginContainer> container_;
  Brontel::Plugin::PluginRegistry registry_;
  Brontel::InvoiceRepository repository_;
};

/// A new, never saved invoice of that type.
std::unique_ptr<Brontel::Invoice> newInvoice(int typeCode = 101);

/// The item's data, or null.
Brontel::Plugin::ItemData::ItemDataList* dataOf(const Brontel::InvoiceItem* item);

/// The live cell of a variable and row; null, and a test failure, when the item has none.
Brontel::Plugin::ItemData::ItemDataEntry* cell(const Brontel::InvoiceItem* item, int variable, int row);
/// Types a value into that cell.
void type(const Brontel::InvoiceItem* item, int variable, int row, const char* value);
/// Adds a row and types its quantity, batch and colour (as many as there are values).
void addRow(const Brontel::InvoiceItem* item, const std::vector<const char*>& values);

/// What the item's list holds in its order: "variable/row=value", with " pk=n" where keys are wanted and " deleted".
std::vector<std::string> cells(const Brontel::InvoiceItem* item, bool withKeys = false);
