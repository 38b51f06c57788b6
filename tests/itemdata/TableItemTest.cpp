// The table cells of the kinds, in memory and in a real table.

#include <memory>

#include "itemdata/Codes.h"
#include "itemdata/ItemDataEntryTableItem.h"
#include "itemdata/ItemDataTableComboItem.h"
#include "tests/itemdata/ListFixture.h"
#include "tests/support/TestApplication.h"

using namespace Brontel::Plugin::ItemData;
using ComboItem = ItemDataComboEntry::ItemDataTableComboItem;
using FX::FXTableItem;

static_assert(FXTableItem::LEFT == 16384);

namespace {

class TableItemTest : public ListFixture {
 protected:
  std::unique_ptr<ItemDataEntry> cell(int type, const std::string& value, const std::string& choices = "") {
    std::unique_ptr<ItemDataEntry> entry(newCell(type, 12, 1, value, 0, &item));
    entry->vvalue = choices.c_str();
    return entry;
  }

  /// The selections of a list's table cell.
  std::string selections(const std::string& choices) {
    const std::unique_ptr<ItemDataEntry> entry = cell(TYPE_LIST, "", choices);
    const std::unique_ptr<FXTableItem> shown(entry->getTableItem());
    return dynamic_cast<FX::FXComboTableItem&>(*shown).getSelections().text();
  }
};

/// A table on a display.
class ShownTable {
 public:
  ShownTable() {
    auto* window = new FX::FXMainWindow(application.get(), "table", nullptr, nullptr, FX::DECOR_ALL, 0, 0, 300, 200);
    table = new FX::FXTable(window, nullptr, 0, FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y);
    table->setTableSize(1, 1);
    application.create();
    window->show(FX::PLACEMENT_SCREEN);
    application.waitUntil([this] { return table->shown() && table->getWidth() > 1; });
  }

  /// What the editor of the only cell offers; the editor is open afterwards.
  std::vector<std::string> offered() {
    table->startInput(0, 0);
    auto* combo = dynamic_cast<FX::FXComboBox*>(table->getFirst());
    for (FX::FXWindow* child = table->getFirst(); child != nullptr && combo == nullptr; child = child->getNext()) {
      combo = dynamic_cast<FX::FXComboBox*>(child);
    }
    std::vector<std::string> choices;
    editor = combo;
    for (FX::FXint i = 0; combo != nullptr && i < combo->getNumItems(); ++i) {
      choices.emplace_back(combo->getItem(i).text());
    }
    return choices;
  }

  TestApplication application;
  FX::FXTable* table;
  FX::FXComboBox* editor = nullptr;
};

}  // namespace

TEST_F(TableItemTest, textDateAndQuantityCellsShowTheirValueOnTheLeft) {
  for (const int type : {TYPE_TEXT, TYPE_DATE, TYPE_QUANTITY}) {
    const auto entry = cell(type, "x");
    const std::unique_ptr<FXTableItem> shown(entry->getTableItem());
    ASSERT_NE(dynamic_cast<ItemDataEntryTableItem*>(shown.get()), nullptr);
    EXPECT_EQ(shown->getData(), entry.get());
    EXPECT_EQ(shown->getJustify(), 16384u);
    EXPECT_STREQ(shown->getText().text(), "x");
    EXPECT_STREQ(entry->value.text(), "x");
    EXPECT_EQ(shown->getIcon(), nullptr);
    EXPECT_EQ(shown->getBorders(), 0u);
    EXPECT_TRUE(shown->isEnabled());
  }
}

TEST_F(TableItemTest, everyCallMakesAnItemThatDoesNotOwnTheCell) {
  const auto entry = cell(TYPE_TEXT, "x");
  FXTableItem* first = entry->getTableItem();
  FXTableItem* second = entry->getTableItem();
  EXPECT_NE(first, second);
  delete first;
  delete second;
  EXPECT_STREQ(entry->value.text(), "x");
}

TEST_F(TableItemTest, aNewTextReachesTheCell) {
  for (const int type : {TYPE_TEXT, TYPE_LIST}) {
    const auto entry = cell(type, "x", "a,b");
    const std::unique_ptr<FXTableItem> shown(entry->getTableItem());
    shown->setText("abc");
    EXPECT_STREQ(shown->getText().text(), "abc");
    EXPECT_STREQ(entry->value.text(), "abc");
  }
}

TEST_F(TableItemTest, anItemWithoutCellIsAnOrdinaryOne) {
  for (const int type : {TYPE_TEXT, TYPE_LIST}) {
    const auto entry = cell(type, "x", "a,b");
    const std::unique_ptr<FXTableItem> shown(entry->getTableItem());
    shown->setData(nullptr);
    shown->setText("abc");
    EXPECT_STREQ(shown->getText().text(), "abc");
    EXPECT_STREQ(entry->value.text(), "x");
  }
}

TEST_F(TableItemTest, aListShowsItsRawValueAndKeepsIt) {
  for (const char* value : {"kék", " ", "", "régi"}) {
    const auto entry = cell(TYPE_LIST, value, "piros,kék");
    const std::unique_ptr<FXTableItem> shown(entry->getTableItem());
    ASSERT_NE(dynamic_cast<ComboItem*>(shown.get()), nullptr);
    EXPECT_EQ(shown->getData(), entry.get());
    EXPECT_EQ(shown->getJustify(), 16384u);
    EXPECT_STREQ(shown->getText().text(), value);
    EXPECT_STREQ(entry->value.text(), value);
  }
}

TEST_F(TableItemTest, aListOffersNoneFirstAndThenItsPiecesUntrimmed) {
  EXPECT_EQ(selections("a, b ,c"), " \na\n b \nc");
  EXPECT_EQ(selections("x\ny,z"), " \nx y\nz");
  EXPECT_EQ(selections(""), " \n");
  EXPECT_EQ(selections("a,,b"), " \na\n\nb");
  EXPECT_EQ(selections(","), " \n\n");
}

TEST_F(TableItemTest, textsSetInATableReachTheCell) {
  ShownTable shown;
  const auto entry = cell(TYPE_TEXT, "before");
  shown.table->setItem(0, 0, entry->getTableItem());
  shown.table->setItemText(0, 0, "set");
  EXPECT_STREQ(entry->value.text(), "set");
  shown.table->setItemText(0, 0, "");
  EXPECT_STREQ(entry->value.text(), "");
}

TEST_F(TableItemTest, whatIsTypedIntoATableReachesTheCell) {
  ShownTable shown;
  const auto entry = cell(TYPE_TEXT, "before");
  shown.table->setItem(0, 0, entry->getTableItem());
  shown.table->startInput(0, 0);
  auto* editor = dynamic_cast<FX::FXTextField*>(shown.table->getLast());
  ASSERT_NE(editor, nullptr);
  EXPECT_STREQ(editor->getText().text(), "before");
  editor->setText("typed");
  shown.table->acceptInput(true);
  EXPECT_STREQ(entry->value.text(), "typed");
}

TEST_F(TableItemTest, anAbandonedInputChangesNothing) {
  ShownTable shown;
  const auto entry = cell(TYPE_TEXT, "before");
  shown.table->setItem(0, 0, entry->getTableItem());
  shown.table->startInput(0, 0);
  dynamic_cast<FX::FXTextField&>(*shown.table->getLast()).setText("typed");
  shown.table->cancelInput();
  EXPECT_STREQ(entry->value.text(), "before");
}

TEST_F(TableItemTest, aChoiceMadeInATableReachesTheCell) {
  ShownTable shown;
  const auto entry = cell(TYPE_LIST, "kék", "piros,kék");
  shown.table->setItem(0, 0, entry->getTableItem());
  EXPECT_EQ(shown.offered(), (std::vector<std::string>{" ", "piros", "kék"}));
  ASSERT_NE(shown.editor, nullptr);
  EXPECT_STREQ(shown.editor->getText().text(), "kék");
  EXPECT_EQ(shown.editor->getNumVisible(), 3);
  EXPECT_FALSE(shown.editor->isEditable());
  shown.editor->setText(shown.editor->getItem(1));
  shown.table->acceptInput(true);
  EXPECT_STREQ(entry->value.text(), "piros");
}

TEST_F(TableItemTest, anEmptyPieceHidesNoChoice) {
  ShownTable shown;
  const auto entry = cell(TYPE_LIST, "", "a,,b");
  shown.table->setItem(0, 0, entry->getTableItem());
  EXPECT_EQ(shown.offered(), (std::vector<std::string>{" ", "a", "", "b"}));
  shown.table->acceptInput(true);
  EXPECT_STREQ(entry->value.text(), "");
}

TEST_F(TableItemTest, aLongListShowsTwentyChoicesAtATime) {
  ShownTable shown;
  const auto entry = cell(TYPE_LIST, "c", "c,c,c,c,c,c,c,c,c,c,c,c,c,c,c,c,c,c,c,c,c,c,c,c,c");
  shown.table->setItem(0, 0, entry->getTableItem());
  EXPECT_EQ(shown.offered().size(), 26u);
  ASSERT_NE(shown.editor, nullptr);
  EXPECT_EQ(shown.editor->getNumVisible(), 20);
  shown.table->cancelInput();
}
