#include <filesystem>
#include <sys/stat.h>

#include "tests/app/AppTest.h"
#include "tests/support/ChildProcess.h"
#include "tests/support/TestDatabase.h"

namespace {

class InitTest : public AppTest {
 protected:
  std::string naming(const std::string& text) const { return text + database + "\n"; }
};

constexpr const char* kTables =
    "select name from sqlite_master where type='table' and name not glob 'sqlite_*' order by name";

const std::vector<std::vector<std::string>> kAllTables{
    {"t_invoice"},         {"t_invoiceitem"}, {"t_invoiceitemdata"}, {"t_itemvariable"}, {"t_product"},
    {"t_productitemdata"}, {"t_service"},     {"t_serviceitemdata"}, {"t_suite"},        {"t_suiteitemdata"}};

}  // namespace

TEST_F(InitTest, MakesTheTablesOfTheHostAndOfThePlugin) {
  EXPECT_EQ(output({"init"}), naming("Elkészült az adatbázis: "));
  EXPECT_EQ(rows(kTables), kAllTables);
  EXPECT_EQ(text("pragma user_version"), "1");
  EXPECT_EQ(rows("select t_itemvariable_id, name from t_itemvariable"), (Rows{{"-1", "Mennyiség"}}));
}

TEST_F(InitTest, MakesTheFoldersForTheUserAlone) {
  const std::string deep = directory.path("a/b/c.db");
  const ProgramRun run = runProgram({"--database", deep, "--plugins", pluginFolder(), "init"});
  EXPECT_EQ(run.output, "Elkészült az adatbázis: " + deep + "\n");
  for (const char* folder : {"a", "a/b"}) {
    struct stat status {};
    ASSERT_EQ(stat(directory.path(folder).c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0700U) << folder;
  }
}

TEST_F(InitTest, ASecondTimeChangesNothing) {
  output({"init"});
  const auto before = files();
  EXPECT_EQ(output({"init"}), naming("Az adatbázis már naprakész: "));
  EXPECT_TRUE(files() == before);
}

TEST_F(InitTest, AnEmptyFileBecomesADatabase) {
  static_cast<void>(directory.write("brontel.db", ""));
  EXPECT_EQ(output({"init"}), naming("Elkészült az adatbázis: "));
  EXPECT_EQ(rows(kTables), kAllTables);
}

TEST_F(InitTest, WhatIsMissingIsAddedAndTheRestStays) {
  makeSample();
  const std::string before = TestDatabase::dumpOf(database);
  exec("drop table t_suite; alter table t_invoice drop column partner");
  expectRefused({"list"}, "Az adatbázis nincs előkészítve, vagy hiányos: " + database +
                              ". Ez egészíti ki: brontel-host --database \"" + database + "\" init");
  EXPECT_EQ(output({"init"}), naming("Kiegészült az adatbázis: "));
  EXPECT_EQ(rows("select number, partner from t_invoice where t_invoice_id=3"), (Rows{{"B-2025/0042", "NULL"}}));
  EXPECT_EQ(text("select count(*) from t_suite"), "0");
  EXPECT_EQ(text("select count(*) from t_invoiceitemdata"), "36");
  EXPECT_NE(output({"list"}), "");
}

TEST_F(InitTest, AnInterruptedOneIsRepeated) {
  output({"init"});
  exec("pragma user_version=0");
  expectRefused({"list"}, "Az adatbázis nincs előkészítve, vagy hiányos: " + database +
                              ". Ez egészíti ki: brontel-host --database \"" + database + "\" init");
  EXPECT_EQ(output({"init"}), naming("Kiegészült az adatbázis: "));
  EXPECT_EQ(output({"list"}), "");
}

TEST_F(InitTest, TheSampleComesOnce) {
  EXPECT_EQ(output({"init", "--sample"}), naming("Elkészült az adatbázis: ") + "Bekerültek a mintaadatok.\n");
  const auto before = files();
  EXPECT_EQ(output({"init", "--sample"}), naming("Az adatbázis már naprakész: ") +
                                              "A mintaadatok kimaradtak, mert az adatbázisban már vannak adatok.\n");
  EXPECT_TRUE(files() == before);
}

TEST_F(InitTest, TheSampleIsNotMixedIntoAnyData) {
  for (const char* row :
       {"t_product (name) values ('x')", "t_service (name) values ('x')", "t_suite (name) values ('x')",
        "t_invoice (number) values ('x')", "t_itemvariable (t_itemvariable_id, name, type) values (1, 'x', 1)"}) {
    SCOPED_TRACE(row);
    std::filesystem::remove(database);
    output({"init"});
    exec(std::string("insert into ") + row);
    const std::string before = TestDatabase::dumpOf(database);
    EXPECT_EQ(output({"init", "--sample"}), naming("Az adatbázis már naprakész: ") +
                                                "A mintaadatok kimaradtak, mert az adatbázisban már vannak adatok.\n");
    EXPECT_EQ(TestDatabase::dumpOf(database), before);
  }
}

TEST_F(InitTest, TheSampleNeedsTheTablesOfTheItemData) {
  const std::string plugins = directory.path("plugins");
  addPlugin(plugins, std::string(BRONTEL_TEST_PLUGINS) + "/libPlainPlugin.so", "plain.so");
  const ProgramRun run = runProgram({"--database", database, "--plugins", plugins, "init", "--sample"});
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_EQ(run.output, "");
  EXPECT_EQ(run.errors,
            "brontel-host: A mintaadatokhoz a tételadatok bővítménye is kell. Lásd: brontel-host plugins\n");
  EXPECT_EQ(text("select count(*) from t_product"), "0");
}

TEST_F(InitTest, ASampleThatCannotBeStoredWhollyIsNotStoredAtAll) {
  output({"init"});
  exec(
      "create trigger refuse before insert on t_invoiceitemdata when new.value='PL-004183' "
      "begin select raise(abort, 'no seals'); end");
  const std::string before = TestDatabase::dumpOf(database);
  const ProgramRun run = this->run({"init", "--sample"});
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_EQ(run.output, "");
  EXPECT_EQ(run.errors, "brontel-host: Az adatbázis nem fogadta el a módosítást, ezért nem változott: " + database +
                            " (no seals)\n");
  EXPECT_EQ(TestDatabase::dumpOf(database), before);
}

TEST_F(InitTest, AFolderThatCannotBeMadeIsTold) {
  const std::string file = directory.write("file", "x");
  const ProgramRun run = runProgram({"--database", "/proc/none/b.db", "--plugins", pluginFolder(), "init"});
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_EQ(run.errors,
            "brontel-host: Az adatbázis mappája nem hozható létre: /proc/none/b.db. Ellenőrizze a jogosultságokat.\n");
}

TEST_F(InitTest, AFileInPlaceOfAFolderIsTold) {
  const std::string inside = directory.write("file", "x") + "/b.db";
  const ProgramRun run = runProgram({"--database", inside, "--plugins", pluginFolder(), "init"});
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_EQ(run.errors,
            "brontel-host: Az adatbázis mappája nem hozható létre: " + inside + ". Ellenőrizze a jogosultságokat.\n");
}

TEST_F(InitTest, SqlitesSpecialNamesAreFilesLikeAnyOther) {
  for (const char* name : {":memory:", "file:x?mode=memory"}) {
    SCOPED_TRACE(name);
    ChildProcess child(
        {"env", "-C", directory.path(), BRONTEL_TEST_HOST, "--plugins", pluginFolder(), "--database", name, "init"});
    EXPECT_EQ(child.run(), 0) << child.getErrors();
    EXPECT_EQ(child.getOutput(), std::string("Elkészült az adatbázis: ") + name + "\n");
    EXPECT_EQ(readFile(directory.path(name)).substr(0, 15), "SQLite format 3");
  }
}

TEST_F(InitTest, WithoutPluginsItIsNotComplete) {
  const std::string empty = directory.path("plugins");
  std::filesystem::create_directory(empty);
  const ProgramRun run = runProgram({"--database", database, "--plugins", empty, "init"});
  EXPECT_EQ(run.exitCode, 2);
  EXPECT_EQ(run.errors,
            "brontel-host: Innen nem tölthető be bővítmény: " + empty + ". Az okát ez írja ki: brontel-host plugins\n");
  EXPECT_NE(this->run({"list"}).exitCode, 0);
  EXPECT_EQ(output({"init"}), naming("Kiegészült az adatbázis: "));
}
