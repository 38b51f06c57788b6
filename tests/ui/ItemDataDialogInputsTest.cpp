// The inputs for what is recorded once per item.

#include <fxkeys.h>

#include "fxext/widgets/FXComboBox.h"
#include "fxext/widgets/FXDateInput.h"
#include "itemdata/Codes.h"
#include "itemdata/ItemDataStringEntry.h"
#include "tests/ui/DialogFixture.h"

using namespace Brontel::Plugin::ItemData;
using FX::FXint;

class ItemDataDialogInputsTest : public DialogFixture {
 protected:
  FX::FXMatrix* matrix() const {
    const auto found = descendantsOf<FX::FXMatrix>(dialog->getFirst());
    for (FX::FXMatrix* candidate : found) {
      if (candidate->getParent() == dialog->getFirst()) return candidate;
    }
    return nullptr;
  }

  Texts labels() const {
    Texts texts;
    for (FX::FXWindow* child = matrix()->getFirst(); child != nullptr; child = child->getNext()) {
      if (child->getMetaClass() == &FX::FXLabel::metaClass) {
        texts.emplace_back(static_cast<FX::FXLabel*>(child)->getText().text());
      }
    }
    return texts;
  }

  /// The n-th input.
  FX::FXWindow* input(FXint n) const { return matrix()->childAtIndex(2 * n + 1); }
  FX::FXTextField* field(FXint n) const {
    if (auto* text = dynamic_cast<FX::FXTextField*>(input(n))) return text;
    return descendantsOf<FX::FXTextField>(input(n)).front();
  }
  /// Whether the keyboard is in the n-th input.
  bool isIn(FXint n) const { return focus() == input(n) || focus()->isChildOf(input(n)); }
};

TEST_F(ItemDataDialogInputsTest, standInAMatrixBesideTheirNames) {
  newListOf(perItemSettings());
  build();
  ASSERT_NE(matrix(), nullptr);
  EXPECT_EQ(matrix()->getNumColumns(), 2);
  EXPECT_EQ(matrix()->getMatrixStyle(), static_cast<FX::FXuint>(FX::MATRIX_BY_COLUMNS));
  EXPECT_EQ(matrix()->getLayoutHints(), static_cast<FX::FXuint>(FX::LAYOUT_FILL_X));
  for (const FXint space : {matrix()->getPadLeft(), matrix()->getPadRight(), matrix()->getPadTop(),
                            matrix()->getPadBottom(), matrix()->getHSpacing(), matrix()->getVSpacing()}) {
    EXPECT_EQ(space, 4);
  }
  EXPECT_EQ(matrix()->numChildren(), 6);
  EXPECT_EQ(labels(), (Texts{"Megjegyzés:", "Garancia:", "Típus:"}));
  EXPECT_NE(dynamic_cast<FX::FXTextField*>(input(0)), nullptr);
  EXPECT_NE(dynamic_cast<FXExt::FXDateInput*>(input(1)), nullptr);
  EXPECT_NE(dynamic_cast<FXExt::FXComboBox*>(input(2)->getFirst()), nullptr);
  const auto* label = static_cast<FX::FXLabel*>(matrix()->getFirst());
  EXPECT_EQ(label->getPadLeft(), 2);
  EXPECT_EQ(label->getPadRight(), 2);
  EXPECT_EQ(label->getPadTop(), 2);
  EXPECT_EQ(label->getPadBottom(), 2);
}

TEST_F(ItemDataDialogInputsTest, areTheWholeDialogWithoutPerUnitVariables) {
  newListOf(perItemSettings());
  build();
  EXPECT_EQ(table(), nullptr);
  EXPECT_EQ(dialog->getHeight(), matrix()->getHeight());
}

TEST_F(ItemDataDialogInputsTest, haveRoomInTheWindowAndSoHasTheButton) {
  newListOf(perItemSettings());
  open();
  EXPECT_EQ(dialog->getWidth(), 600);
  FXint x = 0;
  FXint y = 0;
  okButton()->translateCoordinatesTo(x, y, dialog.get(), 0, 0);
  EXPECT_GE(x, 0);
  EXPECT_LE(x + okButton()->getWidth(), dialog->getWidth());
  EXPECT_LE(y + okButton()->getHeight(), dialog->getHeight());
  EXPECT_GE(okButton()->getHeight(), okButton()->getDefaultHeight());
  for (FXint n = 0; n < 3; ++n) {
    EXPECT_GE(input(n)->getHeight(), input(n)->getDefaultHeight());
    EXPECT_GT(input(n)->getWidth(), 300);
  }
}

TEST_F(ItemDataDialogInputsTest, areAsManyAsTheGoodsCarryPerItem) {
  newListOf(newTemplate());
  build();
  EXPECT_EQ(labels(), Texts{"Megjegyzés:"});
  EXPECT_NE(table(), nullptr);
  EXPECT_EQ(dialog->getHeight(), 400);
}

TEST_F(ItemDataDialogInputsTest, areNoneForPerUnitVariablesAlone) {
  newRows({{"5", "A", ""}});
  build();
  EXPECT_EQ(matrix(), nullptr);
}

TEST_F(ItemDataDialogInputsTest, areOfTheListAndNotOfItsTemplate) {
  ItemDataList& list = newListOf(perItemSettings());
  list.at(0)->name = "Saját név";
  build();
  EXPECT_EQ(labels().front(), "Saját név:");
}

TEST_F(ItemDataDialogInputsTest, areNoMoreThanTheListHas) {
  ItemDataList& list = newListOf(perItemSettings());
  while (list.no() > 1) {
    delete list.at(1);
    list.erase(1);
  }
  build();
  EXPECT_EQ(labels(), Texts{"Megjegyzés:"});
}

TEST_F(ItemDataDialogInputsTest, showNamesAsTheyAreWritten) {
  auto settings = settingsOf({{TYPE_TEXT, 11, "A&B", false}, {TYPE_TEXT, 12, "a\tb\nc", false}});
  newListOf(std::move(settings));
  build();
  EXPECT_EQ(labels(), (Texts{"A&B:", "a b c:"}));
}

TEST_F(ItemDataDialogInputsTest, areMadeByTheCellsThemselves) {
  struct OddEntry : ItemDataStringEntry {
    void addWidget(FX::FXComposite* parent, MemoryGuard<FX::FXDataTarget>&) override { new FX::FXLabel(parent, "odd"); }
  };
  ItemDataList& list = newListOf(perItemSettings());
  delete list.at(0);
  list.at(0) = new OddEntry;
  list.at(0)->name = "Megjegyzés";
  build();
  EXPECT_EQ(labels(), (Texts{"Megjegyzés:", "odd", "Garancia:", "Típus:"}));
}

TEST_F(ItemDataDialogInputsTest, takeWhatIsTypedAtOnce) {
  ItemDataList& list = newListOf(perItemSettings());
  open();
  // Whoever opens the dialog can type.
  EXPECT_EQ(focus(), input(0));
  user.type("őszi");
  EXPECT_STREQ(list.at(0)->value.text(), "őszi");
  user.key(FX::KEY_Tab);
  EXPECT_TRUE(isIn(1));
  user.type("2024.03.05");
  EXPECT_STREQ(list.at(1)->value.text(), "2024.03.05");
}

TEST_F(ItemDataDialogInputsTest, showWhatHasBeenRecordedAlsoWhereTheKeyboardIs) {
  ItemDataList& list = newListOf(perItemSettings());
  list.at(0)->value = "recorded";
  list.at(1)->value = "2024.03.05";
  list.at(2)->value = "kék";
  open();
  ASSERT_TRUE(isIn(0));
  EXPECT_STREQ(field(0)->getText().text(), "recorded");
  EXPECT_STREQ(field(1)->getText().text(), "2024.03.05");
  EXPECT_STREQ(field(2)->getText().text(), "kék");
  user.key(FX::KEY_End);
  user.type("!");
  EXPECT_STREQ(list.at(0)->value.text(), "recorded!");
}

TEST_F(ItemDataDialogInputsTest, areWalkedThroughByEnter) {
  ItemDataList& list = newListOf(perItemSettings());
  open();
  user.type("one");
  user.key(FX::KEY_Return);
  EXPECT_TRUE(isIn(1));
  user.type("2024.01.31");
  user.key(FX::KEY_KP_Enter);
  EXPECT_TRUE(isIn(2));
  user.type("k");
  EXPECT_STREQ(list.at(2)->value.text(), "kék");
  user.key(FX::KEY_Return);
  EXPECT_EQ(focus(), okButton());
  EXPECT_TRUE(dialog->shown());
  user.key(FX::KEY_Return);
  EXPECT_FALSE(dialog->shown());
  EXPECT_EQ(cellsOf(list), (Texts{"11/0=one", "14/0=2024.01.31", "15/0=kék"}));
}

TEST_F(ItemDataDialogInputsTest, lieBeforeTheTable) {
  newListOf(newTemplate());
  open();
  EXPECT_TRUE(isIn(0));
  user.type("M");
  user.key(FX::KEY_Return);
  EXPECT_EQ(focus(), table());
  // The quantity has been offered, so the first thing to type is the batch.
  EXPECT_EQ(cursor(), "0,1");
  user.key(FX::KEY_Tab, {FX::KEY_Shift_L});
  user.key(FX::KEY_Tab, {FX::KEY_Shift_L});
  EXPECT_TRUE(isIn(0));
}

TEST_F(ItemDataDialogInputsTest, keepKeysOfTheirOwn) {
  ItemDataList& list = newListOf(perItemSettings());
  open();
  user.type("abc");
  user.key(FX::KEY_Home);
  user.key(FX::KEY_Delete);
  user.key(FX::KEY_Insert);
  EXPECT_STREQ(list.at(0)->value.text(), "bc");
}

TEST_F(ItemDataDialogInputsTest, insAndDelInAFieldDoNotReachTheTable) {
  ItemDataList& list = newListOf(newTemplate());
  open();
  user.type("abc");
  user.key(FX::KEY_Home);
  user.key(FX::KEY_Delete);
  EXPECT_STREQ(list.at(0)->value.text(), "bc");
  EXPECT_EQ(table()->getNumRows(), 1);
  user.key(FX::KEY_Insert);
  EXPECT_EQ(table()->getNumRows(), 1);
}

TEST_F(ItemDataDialogInputsTest, anOpenListDoesNotEndTheDialogByEnter) {
  ItemDataList& list = newListOf(perItemSettings());
  list.at(2)->value = "kék";
  open();
  auto* combo = dynamic_cast<FXExt::FXComboBox*>(input(2)->getFirst());
  user.click(descendantsOf<FX::FXMenuButton>(combo).front());
  ASSERT_TRUE(combo->isPaneShown());
  user.key(FX::KEY_Return);
  EXPECT_TRUE(dialog->shown());
  // The first arrow goes into the list, the second chooses.
  user.key(FX::KEY_Up);
  user.key(FX::KEY_Up);
  EXPECT_FALSE(combo->isPaneShown());
  EXPECT_STREQ(list.at(2)->value.text(), "piros");
  EXPECT_TRUE(isIn(2));
  user.key(FX::KEY_Return);
  EXPECT_TRUE(dialog->shown());
  EXPECT_EQ(focus(), okButton());
}

TEST_F(ItemDataDialogInputsTest, showChoicesAsConfigured) {
  newListOf(perItemSettings());
  build();
  auto* combo = dynamic_cast<FXExt::FXComboBox*>(input(2)->getFirst());
  ASSERT_EQ(combo->getNumItems(), 3);
  EXPECT_STREQ(combo->getItem(1).text(), "piros");
  EXPECT_STREQ(combo->getItem(2).text(), "kék");
}

TEST_F(ItemDataDialogInputsTest, closedInvoicesMayHaveRecordedFewer) {
  ItemDataList& list = newListOf(newTemplate());
  // What a load of a closed invoice leaves: no per-item cell, and per-unit ones from the start.
  delete list.at(0);
  list.no(0);
  addRow(list, 1, "5", "A", "kék", 101);
  list.firstRowIndex = 0;
  build();
  EXPECT_EQ(matrix(), nullptr);
  EXPECT_EQ(shown(), Texts{"5|A|kék"});
}
