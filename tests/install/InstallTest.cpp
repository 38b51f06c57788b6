// What cmake --install gives, and that it works from where it lies.

#include <algorithm>
#include <filesystem>
#include <regex>

#include <gtest/gtest.h>

#include "tests/install/InstalledTree.h"
#include "tests/support/ChildProcess.h"

namespace {

constexpr const char* kItemData = "libBrontelPluginItemData.so\tEgyéb tételadatok\t2013.01.02\n";

std::vector<std::string> beginningWith(const std::vector<std::string>& files, const std::string& beginning) {
  std::vector<std::string> found;
  std::copy_if(files.begin(), files.end(), std::back_inserter(found),
               [&beginning](const std::string& file) { return file.starts_with(beginning); });
  return found;
}

std::vector<std::string> runPaths(const std::string& file) {
  ChildProcess readelf({"readelf", "-d", file});
  EXPECT_EQ(readelf.run(), 0) << readelf.getErrors();
  static const std::regex entry("\\((?:RPATH|RUNPATH)\\)[^\\[]*\\[([^\\]]*)\\]");
  const std::string output = readelf.getOutput();
  std::vector<std::string> paths;
  for (std::sregex_iterator it(output.begin(), output.end(), entry), end; it != end; ++it) paths.push_back((*it)[1]);
  return paths;
}

}  // namespace

TEST(InstallTest, thePluginLiesAloneInItsFolder) {
  const InstalledTree tree;
  const std::string folder = BRONTEL_TEST_LIBDIR "/brontel/";
  EXPECT_EQ(beginningWith(tree.files(), folder),
            std::vector<std::string>{folder + "plugins/libBrontelPluginItemData.so"});
}

TEST(InstallTest, theLibraryIsThereByItsThreeNames) {
  const InstalledTree tree;
  const std::string name = BRONTEL_TEST_LIBDIR "/libBrontelCore.so";
  const std::string version = BRONTEL_TEST_VERSION;
  const std::string minor = version.substr(0, version.rfind('.'));
  EXPECT_EQ(beginningWith(tree.files(), name),
            (std::vector<std::string>{name, name + "." + minor, name + "." + version}));
  EXPECT_TRUE(std::filesystem::is_symlink(tree.path(name)));
}

TEST(InstallTest, nothingLooksForLibrariesWhereItWasBuilt) {
  const InstalledTree tree;
  EXPECT_EQ(runPaths(tree.libraries("libBrontelCore.so")), std::vector<std::string>());
  EXPECT_EQ(runPaths(tree.libraries("brontel/plugins/libBrontelPluginItemData.so")), std::vector<std::string>());
  EXPECT_EQ(runPaths(tree.path("bin/brontel-host")), std::vector<std::string>{"$ORIGIN/../" BRONTEL_TEST_LIBDIR});
}

TEST(InstallTest, theProgramFindsItsPluginWhereverTheTreeIs) {
  InstalledTree tree;
  EXPECT_EQ(tree.host({"plugins"}), kItemData);
  tree.move("elsewhere");
  EXPECT_EQ(tree.host({"plugins"}), kItemData);
  tree.host({"init", "--sample"});
  EXPECT_NE(tree.host({"print", "1"}).find("    DF5-240871, 2027.05.31; DF5-240872, 2027.05.31\n"), std::string::npos);
}

TEST(InstallTest, noFileNamesTheFolderOfTheBuild) {
  const InstalledTree tree;
  for (const std::string& file : tree.files()) {
    if (!file.ends_with(".cmake") && !file.ends_with(".pc") && !file.ends_with(".h")) continue;
    const std::string content = readFile(tree.path(file));
    EXPECT_EQ(content.find(BRONTEL_TEST_BUILD), std::string::npos) << file;
    EXPECT_EQ(content.find(tree.prefix()), std::string::npos) << file;
  }
}
