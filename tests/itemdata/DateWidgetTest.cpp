// The editor of date cells outside the table.

#include "fxext/widgets/FXDateInput.h"
#include "itemdata/Codes.h"
#include "tests/itemdata/EditorFixture.h"

using namespace Brontel::Plugin::ItemData;
using FX::FXDataTarget;

namespace {

class DateWidgetTest : public EditorFixture {
 protected:
  DateWidgetTest() : EditorFixture(TYPE_DATE, "2024.03.05") {
    input = dynamic_cast<FXExt::FXDateInput*>(window->getFirst());
  }

  FX::FXTextField* field() const { return dynamic_cast<FX::FXTextField*>(input->getFirst()); }

  FXExt::FXDateInput* input;
};

}  // namespace

TEST_F(DateWidgetTest, isADateInputAsTheOthersLook) {
  ASSERT_NE(input, nullptr);
  EXPECT_STREQ(input->getMetaClass()->getClassName(), "FXDateInput");
  EXPECT_EQ(input->getSelector(), static_cast<FX::FXSelector>(FXDataTarget::ID_VALUE));
  EXPECT_EQ(input->getFrameStyle(), 0x3000u);
  EXPECT_EQ(input->getLayoutHints(), 0x0401u);
  ASSERT_NE(field(), nullptr);
  EXPECT_EQ(field()->getPadLeft(), 2);
  EXPECT_EQ(field()->getPadRight(), 2);
  EXPECT_EQ(field()->getPadTop(), 2);
  EXPECT_EQ(field()->getPadBottom(), 2);
}

TEST_F(DateWidgetTest, isBoundToTheValueByATargetOfTheGuardList) {
  ASSERT_EQ(targets->no(), 1);
  EXPECT_EQ(input->getTarget(), (*targets)[0]);
  EXPECT_EQ((*targets)[0]->getType(), static_cast<FX::FXuint>(FXDataTarget::DT_STRING));
  EXPECT_EQ((*targets)[0]->getData(), &cell->value);
}

TEST_F(DateWidgetTest, showsTheValueAndEachKeyReachesIt) {
  EXPECT_STREQ(field()->getText().text(), "2024.03.05");
  input->setFocus();
  application.waitUntil([this] { return field()->hasFocus(); });
  user.key('a', {0xffe3});  // Ctrl+A
  user.type("2025.1.31");
  waitForValue("2025.1.31");
  other->setFocus();
  application.processEvents();
  EXPECT_STREQ(cell->value.text(), "2025.1.31");
}

TEST_F(DateWidgetTest, aChangeFromOutsideIsShown) {
  cell->value = "2020.12.31";
  refresh();
  EXPECT_STREQ(field()->getText().text(), "2020.12.31");
}

TEST_F(DateWidgetTest, targetsMayGoBeforeTheWindow) {
  targets.reset();
  delete window;
  EXPECT_STREQ(cell->value.text(), "2024.03.05");
}
