#include "host/ui/InvoiceForm.h"

namespace Brontel {

FXIMPLEMENT_ABSTRACT(InvoiceForm, DBForm, nullptr, 0)

}  // namespace Brontel
