#include <ctime>

#include <fxkeys.h>

#include "tests/journeys/Journey.h"

// From a new invoice to its print and export, and everything found again by the next start of the program.

namespace {

class TypicalPathTest : public Journey {
 protected:
  TypicalPathTest() {
    makeSample();
    exec("update t_invoice set number='2000/1' where number='" + number + "'");
  }

  /// The number that a new invoice is offered.
  static std::string thisYear() {
    const std::time_t now = std::time(nullptr);
    char year[5] = "";
    std::strftime(year, sizeof year, "%Y", std::localtime(&now));
    return year;
  }

  /// Opens the item data of the line with the cursor by the keyboard.
  void openItemData() {
    const size_t before = windows.count();
    events.key(FX::KEY_F10, {FX::KEY_Shift_L});
    ASSERT_TRUE(windows.waitForCount(before + 1));
    events.key(FX::KEY_Down);
    events.key(FX::KEY_Return);
  }

  const std::string number = thisYear() + "/1";
  const std::string title = "Számla: " + number;
};

}  // namespace

TEST_F(TypicalPathTest, anInvoiceWithSerialNumbers) {
  start();
  events.key(FX::KEY_n, {FX::KEY_Control_L});
  use(title);
  events.type("Uj Partner Kft.");
  // Date, type, the type's list, items.
  for (int i = 0; i < 4; ++i) events.key(FX::KEY_Tab);
  events.key(FX::KEY_Insert);
  events.type("def");
  events.key(FX::KEY_Tab);
  events.type("2");
  events.key(FX::KEY_Return);
  ASSERT_NE(windows.waitFor(title + " *"), 0u);

  openItemData();
  ASSERT_NE(use("Félautomata defibrillátor egyéb tételadatai"), 0u);
  // A row of both units is offered. It becomes one of a single unit, and the next row is offered what is missing.
  events.key(FX::KEY_Tab, {FX::KEY_Shift_L});
  events.type("1");
  events.key(FX::KEY_Tab);
  events.type("DF5-9001");
  events.key(FX::KEY_Tab);
  events.key(FX::KEY_Insert);
  events.type("DF5-9002");
  events.key(FX::KEY_o, {FX::KEY_Alt_L});
  ASSERT_TRUE(windows.waitForCount(2));

  use(title + " *");
  events.key(FX::KEY_s, {FX::KEY_Control_L});
  ASSERT_NE(use(title), 0u);
  const std::string id = text("select t_invoice_id from t_invoice where number='" + number + "'");
  ASSERT_FALSE(id.empty());
  const std::string cells =
      "select d.row, v.name, d.value from t_invoiceitemdata d join t_itemvariable v on "
      "v.t_itemvariable_id=d.t_itemvariable_1 join t_invoiceitem i on i.t_invoiceitem_id=d.t_invoiceitem_1 "
      "where i.t_invoice_1=" +
      id + " and d.value<>'' order by d.row, v.t_itemvariable_id";
  const Rows expected{{"1", "Mennyiség", "1"},
                      {"1", "Gyári szám", "DF5-9001"},
                      {"2", "Mennyiség", "1"},
                      {"2", "Gyári szám", "DF5-9002"}};
  EXPECT_EQ(rows(cells), expected);
  EXPECT_EQ(rows("select partner, t_invoicestatus_1 from t_invoice where t_invoice_id=" + id),
            (Rows{{"Uj Partner Kft.", "150"}}));
  EXPECT_EQ(output({"check", id}).find("1\t"), std::string::npos);
  EXPECT_EQ(output({"print", id}), "1\tFélautomata defibrillátor\t2\tdb\t489000\n    DF5-9001; DF5-9002\n");

  events.key(FX::KEY_p, {FX::KEY_Control_L});
  use("Nyomtatási kép");
  events.key(FX::KEY_Escape);
  windows.waitUntilGone("Nyomtatási kép");

  use(title);
  events.key(FX::KEY_e, {FX::KEY_Control_L});
  use("XML exportálása");
  events.key(FX::KEY_f, {FX::KEY_Alt_L});  // the name
  events.key(FX::KEY_a, {FX::KEY_Control_L});
  const std::string file = directory.path("export.xml");
  events.type(file);
  events.key(FX::KEY_Return);
  windows.waitUntilGone("XML exportálása");
  use(title);
  events.key(FX::KEY_w, {FX::KEY_Control_L});
  windows.waitUntilGone(title);
  EXPECT_EQ(readFile(file), output({"export", id}));
  EXPECT_NE(readFile(file).find("DF5-9002"), std::string::npos);
  quit();

  // The next start finds it all, and saving it again changes nothing but its version.
  start();
  ASSERT_NE(openInvoice(number), 0u);
  EXPECT_EQ(rows(cells), expected);
  events.key(FX::KEY_w, {FX::KEY_Control_L});
  windows.waitUntilGone(title);
  quit();
  EXPECT_EQ(rows(cells), expected);
}
