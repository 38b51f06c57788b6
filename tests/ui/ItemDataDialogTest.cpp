// The dialog as a window: its class, what it consists of, and how it ends.

#include <type_traits>

#include <fxkeys.h>

#include "itemdata/Codes.h"
#include "tests/support/RecordingObserver.h"
#include "tests/support/TestDatabase.h"
#include "tests/ui/DialogFixture.h"

using namespace Brontel::Plugin::ItemData;
using FX::FXint;

static_assert(std::is_base_of_v<FX::FXDialogBox, ItemDataDialog>);
static_assert(static_cast<int>(ItemDataDialog::ID_TABLE) == 63);
static_assert(static_cast<int>(ItemDataDialog::ID_TABLE) >= static_cast<int>(FX::FXDialogBox::ID_LAST));

class ItemDataDialogTest : public DialogFixture {
 protected:
  static std::vector<FX::FXWindow*> childrenOf(const FX::FXWindow* window) {
    std::vector<FX::FXWindow*> children;
    for (FX::FXWindow* child = window->getFirst(); child != nullptr; child = child->getNext()) {
      children.push_back(child);
    }
    return children;
  }

  /// The paddings left, right, top and bottom and the two spacings of a window.
  template <typename Packer>
  static std::vector<int> spaceIn(const Packer* frame) {
    return {frame->getPadLeft(),   frame->getPadRight(), frame->getPadTop(),
            frame->getPadBottom(), frame->getHSpacing(), frame->getVSpacing()};
  }

  FX::FXVerticalFrame* frame() const { return dynamic_cast<FX::FXVerticalFrame*>(dialog->getFirst()); }
};

TEST_F(ItemDataDialogTest, isAClassOfItsOwn) {
  EXPECT_STREQ(ItemDataDialog::metaClass.getClassName(), "ItemDataDialog");
  EXPECT_EQ(ItemDataDialog::metaClass.getBaseClass(), &FX::FXDialogBox::metaClass);
  EXPECT_STREQ(build().getClassName(), "ItemDataDialog");
}

TEST_F(ItemDataDialogTest, canBeManufactured) {
  // A manufactured window has no place on a display, so nobody can delete it.
  static FX::FXObject* const made = ItemDataDialog::metaClass.makeInstance();
  ASSERT_NE(made, nullptr);
  EXPECT_TRUE(made->isMemberOf(&ItemDataDialog::metaClass));
  for (const FX::FXSelector message : {FXSEL(FX::SEL_COMMAND, 88), FXSEL(FX::SEL_COMMAND, 89)}) {
    EXPECT_EQ(made->handle(nullptr, message, nullptr), 1);
  }
  EXPECT_EQ(made->handle(nullptr, FXSEL(FX::SEL_REPLACED, 63), nullptr), 1);
}

TEST_F(ItemDataDialogTest, mapsItsMessages) {
  for (const FX::FXSelector message :
       {FXSEL(FX::SEL_COMMAND, 88), FXSEL(FX::SEL_COMMAND, 89), FXSEL(FX::SEL_REPLACED, 63)}) {
    EXPECT_NE(ItemDataDialog::metaClass.search(message), nullptr);
    EXPECT_EQ(FX::FXDialogBox::metaClass.search(message), nullptr);
  }
}

TEST_F(ItemDataDialogTest, belongsToTheWindowThatOpensIt) {
  EXPECT_EQ(build().getOwner(), form);
  EXPECT_EQ(dialog->getDecorations(), static_cast<FX::FXuint>(FX::DECOR_ALL));
  EXPECT_EQ(spaceIn(dialog.get()), (std::vector{10, 10, 10, 10, 4, 4}));
}

TEST_F(ItemDataDialogTest, isNamedAfterTheItem) {
  EXPECT_STREQ(build().getTitle().text(), "Alma egyéb tételadatai");
  for (const char* name : {"100% \xC5\xB1 %s %d", "", "a\nb"}) {
    item.setName(name);
    EXPECT_EQ(build().getTitle(), FX::FXString(name) + " egyéb tételadatai");
  }
}

TEST_F(ItemDataDialogTest, withoutDataIsOnlyAnOkButton) {
  build();
  EXPECT_EQ(dialog->numChildren(), 1);
  ASSERT_NE(frame(), nullptr);
  EXPECT_EQ(frame()->getLayoutHints(), static_cast<FX::FXuint>(FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_Y));
  EXPECT_EQ(spaceIn(frame()), (std::vector{4, 4, 4, 4, 4, 4}));
  const auto parts = childrenOf(frame());
  ASSERT_EQ(parts.size(), 2u);
  const auto* separator = dynamic_cast<FX::FXHorizontalSeparator*>(parts[0]);
  ASSERT_NE(separator, nullptr);
  EXPECT_EQ(separator->getSeparatorStyle(), static_cast<FX::FXuint>(FX::SEPARATOR_GROOVE));
  EXPECT_EQ(separator->getLayoutHints(), static_cast<FX::FXuint>(FX::LAYOUT_FILL_X));
  EXPECT_EQ(separator->getPadLeft(), 1);
  EXPECT_EQ(separator->getPadRight(), 1);
  EXPECT_EQ(separator->getPadTop(), 0);
  EXPECT_EQ(separator->getPadBottom(), 0);
  const auto* buttons = dynamic_cast<FX::FXHorizontalFrame*>(parts[1]);
  ASSERT_NE(buttons, nullptr);
  EXPECT_EQ(buttons->getLayoutHints(), static_cast<FX::FXuint>(FX::LAYOUT_FILL_X));
  EXPECT_EQ(spaceIn(buttons), (std::vector{4, 4, 4, 4, 4, 4}));
  EXPECT_EQ(childrenOf(buttons), std::vector<FX::FXWindow*>{okButton()});
  EXPECT_EQ(table(), nullptr);
}

TEST_F(ItemDataDialogTest, hasOneButton) {
  newRows({});
  build();
  const FX::FXButton* ok = okButton();
  ASSERT_NE(ok, nullptr);
  EXPECT_STREQ(ok->getText().text(), "OK");
  EXPECT_EQ(ok->getIcon(), nullptr);
  EXPECT_EQ(ok->getSelector(), static_cast<FX::FXSelector>(FX::FXDialogBox::ID_ACCEPT));
  EXPECT_EQ(ok->getFrameStyle(), static_cast<FX::FXuint>(FX::FRAME_RAISED | FX::FRAME_THICK));
  EXPECT_NE(ok->getButtonStyle() & FX::BUTTON_INITIAL, 0u);
  EXPECT_EQ(ok->getPadLeft(), 20);
  EXPECT_EQ(ok->getPadRight(), 20);
  EXPECT_EQ(ok->getPadTop(), 2);
  EXPECT_EQ(ok->getPadBottom(), 2);
  // Beside it there are only buttons of the toolkit's own widgets.
  EXPECT_EQ(descendantsOf<FX::FXButton>(frame()->getLast()).size(), 1u);
}

TEST_F(ItemDataDialogTest, isSixHundredWide) {
  newRows({{"5", "A", ""}});
  EXPECT_EQ(build().getWidth(), 600);
  EXPECT_EQ(dialog->getHeight(), 400);
  open();
  EXPECT_EQ(dialog->getWidth(), 600);
  EXPECT_EQ(dialog->getHeight(), 400);
}

TEST_F(ItemDataDialogTest, foreignDataUnderTheKeyAreNone) {
  struct Foreign : Brontel::EntityMiscData {
    using EntityMiscData::EntityMiscData;
    Foreign* clone(Brontel::Entity*) const override { return nullptr; }
  };
  item.addMiscData(kMiscDataKey, new Foreign);
  build();
  EXPECT_EQ(childrenOf(frame()).size(), 2u);
}

TEST_F(ItemDataDialogTest, withoutItemIsEmptyToo) {
  const ItemDataDialog empty(form, nullptr);
  EXPECT_STREQ(empty.getTitle().text(), " egyéb tételadatai");
}

TEST_F(ItemDataDialogTest, leavesTheDataToTheirOwner) {
  ItemDataList& list = newRows({{"5", "A", "kék"}});
  open();
  close();
  EXPECT_EQ(cellsOf(list), (Texts{"-1/1=5", "12/1=A", "13/1=kék"}));
  EXPECT_EQ(ItemDataList::of(&item), &list);
  EXPECT_STREQ(item.getName().text(), "Alma");
}

TEST_F(ItemDataDialogTest, endsWithOneByOk) {
  newRows({{"", "", ""}});
  build();
  user.whenModal([this](FX::FXWindow& modal) {
    EXPECT_EQ(&modal, dialog.get());
    user.click(okButton());
  });
  EXPECT_EQ(dialog->execute(FX::PLACEMENT_CURSOR), 1u);
}

TEST_F(ItemDataDialogTest, endsWithOneByItsHotKey) {
  newRows({{"", "", ""}});
  build();
  user.whenModal([this](FX::FXWindow&) { user.key(FX::KEY_o, {FX::KEY_Alt_L}); });
  EXPECT_EQ(dialog->execute(FX::PLACEMENT_CURSOR), 1u);
}

TEST_F(ItemDataDialogTest, endsWithNoughtWhenClosedAndKeepsWhatWasTyped) {
  ItemDataList& list = newRows({{"5", "", ""}});
  build();
  user.whenModal([this](FX::FXWindow& modal) {
    goTo(0, 1);
    user.type("B-7");
    modal.handle(form, FXSEL(FX::SEL_CLOSE, 0), nullptr);
  });
  EXPECT_EQ(dialog->execute(FX::PLACEMENT_CURSOR), 0u);
  EXPECT_EQ(cellsOf(list), (Texts{"-1/1=5", "12/1=B-7", "13/1="}));
}

TEST_F(ItemDataDialogTest, endsWithNoughtByEscapeOutsideACell) {
  ItemDataList& list = newRows({{"5", "A", ""}});
  build();
  user.whenModal([this](FX::FXWindow&) {
    goTo(0, 1);
    user.type("new");
    user.key(FX::KEY_Escape);
    EXPECT_TRUE(dialog->shown());
    user.key(FX::KEY_Escape);
  });
  EXPECT_EQ(dialog->execute(FX::PLACEMENT_CURSOR), 0u);
  EXPECT_EQ(cellsOf(list), (Texts{"-1/1=5", "12/1=A", "13/1="}));
}

TEST_F(ItemDataDialogTest, answersTheCommandsOfItsBase) {
  newRows({});
  for (const auto& [message, result] : {std::pair{FX::FXDialogBox::ID_ACCEPT, 1u}, {FX::FXDialogBox::ID_CANCEL, 0u}}) {
    build();
    user.whenModal([this, message = message](FX::FXWindow& modal) {
      modal.handle(form, FXSEL(FX::SEL_COMMAND, message), nullptr);
    });
    EXPECT_EQ(dialog->execute(FX::PLACEMENT_CURSOR), result);
  }
}

TEST_F(ItemDataDialogTest, goesWithoutEverHavingBeenShown) {
  newListOf(perItemSettings());
  build();
  close();
  EXPECT_NE(ItemDataList::of(&item), nullptr);
}

TEST(DialogSavingTest, nothingRunsOnTheDatabase) {
  TestDatabase database;
  const RecordingObserver recorder(database.handle());
  struct Fixture : DialogFixture {
    explicit Fixture(MorvaneDatabase* db) : DialogFixture(db) {}
    void TestBody() override {
      newRows({{"3", "A", "kék"}}, true);
      open();
      user.key(FX::KEY_Insert);
      user.type("B");
      goTo(0, 0);
      user.key(FX::KEY_Delete);
      user.click(okButton());
      EXPECT_FALSE(dialog->shown());
      close();
    }
  };
  Fixture(database.get()).TestBody();
  EXPECT_EQ(recorder.texts(), std::vector<std::string>());
}
