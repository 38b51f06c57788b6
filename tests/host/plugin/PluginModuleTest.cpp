#include <type_traits>

#include <gtest/gtest.h>

#include "host/plugin/PluginModule.h"
#include "tests/host/plugin/TestContainer.h"

using Brontel::Plugin::PluginModule;

TEST(PluginModuleTest, knowsItsContainerAndDoesNothing) {
  TestContainer container;
  PluginModule module(&container);
  EXPECT_EQ(module.getContainer(), &container);
  EXPECT_EQ(module.init(), 0);
  EXPECT_EQ(PluginModule(nullptr).getContainer(), nullptr);
}

TEST(PluginModuleTest, isAnObjectOfOneField) {
  EXPECT_TRUE(PluginModule::metaClass.isSubClassOf(&FX::FXObject::metaClass));
  EXPECT_EQ(sizeof(PluginModule), sizeof(FX::FXObject) + sizeof(void*));
  EXPECT_FALSE(std::is_copy_constructible_v<PluginModule>);
}
