#include <type_traits>

#include <gtest/gtest.h>

#include "host/plugin/InvoiceCheckPlugin.h"

using Brontel::Plugin::InvoiceCheckPlugin;

TEST(InvoiceCheckPluginTest, isAModuleThatSubclassesComplete) {
  EXPECT_TRUE(InvoiceCheckPlugin::metaClass.isSubClassOf(&Brontel::Plugin::PluginModule::metaClass));
  EXPECT_TRUE(std::is_abstract_v<InvoiceCheckPlugin>);
}
