// What the dialog puts into the table: rows, headings and cells.

#include "itemdata/Codes.h"
#include "itemdata/ItemDataStringEntry.h"
#include "tests/ui/DialogFixture.h"

using namespace Brontel::Plugin::ItemData;
using FX::FXint;

namespace {

constexpr int kQuantity = VARIABLE_QUANTITY;

}  // namespace

class ItemDataDialogTableTest : public DialogFixture {
 protected:
  std::vector<int> widths() const {
    std::vector<int> found;
    for (FXint col = 0; col < table()->getNumColumns(); ++col) found.push_back(table()->getColumnWidth(col));
    return found;
  }

  /// Per-item variables, then the quantity and further per-unit ones, named by letters.
  static std::unique_ptr<ItemDataList> lettered(const std::string& perItem, const std::string& perUnit) {
    std::vector<Variable> variables;
    static const char* const kNames[] = {"p", "r", "s", "a", "b", "c"};
    const auto add = [&variables](char letter, bool unit) {
      for (const char* name : kNames) {
        if (*name == letter) variables.push_back({TYPE_TEXT, letter, name, unit});
      }
    };
    for (const char letter : perItem) add(letter, false);
    variables.push_back({TYPE_QUANTITY, kQuantity, "Mennyiség", true});
    for (const char letter : perUnit) add(letter, true);
    return settingsOf(variables);
  }

  /// A list with such a template and as many rows, stored or not.
  ItemDataList& lettered(const std::string& perItem, const std::string& perUnit, int rows) {
    ItemDataList& list = newListOf(lettered(perItem, perUnit));
    for (int row = 1; row <= rows; ++row) {
      add(list, TYPE_QUANTITY, kQuantity, row, std::to_string(row));
      for (const char letter : perUnit) add(list, TYPE_TEXT, letter, row, letter + std::to_string(row));
    }
    list.rows = rows;
    return list;
  }
};

TEST_F(ItemDataDialogTableTest, fillsAFrameWithALine) {
  newRows({{"5", "A", ""}});
  build();
  auto* frame = dynamic_cast<FX::FXHorizontalFrame*>(table()->getParent());
  ASSERT_NE(frame, nullptr);
  EXPECT_EQ(frame->getParent(), dialog->getFirst());
  EXPECT_EQ(frame->numChildren(), 1);
  EXPECT_EQ(frame->getLayoutHints(), static_cast<FX::FXuint>(FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y));
  EXPECT_EQ(frame->getFrameStyle(), static_cast<FX::FXuint>(FX::FRAME_LINE));
  EXPECT_EQ(frame->getPadLeft() + frame->getPadRight() + frame->getPadTop() + frame->getPadBottom(), 0);
  EXPECT_EQ(frame->getHSpacing(), 4);
  EXPECT_EQ(frame->getVSpacing(), 4);
  EXPECT_EQ(table()->getTarget(), dialog.get());
  EXPECT_EQ(table()->getSelector(), static_cast<FX::FXSelector>(ItemDataDialog::ID_TABLE));
  EXPECT_EQ(table()->getLayoutHints(), static_cast<FX::FXuint>(FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y));
}

TEST_F(ItemDataDialogTableTest, followsTheInputs) {
  newListOf(newTemplate());
  build();
  EXPECT_NE(dynamic_cast<FX::FXMatrix*>(dialog->getFirst()->getFirst()), nullptr);
  EXPECT_EQ(table()->getParent()->getPrev(), dialog->getFirst()->getFirst());
}

TEST_F(ItemDataDialogTableTest, showsEveryCellOfEveryRow) {
  const ItemDataList& list = newRows({{"2", "S1", "kék"}, {"3", "S2", "piros"}});
  build();
  EXPECT_EQ(shown(), (Texts{"2|S1|kék", "3|S2|piros"}));
  for (FXint i = 0; i < 6; ++i) {
    EXPECT_EQ(table()->getEntry(i / 3, i % 3), list.at(i));
    EXPECT_EQ(table()->getItemData(i / 3, i % 3), list.at(i));
  }
  EXPECT_NE(dynamic_cast<FX::FXComboTableItem*>(table()->getItem(0, 2)), nullptr);
}

TEST_F(ItemDataDialogTableTest, takesTheItemsThatTheCellsMake) {
  struct OddEntry : ItemDataStringEntry {
    FX::FXTableItem* getTableItem() override {
      auto* made = new FX::FXTableItem("made");
      made->setData(this);
      return made;
    }
  };
  ItemDataList& list = newRows({{"5", "A", ""}});
  delete list.at(1);
  auto* odd = new OddEntry;
  odd->itemvariable = 12;
  odd->row = 1;
  list.at(1) = odd;
  build();
  EXPECT_EQ(shown(), Texts{"5|made|"});
}

TEST_F(ItemDataDialogTableTest, countsRowsByTheirNumbers) {
  ItemDataList& list = newListOf(perUnitSettings());
  for (const int row : {1, 2, 4}) addRow(list, row, std::to_string(row), "", "");
  build();
  EXPECT_EQ(table()->getNumRows(), 3);
  EXPECT_EQ(table()->getNumColumns(), 3);
  EXPECT_EQ(shown(), (Texts{"1||", "2||", "4||"}));
}

TEST_F(ItemDataDialogTableTest, doesNotShowDeletedRows) {
  ItemDataList& list = newRows({{"1", "A", ""}, {"2", "B", ""}, {"3", "C", ""}}, true);
  for (const FXint i : {0, 1, 2}) list.at(i)->markForDelete(1);
  build();
  EXPECT_EQ(shown(), (Texts{"2|B|", "3|C|"}));
  for (const FXint i : {6, 7, 8}) list.at(i)->markForDelete(1);
  build();
  EXPECT_EQ(shown(), Texts{"2|B|"});
  EXPECT_EQ(list.no(), 9);
}

TEST_F(ItemDataDialogTableTest, doesNotCountCellsOfNoRow) {
  ItemDataList& list = newRows({{"5", "A", ""}});
  add(list, TYPE_TEXT, 99, 0, "once per item, earlier");
  build();
  EXPECT_EQ(shown(), Texts{"5|A|"});
}

TEST_F(ItemDataDialogTableTest, headsEachColumnWithItsVariable) {
  newRows({});
  build();
  EXPECT_EQ(headers(), (Texts{"Mennyiség", "Sarzs", "Szín"}));
  EXPECT_EQ(widths(), (std::vector{189, 189, 189}));
  for (const size_t rows : {1, 2, 5}) {
    newRows(std::vector<std::vector<std::string>>(rows, {"1", "A", ""}));
    build();
    EXPECT_EQ(headers(), (Texts{"Mennyiség", "Sarzs", "Szín"})) << rows;
    EXPECT_EQ(widths(), (std::vector{189, 189, 189}));
  }
}

TEST_F(ItemDataDialogTableTest, dividesTheWidthAmongTheColumns) {
  lettered("", "abc", 1);
  build();
  EXPECT_EQ(widths(), std::vector(4, 142));
  lettered("", "", 1);
  build();
  EXPECT_EQ(widths(), std::vector{568});
}

TEST_F(ItemDataDialogTableTest, headsByColumnWhenTheFirstRowIsDeleted) {
  ItemDataList& list = lettered("", "a", 4);
  for (const FXint i : {0, 1}) {
    list.at(i)->pk = 100 + i;
    list.at(i)->markForDelete(1);
  }
  build();
  EXPECT_EQ(headers(), (Texts{"Mennyiség", "a"}));
  EXPECT_EQ(shown(), (Texts{"2|a2", "3|a3", "4|a4"}));
}

// With variables once per item the headings are shifted, and users know them so.
TEST_F(ItemDataDialogTableTest, shiftsTheHeadingsByOnePerItemVariable) {
  lettered("p", "ab", 1);
  build();
  EXPECT_EQ(headers(), (Texts{"", "Mennyiség", "a"}));
  EXPECT_EQ(widths(), (std::vector{100, 189, 189}));
  EXPECT_EQ(shown(), Texts{"1|a1|b1"});
}

TEST_F(ItemDataDialogTableTest, shiftsTheHeadingsByTwo) {
  lettered("pr", "ab", 1);
  build();
  EXPECT_EQ(headers(), (Texts{"p", "r", "Mennyiség"}));
  lettered("pr", "ab", 3);
  build();
  // Rows count against the indices: only the last cell of the first row is headed by its column.
  EXPECT_EQ(headers(), (Texts{"", "", "Mennyiség"}));
}

TEST_F(ItemDataDialogTableTest, headsNothingBeyondTheTable) {
  lettered("p", "ab", 0);
  build();
  EXPECT_EQ(headers(), (Texts{"", "Mennyiség", "a"}));
  lettered("prs", "a", 0);
  build();
  EXPECT_EQ(headers(), (Texts{"", ""}));
}

TEST_F(ItemDataDialogTableTest, opensAgainAfterAllRowsHaveBeenDeleted) {
  ItemDataList& list = newRows({{"2", "A", ""}, {"3", "B", ""}}, true);
  for (FXint i = 0; i < 6; ++i) list.at(i)->markForDelete(1);
  list.rows = 0;
  build();
  EXPECT_EQ(shown(), Texts{"5||"});
  EXPECT_EQ(headers(), (Texts{"Mennyiség", "Sarzs", "Szín"}));
}

TEST_F(ItemDataDialogTableTest, startsWithOneRowThatHoldsTheWholeQuantity) {
  ItemDataList& list = newRows({});
  item.setQuantity(FXExt::FXDecimal("2.5", 4));
  build();
  EXPECT_EQ(shown(), Texts{"2.5||"});
  EXPECT_EQ(cellsOf(list), (Texts{"-1/1=2.5", "12/1=", "13/1="}));
  EXPECT_EQ(list.rows, 1);
}

TEST_F(ItemDataDialogTableTest, addsNoRowWhereThereIsOne) {
  ItemDataList& list = newRows({{"1", "", ""}});
  build();
  EXPECT_EQ(list.no(), 3);
  EXPECT_EQ(list.rows, 1);
}

TEST_F(ItemDataDialogTableTest, tellsNobodyWhileItIsFilled) {
  struct ListeningEntry : ItemDataStringEntry {
    explicit ListeningEntry(int& heard) : heard_(heard) {}
    void onQuantityChanged(const FX::FXString&) override { ++heard_; }
    int& heard_;
  };
  int heard = 0;
  ItemDataList& list = newRows({{"5", "", ""}});
  delete list.at(1);
  auto* listening = new ListeningEntry(heard);
  listening->itemvariable = 12;
  listening->row = 1;
  list.at(1) = listening;
  build();
  EXPECT_EQ(table()->getEntry(0, 1), listening);
  EXPECT_EQ(heard, 0);
}

TEST_F(ItemDataDialogTableTest, aMissingCellShiftsNoOther) {
  ItemDataList& list = newListOf(perUnitSettings());
  add(list, TYPE_TEXT, 12, 1, "A");
  add(list, TYPE_LIST, 13, 1, "kék");
  addRow(list, 2, "2", "B", "piros");
  list.rows = 2;
  build();
  EXPECT_EQ(shown(), (Texts{"-|A|kék", "2|B|piros"}));
}

TEST_F(ItemDataDialogTableTest, moreCellsThanColumnsStayInTheList) {
  ItemDataList& list = newRows({{"1", "A", "kék"}, {"2", "B", "piros"}});
  add(list, TYPE_TEXT, 99, 2, "no longer configured");
  add(list, TYPE_QUANTITY, kQuantity, 2, "7");
  add(list, TYPE_TEXT, 12, 3, "C");
  build();
  EXPECT_EQ(shown(), (Texts{"1|A|kék", "2|B|piros", "-|C|-"}));
  EXPECT_EQ(list.no(), 9);
}

TEST_F(ItemDataDialogTableTest, thereIsNoneWithoutColumns) {
  auto settings = perItemSettings();
  ItemDataList& list = newListOf(std::move(settings));
  list.firstRowIndex = 1;
  build();
  EXPECT_EQ(table(), nullptr);
}

TEST_F(ItemDataDialogTableTest, worksWithoutTemplate) {
  ItemDataList& list = newList();
  addRow(list, 1, "5", "A", "kék");
  list.firstRowIndex = 0;
  list.columns = 3;
  build();
  EXPECT_EQ(shown(), Texts{"5|A|kék"});
  EXPECT_EQ(dialog->handle(form, FXSEL(FX::SEL_COMMAND, 88), nullptr), 1);
  EXPECT_EQ(list.no(), 3);
}

TEST_F(ItemDataDialogTableTest, passesOverEmptySlots) {
  ItemDataList& list = newRows({{"5", "A", ""}});
  list.append(nullptr);
  build();
  EXPECT_EQ(shown(), Texts{"5|A|"});
}
