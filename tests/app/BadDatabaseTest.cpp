#include <filesystem>
#include <sys/stat.h>

#include "tests/app/AppTest.h"

namespace {

class BadDatabaseTest : public AppTest {
 protected:
  void expectAllRefused(const std::string& error) const {
    for (const Arguments& arguments : allCommands()) expectRefused(arguments, error);
  }

  void expectAllButInitRefused(const std::string& error) const {
    for (const Arguments& arguments : allCommands()) {
      if (arguments.front() != "init") expectRefused(arguments, error);
    }
  }

  // The sample's file, cut to that many bytes.
  void truncate(size_t length) const {
    std::filesystem::remove(database);
    makeSample();
    std::filesystem::resize_file(database, length);
  }
};

}  // namespace

TEST_F(BadDatabaseTest, AMissingOneIsOnlyMadeByInit) {
  for (const Arguments& arguments : allCommands()) {
    if (arguments.front() == "init" || arguments.front() == "plugins") continue;
    expectRefused(arguments, "Nincs ilyen adatbázis: " + database + ". Ez hozza létre: brontel-host --database \"" +
                                 database + "\" init");
  }
  EXPECT_TRUE(files().empty());
}

TEST_F(BadDatabaseTest, AFolderIsRefused) {
  std::filesystem::create_directory(database);
  expectAllRefused("Ez egy mappa, nem adatbázis: " + database + ". Adja meg az adatbázis fájlját.");
}

TEST_F(BadDatabaseTest, APipeIsRefusedAndNotWaitedFor) {
  ASSERT_EQ(mkfifo(database.c_str(), 0600), 0);
  expectAllRefused("Ez nem közönséges fájl, így nem lehet adatbázis: " + database + ".");
}

TEST_F(BadDatabaseTest, ATextFileIsRefused) {
  static_cast<void>(directory.write("brontel.db", "Kedves Naplóm! Ma számláztam.\n"));
  expectAllRefused("Ez a fájl nem adatbázis: " + database + ". Ellenőrizze a nevét.");
}

TEST_F(BadDatabaseTest, ALongTextFileIsRefused) {
  std::string text;
  while (text.size() < 100000) text += "Kedves Naplóm! Ma számláztam.\n";
  static_cast<void>(directory.write("brontel.db", text));
  expectAllRefused("Ez a fájl nem adatbázis: " + database + ". Ellenőrizze a nevét.");
}

TEST_F(BadDatabaseTest, AnEmptyFileIsNotPreparedYet) {
  static_cast<void>(directory.write("brontel.db", ""));
  expectAllButInitRefused("Az adatbázis nincs előkészítve, vagy hiányos: " + database +
                          ". Ez egészíti ki: brontel-host --database \"" + database + "\" init");
}

TEST_F(BadDatabaseTest, OneCutInsideAPageIsDamaged) {
  makeSample();
  const size_t length = readFile(database).size();
  for (const size_t cut : {length - 1, length / 2 + 100, size_t{5000}}) {
    SCOPED_TRACE(cut);
    truncate(cut);
    expectAllRefused("Az adatbázis sérült: " + database + ". Állítsa vissza egy biztonsági mentésből.");
  }
}

TEST_F(BadDatabaseTest, OneCutBetweenPagesIsDamaged) {
  truncate(4096);
  expectAllRefused("Az adatbázis sérült: " + database + ". Állítsa vissza egy biztonsági mentésből.");
}

TEST_F(BadDatabaseTest, OneCutInsideItsFirstPageIsRefused) {
  for (const size_t cut : {size_t{100}, size_t{700}, size_t{4095}}) {
    SCOPED_TRACE(cut);
    truncate(cut);
    expectAllRefused("Az adatbázis sérült: " + database + ". Állítsa vissza egy biztonsági mentésből.");
  }
}

TEST_F(BadDatabaseTest, ANewerOneIsRefused) {
  makeSample();
  exec("pragma user_version=2");
  expectAllRefused("Az adatbázist a program egy újabb változata készítette: " + database + ". Frissítse a programot.");
}

TEST_F(BadDatabaseTest, ThatOfAnotherProgramIsRefused) {
  exec("create table notes (text); insert into notes values ('mine'); pragma user_version=7");
  expectAllRefused("Ez egy másik program adatbázisa: " + database + ". Adjon meg másik fájlt.");
}

TEST_F(BadDatabaseTest, OneThatLacksATableOrAColumnIsIncomplete) {
  const std::string error = "Az adatbázis nincs előkészítve, vagy hiányos: " + database +
                            ". Ez egészíti ki: brontel-host --database \"" + database + "\" init";
  for (const char* damage : {"drop table t_service", "alter table t_invoiceitem drop column price",
                             "alter table t_product drop column version"}) {
    SCOPED_TRACE(damage);
    std::filesystem::remove(database);
    makeSample();
    exec(damage);
    expectAllButInitRefused(error);
  }
}

TEST_F(BadDatabaseTest, AMissingIndexIsNoReasonToRefuse) {
  makeSample();
  const std::string expected = output({"print", "1"});
  exec("drop index t_invoiceitem_t_invoice_1_idx");
  EXPECT_EQ(output({"print", "1"}), expected);
}

TEST_F(BadDatabaseTest, AnInterruptedWriteIsUndoneOnOpening) {
  makeSample();
  const std::string expected = output({"list"});
  {
    // A crash half-way: the journal and the already changed file, as they lie on the disk.
    FileConnection other(database);
    other.exec(
        "pragma journal_mode=delete; pragma cache_size=1; begin; update t_invoice set number='half'; create table x "
        "(y); "
        "insert into x with recursive c(i) as (select 1 union all select i+1 from c where i<9999) "
        "select i || 'xxxxxxxxxxxxxxxxxxxxxxxx' from c");
    std::filesystem::copy_file(database, directory.path("crashed.db"));
    std::filesystem::copy_file(database + "-journal", directory.path("crashed.db-journal"));
    other.exec("rollback");
  }
  std::filesystem::resize_file(directory.path("crashed.db"),
                               std::filesystem::file_size(directory.path("crashed.db")) + 9);
  const ProgramRun run = runProgram({"--database", directory.path("crashed.db"), "list"});
  EXPECT_EQ(run.errors, "");
  EXPECT_EQ(run.output, expected);
}
