#pragma once

#include <memory>
#include <string>

#include "host/database/MorvaneDatabase.h"
#include "host/entity/InvoiceRepository.h"
#include "host/plugin/PluginContainer.h"
#include "host/plugin/PluginRegistry.h"
#include "host/ui/Morvane.h"

/// The plug-in in a host on a database of one invoice with one item, in a file that goes with the process.
class CellsWorld {
 public:
  static constexpr int kInvoice = 1;
  static constexpr int kItem = 1;

  CellsWorld();
  CellsWorld(const CellsWorld&) = delete;
  CellsWorld& operator=(const CellsWorld&) = delete;

  MorvaneDatabase& database() { return database_; }
  const Brontel::Plugin::PluginRegistry& plugins() const { return registry_; }
  Brontel::InvoiceRepository& repository() { return *repository_; }

  /// Forgets all cells and variables, and gives the item that type of invoice and quantity.
  void clear(int invoiceType, const std::string& quantity);
  void addVariable(int id, const std::string& type, int process, const std::string& name, const std::string& choices);
  void addCell(const std::string& variable, const std::string& row, const std::string& value);
  /// All cells, keys left out, as one text.
  std::string stored();

 private:
  void run(const char* sql, const Brontel::Database::BoundValues& values = {});

  MorvaneDatabase database_;
  Brontel::Morvane app_{"fuzz", "Brontel"};
  Brontel::Plugin::PluginRegistry registry_;
  std::unique_ptr<Brontel::Plugin::PluginContainer> container_;
  std::unique_ptr<Brontel::InvoiceRepository> repository_;
};
