#pragma once

#include <memory>
#include <string>
#include <vector>

#include "app/HostDatabase.h"
#include "host/entity/Invoice.h"
#include "host/entity/InvoiceRepository.h"
#include "host/plugin/PluginContainer.h"
#include "host/plugin/PluginRegistry.h"
#include "host/ui/Morvane.h"

/// A host at work on a database that others may work on too, opened as the program itself opens it.
class HostProcess {
 public:
  using Use = Brontel::App::HostDatabase::Use;

  /// False, with the error on standard error, when the database cannot be used.
  bool open(const std::string& path, Use use);

  MorvaneDatabase& handle() { return database_.handle(); }
  Brontel::InvoiceRepository& repository() { return *repository_; }

  /// The first error since the last call, for a person; empty when there was none.
  std::string takeError();

  /// A new invoice of one sofa: all its cells carry the same text, so that a mixture of two saves shows.
  std::unique_ptr<Brontel::Invoice> newInvoice(const std::string& number, int rows, const std::string& text);
  /// Types that text into the cells of an invoice that newInvoice has made.
  static void retype(Brontel::Invoice& invoice, const std::string& text);
  /// The one text that all its cells carry; "mixed: ..." when they do not, or when some are missing.
  static std::string textOf(const Brontel::Invoice& invoice);

 private:
  Brontel::App::HostDatabase database_;
  Brontel::Morvane app_{"trust", "Brontel"};
  Brontel::Plugin::PluginRegistry registry_;
  std::unique_ptr<Brontel::Plugin::PluginContainer> container_;
  std::unique_ptr<Brontel::InvoiceRepository> repository_;
};
