#include <type_traits>

#include <gtest/gtest.h>

#include "host/entity/Invoice.h"
#include "host/entity/InvoiceItem.h"
#include "host/plugin/EntityPlugin.h"

using Brontel::Entity;
using Brontel::InvoiceItem;
using Brontel::Plugin::EntityPlugin;
using Brontel::Plugin::PluginModule;

namespace {

class MinimalPlugin : public EntityPlugin {
 public:
  MinimalPlugin() : EntityPlugin(nullptr, 1, 2, 3, 4, 5) {}

  int load(Entity*) const override { return 1; }
  int save(Entity*) const override { return 1; }
  bool canHandle(const FX::FXMetaClass& meta) const override { return meta.isSubClassOf(&InvoiceItem::metaClass); }
  int toXml(Entity*, XMLBuilder::Element*) const override { return 1; }
  FX::FXString toString(Entity*) const override { return "text"; }

  std::string weights() const {
    std::string text;
    for (const int weight : {weight1_, weight2_, weight3_, xmlWeight_, stringWeight_}) text += std::to_string(weight);
    return text;
  }
};

}  // namespace

TEST(EntityPluginTest, keepsFiveWeightsAndTellsTheLastTwo) {
  const MinimalPlugin plugin;
  EXPECT_EQ(plugin.weights(), "12345");
  EXPECT_EQ(plugin.getXmlWeight(), 4);
  EXPECT_EQ(plugin.getStringWeight(), 5);
}

TEST(EntityPluginTest, deletesAndParsesNothingUnlessASubclassDoes) {
  const MinimalPlugin plugin;
  InvoiceItem item;
  FX::FXDict parsers;
  EXPECT_EQ(plugin.del(&item), 0);
  EXPECT_EQ(plugin.del(nullptr), 0);
  EXPECT_EQ(plugin.getParser(&InvoiceItem::metaClass, parsers), nullptr);
}

TEST(EntityPluginTest, isAModuleThatSubclassesComplete) {
  EXPECT_TRUE(EntityPlugin::metaClass.isSubClassOf(&PluginModule::metaClass));
  EXPECT_TRUE(std::is_abstract_v<EntityPlugin>);
  const MinimalPlugin plugin;
  EXPECT_TRUE(plugin.isMemberOf(&EntityPlugin::metaClass));
  EXPECT_TRUE(plugin.canHandle(InvoiceItem::metaClass));
  EXPECT_FALSE(plugin.canHandle(Brontel::Invoice::metaClass));
}
