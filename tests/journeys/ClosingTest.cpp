#include <csignal>
#include <functional>

#include <fxkeys.h>

#include "tests/journeys/Journey.h"
#include "tests/support/WindowManager.h"

// In whatever state the program is closed, it asks about what is not saved, or there is nothing to ask about.

namespace {

class ClosingTest : public Journey {
 protected:
  static constexpr const char* kForm = "Számla: K-2025/0117";
  static constexpr const char* kChangedForm = "Számla: K-2025/0117 *";
  static constexpr const char* kQuestion = "Mentetlen változások";
  static constexpr const char* kQuantity = "select quantity from t_invoiceitem where t_invoice_1=1 and position=1";

  ClosingTest() { makeSample(); }

  /// Presses the cross in a window's frame.
  void cross(const std::string& title) { requestClose(display, windows.waitFor(title)); }
  void press(unsigned key, std::initializer_list<unsigned> held = {}) { events.key(key, held); }

  /// Opens an invoice by its line in the main window's list, whose search field a form may cover.
  void openLine(int line, const std::string& title) {
    use(mainTitle());
    press(FX::KEY_1, {FX::KEY_Control_L});
    press(FX::KEY_Home);
    for (int i = 0; i < line; ++i) press(FX::KEY_Down);
    press(FX::KEY_Return);
    ASSERT_NE(use(title), 0u);
  }

  /// Opens the invoice and types into the quantity of its first line; the editor stays open.
  void typeQuantity(const std::string& text) {
    openLine(2, kForm);
    press(FX::KEY_Tab);
    events.type(text);
  }

  /// Expects the question about unsaved changes, and answers it by a key.
  void answer(unsigned key, std::initializer_list<unsigned> held = {}) {
    ASSERT_NE(use(kQuestion), 0u);
    press(key, held);
    windows.waitUntilGone(kQuestion);
  }
  void answerNo() { answer(FX::KEY_n, {FX::KEY_Alt_L}); }
  void answerYes() { answer(FX::KEY_i, {FX::KEY_Alt_L}); }

  /// A window that waits for an answer comes first: none of this ends the program, as the steps that follow show.
  void tryToLeave() {
    cross(mainTitle());
    program->kill(SIGTERM);
  }
};

}  // namespace

TEST_F(ClosingTest, nothingIsAskedWhenNothingWasTyped) {
  start();
  press(FX::KEY_n, {FX::KEY_Control_L});
  ASSERT_TRUE(windows.waitForCount(2));
  ASSERT_NE(openInvoice("K-2025/0117"), 0u);
  cross(mainTitle());
  expectEnd();
  EXPECT_EQ(text("select count(*) from t_invoice"), "5");
}

TEST_F(ClosingTest, aNewInvoiceIsSavedOnTheWayOut) {
  start();
  press(FX::KEY_n, {FX::KEY_Control_L});
  const std::string form = "Számla: " + text("select strftime('%Y', 'now', 'localtime')") + "/1";
  ASSERT_NE(use(form), 0u);
  events.type("Valaki Bt.");
  ASSERT_NE(windows.waitFor(form + " *"), 0u);
  cross(mainTitle());
  answerYes();
  expectEnd();
  EXPECT_EQ(text("select partner from t_invoice order by t_invoice_id desc"), "Valaki Bt.");
}

TEST_F(ClosingTest, everyWayOutAsksAboutAChangedForm) {
  start();
  typeQuantity("7");
  const std::function<void()> ways[] = {
      [this] { cross(kForm); },
      [this] { press(FX::KEY_w, {FX::KEY_Control_L}); },
      [this] {
        press(FX::KEY_s, {FX::KEY_Alt_L});  // the menu, and its entry that closes
        press(FX::KEY_a, {FX::KEY_Alt_L});
      },
      [this] { cross(mainTitle()); },
      [this] {
        use(mainTitle());
        press(FX::KEY_q, {FX::KEY_Control_L});
      },
      [this] { program->kill(SIGTERM); },
      [this] { program->kill(SIGHUP); },
  };
  // The first finds the editor open, and the title as it was.
  for (const auto& way : ways) {
    SCOPED_TRACE(&way - ways);
    way();
    answer(FX::KEY_Escape);
    ASSERT_NE(use(kChangedForm), 0u);
  }
  press(FX::KEY_s, {FX::KEY_Control_L});
  ASSERT_NE(use(kForm), 0u);
  EXPECT_EQ(text(kQuantity), "7");
  cross(mainTitle());
  expectEnd();
}

TEST_F(ClosingTest, eachOfSeveralFormsIsAskedAbout) {
  start();
  typeQuantity("7");
  openLine(1, "Számla: K-2025/0118");
  press(FX::KEY_Tab);
  events.type("8");
  cross(mainTitle());
  answerYes();  // the newer
  answer(FX::KEY_Escape);
  EXPECT_EQ(windows.find("Számla: K-2025/0118"), 0u);
  ASSERT_NE(use(kChangedForm), 0u);
  EXPECT_EQ(text("select quantity from t_invoiceitem where t_invoice_1=2 and position=1"), "8");
  cross(mainTitle());
  answerNo();
  expectEnd();
  EXPECT_EQ(text(kQuantity), "2");
}

TEST_F(ClosingTest, whatCannotBeTakenIsToldBeforeTheProgramEnds) {
  start();
  typeQuantity("7x");
  cross(mainTitle());
  ASSERT_NE(use("Hiba"), 0u);
  tryToLeave();
  press(FX::KEY_Return);
  windows.waitUntilGone("Hiba");
  ASSERT_NE(use(kForm), 0u);
  cross(mainTitle());
  expectEnd();
  EXPECT_EQ(text(kQuantity), "2");
}

TEST_F(ClosingTest, aDateThatIsNoneKeepsTheFormOpen) {
  start();
  ASSERT_NE(openInvoice("K-2025/0117"), 0u);
  // From the items back to the type, which cannot be chosen any more, and the date.
  press(FX::KEY_Tab, {FX::KEY_Shift_L});
  press(FX::KEY_a, {FX::KEY_Control_L});
  events.type("tegnap");
  ASSERT_NE(windows.waitFor(kChangedForm), 0u);
  cross(mainTitle());
  answerYes();
  ASSERT_NE(use("Hiba"), 0u);
  press(FX::KEY_Return);
  windows.waitUntilGone("Hiba");
  ASSERT_NE(use(kChangedForm), 0u);
  EXPECT_EQ(text("select date from t_invoice where t_invoice_id=1"), "2025-03-03");
  cross(mainTitle());
  answerNo();
  expectEnd();
}

TEST_F(ClosingTest, aSaveThatFailsKeepsTheProgramOpen) {
  start();
  typeQuantity("7");
  {
    FileConnection other(database);
    other.exec("begin immediate");
    cross(mainTitle());
    answerYes();
    ASSERT_NE(use("Hiba"), 0u);
    other.exec("rollback");
  }
  press(FX::KEY_Return);
  windows.waitUntilGone("Hiba");
  ASSERT_NE(use(kChangedForm), 0u);
  EXPECT_EQ(text(kQuantity), "2");
  cross(mainTitle());
  answerYes();
  expectEnd();
  EXPECT_EQ(text(kQuantity), "7");
  EXPECT_EQ(text("select count(*) from t_invoiceitemdata where value like 'DF5-24087%'"), "2");
}

TEST_F(ClosingTest, whatIsBeingTypedAsItemDataStays) {
  start();
  ASSERT_NE(openInvoice("K-2025/0117"), 0u);
  press(FX::KEY_F10, {FX::KEY_Shift_L});
  ASSERT_TRUE(windows.waitForCount(3));
  press(FX::KEY_Down);
  press(FX::KEY_Return);
  const std::string data = "Félautomata defibrillátor egyéb tételadatai";
  ASSERT_NE(use(data), 0u);
  // Nothing is empty, so the quantity comes first.
  press(FX::KEY_Tab);
  events.type("DF5-1");
  tryToLeave();
  cross(kForm);
  cross(data);
  windows.waitUntilGone(data);
  ASSERT_NE(use(kChangedForm), 0u);
  cross(mainTitle());
  answerYes();
  expectEnd();
  EXPECT_EQ(rows("select value from t_invoiceitemdata where value like 'DF5-%' and t_invoiceitem_1=1 order by 1"),
            (Rows{{"DF5-1"}, {"DF5-240872"}}));
}

TEST_F(ClosingTest, settingsAreAskedAbout) {
  start();
  press(FX::KEY_1, {FX::KEY_Alt_L});
  const std::string settings = "Egyéb tételadatok";
  ASSERT_NE(use(settings), 0u);
  events.type("Sorozatszam");
  tryToLeave();
  cross(settings);
  answer(FX::KEY_Escape);
  ASSERT_NE(use(settings), 0u);
  press(FX::KEY_Escape);
  answer(FX::KEY_Escape);
  ASSERT_NE(use(settings), 0u);
  press(FX::KEY_o, {FX::KEY_Alt_L});
  windows.waitUntilGone(settings);
  EXPECT_EQ(text("select name from t_itemvariable where t_itemvariable_id=1"), "Sorozatszam");
  use(mainTitle());
  press(FX::KEY_1, {FX::KEY_Alt_L});
  ASSERT_NE(use(settings), 0u);
  press(FX::KEY_Escape);
  windows.waitUntilGone(settings);
  quit();
}

TEST_F(ClosingTest, settingsThatAreNotWantedAreLeft) {
  start();
  press(FX::KEY_1, {FX::KEY_Alt_L});
  const std::string settings = "Egyéb tételadatok";
  ASSERT_NE(use(settings), 0u);
  press(FX::KEY_Insert);
  events.type("x");
  cross(settings);
  answer(FX::KEY_i, {FX::KEY_Alt_L});
  windows.waitUntilGone(settings);
  quit();
  EXPECT_EQ(text("select count(*) from t_itemvariable"), "6");
}

TEST_F(ClosingTest, changedGoodsAreAskedAbout) {
  start();
  press(FX::KEY_2, {FX::KEY_Control_L});
  press(FX::KEY_Down);
  press(FX::KEY_Return);
  const std::string goods = "Termék: Félautomata defibrillátor";
  ASSERT_NE(use(goods), 0u);
  press(FX::KEY_a, {FX::KEY_Control_L});
  events.type("Defibrillator");
  cross(mainTitle());
  ASSERT_NE(use("Mentés"), 0u);
  press(FX::KEY_Escape);
  windows.waitUntilGone("Mentés");
  ASSERT_NE(use(goods), 0u);
  EXPECT_EQ(text("select name from t_product where t_product_id=1"), "Félautomata defibrillátor");
  cross(goods);
  ASSERT_NE(use("Mentés"), 0u);
  press(FX::KEY_m, {FX::KEY_Alt_L});
  windows.waitUntilGone(goods);
  EXPECT_EQ(text("select name from t_product where t_product_id=1"), "Defibrillator");
  cross(mainTitle());
  expectEnd();
}

TEST_F(ClosingTest, whatIsInFrontComesFirst) {
  start();
  press(FX::KEY_F1);
  ASSERT_NE(use("Névjegy"), 0u);
  tryToLeave();
  cross("Névjegy");
  windows.waitUntilGone("Névjegy");
  typeQuantity("7");
  press(FX::KEY_p, {FX::KEY_Control_L});
  const std::string preview = "Nyomtatási kép";
  ASSERT_NE(use(preview), 0u);
  tryToLeave();
  cross(preview);
  windows.waitUntilGone(preview);
  cross(mainTitle());
  answerNo();
  expectEnd();
}
