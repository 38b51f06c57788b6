#include <memory>

#include <gtest/gtest.h>

#include "host/entity/Invoice.h"
#include "host/plugin/InvoiceItemMenuPlugin.h"
#include "host/plugin/PluginRegistry.h"
#include "host/ui/InvoiceForm.h"
#include "host/ui/InvoiceItemTable.h"
#include "tests/host/plugin/TestContainer.h"
#include "tests/support/TestApplication.h"

using Brontel::Invoice;
using Brontel::InvoiceForm;
using Brontel::InvoiceItemTable;
using Brontel::Plugin::InvoiceItemMenuPlugin;

namespace {

class TestForm : public InvoiceForm {
 public:
  TestForm(FX::FXApp* app, Invoice* invoice) : InvoiceForm(app, "invoice"), invoice_(invoice) {}
  Invoice* getInvoice() const override { return invoice_; }

 protected:
  void checkAll() override {}

 private:
  Invoice* invoice_;
};

class TestMenuPlugin : public InvoiceItemMenuPlugin {
 public:
  using InvoiceItemMenuPlugin::InvoiceItemMenuPlugin;

  long onCmdMenuItem(FX::FXObject* sender, FX::FXSelector, void*) override {
    lastSender = sender;
    return 1;
  }

  FX::FXObject* lastSender = nullptr;
};

class InvoiceItemTableTest : public ::testing::Test {
 protected:
  InvoiceItemTableTest() : form(application.get(), &invoice), table(new InvoiceItemTable(&form, &form)) {
    registry.add(&first);
    registry.add(&second);
  }

  static std::vector<FX::FXMenuCommand*> entriesOf(FX::FXMenuPane* pane) {
    std::vector<FX::FXMenuCommand*> entries;
    for (FX::FXWindow* child = pane->getFirst(); child != nullptr; child = child->getNext()) {
      entries.push_back(dynamic_cast<FX::FXMenuCommand*>(child));
    }
    return entries;
  }

  TestApplication application;
  Invoice invoice;
  TestForm form;
  InvoiceItemTable* table;
  TestContainer first;
  TestContainer second;
  Brontel::Plugin::PluginRegistry registry;
};

}  // namespace

TEST_F(InvoiceItemTableTest, leadsToItsFormAndTheInvoice) {
  EXPECT_EQ(table->getForm(), &form);
  EXPECT_EQ(table->getForm()->getInvoice(), &invoice);
  EXPECT_TRUE(form.isMemberOf(&Brontel::DBForm::metaClass));
  EXPECT_EQ(InvoiceItemTable(&form, nullptr).getForm(), nullptr);
}

TEST_F(InvoiceItemTableTest, hasAnEmptyMenuWithoutPlugIns) {
  const std::unique_ptr<FX::FXMenuPane> pane(table->createMenu(registry));
  EXPECT_TRUE(entriesOf(pane.get()).empty());
}

TEST_F(InvoiceItemTableTest, hasAnEntryForEachMenuPlugIn) {
  auto* a = first.add(new TestMenuPlugin(&first, "A...\tCtl-A\thelp"));
  first.add(new Brontel::Plugin::PluginModule(&first));
  auto* b = second.add(new TestMenuPlugin(&second, "B...\t\t"));
  const std::unique_ptr<FX::FXMenuPane> pane(table->createMenu(registry));
  const auto entries = entriesOf(pane.get());
  ASSERT_EQ(entries.size(), 2u);
  EXPECT_STREQ(entries[0]->getText().text(), "A...");
  EXPECT_STREQ(entries[0]->getAccelText().text(), "Ctl-A");
  EXPECT_STREQ(entries[0]->getHelpText().text(), "help");
  EXPECT_STREQ(entries[1]->getText().text(), "B...");
  EXPECT_EQ(entries[0]->getTarget(), a);
  EXPECT_EQ(entries[1]->getTarget(), b);
  for (const FX::FXMenuCommand* entry : entries) EXPECT_EQ(entry->getOwner()->getOwner(), table);
}

TEST_F(InvoiceItemTableTest, makesANewMenuEachTime) {
  first.add(new TestMenuPlugin(&first, "A"));
  const std::unique_ptr<FX::FXMenuPane> one(table->createMenu(registry));
  const std::unique_ptr<FX::FXMenuPane> other(table->createMenu(registry));
  EXPECT_NE(one, other);
}

TEST_F(InvoiceItemTableTest, sendsACommandToThePlugInWithTheEntryAsSender) {
  auto* plugin = first.add(new TestMenuPlugin(&first, "A"));
  const std::unique_ptr<FX::FXMenuPane> pane(table->createMenu(registry));
  FX::FXMenuCommand* entry = entriesOf(pane.get()).at(0);
  application.create();
  pane->create();
  EXPECT_EQ(entry->handle(entry, FXSEL(FX::SEL_COMMAND, FX::FXWindow::ID_HOTKEY), nullptr), 0);
  FX::FXEvent click{};
  click.type = FX::SEL_LEFTBUTTONPRESS;
  entry->handle(entry, FXSEL(FX::SEL_ENTER, 0), &click);
  entry->handle(entry, FXSEL(FX::SEL_LEFTBUTTONPRESS, 0), &click);
  entry->handle(entry, FXSEL(FX::SEL_LEFTBUTTONRELEASE, 0), &click);
  EXPECT_EQ(plugin->lastSender, entry);
}

TEST_F(InvoiceItemTableTest, keepsItsEntriesEnabled) {
  auto* plugin = first.add(new TestMenuPlugin(&first, "A"));
  const std::unique_ptr<FX::FXMenuPane> pane(table->createMenu(registry));
  FX::FXMenuCommand* entry = entriesOf(pane.get()).at(0);
  entry->disable();
  EXPECT_FALSE(entry->isEnabled());
  EXPECT_EQ(plugin->handle(entry, FXSEL(FX::SEL_UPDATE, InvoiceItemMenuPlugin::ID_MENU_ITEM), nullptr), 1);
  EXPECT_TRUE(entry->isEnabled());
  EXPECT_EQ(plugin->onUpdMenuItem(nullptr, 0, nullptr), 1);
}
