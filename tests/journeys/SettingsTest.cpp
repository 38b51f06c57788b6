#include <fxkeys.h>

#include "tests/journeys/Journey.h"

// Somebody defines what is to be recorded, by keyboard and by mouse, and finds it in the database.

namespace {

class SettingsTest : public Journey {
 protected:
  static constexpr const char* kTitle = "Egyéb tételadatok";
  static constexpr const char* kQuestion = "Törlés a táblázatból";
  static constexpr const char* kSaved =
      "select name, type, process, mandatory, vvalue from t_itemvariable where t_itemvariable_id>5 "
      "order by t_itemvariable_id";

  // Where things are in the dialog.
  static constexpr int kFirstRow = 42;
  static constexpr int kRow = 20;
  static constexpr int kName = 60;
  static constexpr int kType = 180;

  SettingsTest() { makeSample(); }

  void press(unsigned key, std::initializer_list<unsigned> held = {}) { events.key(key, held); }

  void startWithSettings() {
    start();
    openSettings();
  }
  void openSettings() {
    use(mainTitle());
    press(FX::KEY_1, {FX::KEY_Alt_L});
    ASSERT_NE(dialog = use(kTitle), 0u);
  }
  void acceptSettings() {
    press(FX::KEY_o, {FX::KEY_Alt_L});
    windows.waitUntilGone(kTitle);
  }

  /// A new row by keyboard: a name, a letter of the type's name, how it is recorded, and its choices.
  void enter(const std::string& name, const std::string& type, bool perUnit, bool mandatory,
             const std::string& choices) {
    press(FX::KEY_Insert);
    events.type(name);
    press(FX::KEY_Tab);
    events.type(type);
    press(FX::KEY_Return);
    press(FX::KEY_Tab);
    if (perUnit) press(FX::KEY_space);
    press(FX::KEY_Tab);
    if (mandatory) press(FX::KEY_space);
    press(FX::KEY_Tab);
    events.type(choices);
    if (!choices.empty()) press(FX::KEY_Return);
  }

  void clickRow(int row, int x, bool isDouble = false) { clickAt(dialog, x, kFirstRow + row * kRow, isDouble); }

  void answerYes() {
    ASSERT_NE(use(kQuestion), 0u);
    press(FX::KEY_i, {FX::KEY_Alt_L});
    windows.waitUntilGone(kQuestion);
    use(kTitle);
  }

  unsigned long dialog = 0;
};

}  // namespace

TEST_F(SettingsTest, oneOfEachKindIsDefinedByKeyboard) {
  startWithSettings();
  enter("Szin", "l", true, false, "piros,kek");
  enter("Gravirozas", "s", false, true, "");
  enter("Atvetel", "d", true, true, "");
  acceptSettings();
  EXPECT_EQ(
      rows(kSaved),
      (Rows{{"Szin", "3", "1", "0", "piros,kek"}, {"Gravirozas", "1", "0", "1", ""}, {"Atvetel", "2", "1", "1", ""}}));
  quit();
}

TEST_F(SettingsTest, oneIsChangedAndOneDeletedByKeyboard) {
  exec(
      "insert into t_itemvariable (t_itemvariable_id, name, type, process, mandatory, vvalue) values "
      "(6,'Szin',3,0,0,'piros'), (7,'Felesleges',1,0,0,'')");
  startWithSettings();
  // The last is the current one after End; the one before it is changed from a list to a date.
  for (int i = 0; i < 6; ++i) press(FX::KEY_Down);
  press(FX::KEY_Delete);
  answerYes();
  for (int i = 0; i < 6; ++i) press(FX::KEY_Up);
  for (int i = 0; i < 5; ++i) press(FX::KEY_Down);
  press(FX::KEY_F2);
  press(FX::KEY_a, {FX::KEY_Control_L});
  events.type("Napja");
  press(FX::KEY_Tab);
  press(FX::KEY_F2);
  press(FX::KEY_Up);
  press(FX::KEY_Return);
  press(FX::KEY_Tab);
  press(FX::KEY_space);
  acceptSettings();
  EXPECT_EQ(rows(kSaved), (Rows{{"Napja", "2", "1", "0", "piros"}}));
  quit();
}

TEST_F(SettingsTest, everythingCanBeDoneByMouse) {
  startWithSettings();
  clickAt(dialog, 40, -18);  // new row
  events.type("Szin");
  press(FX::KEY_Return);
  clickRow(5, kType, true);
  ASSERT_TRUE(windows.waitForCount(2));
  press(FX::KEY_Down);
  press(FX::KEY_Return);
  clickAt(dialog, 40, -18);
  events.type("Masik");
  press(FX::KEY_Return);
  clickRow(6, kName);
  // The button is to be used once the program has seen that this row may go.
  constexpr int kTimes = 20;
  for (int times = 0; times < kTimes && windows.find(kQuestion) == 0; ++times) {
    clickAt(dialog, 120, -18);
    windows.waitBriefly(kQuestion);
  }
  answerYes();
  clickAt(dialog, -140, -18);  // OK
  windows.waitUntilGone(kTitle);
  EXPECT_EQ(rows("select name from t_itemvariable where t_itemvariable_id>5"), (Rows{{"Szin"}}));
  quit();
}

TEST_F(SettingsTest, theMenuOfTheTableTakesKeys) {
  startWithSettings();
  const auto openMenu = [this] {
    const size_t before = windows.count();
    const XWindows::Place place = windows.placeOf(dialog);
    events.move(place.x + kName, place.y + kFirstRow + 4 * kRow);
    events.click(3);
    return windows.waitForCount(before + 1);
  };
  ASSERT_TRUE(openMenu());
  press(FX::KEY_Escape);
  ASSERT_TRUE(windows.waitForCount(2));
  ASSERT_TRUE(openMenu());
  press(FX::KEY_Down);
  press(FX::KEY_Return);
  ASSERT_TRUE(windows.waitForCount(2));
  events.type("Szin");
  press(FX::KEY_Tab);
  events.type("s");
  press(FX::KEY_Return);
  acceptSettings();
  EXPECT_EQ(rows(kSaved), (Rows{{"Szin", "1", "0", "0", ""}}));
  quit();
}

TEST_F(SettingsTest, whatIsInUseIsNotDeleted) {
  startWithSettings();
  press(FX::KEY_Delete);
  events.type("Sorozatszam");
  press(FX::KEY_Return);
  EXPECT_EQ(windows.find(kQuestion), 0u);
  acceptSettings();
  EXPECT_EQ(text("select name from t_itemvariable where t_itemvariable_id=1"), "Sorozatszam");
  // The forms of the next invoices show the new name.
  EXPECT_EQ(text("select count(*) from t_itemvariable"), "6");
  quit();
}

TEST_F(SettingsTest, whatIsMissingIsToldAndCanBeFilledIn) {
  startWithSettings();
  press(FX::KEY_Insert);
  events.type("Szin");
  press(FX::KEY_o, {FX::KEY_Alt_L});
  const std::string box = "A lista elemei hiányosak!";
  ASSERT_NE(use(box), 0u);
  press(FX::KEY_Return);
  windows.waitUntilGone(box);
  use(kTitle);
  // The keyboard is in the cell that lacks its type.
  events.type("d");
  press(FX::KEY_Return);
  acceptSettings();
  EXPECT_EQ(rows(kSaved), (Rows{{"Szin", "2", "0", "0", ""}}));
  quit();
}

TEST_F(SettingsTest, aFormThatIsOpenShowsWhatHasChanged) {
  start();
  ASSERT_NE(openInvoice("K-2025/0117"), 0u);
  openSettings();
  press(FX::KEY_F2);
  press(FX::KEY_a, {FX::KEY_Control_L});
  events.type("Sorozatszam");
  press(FX::KEY_Return);
  acceptSettings();
  EXPECT_NE(output({"find", "DF5-240871"}).find("Sorozatszam"), std::string::npos);
  EXPECT_NE(windows.find("Számla: K-2025/0117"), 0u);
  quit();
}
