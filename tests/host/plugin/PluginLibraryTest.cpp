#include <type_traits>

#include <gtest/gtest.h>

#include "host/plugin/PluginContainer.h"
#include "host/plugin/PluginLibrary.h"
#include "host/ui/Morvane.h"
#include "tests/host/plugin/PluginFolder.h"

using Brontel::Plugin::PluginLibrary;

namespace {

using Log = std::vector<std::string>;

class PluginLibraryTest : public ::testing::Test {
 protected:
  void expectRefused(const std::string& file, const char* reason) {
    PluginLibrary library(file.c_str());
    EXPECT_TRUE(library.getReason().empty());
    EXPECT_FALSE(library.load(nullptr));
    EXPECT_EQ(library.getContainer(), nullptr);
    EXPECT_GE(library.getReason().find(reason), 0) << library.getReason().text();
    EXPECT_FALSE(library.load(nullptr));
    EXPECT_FALSE(library.getReason().empty());
  }

  PluginFolder folder;
};

}  // namespace

TEST_F(PluginLibraryTest, entersALibraryAndLetsItGo) {
  const std::string file = PluginFolder::builtFile("good/alpha");
  PluginLibrary library(file.c_str());
  EXPECT_STREQ(library.getPath().text(), file.c_str());
  EXPECT_EQ(library.getContainer(), nullptr);
  Brontel::Morvane app;
  EXPECT_TRUE(library.load(&app)) << library.getReason().text();
  EXPECT_TRUE(library.getReason().empty());
  ASSERT_NE(library.getContainer(), nullptr);
  EXPECT_STREQ(library.getContainer()->getName().text(), "alpha");
  EXPECT_EQ(library.getContainer()->getApp(), &app);
  EXPECT_EQ(folder.takeLog(), (Log{"alpha get_plugin", "alpha init"}));
  library.unload();
  EXPECT_EQ(library.getContainer(), nullptr);
  EXPECT_EQ(folder.takeLog(), (Log{"alpha deleted", "alpha unloaded"}));
  EXPECT_FALSE(PluginFolder::isLoaded("good/alpha"));
}

TEST_F(PluginLibraryTest, deletesTheContainerBeforeTheCode) {
  PluginLibrary library(PluginFolder::builtFile("good/alpha").c_str());
  EXPECT_TRUE(library.load(nullptr));
  folder.takeLog();
  library.deleteContainer();
  EXPECT_EQ(library.getContainer(), nullptr);
  EXPECT_EQ(folder.takeLog(), Log{"alpha deleted"});
  EXPECT_TRUE(PluginFolder::isLoaded("good/alpha"));
  library.deleteContainer();
  library.unload();
  library.unload();
  EXPECT_EQ(folder.takeLog(), Log{"alpha unloaded"});
}

TEST_F(PluginLibraryTest, unloadsWithItself) {
  {
    PluginLibrary library(PluginFolder::builtFile("good/alpha").c_str());
    EXPECT_TRUE(library.load(nullptr));
    folder.takeLog();
  }
  EXPECT_EQ(folder.takeLog(), (Log{"alpha deleted", "alpha unloaded"}));
  EXPECT_FALSE(std::is_copy_constructible_v<PluginLibrary>);
}

TEST_F(PluginLibraryTest, canBeLoadedAgain) {
  PluginLibrary library(PluginFolder::builtFile("good/alpha").c_str());
  EXPECT_TRUE(library.load(nullptr));
  EXPECT_TRUE(library.load(nullptr));
  EXPECT_EQ(folder.takeLog(), (Log{"alpha get_plugin", "alpha init", "alpha deleted", "alpha unloaded",
                                   "alpha get_plugin", "alpha init"}));
}

TEST_F(PluginLibraryTest, saysThatTheFileIsNoLibrary) {
  expectRefused(PluginFolder::builtFile("text_file/text_file"), "text_file.so");
  expectRefused(folder.directory().path("missing.so"), "missing.so");
  expectRefused(folder.directory().path(), "irectory");
  // Without a name the loader would answer with the program itself.
  expectRefused("", "get_plugin");
}

TEST_F(PluginLibraryTest, saysWhichDependencyIsMissing) {
  expectRefused(PluginFolder::builtFile("missing_dependency/missing_dependency"), "libbrontel_test_absent.so.1");
  expectRefused(PluginFolder::builtFile("unresolved/unresolved"), "brontel_test_of_another_host");
}

TEST_F(PluginLibraryTest, saysThatTheLibraryIsNoPlugIn) {
  expectRefused(PluginFolder::builtFile("no_entry/no_entry"), "get_plugin");
  EXPECT_FALSE(PluginFolder::isLoaded("no_entry/no_entry"));
}

TEST_F(PluginLibraryTest, saysThatThePlugInHandsNothingOver) {
  expectRefused(PluginFolder::builtFile("null_container/null_container"), "get_plugin");
  EXPECT_EQ(folder.takeLog(), (Log{"null_container get_plugin", "null_container get_plugin"}));
  EXPECT_FALSE(PluginFolder::isLoaded("null_container/null_container"));
}

TEST_F(PluginLibraryTest, saysThatThePlugInCannotPrepareItselfAndDeletesItsContainer) {
  PluginLibrary library(PluginFolder::builtFile("init_fails/init_fails").c_str());
  EXPECT_FALSE(library.load(nullptr));
  EXPECT_GE(library.getReason().find("init"), 0);
  EXPECT_EQ(library.getContainer(), nullptr);
  EXPECT_EQ(folder.takeLog(),
            (Log{"init_fails get_plugin", "init_fails init", "init_fails deleted", "init_fails unloaded"}));
  EXPECT_FALSE(PluginFolder::isLoaded("init_fails/init_fails"));
}

TEST_F(PluginLibraryTest, givesEachFailureAReasonOfItsOwn) {
  std::vector<std::string> reasons;
  for (const char* plugin : {"text_file/text_file", "missing_dependency/missing_dependency", "unresolved/unresolved",
                             "no_entry/no_entry", "null_container/null_container", "init_fails/init_fails"}) {
    PluginLibrary library(PluginFolder::builtFile(plugin).c_str());
    EXPECT_FALSE(library.load(nullptr)) << plugin;
    for (const std::string& other : reasons) EXPECT_NE(other, library.getReason().text()) << plugin;
    reasons.emplace_back(library.getReason().text());
  }
}
