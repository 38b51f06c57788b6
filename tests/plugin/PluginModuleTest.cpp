// The library at work, loaded as the host loads it. It stays loaded to the end of the process, so that a leak would be
// reported with the names of its functions.

#include <dlfcn.h>
#include <filesystem>
#include <memory>

#include <gtest/gtest.h>

#include "fxext/values/FXDecimal.h"
#include "host/plugin/PluginContainer.h"
#include "host/plugin/PluginLoader.h"
#include "host/ui/Morvane.h"
#include "tests/plugin/PluginLife.h"
#include "tests/support/TestDatabase.h"

using Brontel::Morvane;
using Brontel::Plugin::PluginContainer;
using Container = std::unique_ptr<PluginContainer>;

namespace {

class PluginModuleTest : public testing::Test {
 protected:
  PluginModuleTest() : library_(dlopen(PLUGIN_FILE, RTLD_NOW | RTLD_LOCAL)) {
    EXPECT_NE(library_, nullptr) << dlerror();
    EXPECT_TRUE(PluginLife::prepare(database_.handle()));
    app_.setDB(database_.get());
  }

  void* symbol(const char* name) const { return dlsym(library_, name); }
  Container getPlugin(Morvane* app) const {
    return Container(reinterpret_cast<PluginContainer* (*)(Morvane*)>(symbol("get_plugin"))(app));
  }
  const FX::FXObjectList& plugins() const {
    return *static_cast<FX::FXObjectList*>(symbol("_ZN7Brontel6Plugin8ItemData7pluginsE"));
  }

  void* library_;
  TestDatabase database_;
  Morvane app_;
};

}  // namespace

TEST_F(PluginModuleTest, isEnteredByGetPluginAlone) {
  ASSERT_NE(symbol("get_plugin"), nullptr);
  ASSERT_NE(symbol("_ZN7Brontel6Plugin8ItemData7pluginsE"), nullptr);
  EXPECT_EQ(symbol("_ZN7Brontel6Plugin8ItemData17ItemDataContainerC1EPNS_7MorvaneE"), nullptr);
  EXPECT_EQ(plugins().no(), 0);
  const std::string before = database_.dump();
  const Container container = getPlugin(&app_);
  EXPECT_STREQ(container->getName().text(), "Egyéb tételadatok");
  EXPECT_EQ(container->getModules().no(), 0);
  EXPECT_EQ(plugins().no(), 0);
  EXPECT_EQ(database_.dump(), before);
}

TEST_F(PluginModuleTest, carriesItsOwnPowersOfTen) {
  const auto* powers = static_cast<const long long*>(symbol("_ZN5FXExt4EXPSE"));
  ASSERT_NE(powers, nullptr);
  EXPECT_NE(powers, FXExt::EXPS);
  for (int i = 0; i < 16; ++i) EXPECT_EQ(powers[i], FXExt::EXPS[i]);
}

TEST_F(PluginModuleTest, registersItsClassesUnderTheirNames) {
  for (const char* name : {"ItemDataStringEntry", "ItemDataDateEntry", "ItemDataComboEntry"}) {
    const FX::FXMetaClass* meta = FX::FXMetaClass::getMetaClassFromName(name);
    ASSERT_NE(meta, nullptr) << name;
    const std::unique_ptr<FX::FXObject> object(meta->makeInstance());
    ASSERT_NE(object, nullptr);
    EXPECT_STREQ(object->getClassName(), name);
  }
  // Windows cannot be made without a display.
  for (const char* name : {"ItemDataTable", "ItemDataDialog", "ItemDataSettingsPanel", "ItemDataAssociationPanel",
                           "FXExt::FXComboBox", "FXDatePicker", "FXDatePickerLabel", "FXDateInput", "FXDualList"}) {
    const FX::FXMetaClass* meta = FX::FXMetaClass::getMetaClassFromName(name);
    ASSERT_NE(meta, nullptr) << name;
    EXPECT_STREQ(meta->getClassName(), name);
  }
}

TEST_F(PluginModuleTest, servesTheHostOverAndOver) {
  for (int round = 0; round < 5; ++round) {
    const Container container = getPlugin(&app_);
    ASSERT_EQ(container->init(), 1);
    EXPECT_EQ(PluginLife::use(*container, database_.handle()), "");
  }
}

TEST_F(PluginModuleTest, servesTwoHostsAtATime) {
  Container first = getPlugin(&app_);
  Container second = getPlugin(&app_);
  first->init();
  second->init();
  EXPECT_EQ(PluginLife::use(*first, database_.handle()), "");
  first.reset();
  EXPECT_EQ(PluginLife::use(*second, database_.handle()), "");
}

TEST_F(PluginModuleTest, worksWithoutAnApplication) {
  const Container container = getPlugin(nullptr);
  ASSERT_NE(container, nullptr);
  EXPECT_EQ(container->getIcon16(), nullptr);
  EXPECT_EQ(container->init(), 1);
}

TEST_F(PluginModuleTest, isFoundByTheHostsLoader) {
  Brontel::Plugin::PluginRegistry registry;
  Brontel::Plugin::PluginLoader loader(&app_, registry);
  ASSERT_TRUE(loader.loadFolder(std::filesystem::path(PLUGIN_FILE).parent_path().c_str()));
  ASSERT_EQ(loader.getLibraries().size(), 1u);
  EXPECT_STREQ(loader.getLibraries()[0]->getReason().text(), "");
  ASSERT_EQ(registry.getContainers().size(), 1u);
  EXPECT_EQ(PluginLife::use(*registry.getContainers()[0], database_.handle()), "");
  loader.unload();
  EXPECT_TRUE(registry.getContainers().empty());
}

TEST_F(PluginModuleTest, keepsQuietWithoutAWorkingDatabase) {
  MorvaneDatabase closed;
  app_.setDB(&closed);
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  {
    const Container container = getPlugin(&app_);
    EXPECT_EQ(container->init(), 1);
  }
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}
