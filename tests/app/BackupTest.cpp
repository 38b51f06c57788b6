#include <filesystem>

#include "tests/app/AppTest.h"
#include "tests/support/ChildProcess.h"
#include "tests/support/TestDatabase.h"

namespace {

using BackupTest = AppTest;

}  // namespace

TEST_F(BackupTest, IsADatabaseWithTheSameContent) {
  makeSample();
  const std::string copy = directory.path("backup.db");
  const std::string before = readFile(database);
  EXPECT_EQ(output({"backup", copy}), "");
  EXPECT_EQ(TestDatabase::dumpOf(copy), TestDatabase::dumpOf(database));
  EXPECT_EQ(readFile(database), before);
  EXPECT_EQ(runProgram({"--database", copy, "list"}).output, output({"list"}));
}

TEST_F(BackupTest, AnExistingFileIsRefused) {
  makeSample();
  const std::string file = directory.write("backup.db", "mine");
  expectRefused({"backup", file}, "Ez a fájl már létezik: " + file + ". A mentéshez új fájlt adjon meg.");
  expectRefused({"backup", database}, "Ez a fájl már létezik: " + database + ". A mentéshez új fájlt adjon meg.");
  expectRefused({"backup", directory.path()},
                "Ez a fájl már létezik: " + directory.path() + ". A mentéshez új fájlt adjon meg.");
  const std::string link = directory.path("link.db");
  std::filesystem::create_symlink("/nowhere/at/all", link);
  expectRefused({"backup", link}, "Ez a fájl már létezik: " + link + ". A mentéshez új fájlt adjon meg.");
}

TEST_F(BackupTest, AFileThatCannotBeMadeIsTold) {
  makeSample();
  const std::string file = directory.path("none/backup.db");
  expectRefused({"backup", file},
                "A mentés nem hozható létre: " + file + ". Ellenőrizze a mappáját és a jogosultságokat.");
  expectRefused({"backup", ""}, "Adja meg az új fájl nevét, amelybe a mentés kerüljön.");
}

TEST_F(BackupTest, SqlitesSpecialNameIsAFileLikeAnyOther) {
  makeSample();
  ChildProcess child({"env", "-C", directory.path(), BRONTEL_TEST_HOST, "--database", database, "backup", ":memory:"});
  EXPECT_EQ(child.run(), 0) << child.getErrors();
  EXPECT_EQ(TestDatabase::dumpOf(directory.path(":memory:")), TestDatabase::dumpOf(database));
}

TEST_F(BackupTest, WhileAnotherProgramWritesTheCopyIsConsistent) {
  makeSample();
  FileConnection other(database);
  other.exec("begin immediate; update t_invoice set number='changed'");
  const std::string copy = directory.path("backup.db");
  EXPECT_EQ(output({"backup", copy}), "");
  other.exec("rollback");
  EXPECT_EQ(TestDatabase::dumpOf(copy), TestDatabase::dumpOf(database));
}
