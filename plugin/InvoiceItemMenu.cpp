#include "plugin/InvoiceItemMenu.h"

#include <libintl.h>

#include "host/entity/Invoice.h"
#include "host/ui/InvoiceForm.h"
#include "host/ui/InvoiceItemTable.h"
#include "itemdata/Codes.h"
#include "ui/ItemDataDialog.h"

namespace Brontel::Plugin::ItemData {

using FX::FXint;

namespace {

FX::FXWindow* ownerOf(FX::FXObject* object) {
  const auto* window = dynamic_cast<const FX::FXWindow*>(object);
  return window == nullptr ? nullptr : window->getOwner();
}

}  // namespace

// The text, and behind it an empty accelerator and an empty help text.
InvoiceItemMenu::InvoiceItemMenu(PluginContainer* container)
    : InvoiceItemMenuPlugin(container, dgettext(kTextDomain, "Egyéb tételadatok...\t\t")) {}

long InvoiceItemMenu::onCmdMenuItem(FX::FXObject* sender, FX::FXSelector, void*) {
  const auto* table = dynamic_cast<const InvoiceItemTable*>(ownerOf(ownerOf(sender)));
  InvoiceForm* form = table == nullptr ? nullptr : table->getForm();
  if (form == nullptr) return 1;
  FXint first = table->getSelStartRow();
  FXint last = table->getSelEndRow();
  if (last < 0) first = last = table->getCurrentRow();
  // A dialog needs an owner on the screen.
  if (first >= 0 && form->id() != 0) openDialogs(*form, first, last);
  form->proposeCheckAll();
  return 1;
}

void InvoiceItemMenu::openDialogs(InvoiceForm& form, FXint first, FXint last) {
  for (FXint row = first; row <= last; ++row) {
    // Asked anew each time: the form goes on living under the dialogs.
    Invoice* invoice = form.getInvoice();
    if (invoice == nullptr || row >= invoice->getItems().no()) return;
    ItemDataDialog dialog(&form, invoice->getItems()[row]);
    dialog.execute(FX::PLACEMENT_CURSOR);
  }
}

}  // namespace Brontel::Plugin::ItemData
