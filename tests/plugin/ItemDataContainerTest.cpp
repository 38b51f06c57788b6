#include <filesystem>
#include <functional>
#include <memory>
#include <type_traits>
#include <utility>

#include <gtest/gtest.h>

#include "host/plugin/EntityPlugin.h"
#include "host/plugin/InvoiceCheckPlugin.h"
#include "host/plugin/InvoiceItemMenuPlugin.h"
#include "host/plugin/PanelProvider.h"
#include "host/ui/Morvane.h"
#include "itemdata/ItemDataPluginList.h"
#include "model/InitDB.h"
#include "plugin/GetPlugin.h"
#include "plugin/InvoiceCheck.h"
#include "plugin/InvoiceItemMenu.h"
#include "plugin/InvoiceItemPlugin.h"
#include "plugin/ItemDataAssociationPanel.h"
#include "plugin/ItemDataContainer.h"
#include "tests/support/RecordingObserver.h"
#include "tests/support/TestDatabase.h"
#include "tests/support/Unprivileged.h"

using Brontel::Morvane;
using Brontel::Plugin::EntityPlugin;
using Brontel::Plugin::InvoiceCheckPlugin;
using Brontel::Plugin::InvoiceItemMenuPlugin;
using Brontel::Plugin::PluginContainer;
using Brontel::Plugin::PluginModule;
using Brontel::Plugin::ItemData::InvoiceCheck;
using Brontel::Plugin::ItemData::InvoiceItemMenu;
using Brontel::Plugin::ItemData::InvoiceItemPlugin;
using Brontel::Plugin::ItemData::ItemDataContainer;
using Brontel::Plugin::ItemData::plugins;
using FX::FXint;

static_assert(std::is_base_of_v<PluginContainer, ItemDataContainer>);
static_assert(sizeof(ItemDataContainer) == sizeof(PluginContainer) + sizeof(void*), "the icon is its only field");

namespace {

using Container = std::unique_ptr<PluginContainer>;

constexpr FXint kModules = 4;

/// Reaches what the base keeps for its subclasses.
struct Base : PluginContainer {
  static FX::FXObjectListOf<PluginModule>& modulesOf(PluginContainer& container) {
    return container.*(&Base::modules_);
  }
};

/// Notes how far an initialisation has come when the database is met first.
class FirstAccess : public Brontel::Database::StatementObserver {
 public:
  explicit FirstAccess(std::function<void()> note) : note_(std::move(note)) {}

  bool beforeRun(const FX::FXString&, const Brontel::Database::BoundValues&) override {
    if (note_) std::exchange(note_, nullptr)();
    return true;
  }

 private:
  std::function<void()> note_;
};

}  // namespace

TEST(GetPluginTest, makesANewContainerWithEachCallAndNothingElse) {
  TestDatabase database;
  Morvane app;
  app.setDB(database.get());
  const std::string before = database.dump();
  const FXint prototypes = plugins.no();
  const RecordingObserver recorder(database.handle());
  const Container first(get_plugin(&app));
  const Container second(get_plugin(&app));
  ASSERT_NE(first, nullptr);
  ASSERT_NE(second, nullptr);
  EXPECT_NE(first, second);
  EXPECT_NE(dynamic_cast<ItemDataContainer*>(first.get()), nullptr);
  EXPECT_EQ(first->getApp(), &app);
  EXPECT_EQ(first->getModules().no(), 0);
  EXPECT_EQ(plugins.no(), prototypes);
  EXPECT_EQ(recorder.texts(), std::vector<std::string>());
  EXPECT_EQ(database.dump(), before);
}

TEST(GetPluginTest, worksWithoutAnApplication) {
  const Container container(get_plugin(nullptr));
  ASSERT_NE(container, nullptr);
  EXPECT_EQ(container->getIcon16(), nullptr);
  EXPECT_EQ(container->getIcon32(), nullptr);
  EXPECT_EQ(container->getIcon64(), nullptr);
  EXPECT_STREQ(container->getName().text(), "Egyéb tételadatok");
  EXPECT_EQ(container->init(), 1);
  EXPECT_EQ(container->getModules().no(), kModules);
  EXPECT_EQ(container->onSettings(nullptr, 0, nullptr), 1);
}

TEST(ItemDataContainerTest, carriesItsTexts) {
  Morvane app;
  const Container container(get_plugin(&app));
  EXPECT_STREQ(container->getTextDomain().text(), "BrontelPluginItemData");
  EXPECT_STREQ(container->getName().text(),
               "Egy\xC3\xA9"
               "b t\xC3\xA9teladatok");
  EXPECT_STREQ(container->getVersion().text(), "2013.01.02");
  EXPECT_STREQ(container->getDescription().text(),
               "Lehet\xC5\x91s\xC3\xA9get biztos\xC3\xADt arra, hogy bizonyos \xC3\xA1ruk sz\xC3\xA1ml\xC3\xA1z\xC3\xA1"
               "sakor egy\xC3\xA9"
               "b (saj\xC3\xA1t) adatot is nyomtassunk a sz\xC3\xA1ml\xC3\xA1ra.\n");
  EXPECT_FALSE(container->getFlag());
}

TEST(ItemDataContainerTest, ownsOneSmallIcon) {
  Morvane app;
  const Container container(get_plugin(&app));
  FX::FXIcon* icon = container->getIcon16();
  ASSERT_NE(icon, nullptr);
  EXPECT_STREQ(icon->getClassName(), "FXGIFIcon");
  EXPECT_EQ(icon->getApp(), &app);
  EXPECT_EQ(icon->getWidth(), 16);
  EXPECT_EQ(icon->getHeight(), 16);
  EXPECT_EQ(icon->getTransparentColor(), FXRGB(192, 192, 192));
  EXPECT_EQ(icon->getOptions() & (FX::IMAGE_ALPHACOLOR | FX::IMAGE_ALPHAGUESS), 0u);
  EXPECT_EQ(container->getIcon16(), icon);
  EXPECT_EQ(container->getIcon32(), nullptr);
  EXPECT_EQ(container->getIcon64(), nullptr);
  const Container other(get_plugin(&app));
  EXPECT_NE(other->getIcon16(), icon);
}

TEST(ItemDataContainerTest, registersItsModulesInOrderEachOfItsOwnClass) {
  Morvane app;
  const Container container(get_plugin(&app));
  EXPECT_EQ(container->init(), 1);
  const auto& modules = container->getModules();
  ASSERT_EQ(modules.no(), kModules);
  EXPECT_NE(dynamic_cast<Brontel::Plugin::ItemData::ItemDataAssociationPanel::Plugin*>(modules[0]), nullptr);
  EXPECT_NE(dynamic_cast<InvoiceCheck*>(modules[1]), nullptr);
  EXPECT_NE(dynamic_cast<InvoiceItemMenu*>(modules[2]), nullptr);
  EXPECT_NE(dynamic_cast<InvoiceItemPlugin*>(modules[3]), nullptr);
  const FX::FXMetaClass* const kinds[] = {&Brontel::Plugin::PanelProvider::Plugin::metaClass,
                                          &InvoiceCheckPlugin::metaClass, &InvoiceItemMenuPlugin::metaClass,
                                          &EntityPlugin::metaClass};
  for (FXint module = 0; module < modules.no(); ++module) {
    EXPECT_EQ(modules[module]->getContainer(), container.get());
    EXPECT_TRUE(modules[module]->isMemberOf(&PluginModule::metaClass));
    for (FXint kind = 0; kind < 4; ++kind) {
      EXPECT_EQ(modules[module]->isMemberOf(kinds[kind]), module == kind) << module << " " << kind;
    }
  }
}

TEST(ItemDataContainerTest, comesToTheDatabaseLast) {
  TestDatabase database;
  Morvane app;
  app.setDB(database.get());
  const Container container(get_plugin(&app));
  const FXint before = plugins.no();
  FXint modules = -1;
  FXint prototypes = -1;
  FirstAccess observer([&] {
    modules = container->getModules().no();
    prototypes = plugins.no() - before;
  });
  database->setObserver(&observer);
  EXPECT_EQ(container->init(), 1);
  database->setObserver(nullptr);
  EXPECT_EQ(modules, kModules);
  EXPECT_EQ(prototypes, 3);
}

TEST(ItemDataContainerTest, makesTheTablesOnce) {
  std::vector<std::string> expected;
  {
    TestDatabase database;
    const RecordingObserver recorder(database.handle());
    Brontel::Plugin::ItemData::Model::initDB(database.get());
    expected = recorder.texts();
  }
  TestDatabase database;
  Morvane app;
  app.setDB(database.get());
  const Container container(get_plugin(&app));
  {
    const RecordingObserver recorder(database.handle());
    EXPECT_EQ(container->init(), 1);
    EXPECT_EQ(recorder.texts(), expected);
  }
  using Rows = std::vector<std::vector<std::string>>;
  EXPECT_EQ(database.rows("select name from sqlite_master where type='table' order by name"),
            (Rows{{"t_invoiceitemdata"},
                  {"t_itemvariable"},
                  {"t_productitemdata"},
                  {"t_serviceitemdata"},
                  {"t_suiteitemdata"}}));
  EXPECT_EQ(database.rows("select t_itemvariable_id, name, type, process, mandatory from t_itemvariable"),
            (Rows{{"-1", "Mennyiség", "-1", "1", "1"}}));
}

TEST(ItemDataContainerTest, isInitialisedAlsoWithoutAWorkingDatabase) {
  Morvane app;
  {
    const Container container(get_plugin(&app));
    EXPECT_EQ(container->init(), 1);
    EXPECT_EQ(container->getModules().no(), kModules);
  }
  MorvaneDatabase closed;
  app.setDB(&closed);
  const Container container(get_plugin(&app));
  EXPECT_EQ(container->init(), 1);
  EXPECT_EQ(container->getModules().no(), kModules);
}

TEST(ItemDataContainerTest, leavesADatabaseThatCannotBeWrittenAsItIs) {
  TestDatabase database;
  database.exec("create table other (a)");
  const std::string before = database.dump();
  database->close();
  database.directory().share();
  using std::filesystem::perms;
  std::filesystem::permissions(database.path(), perms::owner_read | perms::group_read | perms::others_read);
  Morvane app;
  app.setDB(database.get());
  const Container container(get_plugin(&app));
  {
    const Unprivileged nobody;
    ASSERT_TRUE(database->open(database.path().c_str(), MorvaneDatabase::OpenMode::Existing));
    ASSERT_TRUE(database->isReadOnly());
    EXPECT_EQ(container->init(), 1);
  }
  EXPECT_EQ(container->getModules().no(), kModules);
  EXPECT_EQ(database.dump(), before);
}

TEST(ItemDataContainerTest, onlyLooksAfterTheTablesWhenInitialisedAgain) {
  TestDatabase database;
  Morvane app;
  app.setDB(database.get());
  const Container container(get_plugin(&app));
  EXPECT_EQ(container->init(), 1);
  const FXint prototypes = plugins.no();
  const std::string complete = database.dump();
  database.exec("drop table t_suiteitemdata");
  EXPECT_EQ(container->init(), 1);
  EXPECT_EQ(container->getModules().no(), kModules);
  EXPECT_EQ(plugins.no(), prototypes);
  EXPECT_EQ(database.dump(), complete);
}

TEST(ItemDataContainerTest, hasSettingsWhoeverAsks) {
  Morvane app;
  const Container container(get_plugin(&app));
  EXPECT_EQ(container->onHasSettings(nullptr, 0, nullptr), 1);
  EXPECT_EQ(container->onHasSettings(&app, 7, &app), 1);
}

TEST(ItemDataContainerTest, startsAsTheBaseDoes) {
  Morvane app;
  const Container container(get_plugin(&app));
  EXPECT_EQ(container->init(), 1);
  EXPECT_EQ(container->start(), container->PluginContainer::start());
}

TEST(ItemDataContainerTest, saysNothing) {
  TestDatabase database;
  MorvaneDatabase closed;
  Morvane app;
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  for (MorvaneDatabase* handle : {static_cast<MorvaneDatabase*>(nullptr), &closed, database.get()}) {
    app.setDB(handle);
    const Container container(get_plugin(&app));
    container->init();
  }
  EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST(ItemDataContainerTest, keepsItsModulesApartFromAnotherContainers) {
  Morvane app;
  const Container first(get_plugin(&app));
  const Container second(get_plugin(&app));
  first->init();
  EXPECT_EQ(second->getModules().no(), 0);
  second->init();
  ASSERT_EQ(first->getModules().no(), kModules);
  ASSERT_EQ(second->getModules().no(), kModules);
  EXPECT_NE(first->getModules()[0], second->getModules()[0]);
  EXPECT_EQ(second->getModules()[0]->getContainer(), second.get());
}

TEST(ItemDataContainerTest, deletesItsModulesAfterThePrototypes) {
  struct CountingModule : PluginModule {
    explicit CountingModule(bool& prototypesGone) : PluginModule(nullptr), prototypesGone_(prototypesGone) {}
    ~CountingModule() override { prototypesGone_ = plugins[plugins.no() - 1] == nullptr; }
    bool& prototypesGone_;
  };
  Morvane app;
  Container container(get_plugin(&app));
  container->init();
  ASSERT_NE(plugins[plugins.no() - 1], nullptr);
  bool prototypesGone = false;
  Base::modulesOf(*container).append(new CountingModule(prototypesGone));
  container.reset();
  EXPECT_TRUE(prototypesGone);
}
