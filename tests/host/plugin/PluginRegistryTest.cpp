#include <gtest/gtest.h>

#include "host/entity/Invoice.h"
#include "host/message/Message.h"
#include "host/plugin/InvoiceCheckPlugin.h"
#include "host/plugin/PluginRegistry.h"
#include "host/xml/Document.h"
#include "tests/host/plugin/RecordingEntityPlugin.h"
#include "tests/host/plugin/TestContainer.h"

using Brontel::Invoice;
using Brontel::InvoiceItem;
using Brontel::ListOfMessage;
using Brontel::Message;
using Brontel::Plugin::EntityPlugin;
using Brontel::Plugin::InvoiceCheckPlugin;
using Brontel::Plugin::PluginModule;
using Brontel::Plugin::PluginRegistry;

namespace {

using Log = RecordingEntityPlugin::Log;

class RecordingCheck : public InvoiceCheckPlugin {
 public:
  RecordingCheck(Brontel::Plugin::PluginContainer* container, const char* name)
      : InvoiceCheckPlugin(container), name_(name) {}

  int checkInvoice(FX::FXWindow* parent, Invoice* invoice, ListOfMessage& messages, FX::FXString prefix) override {
    EXPECT_EQ(parent, nullptr);
    messages.append(new Message(prefix + name_, 1, invoice->getDisplayText(), "", nullptr, nullptr, nullptr));
    return 0;
  }

 private:
  const char* name_;
};

class PluginRegistryTest : public ::testing::Test {
 protected:
  PluginRegistryTest() {
    item.setId(7);
    registry.add(&first);
    registry.add(&second);
  }

  RecordingEntityPlugin* add(TestContainer& container, const char* name, int xmlWeight = 0, int stringWeight = 0) {
    return container.add(new RecordingEntityPlugin(&container, log, name, xmlWeight, stringWeight));
  }

  TestContainer first;
  TestContainer second;
  PluginRegistry registry;
  Log log;
  InvoiceItem item;
};

}  // namespace

TEST_F(PluginRegistryTest, keepsEachContainerOnce) {
  registry.add(&first);
  registry.add(nullptr);
  EXPECT_EQ(registry.getContainers().size(), 2u);
  registry.remove(&first);
  registry.remove(&first);
  registry.remove(nullptr);
  ASSERT_EQ(registry.getContainers().size(), 1u);
  EXPECT_EQ(registry.getContainers()[0], &second);
}

TEST_F(PluginRegistryTest, findsModulesByTheirClassInOrder) {
  PluginModule* check = second.add(new RecordingCheck(&second, "c"));
  PluginModule* b = add(second, "b");
  first.add<PluginModule>(nullptr);
  PluginModule* a = add(first, "a");
  PluginModule* plain = first.add(new PluginModule(&first));
  using Modules = std::vector<PluginModule*>;
  EXPECT_EQ(registry.findModules(EntityPlugin::metaClass), (Modules{a, b}));
  EXPECT_EQ(registry.findModules(InvoiceCheckPlugin::metaClass), Modules{check});
  EXPECT_EQ(registry.findModules(PluginModule::metaClass), (Modules{a, plain, check, b}));
  EXPECT_TRUE(registry.findModules(Invoice::metaClass).empty());
  EXPECT_TRUE(PluginRegistry().findModules(PluginModule::metaClass).empty());
}

TEST_F(PluginRegistryTest, callsEntityPlugInsThatAcceptTheClass) {
  add(first, "a");
  add(second, "b")->accepted = &Invoice::metaClass;
  XMLBuilder::Document document("root");
  registry.load(&item);
  registry.save(&item);
  registry.del(&item);
  registry.toXml(&item, document.getRoot());
  registry.toString(&item);
  EXPECT_EQ(log, (Log{"a.load 7", "a.save 7", "a.del 7", "a.toXml 7", "a.toString 7"}));
  log.clear();
  Invoice invoice;
  registry.load(&invoice);
  EXPECT_EQ(log, Log{"b.load 0"});
}

TEST_F(PluginRegistryTest, doesNothingWithoutEntityOrPlugIns) {
  add(first, "a");
  registry.load(nullptr);
  registry.save(nullptr);
  registry.del(nullptr);
  registry.toXml(nullptr, nullptr);
  EXPECT_TRUE(registry.toString(nullptr).empty());
  EXPECT_TRUE(log.empty());
  EXPECT_TRUE(PluginRegistry().toString(&item).empty());
}

TEST_F(PluginRegistryTest, ordersContributionsByTheirWeightsLightestFirst) {
  add(first, "a", 3, 1)->text = "A";
  add(first, "b", 1, 3)->text = "B";
  add(second, "c", 2, 2)->text = "C";
  add(second, "d", 1, 3)->text = "D";
  XMLBuilder::Document document("root");
  registry.toXml(&item, document.getRoot());
  EXPECT_EQ(log, (Log{"b.toXml 7", "d.toXml 7", "c.toXml 7", "a.toXml 7"}));
  EXPECT_STREQ(registry.toString(&item).text(), "A\nC\nB\nD");
}

TEST_F(PluginRegistryTest, leavesEmptyTextsOut) {
  add(first, "a");
  add(first, "b")->text = "B";
  add(first, "c");
  add(first, "d")->text = "D";
  EXPECT_STREQ(registry.toString(&item).text(), "B\nD");
}

TEST_F(PluginRegistryTest, runsEveryCheckWhateverTheyAnswer) {
  first.add(new RecordingCheck(&first, "_A"));
  second.add(new RecordingCheck(&second, "_B"));
  Invoice invoice;
  invoice.setNumber("N/1");
  ListOfMessage messages;
  registry.checkInvoice(nullptr, &invoice, messages, "INVOICE");
  ASSERT_EQ(messages.no(), 2);
  EXPECT_STREQ(messages[0]->getCode().text(), "INVOICE_A");
  EXPECT_STREQ(messages[1]->getCode().text(), "INVOICE_B");
  EXPECT_STREQ(messages[1]->getText().text(), "N/1");
  for (int i = 0; i < 2; ++i) delete messages[i];
}

TEST_F(PluginRegistryTest, checksNothingWithoutInvoice) {
  first.add(new RecordingCheck(&first, "_A"));
  ListOfMessage messages;
  registry.checkInvoice(nullptr, nullptr, messages, "INVOICE");
  EXPECT_EQ(messages.no(), 0);
}

TEST_F(PluginRegistryTest, findsContainersWithSettingsWithoutOpeningThem) {
  second.hasSettings = true;
  EXPECT_EQ(registry.findWithSettings(), std::vector<Brontel::Plugin::PluginContainer*>{&second});
  EXPECT_EQ(first.hasSettingsCalls, 1);
  EXPECT_EQ(first.settingsCalls + second.settingsCalls, 0);
}
