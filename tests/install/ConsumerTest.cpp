// Somebody else's plug-in, built on the installed tree and loaded by the installed program.

#include <filesystem>

#include <gtest/gtest.h>

#include "tests/install/InstalledTree.h"
#include "tests/support/FileConnection.h"

namespace fs = std::filesystem;

namespace {

class ConsumerTest : public ::testing::Test {
 protected:
  using Rows = std::vector<std::vector<std::string>>;

  /// Only what is installed is found.
  std::string pkgConfigPath() const { return tree.libraries("pkgconfig"); }

  /// Expects that the example, which has been installed into the tree, works in the program.
  void expectThatItWorks() const {
    EXPECT_EQ(
        tree.host({"plugins"}),
        "libBrontelPluginItemData.so\tEgyéb tételadatok\t2013.01.02\nlibBrontelPluginRemark.so\tMegjegyzések\t1.0\n");
    EXPECT_NE(tree.host({"plugins"}, 0, "en").find("libBrontelPluginRemark.so\tRemarks\t1.0\n"), std::string::npos);
    EXPECT_NE(tree.host({"plugins"}, 0, "de").find("libBrontelPluginRemark.so\tBemerkungen\t1.0\n"), std::string::npos);
    tree.host({"init", "--sample"});
    const std::string before = tree.host({"check", "1"});
    FileConnection(tree.database())
        .exec("insert into t_invoiceitemremark (t_invoiceitem_1, text) values (2, 'Melyik szín?')");
    EXPECT_EQ(tree.host({"check", "1"}, 1), before +
                                                "1\tINVOICE_REMARKQUESTION\tA(z) 2. tétel megjegyzése megválaszolatlan "
                                                "kérdés: Melyik szín?\n");
    EXPECT_NE(tree.host({"print", "1"}).find("    KG-2411/07\n    Megjegyzés: Melyik szín?\n"), std::string::npos);
    EXPECT_NE(tree.host({"export", "1"}).find("<remark:remark>Melyik szín?</remark:remark>"), std::string::npos);
    tree.host({"save", "1"});
    EXPECT_EQ(remarks(), (Rows{{"2", "Melyik szín?"}}));
    tree.host({"copy", "1"});
    EXPECT_EQ(remarks().size(), 2u);
  }

  Rows remarks() const {
    return FileConnection(tree.database())
        .rows("select t_invoiceitem_1, text from t_invoiceitemremark order by t_invoiceitem_1");
  }

  const InstalledTree tree;
};

}  // namespace

TEST_F(ConsumerTest, cmakeBuildsTheExample) {
  const std::string folder = tree.scratch("built");
  build({BRONTEL_TEST_CMAKE, "-S", BRONTEL_TEST_EXAMPLE, "-B", folder, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=Debug",
         "-DCMAKE_CXX_COMPILER=" BRONTEL_TEST_COMPILER, "-DCMAKE_CXX_FLAGS=-Werror",
         "-DCMAKE_PREFIX_PATH=" + tree.prefix(), "-DCMAKE_FIND_PACKAGE_NO_PACKAGE_REGISTRY=ON"});
  build({BRONTEL_TEST_CMAKE, "--build", folder});
  build({BRONTEL_TEST_CMAKE, "--install", folder});
  EXPECT_TRUE(fs::exists(tree.libraries("brontel/plugins/libBrontelPluginRemark.so")));
  expectThatItWorks();
}

TEST_F(ConsumerTest, pkgConfigBuildsTheExample) {
  const std::string folder = tree.scratch("example");
  fs::copy(BRONTEL_TEST_EXAMPLE, folder, fs::copy_options::recursive);
  build(
      {"make", "--quiet", "-C", folder, "CXX=" BRONTEL_TEST_COMPILER, "CXXFLAGS=-O0 -Wall -Wextra -Werror", "install"},
      pkgConfigPath());
  EXPECT_TRUE(fs::exists(tree.libraries("brontel/plugins/libBrontelPluginRemark.so")));
  expectThatItWorks();
}

TEST_F(ConsumerTest, everyInstalledHeaderFindsWhatItIncludes) {
  const std::string include = tree.path("include/brontel");
  std::string source;
  for (const auto& entry : fs::recursive_directory_iterator(include)) {
    if (entry.path().extension() != ".h") continue;
    source += "#include \"" + fs::relative(entry.path(), include).string() + "\"\n";
  }
  EXPECT_NE(source.find("\"host/plugin/PluginContainer.h\""), std::string::npos);
  const std::string file = tree.scratch("all.cpp");
  build({"sh", "-c",
         "printf '%s' '" + source + "' >" + file + " && " BRONTEL_TEST_COMPILER " -std=c++20 -fsyntax-only -Wall " +
             "$(pkg-config --cflags brontel-core) " + file},
        pkgConfigPath());
}

TEST_F(ConsumerTest, anotherMinorVersionIsRefused) {
  const std::string folder = tree.scratch("asking");
  fs::create_directory(folder);
  const auto ask = [this, &folder](const std::string& version) {
    const std::string list =
        "cmake_minimum_required(VERSION 3.25)\nproject(Asking LANGUAGES CXX)\nfind_package(Brontel " + version +
        ")\nmessage(STATUS \"found ${Brontel_FOUND}\")\n";
    build({"sh", "-c", "printf '%s' '" + list + "' >" + folder + "/CMakeLists.txt"});
    return build({BRONTEL_TEST_CMAKE, "-S", folder, "-B", folder + "/b", "-G", "Ninja",
                  "-DCMAKE_CXX_COMPILER=" BRONTEL_TEST_COMPILER, "-DCMAKE_PREFIX_PATH=" + tree.prefix()});
  };
  EXPECT_NE(ask("0.1").find("found 1"), std::string::npos);
  EXPECT_NE(ask("0.0").find("found 0"), std::string::npos);
  EXPECT_NE(ask("0.2").find("found 0"), std::string::npos);
}
