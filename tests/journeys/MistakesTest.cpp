#include <fxkeys.h>

#include "tests/journeys/Journey.h"

// What people do wrong, or have not done yet.

namespace {

class MistakesTest : public Journey {
 protected:
  static constexpr const char* kIncomplete = "Számla: K-2025/0118";

  MistakesTest() { makeSample(); }

  /// Double clicks the line of that index in the list of messages, which stands above the status line, until its
  /// window opens: the messages come when the program is idle.
  void openByMessage(unsigned long form, int line, const std::string& title) {
    constexpr int kPane = -166;
    constexpr int kLine = 19;
    constexpr int kTimes = 20;
    for (int times = 0; times < kTimes && windows.find(title) == 0; ++times) {
      clickAt(form, 100, kPane + (line + 1) * kLine, true);
      windows.waitBriefly(title);
    }
    ASSERT_NE(use(title), 0u);
  }
};

}  // namespace

TEST_F(MistakesTest, aMissingValueIsMendedFromItsMessage) {
  start();
  const unsigned long form = openInvoice("K-2025/0118");
  ASSERT_NE(form, 0u);
  // The quantity, the serial number, the expiry, the batch, the place.
  openByMessage(form, 3, "Kontaktgél 250 ml egyéb tételadatai");
  events.type("KG-77");
  events.key(FX::KEY_o, {FX::KEY_Alt_L});
  use(std::string(kIncomplete) + " *");
  events.key(FX::KEY_s, {FX::KEY_Control_L});
  use(kIncomplete);
  EXPECT_EQ(text("select value from t_invoiceitemdata d join t_invoiceitem i on "
                 "i.t_invoiceitem_id=d.t_invoiceitem_1 where i.t_invoice_1=2 and i.position=2"),
            "KG-77");
  events.key(FX::KEY_w, {FX::KEY_Control_L});
  windows.waitUntilGone(kIncomplete);
  quit();
}

TEST_F(MistakesTest, aWrongQuantityAndAMissingNumberAreMendedFromTheirMessage) {
  start();
  const unsigned long form = openInvoice("K-2025/0118");
  ASSERT_NE(form, 0u);
  const std::string title = "Félautomata defibrillátor egyéb tételadatai";
  openByMessage(form, 0, title);
  // The keyboard is in the first empty cell, that of the serial number. The new row has the quantity still missing.
  events.type("DF5-1");
  events.key(FX::KEY_Tab);
  events.key(FX::KEY_Insert);
  events.type("DF5-2");
  events.key(FX::KEY_o, {FX::KEY_Alt_L});
  windows.waitUntilGone(title);
  use(std::string(kIncomplete) + " *");
  // The two messages are gone: of the item there are two expiry dates left, and then comes the batch.
  openByMessage(form, 2, "Kontaktgél 250 ml egyéb tételadatai");
  events.type("KG-77");
  events.key(FX::KEY_o, {FX::KEY_Alt_L});
  use(std::string(kIncomplete) + " *");
  events.key(FX::KEY_s, {FX::KEY_Control_L});
  use(kIncomplete);
  EXPECT_EQ(rows("select row, value from t_invoiceitemdata d join t_invoiceitem i on i.t_invoiceitem_id="
                 "d.t_invoiceitem_1 where i.t_invoice_1=2 and i.position=1 and value<>'' order by row, "
                 "t_invoiceitemdata_id"),
            (Rows{{"1", "1"}, {"1", "DF5-1"}, {"2", "2"}, {"2", "DF5-2"}}));
  EXPECT_EQ(output({"check", "2"}).find("1\t"), std::string::npos);
  events.key(FX::KEY_w, {FX::KEY_Control_L});
  windows.waitUntilGone(kIncomplete);
  quit();
}

TEST_F(MistakesTest, aSaveThatFailsKeepsWhatWasTyped) {
  start();
  const std::string title = "Számla: K-2025/0117";
  ASSERT_NE(openInvoice("K-2025/0117"), 0u);
  events.key(FX::KEY_Tab);
  events.type("3");
  {
    FileConnection other(database);
    other.exec("begin immediate");
    events.key(FX::KEY_s, {FX::KEY_Control_L});
    use("Hiba");
    other.exec("rollback");
  }
  EXPECT_EQ(text("select quantity from t_invoiceitem where t_invoice_1=1 and position=1"), "2");
  events.key(FX::KEY_Return);
  windows.waitUntilGone("Hiba");
  use(title + " *");
  events.key(FX::KEY_s, {FX::KEY_Control_L});
  use(title);
  EXPECT_EQ(text("select quantity from t_invoiceitem where t_invoice_1=1 and position=1"), "3");
  EXPECT_EQ(text("select count(*) from t_invoiceitemdata where value like 'DF5-24087%'"), "2");
  quit();
}

TEST_F(MistakesTest, leavingWithUnsavedChangesAsks) {
  start();
  const std::string title = "Számla: K-2025/0117";
  ASSERT_NE(openInvoice("K-2025/0117"), 0u);
  events.key(FX::KEY_Tab);
  events.type("9");
  use(mainTitle());
  events.key(FX::KEY_q, {FX::KEY_Control_L});
  use("Mentetlen változások");
  events.key(FX::KEY_Escape);
  windows.waitUntilGone("Mentetlen változások");
  ASSERT_NE(windows.find(title + " *"), 0u);
  use(mainTitle());
  events.key(FX::KEY_q, {FX::KEY_Control_L});
  use("Mentetlen változások");
  events.key(FX::KEY_n, {FX::KEY_Alt_L});
  expectEnd();
  EXPECT_EQ(text("select quantity from t_invoiceitem where t_invoice_1=1 and position=1"), "2");
}

TEST_F(MistakesTest, otherGoodsOnALineWithDataAreAskedAbout) {
  start();
  const std::string title = "Számla: K-2025/0117";
  ASSERT_NE(openInvoice("K-2025/0117"), 0u);
  events.key(FX::KEY_Down);
  events.type("FEL-01");
  events.key(FX::KEY_Return);
  use("Másik áru");
  events.key(FX::KEY_i, {FX::KEY_Alt_L});
  use(title + " *");
  events.key(FX::KEY_s, {FX::KEY_Control_L});
  use(title);
  EXPECT_EQ(text("select name from t_invoiceitem where t_invoice_1=1 and position=2"), "Éves felülvizsgálat");
  EXPECT_EQ(text("select count(*) from t_invoiceitemdata where value='KG-2411/07'"), "0");
  quit();
}

TEST_F(MistakesTest, aLineWithDataIsNotDeletedWithoutAQuestion) {
  start();
  const std::string title = "Számla: K-2025/0117";
  ASSERT_NE(openInvoice("K-2025/0117"), 0u);
  events.key(FX::KEY_Delete, {FX::KEY_Control_L});
  use("Tétel törlése");
  events.key(FX::KEY_Escape);
  windows.waitUntilGone("Tétel törlése");
  ASSERT_NE(use(title), 0u);
  events.key(FX::KEY_Delete, {FX::KEY_Control_L});
  use("Tétel törlése");
  events.key(FX::KEY_i, {FX::KEY_Alt_L});
  use(title + " *");
  events.key(FX::KEY_s, {FX::KEY_Control_L});
  use(title);
  EXPECT_EQ(text("select count(*) from t_invoiceitem where t_invoice_1=1"), "3");
  EXPECT_EQ(text("select count(*) from t_invoiceitemdata where value like 'DF5-24087%'"), "0");
  quit();
}

TEST_F(MistakesTest, aClosedInvoiceStaysAsItIs) {
  start();
  const std::string title = "Számla: K-2025/0096 (csak olvasható)";
  use(mainTitle());
  // The fourth line of the list, by date.
  for (int i = 0; i < 3; ++i) events.key(FX::KEY_Down);
  events.key(FX::KEY_Return);
  ASSERT_NE(use(title), 0u);
  const Rows before = rows("select * from t_invoiceitemdata");
  events.key(FX::KEY_Tab);
  events.type("9");
  events.key(FX::KEY_Insert);
  events.key(FX::KEY_F10, {FX::KEY_Shift_L});
  ASSERT_TRUE(windows.waitForCount(3));
  events.key(FX::KEY_Down);
  events.key(FX::KEY_Return);
  ASSERT_NE(use("Félautomata defibrillátor egyéb tételadatai"), 0u);
  events.key(FX::KEY_o, {FX::KEY_Alt_L});
  ASSERT_TRUE(windows.waitForCount(2));
  use(title);
  events.key(FX::KEY_s, {FX::KEY_Control_L});
  events.key(FX::KEY_w, {FX::KEY_Control_L});
  windows.waitUntilGone(title);
  quit();
  EXPECT_EQ(rows("select * from t_invoiceitemdata"), before);
  EXPECT_EQ(text("select version from t_invoice where t_invoice_id=4"), "1");
}
