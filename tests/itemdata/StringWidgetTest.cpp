// The editor of text cells outside the table.

#include <memory>

#include "itemdata/Codes.h"
#include "itemdata/ItemDataEntry.h"
#include "tests/itemdata/ListFixture.h"
#include "tests/support/TestApplication.h"

using namespace Brontel::Plugin::ItemData;
using FX::FXDataTarget;
using FX::FXTextField;

namespace {

class StringWidgetTest : public ListFixture {
 protected:
  StringWidgetTest() : cell(newCell(TYPE_TEXT, 11, 0, "before", 0, &item)) {
    window = new FX::FXMainWindow(application.get(), "editors", nullptr, nullptr, FX::DECOR_ALL, 0, 0, 300, 200);
    targets = std::make_unique<MemoryGuard<FXDataTarget>>();
    cell->addWidget(window, *targets);
    field = dynamic_cast<FXTextField*>(window->getFirst());
    application.create();
    window->show(FX::PLACEMENT_SCREEN);
    application.waitUntil([this] { return window->shown() && window->getWidth() > 1; });
  }

  /// What the idle application does for every widget.
  void refresh() { field->handle(window, FXSEL(FX::SEL_UPDATE, 0), nullptr); }

  TestApplication application;
  std::unique_ptr<ItemDataEntry> cell;
  FX::FXMainWindow* window;
  std::unique_ptr<MemoryGuard<FXDataTarget>> targets;
  FXTextField* field;
};

}  // namespace

TEST_F(StringWidgetTest, isATextFieldOfTwoColumns) {
  ASSERT_NE(field, nullptr);
  EXPECT_EQ(window->numChildren(), 1);
  EXPECT_EQ(field->getNumColumns(), 2);
  EXPECT_EQ(field->getSelector(), static_cast<FX::FXSelector>(FXDataTarget::ID_VALUE));
  EXPECT_EQ(field->getFrameStyle(), 0x3000u);
  EXPECT_EQ(field->getLayoutHints(), 0x0401u);
  EXPECT_EQ(field->getTextStyle(), 0u);
  EXPECT_EQ(field->getPadLeft(), 2);
  EXPECT_EQ(field->getPadRight(), 2);
  EXPECT_EQ(field->getPadTop(), 2);
  EXPECT_EQ(field->getPadBottom(), 2);
}

TEST_F(StringWidgetTest, isBoundToTheValueByATargetOfTheGuardList) {
  ASSERT_EQ(targets->no(), 1);
  FXDataTarget* target = (*targets)[0];
  EXPECT_EQ(field->getTarget(), target);
  EXPECT_EQ(target->getType(), static_cast<FX::FXuint>(FXDataTarget::DT_STRING));
  EXPECT_EQ(FXDataTarget::DT_STRING, 11);
  EXPECT_EQ(target->getData(), &cell->value);
  cell->addWidget(window, *targets);
  EXPECT_EQ(targets->no(), 2);
  EXPECT_NE((*targets)[1], target);
}

TEST_F(StringWidgetTest, whatIsTypedReachesTheCell) {
  refresh();
  EXPECT_STREQ(field->getText().text(), "before");
  field->setText("typed", true);
  EXPECT_STREQ(cell->value.text(), "typed");
  field->setText("letter by letter");
  FX::FXString text = field->getText();
  field->getTarget()->handle(field, FXSEL(FX::SEL_CHANGED, field->getSelector()), const_cast<FX::FXchar*>(text.text()));
  EXPECT_STREQ(cell->value.text(), "letter by letter");
}

TEST_F(StringWidgetTest, aChangeFromOutsideIsShown) {
  refresh();
  cell->value = "outside %s";
  refresh();
  EXPECT_STREQ(field->getText().text(), "outside %s");
}

TEST_F(StringWidgetTest, targetsMayGoBeforeTheWindow) {
  targets.reset();
  delete window;
  EXPECT_STREQ(cell->value.text(), "before");
}

TEST_F(StringWidgetTest, theQuantityHasTheSameEditor) {
  const std::unique_ptr<ItemDataEntry> quantity(newCell(TYPE_QUANTITY, VARIABLE_QUANTITY, 1, "5", 0, &item));
  quantity->addWidget(window, *targets);
  EXPECT_NE(dynamic_cast<FXTextField*>(window->getLast()), nullptr);
  EXPECT_EQ((*targets)[1]->getData(), &quantity->value);
}
