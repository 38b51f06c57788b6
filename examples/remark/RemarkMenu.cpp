#include "RemarkMenu.h"

#include "RemarkInput.h"
#include "Texts.h"
#include "host/entity/Invoice.h"
#include "host/ui/InvoiceForm.h"
#include "host/ui/InvoiceItemTable.h"

namespace Remarks {

// [menu]
RemarkMenu::RemarkMenu(Brontel::Plugin::PluginContainer* container)
    : InvoiceItemMenuPlugin(container, translate("Megjegyzés...\t\tMegjegyzés a tételhez")) {}

long RemarkMenu::onCmdMenuItem(FX::FXObject* sender, FX::FXSelector, void*) {
  // The command's owner is the pane, and that one's is the table.
  const auto* command = dynamic_cast<FX::FXWindow*>(sender);
  const FX::FXWindow* pane = command == nullptr ? nullptr : command->getOwner();
  const auto* table = pane == nullptr ? nullptr : dynamic_cast<Brontel::InvoiceItemTable*>(pane->getOwner());
  if (table == nullptr || table->getForm()->getInvoice() == nullptr) return 1;
  Brontel::InvoiceForm* form = table->getForm();
  const FX::FXObjectListOf<Brontel::InvoiceItem>& items = form->getInvoice()->getItems();
  const FX::FXint row = table->getCurrentRow();
  if (row >= 0 && row < items.no()) askForRemark(form, items[row]);
  form->proposeCheckAll();
  return 1;
}
// [menu]

}  // namespace Remarks
