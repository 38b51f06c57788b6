// The editor of list cells outside the table.

#include <fxkeys.h>

#include "fxext/widgets/FXComboBox.h"
#include "itemdata/Codes.h"
#include "tests/itemdata/EditorFixture.h"

using namespace Brontel::Plugin::ItemData;
using FX::FXDataTarget;
using FX::FXint;

namespace {

class ListWidgetTest : public EditorFixture {
 protected:
  ListWidgetTest() : EditorFixture(TYPE_LIST, "kék", "piros, kék ,zöld") { combo = comboOf(window->getFirst()); }

  static FXExt::FXComboBox* comboOf(FX::FXWindow* frame) { return dynamic_cast<FXExt::FXComboBox*>(frame->getFirst()); }

  /// The editor of another cell with these choices.
  FXExt::FXComboBox* comboFor(const char* choices) {
    cell->vvalue = choices;
    cell->addWidget(window, *targets);
    return comboOf(window->getLast());
  }

  static std::vector<std::string> itemsOf(const FXExt::FXComboBox* box) {
    std::vector<std::string> items;
    for (FXint i = 0; i < box->getNumItems(); ++i) items.emplace_back(box->getItem(i).text());
    return items;
  }

  static std::string choices(int count) {
    std::string list = "1";
    for (int i = 2; i <= count; ++i) list += "," + std::to_string(i);
    return list;
  }

  FXExt::FXComboBox* combo;
};

}  // namespace

TEST_F(ListWidgetTest, isATypeAheadComboBoxInAFrame) {
  ASSERT_NE(combo, nullptr);
  EXPECT_STREQ(combo->getMetaClass()->getClassName(), "FXExt::FXComboBox");
  auto* frame = dynamic_cast<FX::FXHorizontalFrame*>(window->getFirst());
  ASSERT_NE(frame, nullptr);
  EXPECT_EQ(frame->getFrameStyle(), 0x3000u);
  EXPECT_EQ(frame->getLayoutHints(), 0x0401u);
  EXPECT_EQ(frame->getPadLeft() + frame->getPadRight() + frame->getPadTop() + frame->getPadBottom(), 0);
  EXPECT_EQ(frame->numChildren(), 1);
  EXPECT_EQ(combo->getNumColumns(), 2);
  EXPECT_EQ(combo->getLayoutHints(), 0x0401u);
  EXPECT_FALSE(combo->isEditable());
  EXPECT_EQ(combo->getSelector(), static_cast<FX::FXSelector>(FXDataTarget::ID_VALUE));
}

TEST_F(ListWidgetTest, isBoundToTheValueByATargetOfTheGuardList) {
  ASSERT_EQ(targets->no(), 1);
  EXPECT_EQ(combo->getTarget(), (*targets)[0]);
  EXPECT_EQ((*targets)[0]->getType(), static_cast<FX::FXuint>(FXDataTarget::DT_STRING));
  EXPECT_EQ((*targets)[0]->getData(), &cell->value);
}

TEST_F(ListWidgetTest, offersABlankAndTheTrimmedChoicesInOrder) {
  EXPECT_EQ(itemsOf(combo), (std::vector<std::string>{" ", "piros", "kék", "zöld"}));
  EXPECT_EQ(itemsOf(comboFor("a,,a")), (std::vector<std::string>{" ", "a", "", "a"}));
  EXPECT_EQ(itemsOf(comboFor("")), (std::vector<std::string>{" ", ""}));
  EXPECT_EQ(itemsOf(comboFor("a,")), (std::vector<std::string>{" ", "a", ""}));
}

TEST_F(ListWidgetTest, showsAtMostTenRows) {
  for (const auto& [pieces, visible] : {std::pair{1, 2}, {3, 4}, {7, 8}, {8, 9}, {9, 10}, {20, 10}}) {
    EXPECT_EQ(comboFor(choices(pieces).c_str())->getNumVisible(), visible) << pieces;
  }
}

TEST_F(ListWidgetTest, keysStepFromTheRecordedChoice) {
  EXPECT_EQ(combo->getCurrentItem(), 2);
  combo->getFirst()->setFocus();
  application.waitUntil([this] { return combo->getFirst()->hasFocus(); });
  user.key(FX::KEY_Down);
  waitForValue("zöld");
  user.key(FX::KEY_Up);
  waitForValue("kék");
}

TEST_F(ListWidgetTest, typingFindsAChoice) {
  combo->getFirst()->setFocus();
  application.waitUntil([this] { return combo->getFirst()->hasFocus(); });
  user.type("zö");
  waitForValue("zöld");
  other->setFocus();
  application.processEvents();
  EXPECT_STREQ(cell->value.text(), "zöld");
}

TEST_F(ListWidgetTest, theBlankChoiceIsNoValue) {
  combo->setCurrentItem(0, true);
  EXPECT_STREQ(cell->value.text(), " ");
  EXPECT_STREQ(cell->getValue().text(), "");
}

TEST_F(ListWidgetTest, aValueThatIsNoChoiceIsShownAndKept) {
  cell->value = "lila";
  FXExt::FXComboBox* box = comboFor("piros,kék");
  EXPECT_EQ(box->getCurrentItem(), -1);
  refresh();
  EXPECT_STREQ(box->getText().text(), "lila");
  EXPECT_STREQ(cell->value.text(), "lila");
}

TEST_F(ListWidgetTest, aChangeFromOutsideIsShown) {
  cell->value = "piros";
  refresh();
  EXPECT_STREQ(combo->getText().text(), "piros");
}

TEST_F(ListWidgetTest, targetsMayGoBeforeTheWindow) {
  targets.reset();
  delete window;
  EXPECT_STREQ(cell->value.text(), "kék");
}
