#include "RemarkRepairEvent.h"

#include "RemarkInput.h"
#include "host/entity/Invoice.h"
#include "host/ui/InvoiceForm.h"

namespace Remarks {

// [repair]
void RemarkRepairEvent::execute(Brontel::Message*, int) {
  auto* form = dynamic_cast<Brontel::InvoiceForm*>(form_);
  if (form == nullptr || form->getInvoice() == nullptr) return;
  // The line may have been removed since the check ran.
  Brontel::InvoiceItem* item = item_;
  if (form->getInvoice()->getItems().find(item) >= 0) askForRemark(form, item);
  form->proposeCheckAll();
}
// [repair]

}  // namespace Remarks
