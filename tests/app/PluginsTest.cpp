#include <algorithm>
#include <filesystem>

#include "tests/app/AppTest.h"

namespace {

class PluginsTest : public AppTest {
 protected:
  void SetUp() override { std::filesystem::create_directory(plugins); }

  // By their names there: a good one, then the broken ones, then the real one.
  void addAll() const {
    const std::string folder = std::string(BRONTEL_TEST_PLUGINS) + "/lib";
    addPlugin(plugins, folder + "PlainPlugin.so", "1plain.so");
    static_cast<void>(directory.write("plugins/2text.so", "not a library at all"));
    addPlugin(plugins, folder + "EmptyLibrary.so", "3empty.so");
    addPlugin(plugins, folder + "FailingPlugin.so", "4failing.so");
    addPlugin(plugins, "/nowhere/at/all.so", "5dangling.so");
    addPlugin(plugins, BRONTEL_TEST_PLUGIN, "6real.so");
    static_cast<void>(directory.write("plugins/readme.txt", "nobody loads this"));
  }

  ProgramRun runThere(const Arguments& arguments) const {
    Arguments all{"--database", database, "--plugins", plugins};
    all.insert(all.end(), arguments.begin(), arguments.end());
    return runProgram(all);
  }

  // The list of all, as far as it does not depend on the system's words.
  static void expectAllListed(const std::string& output) {
    EXPECT_EQ(output.substr(0, output.find('\n') + 1), "1plain.so\tPlain name\t1.0\n");
    EXPECT_NE(output.find("\n2text.so\t"), std::string::npos) << output;
    EXPECT_NE(output.find("\n3empty.so\tnem bővítmény: hiányzik a get_plugin belépési pont\n"), std::string::npos);
    EXPECT_NE(output.find("\n4failing.so\ta bővítmény előkészítése (init) nem sikerült\n"), std::string::npos);
    EXPECT_NE(output.find("\n5dangling.so\t"), std::string::npos) << output;
    EXPECT_NE(output.find("\n6real.so\tEgyéb tételadatok\t2013.01.02\n"), std::string::npos) << output;
    EXPECT_EQ(std::count(output.begin(), output.end(), '\n'), 6) << output;
  }

  const std::string plugins = directory.path("plugins");
};

}  // namespace

TEST_F(PluginsTest, EachFileIsListedWithItsNameOrWhyItWasNotLoaded) {
  addAll();
  const ProgramRun run = runThere({"plugins"});
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_EQ(run.errors, "");
  expectAllListed(run.output);
  EXPECT_FALSE(std::filesystem::exists(database));
}

TEST_F(PluginsTest, TheListIsTheSameWithADatabase) {
  makeSample();
  addAll();
  const std::string before = readFile(database);
  const ProgramRun run = runThere({"plugins"});
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_EQ(run.errors, "");
  expectAllListed(run.output);
  EXPECT_EQ(readFile(database), before);
}

TEST_F(PluginsTest, BrokenOnesAreWarnedOfAndStopNobody) {
  makeSample();
  addAll();
  for (const Arguments& arguments :
       {Arguments{"print", "1"}, {"export", "1"}, {"check", "2"}, {"save", "1"}, {"close", "1"}}) {
    SCOPED_TRACE(arguments.front());
    const ProgramRun plain =
        arguments.front() == "save" || arguments.front() == "close" ? ProgramRun{0, "", ""} : run(arguments);
    const ProgramRun mixed = runThere(arguments);
    EXPECT_EQ(mixed.exitCode, plain.exitCode);
    EXPECT_EQ(mixed.output, plain.output);
    EXPECT_EQ(std::count(mixed.errors.begin(), mixed.errors.end(), '\n'), 4) << mixed.errors;
    for (const char* line : {"brontel-host: Figyelmeztetés: a bővítmény nem tölthető be: ", "/3empty.so (nem bővítmény",
                             "/4failing.so (a bővítmény előkészítése (init) nem sikerült)\n"}) {
      EXPECT_NE(mixed.errors.find(line), std::string::npos) << line;
    }
  }
  EXPECT_EQ(text("select t_invoicestatus_1 from t_invoice where t_invoice_id=1"), "151");
}

TEST_F(PluginsTest, InitGoesOnWithTheGoodOnes) {
  addAll();
  const ProgramRun run = runThere({"init", "--sample"});
  EXPECT_EQ(run.exitCode, 0) << run.errors;
  EXPECT_EQ(run.output, "Elkészült az adatbázis: " + database + "\nBekerültek a mintaadatok.\n");
}

TEST_F(PluginsTest, WithoutAnyTheCommandsThatNeedThemAreRefused) {
  makeSample();
  static_cast<void>(directory.write("plugins/broken.so", "x"));
  const std::string before = readFile(database);
  for (const Arguments& arguments : {Arguments{"check", "1"},
                                     {"print", "1"},
                                     {"export", "1"},
                                     {"save", "1"},
                                     {"derive", "4"},
                                     {"copy", "1"},
                                     {"close", "1"},
                                     {"init"}}) {
    SCOPED_TRACE(arguments.front());
    const ProgramRun run = runThere(arguments);
    EXPECT_EQ(run.exitCode, 2);
    EXPECT_EQ(run.output, "");
    EXPECT_EQ(run.errors, "brontel-host: Innen nem tölthető be bővítmény: " + plugins +
                              ". Az okát ez írja ki: brontel-host plugins\n");
  }
  EXPECT_EQ(readFile(database), before);
  EXPECT_EQ(runThere({"storno", "4"}).exitCode, 0);
}

TEST_F(PluginsTest, AnEmptyFolderIsAnEmptyList) {
  const ProgramRun run = runThere({"plugins"});
  EXPECT_EQ(run.exitCode, 0);
  EXPECT_EQ(run.output, "");
  EXPECT_EQ(run.errors, "");
}

TEST_F(PluginsTest, AFolderThatIsNotThereIsTold) {
  const ProgramRun run = runProgram({"--plugins", "/nowhere", "plugins"});
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_EQ(run.output, "");
  EXPECT_EQ(run.errors, "brontel-host: A bővítmények mappája nem olvasható: /nowhere. Adja meg így: --plugins MAPPA\n");
}

TEST_F(PluginsTest, ADatabaseWithoutThePluginsTablesGetsThemWhenItLoads) {
  const std::string folder = std::string(BRONTEL_TEST_PLUGINS) + "/lib";
  addPlugin(plugins, folder + "PlainPlugin.so", "plain.so");
  EXPECT_EQ(runThere({"init"}).exitCode, 0);
  exec("insert into t_invoice (number, t_invoicetype_1, t_invoicestatus_1) values ('x', 101, 150)");
  EXPECT_EQ(output({"check", "1"}), "");
  EXPECT_EQ(text("select count(*) from t_itemvariable where t_itemvariable_id=-1"), "1");
}
