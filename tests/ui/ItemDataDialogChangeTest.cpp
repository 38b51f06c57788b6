// Who hears of a changed quantity.

#include <fxkeys.h>

#include "itemdata/Codes.h"
#include "itemdata/ItemDataStringEntry.h"
#include "tests/ui/DialogFixture.h"

using namespace Brontel::Plugin::ItemData;
using FX::FXint;
using FX::FXTableRange;

namespace {

/// A cell that writes down which quantities it hears of: "variable/row=quantity".
class ListeningEntry : public ItemDataStringEntry {
 public:
  ListeningEntry(std::vector<std::string>& heard, int listeningVariable, int listeningRow) : heard_(heard) {
    itemvariable = listeningVariable;
    row = listeningRow;
    type = listeningVariable == VARIABLE_QUANTITY ? TYPE_QUANTITY : TYPE_TEXT;
  }

  void onQuantityChanged(const FX::FXString& quantity) override {
    heard_.push_back(std::to_string(itemvariable) + "/" + std::to_string(row) + "=" + quantity.text());
  }

 private:
  std::vector<std::string>& heard_;
};

}  // namespace

/// Two rows whose cells all listen.
class ItemDataDialogChangeTest : public DialogFixture {
 protected:
  ItemDataDialogChangeTest() : list(newListOf(perUnitSettings())) {
    for (const int row : {1, 2}) {
      for (const int variable : {static_cast<int>(VARIABLE_QUANTITY), 12, 13}) {
        list.append(new ListeningEntry(heard, variable, row));
      }
      list.at(3 * (row - 1))->value = row == 1 ? "2" : "3";
    }
    list.rows = 2;
  }

  long change(FXint firstRow, FXint lastRow, FXint firstCol, FXint lastCol) {
    FXTableRange range = {{firstRow, firstCol}, {lastRow, lastCol}};
    return dialog->handle(table(), FXSEL(FX::SEL_REPLACED, ItemDataDialog::ID_TABLE), &range);
  }

  Texts heard;
  ItemDataList& list;
};

TEST_F(ItemDataDialogChangeTest, theOtherCellsOfTheRow) {
  build();
  EXPECT_EQ(change(0, 0, 0, 0), 1);
  EXPECT_EQ(heard, (Texts{"12/1=2", "13/1=2"}));
}

TEST_F(ItemDataDialogChangeTest, everyRowOfARange) {
  build();
  EXPECT_EQ(change(0, 1, 0, 2), 1);
  EXPECT_EQ(heard, (Texts{"12/1=2", "13/1=2", "12/2=3", "13/2=3"}));
}

TEST_F(ItemDataDialogChangeTest, nobodyWhenAnotherCellChanges) {
  build();
  EXPECT_EQ(change(0, 1, 1, 2), 1);
  EXPECT_EQ(heard, Texts());
}

TEST_F(ItemDataDialogChangeTest, aQuantityOfAnyColumn) {
  list.at(1)->itemvariable = VARIABLE_QUANTITY;
  list.templateList->at(1)->itemvariable = VARIABLE_QUANTITY;
  list.templateList->at(0)->itemvariable = 12;
  list.at(0)->itemvariable = 12;
  list.at(1)->value = "8";
  build();
  ASSERT_EQ(table()->getEntry(0, 1), list.at(1));
  change(0, 0, 1, 1);
  EXPECT_EQ(heard, (Texts{"12/1=8", "13/1=8"}));
}

TEST_F(ItemDataDialogChangeTest, nobodyBeyondTheTable) {
  build();
  EXPECT_EQ(change(-3, 7, -1, 9), 1);
  EXPECT_EQ(heard.size(), 4u);
  heard.clear();
  EXPECT_EQ(change(2, 2, 0, 0), 1);
  EXPECT_EQ(dialog->handle(table(), FXSEL(FX::SEL_REPLACED, ItemDataDialog::ID_TABLE), nullptr), 1);
  for (const auto& [row, col] : {std::pair{-1, 0}, {2, 0}, {0, -1}, {0, 3}}) dialog->triggerQtyChange(row, col);
  EXPECT_EQ(heard, Texts());
}

TEST_F(ItemDataDialogChangeTest, noCellWithoutEntry) {
  build();
  table()->getItem(0, 1)->setData(nullptr);
  change(0, 0, 0, 2);
  EXPECT_EQ(heard, Texts{"13/1=2"});
  heard.clear();
  table()->getItem(0, 0)->setData(nullptr);
  EXPECT_EQ(change(0, 0, 0, 2), 1);
  EXPECT_EQ(heard, Texts());
}

TEST_F(ItemDataDialogChangeTest, ofTheTextThatIsHandedOn) {
  build();
  dialog->triggerQtyChange(1, 1);
  EXPECT_EQ(heard, (Texts{"-1/2=", "13/2="}));
}

TEST_F(ItemDataDialogChangeTest, nothingWithoutTable) {
  newListOf(perItemSettings());
  build();
  dialog->triggerQtyChange(0, 0);
  FXTableRange range = {{0, 0}, {0, 0}};
  EXPECT_EQ(dialog->handle(form, FXSEL(FX::SEL_REPLACED, ItemDataDialog::ID_TABLE), &range), 1);
  EXPECT_EQ(heard, Texts());
}

TEST_F(ItemDataDialogChangeTest, theNewTextOnceItHasBeenTyped) {
  open();
  goTo(0, 0);
  user.type("4,5");
  EXPECT_EQ(heard, Texts());
  user.key(FX::KEY_Return);
  EXPECT_EQ(heard, (Texts{"12/1=4,5", "13/1=4,5"}));
  EXPECT_STREQ(list.at(0)->value.text(), "4,5");
}

TEST_F(ItemDataDialogChangeTest, theNewTextsOfAPaste) {
  open();
  goTo(0, 0);
  user.putOnClipboard("7\n8\n");
  user.giveKeyboardTo(dialog.get());
  user.key('v', {FX::KEY_Control_L});
  EXPECT_EQ(heard, (Texts{"12/1=7", "13/1=7", "12/2=8", "13/2=8"}));
}

TEST_F(ItemDataDialogChangeTest, theEmptyTextOfACut) {
  open();
  clickCell(0, 0);
  user.key('x', {FX::KEY_Control_L});
  EXPECT_EQ(heard, (Texts{"12/1=", "13/1="}));
}
