#pragma once

#include <functional>
#include <memory>

#include "host/ui/InvoiceForm.h"
#include "tests/itemdata/ListFixture.h"
#include "tests/support/TestApplication.h"
#include "tests/support/WindowUser.h"
#include "ui/ItemDataDialog.h"

/// An invoice form on the screen, and somebody who works with it. The invoice has one item with data: a per-item
/// "Megjegyzés", and rows of quantity, "Sarzs" and "Szín".
class FormFixture : public ListFixture {
 protected:
  using Texts = std::vector<std::string>;
  using ItemDataDialog = Brontel::Plugin::ItemData::ItemDataDialog;

  /// Counts how often a check is proposed, and does something meanwhile.
  class Form : public Brontel::InvoiceForm {
   public:
    Form(FX::FXApp* app, Brontel::Invoice* edited) : InvoiceForm(app, "form"), invoice(edited) {}

    Brontel::Invoice* getInvoice() const override { return invoice; }
    void proposeCheckAll() override {
      ++proposals;
      if (whenProposed) whenProposed();
    }

    Brontel::Invoice* invoice;
    int proposals = 0;
    std::function<void()> whenProposed;

   protected:
    void checkAll() override {}
  };

  explicit FormFixture(MorvaneDatabase* database = nullptr) : app(database), form(new Form(app.get(), &invoice)) {
    item.setName("0");
    newListOf(newTemplate());
  }

  /// Shows the form with everything that has been built into it.
  void show() {
    app.create();
    form->resize(400, 300);
    form->show(FX::PLACEMENT_DEFAULT);
    user.giveKeyboardTo(form);
  }

  /// The dialogs that are there, on the screen or not.
  std::vector<ItemDataDialog*> dialogs() {
    std::vector<ItemDataDialog*> found;
    for (FX::FXWindow* child = app->getRootWindow()->getFirst(); child != nullptr; child = child->getNext()) {
      if (auto* dialog = dynamic_cast<ItemDataDialog*>(child)) found.push_back(dialog);
    }
    return found;
  }

  static void accept(FX::FXWindow& dialog) {
    dialog.handle(nullptr, FXSEL(FX::SEL_COMMAND, FX::FXDialogBox::ID_ACCEPT), nullptr);
  }
  static void cancel(FX::FXWindow& dialog) { dialog.handle(nullptr, FXSEL(FX::SEL_CLOSE, 0), nullptr); }

  TestApplication app;
  WindowUser user{app};
  Form* form;
};
