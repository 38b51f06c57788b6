// The table by itself, with somebody else as its target.

#include <type_traits>

#include "tests/support/TestApplication.h"
#include "tests/support/WindowUser.h"
#include "ui/ItemDataTable.h"

using Brontel::Plugin::ItemData::UI::ItemDataTable;
using FX::FXint;
using Texts = std::vector<std::string>;

static_assert(std::is_base_of_v<FX::FXTable, ItemDataTable>);
static_assert(sizeof(ItemDataTable) == sizeof(FX::FXTable) + sizeof(void*), "the menu is all it has of its own");
static_assert(static_cast<int>(ItemDataTable::ID_ADD_ROW) == 88);
static_assert(static_cast<int>(ItemDataTable::ID_DELETE_ROW) == 89);
static_assert(static_cast<int>(ItemDataTable::ID_DELETE_ROW) != static_cast<int>(FX::FXTable::ID_DELETE_ROW));
static_assert(static_cast<int>(ItemDataTable::ID_ADD_ROW) >= static_cast<int>(FX::FXTable::ID_LAST));

namespace {

/// Writes down what the table tells: message, number of rows, and the row that goes.
class Target : public FX::FXObject {
 public:
  long handle(FXObject* sender, FX::FXSelector selector, void* data) override {
    const auto* table = dynamic_cast<const ItemDataTable*>(sender);
    if (table == nullptr) return 0;
    std::string text = std::to_string(FXSELTYPE(selector)) + "/" + std::to_string(FXSELID(selector)) + " of " +
                       std::to_string(table->getNumRows());
    if (FXSELID(selector) == ItemDataTable::ID_ADD_ROW) text += data == sender ? " itself" : " something else";
    if (FXSELID(selector) == ItemDataTable::ID_DELETE_ROW) {
      text += " row " + std::to_string(reinterpret_cast<FX::FXival>(data));
    }
    told.push_back(text);
    return 1;
  }

  Texts told;
};

class ItemDataTableTest : public testing::Test {
 protected:
  ItemDataTableTest()
      : window(new FX::FXMainWindow(app.get(), "window", nullptr, nullptr, FX::DECOR_ALL, 0, 0, 400, 300)),
        frame(new FX::FXHorizontalFrame(window, FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y)),
        table(new ItemDataTable(frame, &target, 63, FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y)) {}

  /// A table of one column whose rows hold these letters.
  void fill(const std::string& letters) {
    table->setTableSize(static_cast<FXint>(letters.size()), 1);
    for (size_t row = 0; row < letters.size(); ++row) {
      table->setItemText(static_cast<FXint>(row), 0, letters.substr(row, 1).c_str());
    }
  }
  std::string letters() const {
    std::string text;
    for (FXint row = 0; row < table->getNumRows(); ++row) text += table->getItemText(row, 0).text();
    return text;
  }
  long command(FX::FXuint message) { return table->handle(window, FXSEL(FX::SEL_COMMAND, message), nullptr); }
  void rightRelease(FX::FXbool moved) {
    FX::FXEvent event{};
    event.type = FX::SEL_RIGHTBUTTONRELEASE;
    event.moved = moved != 0;
    EXPECT_EQ(table->handle(window, FXSEL(FX::SEL_RIGHTBUTTONRELEASE, 0), &event), 1);
  }
  /// The menu of the table.
  FX::FXMenuPane* menu() const {
    for (FX::FXWindow* child = app_.getRootWindow()->getFirst(); child != nullptr; child = child->getNext()) {
      auto* pane = dynamic_cast<FX::FXMenuPane*>(child);
      if (pane != nullptr && pane->numChildren() == 2) return pane;
    }
    return nullptr;
  }
  std::vector<FX::FXMenuCommand*> commands() const { return descendantsOf<FX::FXMenuCommand>(menu()); }

  TestApplication app;
  const FX::FXApp& app_ = *app.get();
  Target target;
  FX::FXMainWindow* window;
  FX::FXHorizontalFrame* frame;
  ItemDataTable* table;
};

const std::string kAddRow = std::to_string(FX::SEL_COMMAND) + "/88 of ";
const std::string kDeleteRow = std::to_string(FX::SEL_COMMAND) + "/89 of ";

}  // namespace

TEST_F(ItemDataTableTest, isAClassOfItsOwn) {
  EXPECT_STREQ(ItemDataTable::metaClass.getClassName(), "ItemDataTable");
  EXPECT_EQ(ItemDataTable::metaClass.getBaseClass(), &FX::FXTable::metaClass);
  EXPECT_STREQ(table->getClassName(), "ItemDataTable");
  for (const FX::FXSelector message : {FXSEL(FX::SEL_COMMAND, 88), FXSEL(FX::SEL_COMMAND, 89)}) {
    EXPECT_NE(ItemDataTable::metaClass.search(message), nullptr);
    EXPECT_EQ(FX::FXTable::metaClass.search(message), nullptr);
  }
  const FX::FXSelector release = FXSEL(FX::SEL_RIGHTBUTTONRELEASE, 0);
  EXPECT_NE(ItemDataTable::metaClass.search(release), FX::FXTable::metaClass.search(release));
}

TEST_F(ItemDataTableTest, canBeManufactured) {
  static FX::FXObject* const made = ItemDataTable::metaClass.makeInstance();
  ASSERT_NE(made, nullptr);
  EXPECT_TRUE(made->isMemberOf(&ItemDataTable::metaClass));
  // It has no menu that it could open.
  FX::FXEvent event{};
  EXPECT_EQ(made->handle(nullptr, FXSEL(FX::SEL_RIGHTBUTTONRELEASE, 0), &event), 1);
}

TEST_F(ItemDataTableTest, hasNoRowHeaderAndNarrowMargins) {
  EXPECT_EQ(table->getTarget(), &target);
  EXPECT_EQ(table->getSelector(), 63u);
  EXPECT_EQ(table->getTableStyle(), static_cast<FX::FXuint>(FX::TABLE_COL_SIZABLE));
  EXPECT_EQ(table->getLayoutHints(), static_cast<FX::FXuint>(FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y));
  EXPECT_EQ(table->getRowHeaderWidth(), 0);
  EXPECT_EQ(table->getX(), 0);
  EXPECT_EQ(table->getY(), 0);
  EXPECT_EQ(table->getMarginLeft(), 2);
  EXPECT_EQ(table->getMarginRight(), 2);
  EXPECT_EQ(table->getMarginTop(), 2);
  EXPECT_EQ(table->getMarginBottom(), 2);
}

TEST_F(ItemDataTableTest, hasAMenuOfTwoCommands) {
  ASSERT_NE(menu(), nullptr);
  // Where the keys of its commands find an accelerator table.
  EXPECT_EQ(menu()->getOwner(), window);
  ASSERT_EQ(commands().size(), 2u);
  const FX::FXMenuCommand* add = commands()[0];
  EXPECT_STREQ(add->getText().text(), "Új sor");
  EXPECT_STREQ(add->getAccelText().text(), "Ins");
  EXPECT_EQ(add->getTarget(), table);
  EXPECT_EQ(add->getSelector(), 88u);
  EXPECT_EQ(add->getIcon(), app->getNewRowIcon());
  const FX::FXMenuCommand* remove = commands()[1];
  EXPECT_STREQ(remove->getText().text(), "Törlés");
  EXPECT_STREQ(remove->getAccelText().text(), "Del");
  EXPECT_EQ(remove->getTarget(), table);
  EXPECT_EQ(remove->getSelector(), 89u);
  EXPECT_EQ(remove->getIcon(), app->getDeleteIcon());
}

TEST_F(ItemDataTableTest, createsItsMenuAfterItself) {
  EXPECT_EQ(menu()->id(), 0u);
  app.create();
  EXPECT_NE(table->id(), 0u);
  EXPECT_NE(menu()->id(), 0u);
}

TEST_F(ItemDataTableTest, takesItsMenuAlongAndLeavesTheIcons) {
  app.create();
  delete table;
  EXPECT_EQ(menu(), nullptr);
  EXPECT_EQ(app->getNewRowIcon()->getWidth(), 16);
  EXPECT_EQ(app->getDeleteIcon()->getWidth(), 16);
}

TEST_F(ItemDataTableTest, appendsARowAndThenTells) {
  fill("AB");
  EXPECT_EQ(command(ItemDataTable::ID_ADD_ROW), 1);
  EXPECT_EQ(table->getNumRows(), 3);
  EXPECT_EQ(letters(), "AB");
  EXPECT_EQ(target.told, Texts{kAddRow + "3 itself"});
}

TEST_F(ItemDataTableTest, worksWithoutTarget) {
  table->setTarget(nullptr);
  fill("AB");
  EXPECT_EQ(command(ItemDataTable::ID_ADD_ROW), 1);
  EXPECT_EQ(table->getNumRows(), 3);
  table->setCurrentItem(0, 0);
  EXPECT_EQ(command(ItemDataTable::ID_DELETE_ROW), 1);
  EXPECT_EQ(letters(), "B");
}

TEST_F(ItemDataTableTest, tellsBeforeARowGoes) {
  fill("ABC");
  table->setCurrentItem(1, 0);
  EXPECT_EQ(command(ItemDataTable::ID_DELETE_ROW), 1);
  EXPECT_EQ(letters(), "AC");
  EXPECT_EQ(target.told, Texts{kDeleteRow + "3 row 1"});
}

TEST_F(ItemDataTableTest, deletesNothingWithoutCurrentOrSelectedRow) {
  fill("ABC");
  EXPECT_EQ(command(ItemDataTable::ID_DELETE_ROW), 1);
  EXPECT_EQ(letters(), "ABC");
  EXPECT_EQ(target.told, Texts());
}

TEST_F(ItemDataTableTest, deletesTheCurrentRowAndTheSelectedOnes) {
  fill("ABCD");
  table->setCurrentItem(3, 0);
  table->selectRow(0);
  command(ItemDataTable::ID_DELETE_ROW);
  // The second index is past the end by then.
  EXPECT_EQ(letters(), "BCD");
  EXPECT_EQ(target.told, Texts{kDeleteRow + "4 row 0"});
}

TEST_F(ItemDataTableTest, doesNotAdjustTheRowsThatFollow) {
  fill("ABCD");
  table->setCurrentItem(1, 0);
  table->selectRow(0);
  command(ItemDataTable::ID_DELETE_ROW);
  EXPECT_EQ(letters(), "BD");
  EXPECT_EQ(target.told, (Texts{kDeleteRow + "4 row 0", kDeleteRow + "3 row 1"}));
}

TEST_F(ItemDataTableTest, skipsRowsThatAreGone) {
  fill("ABC");
  table->setCurrentItem(2, 0);
  table->selectRange(0, 2, 0, 0);
  command(ItemDataTable::ID_DELETE_ROW);
  EXPECT_EQ(letters(), "B");
  EXPECT_EQ(target.told, (Texts{kDeleteRow + "3 row 0", kDeleteRow + "2 row 1"}));
}

TEST_F(ItemDataTableTest, aRowIsSelectedWhenAllOfItIs) {
  table->setTableSize(3, 2);
  table->setCurrentItem(2, 0);
  table->selectRange(0, 1, 0, 0);
  command(ItemDataTable::ID_DELETE_ROW);
  EXPECT_EQ(target.told, Texts{kDeleteRow + "3 row 2"});
}

TEST_F(ItemDataTableTest, opensNoMenuAfterADrag) {
  app.create();
  rightRelease(true);
  EXPECT_FALSE(menu()->shown());
}
