// Of what was found among the recorded data, a line leads to its item.

#include <fxkeys.h>

#include "app/window/RecordedDataFrame.h"
#include "app/window/RowList.h"
#include "tests/app/window/WindowFixture.h"

using Brontel::App::RowList;

namespace {

class FoundItemTest : public WindowFixture {
 protected:
  /// Number 70, of 80 lines; of the lines 10, 75 and 78, something is recorded. The item of line 1 has the key 1001.
  void addLongInvoice() {
    exec(
        "insert into t_invoice (t_invoice_id, number, t_invoicetype_1, t_invoicestatus_1, partner, date) values "
        "(70, 'L', 101, 150, 'p', '2024-01-01');"
        "with recursive line(n) as (select 1 union all select n+1 from line where n < 80) insert into t_invoiceitem "
        "(t_invoiceitem_id, t_invoice_1, position, name, goodskind, goods, quantity, unit, price) "
        "select 1000+n, 70, n, 'line ' || n, 1, 1, '1', 'db', '5' from line;"
        "insert into t_invoiceitemdata (t_itemvariable_1, t_invoiceitem_1, row, value) values "
        "(1, 1010, 1, 'ritka 1'), (1, 1075, 1, 'ritka 2'), (1, 1078, 1, 'ritka 3')");
  }

  /// The main window with what is found in the long invoice, in its usual order, and the keyboard in the first line.
  MainWindow& findRare() {
    application->reg().deleteSection("RecordedData");
    MainWindow& window = openMain();
    user.key(FX::KEY_f, {FX::KEY_Control_L});
    user.type("ritka");
    user.key(FX::KEY_Return);
    return window;
  }

  /// Turns to the list of what was found, as a click on it would.
  void useFound(MainWindow& window) {
    window.raise();
    user.giveKeyboardTo(&window);
    window.getFound()->getList()->setFocus();
    user.settle();
  }

  /// Expects that this line of a form is its current one, with the keyboard, and can be seen as a whole.
  static void expectAtItem(const InvoiceEditForm& form, FX::FXint line) {
    ItemGrid& grid = *form.getGrid();
    EXPECT_EQ(grid.getCurrentRow() + 1, line);
    EXPECT_TRUE(grid.hasFocus());
    const FX::FXint top = grid.getRowY(line - 1);
    EXPECT_GE(top, grid.getColumnHeaderHeight());
    EXPECT_LE(top + grid.getRowHeight(line - 1), grid.getViewportHeight());
  }

  /// The list is in the order of the values that were found, or, after another click, in the opposite one.
  void clickValues(const RowList& found) { user.clickAt(found.getHeader(), 10, found.getHeader()->getHeight() / 2); }
};

}  // namespace

TEST_F(FoundItemTest, aFoundLineLeadsToItsItem) {
  addLongInvoice();
  MainWindow& window = findRare();
  RowList& found = *window.getFound()->getList();
  ASSERT_EQ(found.getNumItems(), 3);
  user.key(FX::KEY_Down);
  user.key(FX::KEY_Return);
  InvoiceEditForm& form = newestForm();
  EXPECT_EQ(form.getInvoice()->getId(), 70);
  expectAtItem(form, 75);

  // With the form open already, in which somebody types.
  form.getGrid()->goTo(74, ItemGrid::QUANTITY);
  user.type("9");
  EXPECT_TRUE(form.getGrid()->isEditing());
  useFound(window);
  user.key(FX::KEY_Up);
  user.key(FX::KEY_Return);
  newestForm();
  expectAtItem(form, 10);
  EXPECT_EQ(rowText(form, 74), "line 75|9|db|5");
  EXPECT_EQ(workspace->getWindows().size(), 1u);

  // The order of the lines does not matter, and the line that was chosen stays so.
  useFound(window);
  user.key(FX::KEY_End);
  clickValues(found);
  clickValues(found);
  EXPECT_EQ(found.getCurrentItem(), 2);
  useFound(window);
  user.key(FX::KEY_Return);
  newestForm();
  expectAtItem(form, 78);
}

TEST_F(FoundItemTest, aFoundLineDoesNotLeadAwayFromWhatCannotBeTaken) {
  addLongInvoice();
  MainWindow& window = findRare();
  InvoiceEditForm& form = open(70);
  form.getGrid()->goTo(4, ItemGrid::QUANTITY);
  user.type("x");
  useFound(window);
  answerNext("OK");
  user.key(FX::KEY_Return);
  ASSERT_EQ(boxes().size(), 1u);
  EXPECT_NE(boxes()[0].find("Ez nem mennyiség: x"), std::string::npos) << boxes()[0];
  EXPECT_EQ(form.getGrid()->getCurrentRow(), 4);
  EXPECT_EQ(form.getGrid()->getCurrentColumn(), ItemGrid::QUANTITY);
}

TEST_F(FoundItemTest, aFoundItemThatIsGoneOpensTheInvoiceWhereItStands) {
  addLongInvoice();
  MainWindow& window = findRare();
  user.key(FX::KEY_Return);
  InvoiceEditForm& form = newestForm();
  expectAtItem(form, 10);
  answerNext("Igen");
  user.key(FX::KEY_Delete, {FX::KEY_Control_L});
  ASSERT_EQ(form.getGrid()->getNumRows(), 79);
  form.getGrid()->goTo(3, ItemGrid::PRICE);
  useFound(window);
  user.key(FX::KEY_Return);
  EXPECT_EQ(&newestForm(), &form);
  EXPECT_EQ(form.getGrid()->getCurrentRow(), 3);
  EXPECT_EQ(form.getGrid()->getCurrentColumn(), ItemGrid::PRICE);
  // And when it is gone from the invoice as it is stored.
  EXPECT_TRUE(form.saveChanges());
  EXPECT_TRUE(form.close(TRUE));
  exec("delete from t_invoiceitem where t_invoiceitem_id in (1075, 1078)");
  useFound(window);
  user.key(FX::KEY_Return);
  EXPECT_EQ(newestForm().getGrid()->getCurrentRow(), 0);
}
