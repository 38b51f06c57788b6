// The dialog between a load and a save of a real database.

#include "fxext/widgets/FXComboBox.h"
#include "itemdata/Codes.h"
#include "tests/itemdata/LifeCycleFixture.h"
#include "tests/support/RecordingObserver.h"
#include "tests/support/WindowUser.h"
#include "tests/support/XDisplay.h"
#include "ui/ItemDataDialog.h"
#include "ui/ItemDataTable.h"

using namespace Brontel::Plugin::ItemData;
using Brontel::Invoice;
using FX::FXint;

namespace {

/// The display outlives the application.
struct OnDisplay {
  XDisplay display;
};

}  // namespace

class ItemDataDialogStoredTest : private OnDisplay, public LifeCycleFixture {
 protected:
  ItemDataDialogStoredTest() {
    static char name[] = "test";
    static char* arguments[] = {name, nullptr};
    int count = 1;
    app.init(count, arguments);
    form = new FX::FXMainWindow(&app, "form");
    app.create();
  }

  UI::ItemDataTable& openOn(const Invoice& invoice) {
    dialog = std::make_unique<ItemDataDialog>(form, &itemOf(invoice));
    return *descendantsOf<UI::ItemDataTable>(dialog.get()).front();
  }
  void command(UI::ItemDataTable& table, FX::FXuint message) {
    table.handle(form, FXSEL(FX::SEL_COMMAND, message), nullptr);
  }

  FX::FXMainWindow* form;
  std::unique_ptr<ItemDataDialog> dialog;
};

TEST_F(ItemDataDialogStoredTest, whatIsRecordedIsStoredWithTheInvoice) {
  const std::unique_ptr<Invoice> invoice = newInvoice("5");
  UI::ItemDataTable& table = openOn(*invoice);
  EXPECT_STREQ(table.getItemText(0, 0).text(), "5");
  table.setItemText(0, 0, "3");
  table.setItemText(0, 1, "S1");
  command(table, UI::ItemDataTable::ID_ADD_ROW);
  EXPECT_STREQ(table.getItemText(1, 0).text(), "2");
  table.setItemText(1, 1, "S2");
  table.setItemText(1, 2, "kék");
  setCell(listOf(*invoice), 11, 0, "M");
  dialog.reset();
  EXPECT_EQ(problems(*invoice), Texts{"may Szín"});
  save(*invoice);
  EXPECT_EQ(storedOf(*invoice), (Texts{"11/0=M", "-1/1=3", "12/1=S1", "13/1=", "-1/2=2", "12/2=S2", "13/2=kék"}));
  EXPECT_EQ(cellsOf(listOf(*reload(*invoice))), cellsOf(listOf(*invoice)));
}

TEST_F(ItemDataDialogStoredTest, offersTheConfiguredChoicesOfWhatIsReadBack) {
  addVariable(15, "Típus", TYPE_LIST, 0, 0, "kicsi,nagy");
  associate(15, 4);
  const std::unique_ptr<Invoice> invoice = reload(*savedInvoice());
  const UI::ItemDataTable& table = openOn(*invoice);
  EXPECT_STREQ(dynamic_cast<FX::FXComboTableItem*>(table.getItem(0, 2))->getSelections().text(), " \npiros\nkék");
  const auto combos = descendantsOf<FXExt::FXComboBox>(dialog.get());
  ASSERT_EQ(combos.size(), 1u);
  ASSERT_EQ(combos[0]->getNumItems(), 3);
  EXPECT_STREQ(combos[0]->getItem(2).text(), "nagy");
}

TEST_F(ItemDataDialogStoredTest, aDeletedRowStaysInTheDatabaseUntilTheInvoiceIsSaved) {
  const std::unique_ptr<Invoice> invoice = reload(*savedInvoice());
  const Texts before = storedOf(*invoice);
  {
    const RecordingObserver recorder(*database.get());
    UI::ItemDataTable& table = openOn(*invoice);
    ASSERT_EQ(table.getNumRows(), 2);
    table.setCurrentItem(0, 0);
    command(table, UI::ItemDataTable::ID_DELETE_ROW);
    EXPECT_EQ(table.getNumRows(), 1);
    dialog.reset();
    EXPECT_EQ(recorder.texts(), Texts());
  }
  EXPECT_EQ(storedOf(*invoice), before);
  save(*invoice);
  EXPECT_EQ(storedOf(*invoice), (Texts{"11/0=M", "-1/2=3", "12/2=S2", "13/2=piros"}));
}

TEST_F(ItemDataDialogStoredTest, aRowTypedInAfterTheLastOneWasDeletedIsKept) {
  const std::unique_ptr<Invoice> invoice = reload(*savedInvoice());
  UI::ItemDataTable& table = openOn(*invoice);
  table.setCurrentItem(1, 0);
  command(table, UI::ItemDataTable::ID_DELETE_ROW);
  command(table, UI::ItemDataTable::ID_ADD_ROW);
  table.setItemText(1, 1, "S3");
  table.setItemText(1, 2, "kék");
  dialog.reset();
  EXPECT_EQ(problems(*invoice), Texts());
  save(*invoice);
  EXPECT_EQ(storedOf(*invoice), (Texts{"11/0=M", "-1/1=5", "12/1=S1", "13/1=kék", "-1/2=3", "12/2=S3", "13/2=kék"}));
}

TEST_F(ItemDataDialogStoredTest, allRowsCanBeDeletedAndTheDialogOpenedAgain) {
  const std::unique_ptr<Invoice> invoice = reload(*savedInvoice());
  for (const FXint rows : {2, 1}) {
    UI::ItemDataTable& table = openOn(*invoice);
    ASSERT_EQ(table.getNumRows(), rows);
    table.setCurrentItem(0, 0);
    command(table, UI::ItemDataTable::ID_DELETE_ROW);
  }
  const UI::ItemDataTable& table = openOn(*invoice);
  ASSERT_EQ(table.getNumRows(), 1);
  EXPECT_STREQ(table.getItemText(0, 0).text(), "8");
  EXPECT_STREQ(table.getItemText(0, 1).text(), "");
}

TEST_F(ItemDataDialogStoredTest, aVariableThatTheGoodsNoLongerCarryIsKeptButNotShown) {
  const std::unique_ptr<Invoice> saved = savedInvoice();
  dissociate(13);
  const std::unique_ptr<Invoice> invoice = reload(*saved);
  UI::ItemDataTable& table = openOn(*invoice);
  EXPECT_EQ(table.getNumColumns(), 2);
  EXPECT_EQ(table.getNumRows(), 2);
  EXPECT_STREQ(table.getItemText(1, 1).text(), "S2");
  dialog.reset();
  const Texts before = storedOf(*invoice);
  save(*invoice);
  EXPECT_EQ(storedOf(*invoice), before);
}

TEST_F(ItemDataDialogStoredTest, aCopyIsShownWithoutItsSeeds) {
  const std::unique_ptr<Invoice> saved = savedInvoice();
  const std::unique_ptr<Invoice> copy(saved->copy());
  openOn(*copy);
  EXPECT_EQ(descendantsOf<FX::FXMatrix>(dialog->getFirst()).front()->numChildren(), 2);
  EXPECT_EQ(cellsOf(listOf(*copy)), cellsOf(listOf(*saved)));
}
