#include <fxkeys.h>

#include "fxext/widgets/gallery/Picture.h"
#include "tests/fxext/widgets/OpenDatePicker.h"
#include "tests/fxext/widgets/Recorder.h"
#include "tests/fxext/widgets/StubHolidays.h"
#include "tests/fxext/widgets/WidgetTest.h"

using namespace FX;
using FXExt::FXDatePicker;
using FXExt::FXDatePickerLabel;

// The picker under somebody's hands.

class FXDatePickerEventsTest : public WidgetTest {
 protected:
  FXDatePickerEventsTest() : picker(new OpenDatePicker(content, &holidays, &recorder, 9)) {
    recorder.expect(SEL_CHANGED, Recorder::Date);
    recorder.expect(SEL_LEFTBUTTONPRESS, Recorder::Date);
    picker->setSelectedDate(FXDate(2024, 3, 5));
  }

  std::string shown() { return text(picker->getShownDate()); }
  std::string selected() { return text(picker->getSelectedDate()); }
  FXArrowButton* arrow(bool next) { return descendants<FXArrowButton>(picker).at(next ? 3 : 0); }
  FXTextField* yearEntry() { return static_cast<FXTextField*>(picker->yearSpinner->getFirst()); }

  StubHolidays holidays;
  Recorder recorder;
  OpenDatePicker* picker;
};

TEST_F(FXDatePickerEventsTest, aClickPicksADay) {
  show();
  click(picker->cell(17));
  EXPECT_EQ(selected(), "2024-03-17");
  ASSERT_EQ(recorder.count(SEL_LEFTBUTTONPRESS), 1);
  EXPECT_EQ(text(recorder.last(SEL_LEFTBUTTONPRESS).date), "2024-03-17");
  click(picker->days[0]);
  EXPECT_EQ(recorder.count(SEL_LEFTBUTTONPRESS), 1) << "an empty cell";
  EXPECT_EQ(selected(), "2024-03-17");
}

TEST_F(FXDatePickerEventsTest, theArrowsStepByMouseAndKeyboard) {
  show();
  ASSERT_EQ(arrow(false)->getSelector(), static_cast<FXuint>(FXDatePicker::ID_PREVIOUS));
  ASSERT_EQ(arrow(true)->getSelector(), static_cast<FXuint>(FXDatePicker::ID_NEXT));
  click(arrow(true));
  EXPECT_EQ(shown(), "2024-04-05");
  click(arrow(false));
  click(arrow(false));
  EXPECT_EQ(shown(), "2024-02-05");
  EXPECT_EQ(recorder.count(SEL_CHANGED), 3);
  EXPECT_TRUE(arrow(false)->hasFocus());
  key(KEY_space);
  EXPECT_EQ(shown(), "2024-01-05");
  key(KEY_Tab);
  EXPECT_TRUE(picker->yearLabel->hasFocus());
  key(KEY_Tab);
  key(KEY_space);
  EXPECT_EQ(shown(), "2024-02-05");
  EXPECT_EQ(selected(), "2024-03-05");
}

TEST_F(FXDatePickerEventsTest, anArrowHeldDownGoesOn) {
  show();
  moveTo(arrow(true));
  events.pressButton();
  EXPECT_TRUE(waitUntil([this] { return recorder.count(SEL_CHANGED) >= 3; }));
  events.releaseButton();
  settle();
  const int steps = recorder.count(SEL_CHANGED);
  settle();
  EXPECT_EQ(recorder.count(SEL_CHANGED), steps);
}

TEST_F(FXDatePickerEventsTest, theWheelStepsOverCellsAndLabels) {
  show();
  moveTo(picker->cell(17));
  events.wheel(-1);
  settle();
  EXPECT_EQ(shown(), "2024-04-05");
  moveTo(picker->monthLabel);
  events.wheel(1);
  settle();
  events.wheel(1);
  settle();
  EXPECT_EQ(shown(), "2024-02-05");
  picker->disable();
  events.wheel(1);
  settle();
  EXPECT_EQ(shown(), "2024-02-05");
}

TEST_F(FXDatePickerEventsTest, aYearCanBeClickedTypedAndTaken) {
  show();
  click(picker->yearLabel);
  ASSERT_TRUE(picker->isSpinnerShown());
  EXPECT_TRUE(yearEntry()->hasFocus());
  type("2030");
  EXPECT_STREQ(yearEntry()->getText().text(), "2030") << "typed over what was there";
  EXPECT_EQ(shown(), "2024-03-05");
  key(KEY_Return);
  EXPECT_FALSE(picker->isSpinnerShown());
  EXPECT_EQ(shown(), "2030-03-05");
  EXPECT_STREQ(picker->yearLabel->getText().text(), "2030");
  EXPECT_TRUE(picker->yearLabel->hasFocus()) << "the keyboard is not lost";
  key(KEY_space);
  EXPECT_TRUE(picker->isSpinnerShown());
  EXPECT_EQ(recorder.count(SEL_CHANGED), 0);
}

TEST_F(FXDatePickerEventsTest, aYearCanBeSpun) {
  show();
  click(picker->yearLabel);
  key(KEY_Up);
  key(KEY_Up);
  key(KEY_Down);
  EXPECT_EQ(shown(), "2025-03-05");
  moveTo(yearEntry());
  events.wheel(-1);
  settle();
  EXPECT_EQ(shown(), "2024-03-05");
  click(descendants<FXArrowButton>(picker->yearSpinner).at(0));
  EXPECT_EQ(shown(), "2025-03-05");
  EXPECT_TRUE(picker->isSpinnerShown());
}

TEST_F(FXDatePickerEventsTest, aYearOutOfRangeIsBroughtInto) {
  show();
  click(picker->yearLabel);
  type("12");
  key(KEY_Return);
  EXPECT_EQ(shown(), "1900-03-05");
  click(picker->yearLabel);
  type("9999");
  key(KEY_Return);
  EXPECT_EQ(shown(), "2900-03-05");
}

TEST_F(FXDatePickerEventsTest, aDayClickedWhileAYearIsTypedIsOfThatYear) {
  picker->setSelectedDate(FXDate(2024, 2, 29));
  show();
  click(picker->yearLabel);
  type("2031");
  FXDatePickerLabel* const lastOfFebruary = picker->cell(29);
  click(lastOfFebruary);
  EXPECT_FALSE(picker->isSpinnerShown());
  EXPECT_EQ(selected(), "2031-02-28");
  EXPECT_TRUE(picker->cell(28)->isSelected());
  EXPECT_EQ(picker->countSelected(), 1);
  EXPECT_EQ(text(recorder.last(SEL_LEFTBUTTONPRESS).date), "2031-02-28");
}

TEST_F(FXDatePickerEventsTest, aYearTypedIsTakenWhenAnArrowIsClicked) {
  show();
  click(picker->yearLabel);
  type("2031");
  click(arrow(true));
  EXPECT_EQ(shown(), "2031-04-05");
  EXPECT_FALSE(picker->isSpinnerShown());
}

// A spot painted over a cell stays until the cell is painted anew.
TEST_F(FXDatePickerEventsTest, repaintsTheCellsThatChangeAndNoOthers) {
  show();
  constexpr FXColor spot = FXRGB(255, 0, 255);
  for (FXDatePickerLabel* cell : picker->days) {
    FXDCWindow dc(cell);
    dc.setForeground(spot);
    dc.fillRectangle(0, 0, 2, 2);
  }
  const auto isUntouched = [](const FXDatePickerLabel* cell) { return Picture(cell).at(0, 0) == spot; };
  click(picker->cell(6));
  for (const FXDatePickerLabel* cell : picker->days) {
    const bool changed = cell == picker->cell(5) || cell == picker->cell(6);
    EXPECT_EQ(isUntouched(cell), !changed) << cell->getDay();
  }
  picker->setSelectedDate(FXDate(2024, 3, 7));
  settle();
  EXPECT_TRUE(isUntouched(picker->cell(20)));
  EXPECT_FALSE(isUntouched(picker->cell(7)));
}

TEST_F(FXDatePickerEventsTest, theFocusShowsOnItsArrows) {
  show();
  const auto darkPixels = [](const FXWindow* widget) {
    const Picture picture(widget);
    int count = 0;
    for (FXint y = 0; y < picture.height(); ++y) {
      for (FXint x = 0; x < picture.width(); ++x) count += picture.at(x, y) != FXRGB(212, 208, 200);
    }
    return count;
  };
  const int without = darkPixels(arrow(true));
  arrow(true)->setFocus();
  settle();
  EXPECT_GT(darkPixels(arrow(true)), without + 10);
  arrow(false)->setFocus();
  settle();
  EXPECT_EQ(darkPixels(arrow(true)), without);
}

TEST_F(FXDatePickerEventsTest, disabledCellsTakeNoClicks) {
  show();
  picker->disable();
  click(picker->cell(17));
  click(arrow(true));
  click(picker->yearLabel);
  EXPECT_EQ(selected(), "2024-03-05");
  EXPECT_EQ(shown(), "2024-03-05");
  EXPECT_FALSE(picker->isSpinnerShown());
  EXPECT_EQ(recorder.count(SEL_CHANGED) + recorder.count(SEL_LEFTBUTTONPRESS), 0);
}
