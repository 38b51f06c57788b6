#pragma once

#include <memory>

#include <fx.h>

#include "host/entity/Invoice.h"
#include "host/entity/InvoiceRepository.h"

namespace Brontel::App {

class InvoiceEditForm;
class Workspace;

/// What the main window does with invoices. Whatever goes wrong is told to the person.
class InvoiceActions {
 public:
  /// Borrows both; the owner is the window in which questions appear.
  InvoiceActions(Workspace& workspace, FX::FXWindow* owner) : workspace_(workspace), owner_(owner) {}

  /// The form of an invoice: the one that is open, or a new one. Null when the invoice cannot be read.
  InvoiceEditForm* open(int id);
  InvoiceEditForm* createNew();
  /// A new invoice that refers to the given one, or a plain copy of it, saved and open; null when that failed.
  InvoiceEditForm* derive(int id);
  InvoiceEditForm* copy(int id);

  /// Shows an invoice as it is printed: as it stands in its form, if one is open. False when it cannot be read.
  bool preview(int id);

  /// Opens the invoice and closes it for good if nothing in it must be dealt with; what there is stands there then.
  bool closeInvoice(int id);
  bool storno(int id);
  bool remove(int id);

 private:
  InvoiceEditForm* findForm(int id) const;
  bool saveForm(int id);
  std::unique_ptr<Invoice> load(int id);
  InvoiceEditForm* saveAndOpen(std::unique_ptr<Invoice> invoice, const FX::FXString& mark);
  bool refuse(const FX::FXString& error);

  Workspace& workspace_;
  FX::FXWindow* owner_;
};

}  // namespace Brontel::App
