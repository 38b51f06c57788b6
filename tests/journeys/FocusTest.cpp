#include <fxkeys.h>

#include "tests/journeys/Journey.h"
#include "tests/support/WindowManager.h"

// Where the keyboard goes when windows come and go, with a window manager that decides about it.

namespace {

class FocusTest : public Journey {
 protected:
  static constexpr const char* kForm = "Számla: K-2025/0096/J1";
  static constexpr const char* kChangedForm = "Számla: K-2025/0096/J1 *";
  static constexpr const char* kData = "Félautomata defibrillátor egyéb tételadatai";

  FocusTest() : manager(display) { makeSample(); }

  void press(unsigned key, std::initializer_list<unsigned> held = {}) { events.key(key, held); }

  void startManaged() {
    startWith(commandLine({}));
    ASSERT_TRUE(manager.waitForActive(mainTitle()));
  }

  /// The first invoice of the list, from the main window.
  void openFirst() {
    press(FX::KEY_o, {FX::KEY_Control_L});
    ASSERT_TRUE(manager.waitForActive(kForm));
  }

  /// The item data of the line with the cursor. The menu is no window of the manager's; its keys wait in the form's
  /// queue until it is there.
  void openItemData() {
    const size_t before = windows.count();
    press(FX::KEY_F10, {FX::KEY_Shift_L});
    ASSERT_TRUE(windows.waitForCount(before + 1));
    press(FX::KEY_Down);
    press(FX::KEY_Return);
    ASSERT_TRUE(manager.waitForActive(kData));
  }

  void leave() {
    manager.activate(mainTitle());
    ASSERT_TRUE(manager.waitForActive(mainTitle()));
    press(FX::KEY_q, {FX::KEY_Control_L});
    expectEnd();
  }

  WindowManager manager;
};

}  // namespace

TEST_F(FocusTest, comesBackFromEachBoxOfTheMainWindow) {
  startManaged();
  press(FX::KEY_F1);
  ASSERT_TRUE(manager.waitForActive("Névjegy"));
  press(FX::KEY_Escape);
  ASSERT_TRUE(manager.waitForActive(mainTitle()));
  press(FX::KEY_1, {FX::KEY_Alt_L});
  ASSERT_TRUE(manager.waitForActive("Egyéb tételadatok"));
  press(FX::KEY_Escape);
  ASSERT_TRUE(manager.waitForActive(mainTitle()));
  press(FX::KEY_b, {FX::KEY_Control_L});
  ASSERT_TRUE(manager.waitForActive("Biztonsági mentés"));
  press(FX::KEY_Escape);
  ASSERT_TRUE(manager.waitForActive(mainTitle()));
  // In the list again, whose first line this opens.
  press(FX::KEY_Return);
  ASSERT_TRUE(manager.waitForActive(kForm));
  press(FX::KEY_w, {FX::KEY_Control_L});
  ASSERT_TRUE(manager.waitForActive(mainTitle()));
  press(FX::KEY_q, {FX::KEY_Control_L});
  expectEnd();
}

TEST_F(FocusTest, comesBackToTheCellThatWasLeft) {
  startManaged();
  openFirst();
  press(FX::KEY_Down);
  press(FX::KEY_Tab);
  press(FX::KEY_p, {FX::KEY_Control_L});
  ASSERT_TRUE(manager.waitForActive("Nyomtatási kép"));
  press(FX::KEY_Escape);
  ASSERT_TRUE(manager.waitForActive(kForm));
  // The quantity of the second line.
  events.type("5");
  press(FX::KEY_Return);
  ASSERT_TRUE(manager.waitForActive(kChangedForm));
  press(FX::KEY_w, {FX::KEY_Control_L});
  ASSERT_TRUE(manager.waitForActive("Mentetlen változások"));
  press(FX::KEY_Escape);
  ASSERT_TRUE(manager.waitForActive(kChangedForm));
  press(FX::KEY_s, {FX::KEY_Control_L});
  ASSERT_TRUE(manager.waitForActive(kForm));
  EXPECT_EQ(text("select quantity from t_invoiceitem where t_invoice_1=5 and position=2"), "5");
  leave();
}

TEST_F(FocusTest, comesBackFromTheItemData) {
  startManaged();
  openFirst();
  openItemData();
  press(FX::KEY_Tab);
  events.type("DF5-7");
  press(FX::KEY_o, {FX::KEY_Alt_L});
  ASSERT_TRUE(manager.waitForActive(kChangedForm));
  openItemData();
  press(FX::KEY_Escape);
  ASSERT_TRUE(manager.waitForActive(kChangedForm));
  press(FX::KEY_s, {FX::KEY_Control_L});
  ASSERT_TRUE(manager.waitForActive(kForm));
  EXPECT_EQ(text("select count(*) from t_invoiceitemdata where value='DF5-7'"), "1");
  leave();
}

TEST_F(FocusTest, isTakenByTheFormThatIsOpenAlready) {
  startManaged();
  openFirst();
  manager.activate(mainTitle());
  ASSERT_TRUE(manager.waitForActive(mainTitle()));
  press(FX::KEY_n, {FX::KEY_Control_L});
  const std::string fresh = "Számla: " + text("select strftime('%Y', 'now', 'localtime')") + "/1";
  ASSERT_TRUE(manager.waitForActive(fresh));
  events.type("Valaki");
  ASSERT_TRUE(manager.waitForActive(fresh + " *"));
  manager.activate(mainTitle());
  ASSERT_TRUE(manager.waitForActive(mainTitle()));
  // The first line once more: its form comes to the front, and not a second one.
  press(FX::KEY_o, {FX::KEY_Control_L});
  ASSERT_TRUE(manager.waitForActive(kForm));
  EXPECT_EQ(manager.titles(), (std::vector<std::string>{mainTitle(), kForm, fresh + " *"}));
  press(FX::KEY_w, {FX::KEY_Control_L});
  ASSERT_TRUE(manager.waitUntilGone(kForm));
  manager.activate(mainTitle());
  ASSERT_TRUE(manager.waitForActive(mainTitle()));
  press(FX::KEY_q, {FX::KEY_Control_L});
  ASSERT_TRUE(manager.waitForActive("Mentetlen változások"));
  press(FX::KEY_n, {FX::KEY_Alt_L});
  expectEnd();
}

TEST_F(FocusTest, walksThroughAFormByTab) {
  startManaged();
  press(FX::KEY_n, {FX::KEY_Control_L});
  const std::string fresh = "Számla: " + text("select strftime('%Y', 'now', 'localtime')") + "/1";
  ASSERT_TRUE(manager.waitForActive(fresh));
  events.type("Valaki");
  press(FX::KEY_Tab);
  press(FX::KEY_a, {FX::KEY_Control_L});
  events.type("2026-01-02");
  press(FX::KEY_Tab, {FX::KEY_Shift_L});
  press(FX::KEY_Tab, {FX::KEY_Shift_L});
  press(FX::KEY_a, {FX::KEY_Control_L});
  events.type("T/1");
  press(FX::KEY_s, {FX::KEY_Control_L});
  ASSERT_TRUE(manager.waitForActive("Számla: T/1"));
  EXPECT_EQ(rows("select number, partner, date from t_invoice where t_invoice_id=6"),
            (Rows{{"T/1", "Valaki", "2026-01-02"}}));
  leave();
}

TEST_F(FocusTest, goesWhereALettersMarkPoints) {
  startManaged();
  openFirst();
  press(FX::KEY_p, {FX::KEY_Alt_L});  // the partner
  press(FX::KEY_a, {FX::KEY_Control_L});
  events.type("Masvalaki");
  ASSERT_TRUE(manager.waitForActive(kChangedForm));
  press(FX::KEY_s, {FX::KEY_Alt_L});  // the menu, and its entry that saves
  press(FX::KEY_m, {FX::KEY_Alt_L});
  ASSERT_TRUE(manager.waitForActive(kForm));
  EXPECT_EQ(text("select partner from t_invoice where t_invoice_id=5"), "Masvalaki");
  leave();
}

TEST_F(FocusTest, theFramesCrossAsksToo) {
  startManaged();
  openFirst();
  press(FX::KEY_Tab);
  events.type("1");
  press(FX::KEY_F4, {FX::KEY_Alt_L});
  ASSERT_TRUE(manager.waitForActive("Mentetlen változások"));
  press(FX::KEY_Escape);
  ASSERT_TRUE(manager.waitForActive(kChangedForm));
  manager.close(mainTitle());
  ASSERT_TRUE(manager.waitForActive("Mentetlen változások"));
  press(FX::KEY_i, {FX::KEY_Alt_L});
  expectEnd();
  EXPECT_EQ(text("select quantity from t_invoiceitem where t_invoice_1=5 and position=1"), "1");
}
