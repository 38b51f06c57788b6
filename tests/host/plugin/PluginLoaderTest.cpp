#include <algorithm>
#include <filesystem>

#include <gtest/gtest.h>

#include "host/plugin/PluginContainer.h"
#include "host/plugin/PluginLoader.h"
#include "tests/host/plugin/PluginFolder.h"

using Brontel::Plugin::PluginLoader;
using Brontel::Plugin::PluginRegistry;

namespace {

using Log = std::vector<std::string>;

class PluginLoaderTest : public ::testing::Test {
 protected:
  std::string namesOf(const std::vector<Brontel::Plugin::PluginContainer*>& containers) {
    std::string names;
    for (const auto* container : containers) names += std::string(container->getName().text()) + " ";
    return names;
  }

  PluginFolder folder;
  PluginRegistry registry;
  PluginLoader loader{nullptr, registry};
};

}  // namespace

TEST_F(PluginLoaderTest, refusesAFolderThatIsNotThere) {
  EXPECT_FALSE(loader.loadFolder(folder.path("missing")));
  EXPECT_FALSE(loader.loadFolder(""));
  EXPECT_FALSE(loader.loadFolder(folder.directory().write("file.so", "").c_str()));
  EXPECT_TRUE(loader.getLibraries().empty());
}

TEST_F(PluginLoaderTest, loadsNothingFromAnEmptyFolder) {
  EXPECT_TRUE(loader.loadFolder(folder.path()));
  EXPECT_TRUE(loader.getLibraries().empty());
  EXPECT_TRUE(registry.getContainers().empty());
}

TEST_F(PluginLoaderTest, initialisesAllBeforeItStartsAny) {
  folder.add("good/beta", "2.so");
  folder.add("good/alpha", "1.so");
  EXPECT_TRUE(loader.loadFolder(folder.path()));
  EXPECT_EQ(folder.takeLog(),
            (Log{"alpha get_plugin", "alpha init", "beta get_plugin", "beta init", "alpha start", "beta start"}));
  EXPECT_EQ(namesOf(registry.getContainers()), "alpha beta ");
}

TEST_F(PluginLoaderTest, deletesAllContainersLastToFirstBeforeItLetsGoOfAnyCode) {
  folder.add("good/alpha", "1.so");
  folder.add("good/beta", "2.so");
  EXPECT_TRUE(loader.loadFolder(folder.path()));
  folder.takeLog();
  loader.unload();
  EXPECT_EQ(folder.takeLog(), (Log{"beta deleted", "alpha deleted", "beta unloaded", "alpha unloaded"}));
  EXPECT_TRUE(registry.getContainers().empty());
  EXPECT_TRUE(loader.getLibraries().empty());
  loader.unload();
  EXPECT_TRUE(folder.takeLog().empty());
}

TEST_F(PluginLoaderTest, unloadsWithItself) {
  folder.add("good/alpha", "1.so");
  {
    PluginLoader own(nullptr, registry);
    EXPECT_TRUE(own.loadFolder(folder.path()));
    folder.takeLog();
  }
  EXPECT_EQ(folder.takeLog(), (Log{"alpha deleted", "alpha unloaded"}));
  EXPECT_TRUE(registry.getContainers().empty());
}

TEST_F(PluginLoaderTest, isNotStoppedByBrokenOnes) {
  folder.add("text_file/text_file", "1.so");
  folder.add("no_entry/no_entry", "2.so");
  folder.add("good/alpha", "3.so");
  folder.add("null_container/null_container", "4.so");
  folder.add("init_fails/init_fails", "5.so");
  folder.add("missing_dependency/missing_dependency", "6.so");
  folder.add("unresolved/unresolved", "7.so");
  std::filesystem::create_directory(folder.directory().path("8.so"));
  std::filesystem::create_symlink("nowhere", folder.directory().path("9.so"));
  folder.add("good/beta", "a.so");
  EXPECT_TRUE(loader.loadFolder(folder.path()));
  ASSERT_EQ(loader.getLibraries().size(), 10u);
  for (size_t i = 0; i < loader.getLibraries().size(); ++i) {
    const auto& library = *loader.getLibraries()[i];
    const bool good = i == 2 || i == 9;
    EXPECT_EQ(library.getContainer() != nullptr, good) << library.getPath().text();
    EXPECT_EQ(library.getReason().empty(), good) << library.getPath().text();
  }
  EXPECT_EQ(namesOf(registry.getContainers()), "alpha beta ");
  const Log log = folder.takeLog();
  EXPECT_EQ(std::count(log.begin(), log.end(), "init_fails start"), 0);
  EXPECT_EQ(std::count(log.begin(), log.end(), "alpha start"), 1);
  EXPECT_EQ(std::count(log.begin(), log.end(), "beta start"), 1);
}

TEST_F(PluginLoaderTest, triesOnlyLibraries) {
  folder.add("good/alpha", "1.so");
  folder.directory().write("readme.txt", "read me");
  folder.directory().write("plugin.so.bak", "old");
  folder.directory().write("so", "");
  folder.directory().write(".so", "");
  EXPECT_TRUE(loader.loadFolder(folder.path()));
  EXPECT_EQ(loader.getLibraries().size(), 1u);
}

TEST_F(PluginLoaderTest, canLoadAndUnloadAnyNumberOfTimes) {
  folder.add("good/alpha", "1.so");
  folder.add("init_fails/init_fails", "2.so");
  for (int run = 0; run < 20; ++run) {
    EXPECT_TRUE(loader.loadFolder(folder.path()));
    EXPECT_TRUE(PluginFolder::isLoaded("good/alpha"));
    loader.unload();
    EXPECT_FALSE(PluginFolder::isLoaded("good/alpha"));
  }
  EXPECT_EQ(folder.takeLog().size(), 20u * 9);
}

TEST_F(PluginLoaderTest, unloadsBeforeItLoadsAgain) {
  folder.add("good/alpha", "1.so");
  EXPECT_TRUE(loader.loadFolder(folder.path()));
  folder.takeLog();
  folder.add("good/beta", "0.so");
  EXPECT_TRUE(loader.loadFolder(folder.path()));
  EXPECT_EQ(folder.takeLog(), (Log{"alpha deleted", "alpha unloaded", "beta get_plugin", "beta init",
                                   "alpha get_plugin", "alpha init", "beta start", "alpha start"}));
  EXPECT_EQ(registry.getContainers().size(), 2u);
  EXPECT_FALSE(loader.loadFolder(folder.path("missing")));
  EXPECT_TRUE(registry.getContainers().empty());
}

TEST_F(PluginLoaderTest, asksForSettingsButDoesNotOpenThem) {
  folder.add("good/alpha", "1.so");
  EXPECT_TRUE(loader.loadFolder(folder.path()));
  EXPECT_EQ(namesOf(registry.findWithSettings()), "alpha ");
  loader.unload();
  const Log log = folder.takeLog();
  EXPECT_EQ(std::count(log.begin(), log.end(), "alpha settings"), 0);
}

TEST_F(PluginLoaderTest, findsModulesOfLoadedPlugIns) {
  folder.add("good/alpha", "1.so");
  folder.add("good/beta", "2.so");
  EXPECT_TRUE(loader.loadFolder(folder.path()));
  EXPECT_EQ(registry.findModules(Brontel::Plugin::PluginModule::metaClass).size(), 2u);
}
