#include "app/window/InvoiceActions.h"

#include <libintl.h>

#include "app/NewInvoice.h"
#include "app/window/Dialogs.h"
#include "app/window/InvoiceEditForm.h"
#include "app/window/InvoiceEditor.h"
#include "app/window/MessagePane.h"
#include "app/window/PrintPreview.h"
#include "app/window/Workspace.h"
#include "host/message/FillIn.h"
#include "host/ui/WaitCursor.h"

namespace Brontel::App {

using FX::FXString;
using Result = InvoiceRepository::Result;

InvoiceEditForm* InvoiceActions::findForm(int id) const {
  for (OpenWindow* window : workspace_.getWindows()) {
    auto* form = dynamic_cast<InvoiceEditForm*>(window);
    if (form != nullptr && form->getInvoice()->getId() == id) return form;
  }
  return nullptr;
}

InvoiceEditForm* InvoiceActions::open(int id) {
  if (InvoiceEditForm* form = findForm(id)) {
    form->bringForward();
    return form;
  }
  const WaitCursor wait(&workspace_.getApp());
  std::unique_ptr<Invoice> invoice = load(id);
  if (invoice == nullptr) return nullptr;
  auto* form = new InvoiceEditForm(workspace_, std::move(invoice));
  form->create();
  return form;
}

InvoiceEditForm* InvoiceActions::createNew() {
  if (!workspace_.isEditable()) return nullptr;
  std::unique_ptr<Invoice> invoice = InvoiceEditor::makeNew(workspace_);
  if (workspace_.showErrors(owner_)) return nullptr;
  auto* form = new InvoiceEditForm(workspace_, std::move(invoice));
  form->create();
  return form;
}

InvoiceEditForm* InvoiceActions::derive(int id) {
  if (!workspace_.isEditable() || !saveForm(id)) return nullptr;
  const std::unique_ptr<Invoice> source = load(id);
  if (source == nullptr) return nullptr;
  std::unique_ptr<Invoice> derived(source->derive());
  workspace_.getRepository().loadPluginData(*derived);
  // Saving what could not be read in full would make the gap look recorded.
  if (workspace_.showErrors(owner_)) return nullptr;
  return saveAndOpen(std::move(derived), kDerivedMark);
}

InvoiceEditForm* InvoiceActions::copy(int id) {
  if (!workspace_.isEditable() || !saveForm(id)) return nullptr;
  const std::unique_ptr<Invoice> source = load(id);
  return source == nullptr ? nullptr : saveAndOpen(std::unique_ptr<Invoice>(source->copy()), kCopyMark);
}

InvoiceEditForm* InvoiceActions::saveAndOpen(std::unique_ptr<Invoice> invoice, const FXString& mark) {
  Result result = Result::Failed;
  {
    const WaitCursor wait(&workspace_.getApp());
    result = saveUnderFreeNumber(workspace_.getDatabase(), workspace_.getRepository(), *invoice, mark);
  }
  if (!workspace_.tellResult(owner_, result, invoice->getNumber())) return nullptr;
  workspace_.notifyChanged();
  return open(invoice->getId());
}

bool InvoiceActions::preview(int id) {
  if (InvoiceEditForm* form = findForm(id)) {
    form->bringForward();
    form->handle(owner_, FXSEL(FX::SEL_COMMAND, InvoiceEditForm::ID_PREVIEW), nullptr);
    return true;
  }
  const std::unique_ptr<Invoice> invoice = load(id);
  if (invoice == nullptr) return false;
  PrintPreview(owner_, workspace_, *invoice).execute(FX::PLACEMENT_OWNER);
  return true;
}

bool InvoiceActions::closeInvoice(int id) {
  InvoiceEditForm* form = findForm(id);
  if (form == nullptr) form = open(id);
  if (form == nullptr) return false;
  form->bringForward();
  form->handle(owner_, FXSEL(FX::SEL_COMMAND, InvoiceEditForm::ID_CLOSE_INVOICE), nullptr);
  return form->getInvoice()->isStatusClosed();
}

bool InvoiceActions::storno(int id) {
  const std::unique_ptr<Invoice> invoice = load(id);
  if (invoice == nullptr || !workspace_.isEditable()) return false;
  const FXString number = invoice->getDisplayText();
  if (invoice->getStatus() != STATUS_CLOSED) {
    return refuse(fillIn(gettext("Csak lezárt számlát lehet stornózni, ez nem az: %s."), {number}));
  }
  const FXString question = fillIn(gettext("A stornó nem vonható vissza.\n\nStornózza ezt a számlát: %s?"), {number});
  if (!Dialogs::confirm(owner_, gettext("Stornózás"), question)) return false;
  if (!workspace_.tellResult(owner_, workspace_.getRepository().changeStatus(*invoice, STATUS_STORNO), number)) {
    return false;
  }
  if (InvoiceEditForm* form = findForm(id)) form->reload();
  workspace_.notifyChanged();
  return true;
}

bool InvoiceActions::remove(int id) {
  const std::unique_ptr<Invoice> invoice = load(id);
  if (invoice == nullptr || !workspace_.isEditable()) return false;
  const FXString number = invoice->getDisplayText();
  if (invoice->isStatusClosed()) {
    return refuse(fillIn(gettext("Lezárt vagy stornózott számlát nem lehet törölni: %s."), {number}));
  }
  if (InvoiceEditForm* form = findForm(id)) {
    // Closing it may save it once more.
    return form->close(TRUE) && remove(id);
  }
  const FXString question = fillIn(
      gettext("A számla a tételeivel és a rögzített adatokkal együtt törlődik.\n\nTörli ezt a számlát: %s?"), {number});
  if (!Dialogs::confirm(owner_, gettext("Törlés"), question)) return false;
  if (!workspace_.tellResult(owner_, workspace_.getRepository().remove(*invoice), number)) return false;
  workspace_.notifyChanged();
  return true;
}

// What is typed in an open form belongs into a copy, so it has to be saved first.
bool InvoiceActions::saveForm(int id) {
  InvoiceEditForm* form = findForm(id);
  if (form == nullptr || !form->hasUnsavedChanges()) return true;
  const FXString question =
      fillIn(gettext("A számla módosult: %s\n\nElőbb menti a változásokat?"), {form->getInvoice()->getDisplayText()});
  switch (Dialogs::askToSave(owner_, question)) {
    case Dialogs::Answer::Yes:
      return form->saveChanges();
    case Dialogs::Answer::No:
      return true;
    case Dialogs::Answer::Cancel:
      break;
  }
  return false;
}

std::unique_ptr<Invoice> InvoiceActions::load(int id) {
  Result result = Result::NotFound;
  std::unique_ptr<Invoice> invoice;
  {
    const WaitCursor wait(&workspace_.getApp());
    invoice = workspace_.getRepository().load(id, result);
  }
  if (result == Result::NotFound) {
    refuse(gettext("Ezt a számlát közben más törölte."));
    workspace_.notifyChanged();
  } else {
    workspace_.tellResult(owner_, result, "#" + FX::FXStringVal(id));
  }
  return invoice;
}

bool InvoiceActions::refuse(const FXString& error) {
  Dialogs::showError(owner_, error);
  return false;
}

}  // namespace Brontel::App
