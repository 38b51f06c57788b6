#include <filesystem>

#include "tests/app/AppTest.h"
#include "tests/app/InstalledCopy.h"
#include "tests/support/ChildProcess.h"

namespace {

class PathsTest : public AppTest {
 protected:
  // Makes the default database and returns the path that the program names.
  std::string defaultDatabase(const Environment& environment) const {
    const ProgramRun run = runProgram({"--plugins", pluginFolder(), "init"}, environment);
    EXPECT_EQ(run.exitCode, 0) << run.errors;
    const std::string beginning = "Elkészült az adatbázis: ";
    EXPECT_EQ(run.output.substr(0, beginning.size()), beginning);
    return run.output.substr(beginning.size(), run.output.size() - beginning.size() - 1);
  }
};

}  // namespace

TEST_F(PathsTest, TheDatabaseIsInTheFolderForData) {
  const std::string expected = directory.path("data/brontel/brontel.db");
  EXPECT_EQ(defaultDatabase({{"XDG_DATA_HOME", directory.path("data")}}), expected);
  EXPECT_TRUE(std::filesystem::exists(expected));
}

TEST_F(PathsTest, WithoutAFolderForDataItIsInTheHome) {
  const std::string expected = directory.path(".local/share/brontel/brontel.db");
  for (const char* data : {"", "relative/path"}) {
    SCOPED_TRACE(data);
    std::filesystem::remove(expected);
    EXPECT_EQ(defaultDatabase({{"XDG_DATA_HOME", data}, {"HOME", directory.path()}}), expected);
    EXPECT_TRUE(std::filesystem::exists(expected));
  }
}

TEST_F(PathsTest, ARelativeDatabaseIsInTheWorkingFolder) {
  makeSample();
  ChildProcess child({"env", "-C", directory.path(), BRONTEL_TEST_HOST, "--database", "brontel.db", "list"});
  EXPECT_EQ(child.run(), 0) << child.getErrors();
  EXPECT_EQ(child.getOutput(), output({"list"}));
}

TEST_F(PathsTest, TheEnvironmentNamesThePlugins) {
  EXPECT_EQ(runProgram({"plugins"}, {{"BRONTEL_PLUGIN_PATH", pluginFolder()}}).output,
            "libBrontelPluginItemData.so\tEgyéb tételadatok\t2013.01.02\n");
  EXPECT_EQ(runProgram({"plugins"}, {{"BRONTEL_PLUGIN_PATH", "/nowhere"}}).errors,
            "brontel-host: A bővítmények mappája nem olvasható: /nowhere. Adja meg így: --plugins MAPPA\n");
}

TEST_F(PathsTest, TheOptionGoesBeforeTheEnvironment) {
  EXPECT_EQ(runProgram({"plugins", "--plugins", pluginFolder()}, {{"BRONTEL_PLUGIN_PATH", "/nowhere"}}).output,
            "libBrontelPluginItemData.so\tEgyéb tételadatok\t2013.01.02\n");
}

TEST_F(PathsTest, OtherwiseThePluginsAreBesideTheProgram) {
  const InstalledCopy copy;
  std::filesystem::create_symlink(BRONTEL_TEST_PLUGINS "/libPlainPlugin.so", copy.path("lib/brontel/plugins/a.so"));
  ChildProcess child({copy.program(), "plugins"});
  child.setEnvironment("BRONTEL_PLUGIN_PATH", "");
  EXPECT_EQ(child.run(), 0) << child.getErrors();
  EXPECT_EQ(child.getOutput(), "a.so\tPlain name\t1.0\nlibBrontelPluginItemData.so\tEgyéb tételadatok\t2013.01.02\n");
}

TEST_F(PathsTest, AnInstalledProgramStartedThroughALinkFindsItsPlugins) {
  const InstalledCopy copy;
  const std::string link = directory.path("host");
  std::filesystem::create_symlink(copy.program(), link);
  ChildProcess child({link, "plugins"});
  EXPECT_EQ(child.run(), 0) << child.getErrors();
  EXPECT_EQ(child.getOutput(), "libBrontelPluginItemData.so\tEgyéb tételadatok\t2013.01.02\n");
}
