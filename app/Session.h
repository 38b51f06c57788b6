#pragma once

#include <memory>
#include <string>

#include "app/CommandLine.h"
#include "app/HostDatabase.h"
#include "app/Outcome.h"
#include "host/entity/Invoice.h"
#include "host/entity/InvoiceRepository.h"
#include "host/plugin/PluginLoader.h"
#include "host/plugin/PluginRegistry.h"

namespace Brontel::App {

/// What a command works with. Everything is borrowed and outlives it; invoices and messages that a command makes go
/// before it returns, since the plug-ins' data in them need the plug-ins' code.
class Session {
 public:
  Session(const CommandLine& line, HostDatabase& database, const Plugin::PluginRegistry& plugins,
          const Plugin::PluginLoader& loader)
      : line(line), database(database), plugins(plugins), loader(loader), repository(database.handle(), plugins) {}
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  /// The invoice that the command line names, with the plug-ins' data. Null, and why in outcome, when there is none.
  std::unique_ptr<Invoice> loadInvoice(Outcome& outcome);

  /// The outcome of a repository operation on that invoice.
  Outcome outcomeOf(InvoiceRepository::Result result) const;

  const CommandLine& line;
  HostDatabase& database;
  const Plugin::PluginRegistry& plugins;
  const Plugin::PluginLoader& loader;
  InvoiceRepository repository;
  std::string output;  ///< goes to the standard output unless the command fails
};

}  // namespace Brontel::App
