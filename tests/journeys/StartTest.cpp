#include <csignal>
#include <filesystem>

#include <fxkeys.h>

#include "tests/journeys/Journey.h"

// The program as it meets whatever there is when somebody starts it.

namespace {

class StartTest : public Journey {
 protected:
  /// Accepts the warning that the program has begun with, and expects that it opens invoices for reading only.
  void expectOnlyLookedAt() {
    use("Figyelmeztetés");
    events.key(FX::KEY_Return);
    windows.waitUntilGone("Figyelmeztetés");
    use(mainTitle());
    events.key(FX::KEY_o, {FX::KEY_Control_L});
    EXPECT_NE(use("Számla: K-2025/0096/J1 (csak olvasható)"), 0u);
    quit();
  }
};

}  // namespace

TEST_F(StartTest, makesADatabaseThatCommandsCanUse) {
  start();
  quit();
  EXPECT_EQ(output({"list"}), "");
  EXPECT_EQ(text("select name from t_itemvariable where t_itemvariable_id=-1"), "Mennyiség");
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
  use("Figyelmeztetés");
  events.key(FX::KEY_Return);
  windows.waitUntilGone("Figyelmeztetés");
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
