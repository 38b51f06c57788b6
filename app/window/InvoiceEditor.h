#pragma once

#include <memory>

#include <fx.h>

#include "app/window/GoodsCatalogue.h"
#include "host/entity/Invoice.h"
#include "host/entity/InvoiceRepository.h"

namespace Brontel::App {

class Workspace;

/// An invoice while somebody edits it: what the form does, without its windows.
class InvoiceEditor {
 public:
  /// Takes the invoice over, as it is stored or as makeNew has made it. Borrows the workspace.
  InvoiceEditor(Workspace& workspace, std::unique_ptr<Invoice> invoice);

  /// An outgoing invoice of today under a free number, with no items, never saved.
  static std::unique_ptr<Invoice> makeNew(Workspace& workspace);

  Invoice& getInvoice() const { return *invoice_; }
  int countItems() const { return invoice_->getItems().no(); }
  InvoiceItem& getItem(int index) const { return *invoice_->getItems()[index]; }
  bool isNew() const { return invoice_->getId() == 0; }
  /// Closed and storno invoices may only be looked at.
  bool isEditable() const;

  /// Whether the invoice or what plug-ins keep for its items differs from what is stored; never for one that may only
  /// be looked at.
  bool hasChanged() const;

  /// Whether a plug-in has something to print for the item: it would be lost with it.
  bool hasRecordedData(int index) const;

  /// Appends a line without goods; its quantity is one.
  InvoiceItem& addItem();
  void removeItem(int index);
  /// Puts a new item of these goods in the place of the one at that index, which goes with what was recorded for it.
  /// Quantity stays.
  InvoiceItem& replaceGoods(int index, const GoodsCatalogue::Goods& goods);

  /// Stores everything in one transaction; the objects stay in use.
  InvoiceRepository::Result save();
  InvoiceRepository::Result changeStatus(int status);
  /// Reads the invoice into new objects; a new one starts over. When that fails everything stays as it is.
  InvoiceRepository::Result reload();

 private:
  FX::FXString describe() const;

  Workspace& workspace_;
  std::unique_ptr<Invoice> invoice_;
  FX::FXString stored_;  // the invoice's description when it was last in line with the database
};

}  // namespace Brontel::App
