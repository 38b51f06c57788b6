#pragma once

#include "host/ui/DBForm.h"

namespace Brontel {

class Invoice;

/// The form of one invoice.
class InvoiceForm : public DBForm {
  FXDECLARE_ABSTRACT(InvoiceForm)

 public:
  using DBForm::DBForm;

  /// The invoice being edited, or null. The form keeps it.
  virtual Invoice* getInvoice() const = 0;

 protected:
  InvoiceForm() = default;
};

}  // namespace Brontel
