#pragma once

#include <memory>

#include "host/entity/InvoiceRepository.h"
#include "tests/itemdata/ItemDataFixture.h"

/// Invoices with one item of product 100 (see addGoods), kept by the host as it keeps them in daily use: foreign keys
/// are enforced, saves are transactions, and the plug-in takes part through the registry.
class LifeCycleFixture : public ItemDataFixture {
 protected:
  LifeCycleFixture();

  /// A new open invoice of type 101 whose item has that quantity, with its data attached.
  std::unique_ptr<Brontel::Invoice> newInvoice(const std::string& quantity = "5");
  /// The same with "M", rows (5, S1, kék) and (3, S2, piros), saved; its item's quantity is 8.
  std::unique_ptr<Brontel::Invoice> savedInvoice();
  /// A new invoice that derives from the stored one, of that quantity, with its data attached.
  std::unique_ptr<Brontel::Invoice> deriveFrom(const Brontel::Invoice& source, const std::string& quantity);

  /// Saves; expects that it works.
  void save(Brontel::Invoice& invoice);
  /// The invoice as the database has it now.
  std::unique_ptr<Brontel::Invoice> reload(const Brontel::Invoice& invoice);
  void changeStatus(Brontel::Invoice& invoice, int status);

  static Brontel::InvoiceItem& itemOf(const Brontel::Invoice& invoice) { return *invoice.getItems()[0]; }
  /// The item's list; expects that it has one.
  static Brontel::Plugin::ItemData::ItemDataList& listOf(const Brontel::Invoice& invoice);
  /// Appends a row and fills it in.
  static void addRow(Brontel::Invoice& invoice, const std::string& quantity, const std::string& batch,
                     const std::string& colour);

  /// What the item's stored cells are.
  Texts storedOf(const Brontel::Invoice& invoice) const { return stored(itemOf(invoice).getId()); }
  /// What is printed with the item.
  std::string printed(const Brontel::Invoice& invoice) const;
  /// What a check says, in short.
  Texts problems(Brontel::Invoice& invoice) const;

  Brontel::InvoiceRepository repository;
};
