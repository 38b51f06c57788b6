#include "RemarkInput.h"

#include "Remark.h"
#include "Texts.h"
#include "host/entity/Invoice.h"

namespace Remarks {

// [dialog]
void askForRemark(FX::FXWindow* owner, Brontel::InvoiceItem* item) {
  FX::FXString text = Remark::textOf(item);
  const Brontel::Invoice* invoice = item->getInvoice();
  if (invoice != nullptr && invoice->isStatusClosed()) {
    FX::FXMessageBox::information(owner, FX::MBOX_OK, translate("Megjegyzés"), "%s", text.text());
    return;
  }
  FX::FXString label = item->getName();
  label.substitute("&", "&&");  // or FOX would underline the letter behind it
  FX::FXInputDialog dialog(owner, translate("Megjegyzés"), label);
  dialog.setText(text);
  if (dialog.execute(FX::PLACEMENT_OWNER) != 0) Remark::set(item, dialog.getText().trim());
}
// [dialog]

}  // namespace Remarks
