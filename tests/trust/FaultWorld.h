#pragma once

#include <memory>
#include <string>
#include <vector>

#include "tests/plugin/PluginWorld.h"

/// The plug-in in a host on a database with a few stored invoices, to which it can always return: each fault meets the
/// same file, a fresh connection and nothing prepared.
class FaultWorld {
 public:
  enum class Journal { Rollback, WriteAhead };

  explicit FaultWorld(Journal journal);

  PluginWorld& plugin() { return world_; }
  MorvaneDatabase& handle() { return world_.handle(); }
  std::string path() { return world_.database().path(); }

  /// The file as it was after construction, and a new connection to it.
  void restore();
  /// A new connection to the file as it is. False when it cannot be opened.
  bool reopen();

  /// All that is stored, read past the handle.
  std::string dump() { return world_.database().dump(); }
  /// What the engine has to say about the file; empty when nothing is wrong.
  std::string damage();

  /// The invoice with two sofas, an assembly and a nail.
  int storedInvoice() const { return storedInvoice_; }

  /// What a journey is about; kept from its preparation to its end.
  std::unique_ptr<Brontel::Invoice> invoice;

 private:
  void storeInvoices();

  PluginWorld world_;
  const Journal journal_;
  std::string pristine_;
  int storedInvoice_ = 0;
};

/// The cells of all items of an invoice.
std::vector<std::string> cellsOf(const Brontel::Invoice& invoice);
