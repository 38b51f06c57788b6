#include "fxext/widgets/FXDatePickerLabel.h"
#include "fxext/widgets/gallery/Picture.h"
#include "tests/fxext/widgets/Recorder.h"
#include "tests/fxext/widgets/StubHolidays.h"
#include "tests/fxext/widgets/WidgetTest.h"

using namespace FX;
using FXExt::FXDatePickerLabel;

class FXDatePickerLabelTest : public WidgetTest {
 protected:
  // Of equal size, so that pictures can be compared.
  FXDatePickerLabel* newLabel(FXObject* target = nullptr, FXSelector message = 0) {
    return new FXDatePickerLabel(content, target, message, LAYOUT_FIX_WIDTH | LAYOUT_FIX_HEIGHT, 0, 0, 30, 22);
  }

  const FXDate monday = FXDate(2022, 10, 3);
  const FXDate saturday = FXDate(2022, 10, 1);
  const FXDate sunday = FXDate(2022, 10, 2);
  const FXDate never = FXDate(2000, 1, 1);
  StubHolidays holidays;
  Recorder recorder;
};

TEST_F(FXDatePickerLabelTest, isALabel) {
  EXPECT_STREQ(FXDatePickerLabel::metaClass.getClassName(), "FXDatePickerLabel");
  EXPECT_EQ(FXDatePickerLabel::metaClass.getBaseClass(), &FXLabel::metaClass);
  EXPECT_EQ(FXMetaClass::getMetaClassFromName("FXDatePickerLabel"), &FXDatePickerLabel::metaClass);
  EXPECT_EQ(countOfMappedMessages(FXDatePickerLabel::metaClass), 3);
  EXPECT_TRUE(dynamic_cast<FXDatePickerLabel*>(manufacture(FXDatePickerLabel::metaClass)));
}

TEST_F(FXDatePickerLabelTest, beginsEmptyWithTheColoursOfTheApplication) {
  const FXDatePickerLabel* label = newLabel();
  EXPECT_EQ(label->getDay(), -1);
  EXPECT_FALSE(label->isValid() || label->isToday() || label->isWeekend() || label->isHoliday() || label->isSelected());
  EXPECT_STREQ(label->getText().text(), " ");
  EXPECT_EQ(label->getBackColor(), FXRGB(255, 255, 255));
  EXPECT_EQ(label->getSelBackColor(), app->getSelbackColor());
  EXPECT_EQ(label->getSelTextColor(), app->getSelforeColor());
  EXPECT_EQ(label->getWeekendTextColor(), FXRGB(255, 0, 0));
  EXPECT_NE(label->getHolidayTextColor(), label->getWeekendTextColor());
}

TEST_F(FXDatePickerLabelTest, knowsTheDayOfADate) {
  FXDatePickerLabel* label = newLabel();
  const bool weekend[7] = {false, false, false, false, false, true, true};
  for (FXint day = 0; day < 7; ++day) {
    label->init(monday + day, monday, nullptr);
    EXPECT_EQ(label->getDay(), 3 + day);
    EXPECT_STREQ(label->getText().text(), FXStringVal(3 + day).text());
    EXPECT_EQ(label->isToday(), day == 0);
    EXPECT_EQ(label->isWeekend(), weekend[day]) << day;
    EXPECT_FALSE(label->isHoliday());
    EXPECT_TRUE(label->isValid());
    EXPECT_FALSE(label->isSelected());
  }
}

TEST_F(FXDatePickerLabelTest, asksForHolidays) {
  FXDatePickerLabel* label = newLabel();
  holidays.add(monday);
  label->init(monday, never, &holidays);
  EXPECT_TRUE(label->isHoliday());
  label->init(sunday, never, &holidays);
  EXPECT_FALSE(label->isHoliday());
  EXPECT_EQ(holidays.asked(), 2);
}

TEST_F(FXDatePickerLabelTest, takesTheSelectionsColours) {
  FXDatePickerLabel* label = newLabel();
  label->init(monday, never, nullptr);
  label->setSelBackColor(FXRGB(1, 2, 3));
  label->setSelTextColor(FXRGB(4, 5, 6));
  label->select();
  EXPECT_TRUE(label->isSelected());
  EXPECT_EQ(label->getBackColor(), FXRGB(1, 2, 3));
  EXPECT_EQ(label->getTextColor(), FXRGB(4, 5, 6));
  label->deselect();
  EXPECT_FALSE(label->isSelected());
  EXPECT_EQ(label->getBackColor(), app->getBackColor());
}

TEST_F(FXDatePickerLabelTest, putsHolidayBeforeWeekend) {
  FXDatePickerLabel* label = newLabel();
  label->setHolidayTextColor(FXRGB(1, 2, 3));
  label->setWeekendTextColor(FXRGB(4, 5, 6));
  const auto textColour = [label](const FXDate& date, FXExt::FXDatePickerHoliday* feasts) {
    label->init(date, FXDate(2000, 1, 1), feasts);
    label->deselect();
    return label->getTextColor();
  };
  holidays.add(monday);
  holidays.add(sunday);
  EXPECT_EQ(textColour(monday, nullptr), app->getForeColor());
  EXPECT_EQ(textColour(sunday, nullptr), FXRGB(4, 5, 6));
  EXPECT_EQ(textColour(monday, &holidays), FXRGB(1, 2, 3));
  EXPECT_EQ(textColour(sunday, &holidays), FXRGB(1, 2, 3));
}

TEST_F(FXDatePickerLabelTest, isEmptyWithoutSelectionAfterReset) {
  FXDatePickerLabel* label = newLabel();
  holidays.add(sunday);
  label->init(sunday, sunday, &holidays);
  label->select();
  label->reset();
  EXPECT_EQ(label->getDay(), -1);
  EXPECT_FALSE(label->isValid() || label->isToday() || label->isWeekend() || label->isHoliday() || label->isSelected());
  EXPECT_STREQ(label->getText().text(), " ");
  EXPECT_EQ(label->getBackColor(), app->getBackColor());
  EXPECT_EQ(label->getTextColor(), app->getForeColor());
}

TEST_F(FXDatePickerLabelTest, tellsItsTargetOfAClick) {
  FXDatePickerLabel* label = newLabel(&recorder, 58);
  recorder.answer(SEL_LEFTBUTTONPRESS, 1);
  for (const FXuint type : {SEL_LEFTBUTTONPRESS, SEL_CLICKED}) {
    EXPECT_EQ(label->handle(window, FXSEL(type, 0), &recorder), 1);
    EXPECT_EQ(recorder.last(SEL_LEFTBUTTONPRESS).id, 58u);
    EXPECT_EQ(recorder.last(SEL_LEFTBUTTONPRESS).sender, label);
  }
  EXPECT_EQ(recorder.count(SEL_LEFTBUTTONPRESS), 2);
  recorder.answer(SEL_LEFTBUTTONPRESS, 0);
  EXPECT_EQ(label->handle(window, FXSEL(SEL_LEFTBUTTONPRESS, 0), nullptr), 0);
  label->setTarget(nullptr);
  EXPECT_EQ(label->handle(window, FXSEL(SEL_LEFTBUTTONPRESS, 0), nullptr), 0);
}

TEST_F(FXDatePickerLabelTest, isEquallyWideForEveryDay) {
  FXDatePickerLabel* label = newLabel();
  app.create();
  const FXint width = label->getDefaultWidth();
  for (FXint day = 0; day < 31; ++day) {
    label->init(saturday + day, never, nullptr);
    EXPECT_EQ(label->getDefaultWidth(), width);
    EXPECT_GE(width, label->getFont()->getTextWidth(label->getText()) + label->getPadLeft() + label->getPadRight());
  }
}

TEST_F(FXDatePickerLabelTest, framesTodayOnePixelInside) {
  FXDatePickerLabel* today = newLabel();
  FXDatePickerLabel* another = newLabel();
  FXDatePickerLabel* selected = newLabel();
  today->init(monday, monday, nullptr);
  another->init(monday, never, nullptr);
  selected->init(monday, monday, nullptr);
  selected->select();
  show();
  for (const FXDatePickerLabel* label : {today, another, selected}) {
    const Picture picture(label);
    const FXint right = picture.width() - 2;
    const FXint bottom = picture.height() - 2;
    for (const auto& [x, y] : {std::pair{1, 1}, {right, 1}, {1, bottom}, {right, bottom}, {15, 1}, {1, 11}}) {
      EXPECT_EQ(picture.at(x, y) == FXRGB(0, 0, 0), label != another) << x << ' ' << y;
    }
    EXPECT_NE(picture.at(0, 11), FXRGB(0, 0, 0));
    EXPECT_NE(picture.at(2, 11), FXRGB(0, 0, 0));
  }
}

// A cell for each of the sixteen combinations of today, weekend, holiday and selected, all with the same number.
TEST_F(FXDatePickerLabelTest, showsEveryCombinationOfMarksDifferently) {
  const FXDate tuesday(2022, 11, 1);
  holidays.add(tuesday);
  holidays.add(saturday);
  std::vector<FXDatePickerLabel*> labels;
  for (int marks = 0; marks < 16; ++marks) {
    const FXDate date = marks & 1 ? saturday : tuesday;
    labels.push_back(newLabel());
    labels.back()->init(date, marks & 2 ? date : never, marks & 4 ? &holidays : nullptr);
    if (marks & 8) {
      labels.back()->select();
    } else {
      labels.back()->deselect();
    }
  }
  show();
  std::vector<std::unique_ptr<Picture>> pictures;
  for (const FXDatePickerLabel* label : labels) pictures.push_back(std::make_unique<Picture>(label));
  const auto difference = [](const Picture& one, const Picture& two) {
    int count = 0;
    for (FXint y = 0; y < one.height(); ++y) {
      for (FXint x = 0; x < one.width(); ++x) count += one.at(x, y) != two.at(x, y);
    }
    return count;
  };
  for (size_t one = 0; one < pictures.size(); ++one) {
    for (size_t two = one + 1; two < pictures.size(); ++two) {
      EXPECT_GE(difference(*pictures[one], *pictures[two]), 6) << one << " and " << two;
    }
  }
}
