#include <memory>

#include <fxkeys.h>
#include <gtest/gtest.h>

#include "Remark.h"
#include "RemarkRepairEvent.h"
#include "host/ui/InvoiceForm.h"
#include "host/ui/InvoiceItemTable.h"
#include "tests/examples/RemarkWorld.h"
#include "tests/support/DialogUser.h"

using Brontel::InvoiceItemTable;
using Remarks::Remark;

namespace {

/// Counts how often a check is proposed.
class Form : public Brontel::InvoiceForm {
 public:
  Form(FX::FXApp* app, Brontel::Invoice& invoice) : InvoiceForm(app, "form"), invoice_(invoice) {}

  Brontel::Invoice* getInvoice() const override { return &invoice_; }
  void proposeCheckAll() override { ++proposals; }

  int proposals = 0;

 protected:
  void checkAll() override {}

 private:
  Brontel::Invoice& invoice_;
};

/// The invoice's form on the screen, and somebody who uses the item table's menu.
class RemarkWindowTest : public ::testing::Test {
 protected:
  RemarkWindowTest() : form(new Form(app.get(), world.invoice())) {
    table = new InvoiceItemTable(form, form, nullptr, 0, FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y);
    table->setTableSize(2, 1);
    pane.reset(table->createMenu(world.plugins()));
    app.create();
    form->resize(400, 300);
    form->show(FX::PLACEMENT_DEFAULT);
    user.giveKeyboardTo(form);
  }

  /// Chooses the menu's entry, sees the dialog's text and replaces it.
  void chooseAndType(const char* expected, const std::string& text, unsigned last = FX::KEY_Return) {
    user.whenModal([this, expected, text, last](FX::FXWindow& dialog) {
      const auto fields = descendantsOf<FX::FXTextField>(&dialog);
      ASSERT_EQ(fields.size(), 1u);
      EXPECT_STREQ(fields[0]->getText().text(), expected);
      EXPECT_STREQ(dynamic_cast<FX::FXDialogBox&>(dialog).getTitle().text(), "Megjegyzés");
      fields[0]->selectAll();
      user.type(text);
      user.key(last);
    });
    choose();
    EXPECT_EQ(user.scriptsLeft(), 0u);
  }

  void choose() {
    auto* entry = dynamic_cast<FX::FXMenuCommand*>(pane->getFirst());
    ASSERT_NE(entry, nullptr);
    EXPECT_STREQ(entry->getText().text(), "Megjegyzés...");
    entry->getTarget()->handle(entry, FXSEL(FX::SEL_COMMAND, entry->getSelector()), nullptr);
  }

  TestApplication app;
  RemarkWorld world{*app.get()};
  DialogUser user{app};
  Form* form;
  InvoiceItemTable* table;
  std::unique_ptr<FX::FXMenuPane> pane;
};

}  // namespace

TEST_F(RemarkWindowTest, theMenuAsksForTheCurrentItemsRemark) {
  table->setCurrentItem(1, 0);
  chooseAndType("", "  sürgős ");
  EXPECT_STREQ(Remark::textOf(&world.item(1)).text(), "sürgős");
  EXPECT_EQ(Remark::of(&world.item(0)), nullptr);
  EXPECT_EQ(form->proposals, 1);
  chooseAndType("sürgős", "ráér");
  EXPECT_STREQ(Remark::textOf(&world.item(1)).text(), "ráér");
  EXPECT_EQ(world.stored().size(), 0u) << "only the host saves";
}

TEST_F(RemarkWindowTest, escapeChangesNothing) {
  table->setCurrentItem(0, 0);
  chooseAndType("", "sürgős", FX::KEY_Escape);
  EXPECT_EQ(Remark::of(&world.item(0)), nullptr);
}

TEST_F(RemarkWindowTest, withoutACurrentItemNothingOpens) {
  table->setTableSize(3, 1);
  table->setCurrentItem(2, 0);
  choose();
  EXPECT_EQ(form->proposals, 1);
}

TEST_F(RemarkWindowTest, aClosedInvoicesRemarkIsOnlyShown) {
  Remark::set(&world.item(0), "törékeny");
  world.invoice().setStatus(Brontel::STATUS_CLOSED);
  table->setCurrentItem(0, 0);
  user.run([this] { choose(); }, {[](FX::FXWindow* box) {
             EXPECT_EQ(boxText(box), "törékeny");
             answer(box, FX::FXMessageBox::ID_CLICKED_OK);
           }});
  EXPECT_STREQ(Remark::textOf(&world.item(0)).text(), "törékeny");
}

TEST_F(RemarkWindowTest, aMessageLeadsToItsRemark) {
  user.whenModal([this](FX::FXWindow& dialog) {
    user.type("igen");
    dialog.handle(nullptr, FXSEL(FX::SEL_COMMAND, FX::FXDialogBox::ID_ACCEPT), nullptr);
  });
  Remarks::RemarkRepairEvent(form, &world.item(1)).execute(nullptr, 0);
  EXPECT_STREQ(Remark::textOf(&world.item(1)).text(), "igen");
  EXPECT_EQ(form->proposals, 1);
}

TEST_F(RemarkWindowTest, aMessageAboutARemovedItemOpensNothing) {
  Remarks::RemarkRepairEvent event(form, &world.item(1));
  world.invoice().removeItem(1);
  event.execute(nullptr, 0);
  EXPECT_EQ(form->proposals, 1);
  Remarks::RemarkRepairEvent(nullptr, &world.item(0)).execute(nullptr, 0);
}
