#include <csignal>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

#include <fxkeys.h>

#include "tests/app/InstalledCopy.h"
#include "tests/journeys/Journey.h"

// The program as it meets whatever there is when somebody starts it.

namespace {

class StartTest : public Journey {
 protected:
  /// Accepts the warning that the program has begun with, and expects that it opens invoices for reading only.
  void expectOnlyLookedAt() {
    acceptWarning();
    use(mainTitle());
    events.key(FX::KEY_o, {FX::KEY_Control_L});
    EXPECT_NE(use("Számla: K-2025/0096/J1 (csak olvasható)"), 0u);
    quit();
  }

  void acceptWarning() {
    use("Figyelmeztetés");
    events.key(FX::KEY_Return);
    windows.waitUntilGone("Figyelmeztetés");
  }

  /// The program as a user is bound by the rights of files, which root is not.
  std::vector<std::string> unprivilegedCommandLine() {
    // That user may not be able to reach the folder in which the program was built.
    copy_ = std::make_unique<InstalledCopy>();
    std::vector<std::string> all;
    if (geteuid() == 0) all = {"setpriv", "--reuid=65534", "--regid=65534", "--clear-groups"};
    all.insert(all.end(), {copy_->program(), "--database", database});
    return all;
  }

  void expectDamaged() {
    const std::string before = readFile(database);
    expectRefused("Az adatbázis sérült: " + database + ". Állítsa vissza egy biztonsági mentésből.");
    EXPECT_TRUE(readFile(database) == before);
  }

 private:
  std::unique_ptr<InstalledCopy> copy_;
};

}  // namespace

TEST_F(StartTest, makesADatabaseThatCommandsCanUse) {
  start();
  quit();
  EXPECT_EQ(output({"list"}), "");
  EXPECT_EQ(text("select name from t_itemvariable where t_itemvariable_id=-1"), "Mennyiség");
}

TEST_F(StartTest, makesTheUsersDatabaseWhereNoneIsNamed) {
  const std::string data = directory.path("data");
  setenv("XDG_DATA_HOME", data.c_str(), 1);
  const std::string plugins = std::filesystem::path(BRONTEL_TEST_PLUGIN).parent_path();
  startWith({BRONTEL_TEST_HOST, "--plugins", plugins});
  quit();
  EXPECT_EQ(FileConnection(data + "/brontel/brontel.db").rows("select count(*) from t_itemvariable"), (Rows{{"1"}}));
  struct stat status {};
  ASSERT_EQ(stat((data + "/brontel").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 0777, 0700u);
}

TEST_F(StartTest, opensWhatAnEarlierStartHasLeft) {
  start();
  events.key(FX::KEY_n, {FX::KEY_Control_L});
  const std::string title = "Számla: " + text("select strftime('%Y', 'now', 'localtime')") + "/1";
  use(title);
  events.type("Valaki");
  use(title + " *");
  events.key(FX::KEY_s, {FX::KEY_Control_L});
  use(title);
  quit();
  start();
  events.key(FX::KEY_o, {FX::KEY_Control_L});
  EXPECT_NE(use(title), 0u);
  quit();
  EXPECT_EQ(text("select partner from t_invoice"), "Valaki");
}

TEST_F(StartTest, extendsTheDatabaseOfAnEarlierProgram) {
  makeSample();
  const Rows before = rows("select * from t_invoiceitemdata");
  exec(
      "drop table t_suiteitemdata; drop index t_invoiceitem_t_invoice_1_idx;"
      "alter table t_product drop column version");
  start();
  ASSERT_NE(openInvoice("K-2025/0117"), 0u);
  quit();
  EXPECT_EQ(text("select count(*) from t_suiteitemdata"), "0");
  EXPECT_EQ(text("select count(*) from sqlite_master where name='t_invoiceitem_t_invoice_1_idx'"), "1");
  EXPECT_EQ(text("select count(*) from pragma_table_info('t_product') where name='version'"), "1");
  EXPECT_EQ(rows("select * from t_invoiceitemdata"), before);
}

TEST_F(StartTest, refusesADamagedDatabase) {
  makeSample();
  const auto length = std::filesystem::file_size(database);
  std::filesystem::resize_file(database, length / 2 + 100);
  expectDamaged();
  std::filesystem::resize_file(database, 4096);
  expectDamaged();
}

TEST_F(StartTest, refusesAReadOnlyDatabase) {
  makeSample();
  directory.share();
  ASSERT_EQ(chmod(database.c_str(), 0444), 0);
  const std::string before = readFile(database);
  expectRefused(unprivilegedCommandLine(), "Az adatbázis csak olvasható: " + database +
                                               ". A módosításhoz írási jog kell a fájlra és a mappájára is.");
  EXPECT_TRUE(readFile(database) == before);
}

TEST_F(StartTest, refusesAFolderInWhichNothingCanBeMade) {
  directory.share();
  ASSERT_EQ(chmod(directory.path().c_str(), 0555), 0);
  expectRefused(unprivilegedCommandLine(),
                "Az adatbázis nem nyitható meg: " + database + ". Ellenőrizze a helyét és a jogosultságokat.");
  directory.share();
  EXPECT_FALSE(std::filesystem::exists(database));
}

TEST_F(StartTest, isLeftByASignalLikeByItsMenu) {
  makeSample();
  start();
  program->kill(SIGTERM);
  expectEnd();
}

TEST_F(StartTest, needsADisplay) {
  ChildProcess run({BRONTEL_TEST_HOST, "--database", database});
  run.removeEnvironment("DISPLAY");
  EXPECT_EQ(run.run(), 2);
  EXPECT_EQ(run.getErrors(),
            "brontel-host: Nincs elérhető képernyő (DISPLAY). Parancsokkal e nélkül is használható: brontel-host "
            "--help\n");
  EXPECT_FALSE(std::filesystem::exists(database));
}

TEST_F(StartTest, refusesWhatIsNoDatabaseOrANewerOne) {
  directory.write("brontel.db", "this is no database, whatever its name says");
  expectRefused("Ez a fájl nem adatbázis: " + database + ". Ellenőrizze a nevét.");
  std::filesystem::remove(database);
  makeSample();
  exec("pragma user_version=99");
  expectRefused("Az adatbázist a program egy újabb változata készítette: " + database + ". Frissítse a programot.");
}

TEST_F(StartTest, refusesALockedDatabase) {
  makeSample();
  FileConnection other(database);
  other.exec("pragma locking_mode=exclusive; begin exclusive");
  expectRefused("Az adatbázist most egy másik program használja: " + database + ". Próbálja újra, ha az befejezte.");
}

TEST_F(StartTest, withoutPlugInsInvoicesAreOnlyLookedAt) {
  makeSample();
  const std::string empty = directory.path("plugins");
  std::filesystem::create_directory(empty);
  startWith(commandLine({}, empty));
  expectOnlyLookedAt();
}

TEST_F(StartTest, withoutAFolderOfPlugInsInvoicesAreOnlyLookedAt) {
  makeSample();
  startWith(commandLine({}, directory.path("nowhere")));
  expectOnlyLookedAt();
}

TEST_F(StartTest, withNothingButABrokenPlugInInvoicesAreOnlyLookedAt) {
  makeSample();
  const std::string folder = directory.path("plugins");
  std::filesystem::create_directory(folder);
  directory.write("plugins/b.so", "no library");
  startWith(commandLine({}, folder));
  expectOnlyLookedAt();
}

TEST_F(StartTest, withoutTheQuantityVariableInvoicesAreOnlyLookedAt) {
  makeSample();
  // Each start makes it anew when the table lacks it, so that only a table that refuses it is left without.
  exec(
      "pragma foreign_keys=off; delete from t_itemvariable where t_itemvariable_id=-1;"
      "create trigger refuse before insert on t_itemvariable begin select raise(ignore); end");
  start();
  expectOnlyLookedAt();
}

TEST_F(StartTest, aBrokenPlugInStopsNobody) {
  makeSample();
  const std::string folder = directory.path("plugins");
  std::filesystem::create_directory(folder);
  std::filesystem::create_symlink(BRONTEL_TEST_PLUGIN, folder + "/a.so");
  directory.write("plugins/b.so", "no library");
  startWith(commandLine({}, folder));
  acceptWarning();
  use(mainTitle());
  events.key(FX::KEY_F1);
  use("Névjegy");
  events.key(FX::KEY_Return);
  windows.waitUntilGone("Névjegy");
  use(mainTitle());
  events.key(FX::KEY_o, {FX::KEY_Control_L});
  EXPECT_NE(use("Számla: K-2025/0096/J1"), 0u);
  quit();
}

TEST_F(StartTest, acceptsHungarianLettersWithoutAUtf8Locale) {
  makeSample();
  const std::string letters = "árvíztűrő tükörfúrógép";
  // To nobody: the keyboard gets the letters that it lacks before the program looks at it.
  events.type(letters);
  startWith(commandLine({}), "C");
  use(mainTitle());
  events.key(FX::KEY_n, {FX::KEY_Control_L});
  const std::string title = "Számla: " + text("select strftime('%Y', 'now', 'localtime')") + "/1";
  use(title);
  events.type(letters);
  use(title + " *");
  events.key(FX::KEY_s, {FX::KEY_Control_L});
  use(title);
  EXPECT_EQ(text("select partner from t_invoice where t_invoice_id=6"), letters);
  quit();
}
