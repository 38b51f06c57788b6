// The library as a file: what it gives, what it takes, and what runs when it is loaded.

#include <algorithm>

#include <gtest/gtest.h>

#include "tests/plugin/LibraryFile.h"

using Names = std::set<std::string>;

namespace {

const LibraryFile kPlugin(PLUGIN_FILE);
const LibraryFile kPlain(PLAIN_PLUGIN_FILE);
const LibraryFile kHost(PLAIN_HOST_FILE);

// The classes that the plug-in registers with FOX.
const Names kClasses = {
    "ItemDataStringEntry", "ItemDataDateEntry",        "ItemDataComboEntry",           "UI::ItemDataTable",
    "ItemDataDialog",      "ItemDataSettingsPanel",    "UI::ItemDataAssociationPanel", "FXExt::FXComboBox",
    "FXExt::FXDatePicker", "FXExt::FXDatePickerLabel", "FXExt::FXDateInput",           "FXExt::FXDualList"};

Names matching(const Names& names, const std::string& part) {
  Names found;
  std::copy_if(names.begin(), names.end(), std::inserter(found, found.end()),
               [&part](const std::string& name) { return name.find(part) != std::string::npos; });
  return found;
}

/// A class without the namespaces that it may be given with.
std::string bareName(const std::string& name) {
  const size_t colons = name.rfind(':');
  return colons == std::string::npos ? name : name.substr(colons + 1);
}

/// As the linker has the metaclass of a class of the plug-in.
std::string metaClassOf(const std::string& name) {
  const std::string bare = bareName(name);
  const std::string within = name.starts_with("FXExt::") ? "_ZN5FXExt"
                             : name.starts_with("UI::")  ? "_ZN7Brontel6Plugin8ItemData2UI"
                                                         : "_ZN7Brontel6Plugin8ItemData";
  return within + std::to_string(bare.size()) + bare + "9metaClassE";
}

}  // namespace

TEST(PluginLibraryFileTest, exportsTheEntryTheRegistryAndThePowersOfTen) {
  const Names expected = {"get_plugin", "Brontel::Plugin::ItemData::plugins", "FXExt::EXPS"};
  EXPECT_EQ(kPlugin.exports(), expected);
  EXPECT_EQ(kPlain.exports(), expected);
}

TEST(PluginLibraryFileTest, reachesTheDatabaseThroughTheHostOnly) {
  for (const char* foreign : {"sqlite3_", "xmlNew", "pthread_", "std::thread", "std::mutex"}) {
    EXPECT_EQ(matching(kPlain.imports(), foreign), Names()) << foreign;
  }
  EXPECT_FALSE(matching(kPlain.imports(), "Statement::execute(DataBaseValueLoader*, unsigned char)").empty());
}

TEST(PluginLibraryFileTest, standsOnTheHostLibraryAndFoxAlone) {
  Names needed = kPlain.neededLibraries();
  for (const char* ofTheCompiler : {"libstdc++.so.6", "libgcc_s.so.1", "libm.so.6", "libc.so.6"}) {
    needed.erase(ofTheCompiler);
  }
  EXPECT_EQ(needed, (Names{"libBrontelCore.so." BRONTEL_SOVERSION, "libFOX-1.6.so.0"}));
}

TEST(PluginLibraryFileTest, sharesOneFoxWithHostAndTests) {
  const LibraryFile test(THIS_PROGRAM);
  for (const LibraryFile* file : {&kPlugin, &kHost, &test}) {
    EXPECT_EQ(file->neededLibraries().count("libFOX-1.6.so.0"), 1u);
    EXPECT_EQ(matching(file->definitions(), "metaClassTable"), Names());
  }
}

TEST(PluginLibraryFileTest, holdsNoClassOfTheHost) {
  const Names imports = kPlain.imports();
  for (const char* hosts : {"Brontel::EntityMiscData", "Brontel::InvoiceItem", "Brontel::Plugin::EntityPlugin",
                            "Brontel::Plugin::InvoiceCheckPlugin", "Brontel::Plugin::PluginContainer"}) {
    EXPECT_EQ(imports.count(std::string(hosts) + "::metaClass"), 1u) << hosts;
  }
}

TEST(PluginLibraryFileTest, hasTheMetaclassesOfItsMessageHandlersAndNoOther) {
  Names expected;
  for (const std::string& name : kClasses) expected.insert(metaClassOf(name));
  EXPECT_EQ(matching(kPlain.definitions(), "9metaClassE"), expected);
}

TEST(PluginLibraryFileTest, hasNoSymbolThatWouldKeepItLoaded) {
  EXPECT_EQ(kPlugin.uniqueSymbols(), Names());
  EXPECT_EQ(kPlain.uniqueSymbols(), Names());
  EXPECT_EQ(kHost.uniqueSymbols(), Names());
}

TEST(PluginLibraryFileTest, runsNothingAtLoadButTheClassesAndTheRegistry) {
  Names units = kClasses;
  units.insert("ItemDataPluginList");
  const Names initialisers = matching(kPlain.definitions(), "_GLOBAL__sub_I_");
  EXPECT_EQ(initialisers.size(), units.size());
  for (const std::string& unit : units) {
    const std::string byName = unit == "ItemDataPluginList" ? "7pluginsE" : metaClassOf(unit);
    EXPECT_EQ(matching(initialisers, bareName(unit) + ".cpp").size() + matching(initialisers, byName).size(), 1u)
        << unit;
  }
  // One more belongs to the compiler's own start-up code.
  EXPECT_EQ(kPlain.countInitialisers(), units.size() + 1);
  EXPECT_EQ(matching(kPlain.imports(), "std::ios_base::Init"), Names());
}
