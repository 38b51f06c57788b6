#include <memory>
#include <string>
#include <type_traits>

#include <gtest/gtest.h>
#include <libintl.h>

#include "host/plugin/PluginContainer.h"
#include "host/ui/Morvane.h"
#include "tests/host/plugin/TestContainer.h"
#include "tests/support/MessageCatalog.h"
#include "tests/support/TemporaryDirectory.h"

using Brontel::Morvane;
using Brontel::Plugin::PluginContainer;
using Brontel::Plugin::PluginModule;

namespace {

class CountedModule : public PluginModule {
 public:
  CountedModule(PluginContainer* container, std::string& deleted, char name)
      : PluginModule(container), deleted_(deleted), name_(name) {}
  ~CountedModule() override { deleted_ += name_; }

 private:
  std::string& deleted_;
  char name_;
};

}  // namespace

TEST(PluginContainerTest, keepsWhatItIsGiven) {
  Morvane app;
  const TestContainer container(&app, "név");
  EXPECT_EQ(container.getApp(), &app);
  EXPECT_STREQ(container.getTextDomain().text(), "test-domain");
  EXPECT_STREQ(container.getName().text(), "név");
  EXPECT_STREQ(container.getVersion().text(), "1.2");
  EXPECT_STREQ(container.getDescription().text(), "a description");
  EXPECT_EQ(container.getModules().no(), 0);
  EXPECT_EQ(TestContainer().getApp(), nullptr);
}

TEST(PluginContainerTest, letsASubclassTranslateItsName) {
  TestContainer container;
  container.setName("translated");
  EXPECT_STREQ(container.getName().text(), "translated");
}

TEST(PluginContainerTest, hasDefaultsForWhatIsNotNeeded) {
  class Plain : public PluginContainer {
   public:
    Plain() : PluginContainer(nullptr, "", "", "", "") {}
    FX::FXIcon* getIcon16() override { return nullptr; }
    int init() override { return 1; }
  };
  Plain container;
  EXPECT_EQ(container.getIcon32(), nullptr);
  EXPECT_EQ(container.getIcon64(), nullptr);
  EXPECT_EQ(container.start(), 1);
  EXPECT_EQ(container.onSettings(nullptr, 0, nullptr), 0);
  EXPECT_EQ(container.onHasSettings(nullptr, 0, nullptr), 0);
  EXPECT_TRUE(std::is_abstract_v<PluginContainer>);
  EXPECT_FALSE(std::is_copy_constructible_v<PluginContainer>);
}

TEST(PluginContainerTest, deletesItsModulesOnceLastToFirst) {
  std::string deleted;
  {
    TestContainer container;
    for (const char name : {'a', 'b', 'c'}) container.add(new CountedModule(&container, deleted, name));
    container.add<CountedModule>(nullptr);
    EXPECT_EQ(container.getModules().no(), 4);
  }
  EXPECT_EQ(deleted, "cba");
}

TEST(PluginContainerTest, isDeletedThroughItsBase) {
  std::string deleted;
  auto container = std::make_unique<TestContainer>();
  container->add(new CountedModule(container.get(), deleted, 'a'));
  const std::unique_ptr<FX::FXObject> object(container.release());
  EXPECT_EQ(deleted, "");
}

TEST(PluginContainerTest, bindsItsTextsBeforeTheSubclassReadsThem) {
  const TemporaryDirectory directory;
  MessageCatalog catalog;
  catalog.add("Egyéb", "Övriga");
  ASSERT_TRUE(catalog.install(directory.path(), "sv", "test-domain"));
  setenv("LANGUAGE", "sv", 1);
  Morvane app;
  app.setLocaleDirectory(directory.path().c_str());
  const TestContainer container(&app);
  EXPECT_STREQ(dgettext("test-domain", "Egyéb"), "Övriga");
  unsetenv("LANGUAGE");
}
