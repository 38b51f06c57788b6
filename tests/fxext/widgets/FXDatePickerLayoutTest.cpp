#include <ctime>

#include "fxext/widgets/FXDateSteps.h"
#include "tests/fxext/widgets/OpenDatePicker.h"
#include "tests/fxext/widgets/WidgetTest.h"

using namespace FX;
using FXExt::FXDatePickerLabel;

// Where the days stand.

namespace {

// The C library's view of the first of a month: its weekday, Monday being 0, and the month's length.
struct LibraryMonth {
  LibraryMonth(int year, int month) {
    const time_t first = firstOf(year, month);
    tm parts;
    gmtime_r(&first, &parts);
    weekday = (parts.tm_wday + 6) % 7;
    length = static_cast<int>((month == 12 ? firstOf(year + 1, 1) : firstOf(year, month + 1)) - first) / 86400;
  }

  static time_t firstOf(int year, int month) {
    tm parts{};
    parts.tm_year = year - 1900;
    parts.tm_mon = month - 1;
    parts.tm_mday = 1;
    return timegm(&parts);
  }

  int weekday;
  int length;
};

}  // namespace

class FXDatePickerLayoutTest : public WidgetTest {
 protected:
  OpenDatePicker* picker = new OpenDatePicker(content, nullptr);
};

TEST_F(FXDatePickerLayoutTest, laysOutEveryMonthFrom1900To2900) {
  const FXDate today = FXDate::localDate();
  for (int year = 1900; year <= 2900; ++year) {
    for (int month = 1; month <= 12; ++month) {
      const LibraryMonth expected(year, month);
      picker->setSelectedDate(FXDate(year, month, expected.length));
      int wrong = 0;
      for (int i = 0; i < 42; ++i) {
        const FXDatePickerLabel* cell = picker->days[static_cast<size_t>(i)];
        const int day = i - expected.weekday + 1;
        const bool isDay = 1 <= day && day <= expected.length;
        const bool isToday = isDay && FXDate(year, month, day) == today;
        const FXString text = isDay ? FXStringVal(day) : FXString(" ");
        wrong += cell->isValid() != isDay || cell->getDay() != (isDay ? day : -1) || cell->getText() != text ||
                 cell->isWeekend() != (isDay && i % 7 >= 5) || cell->isSelected() != (day == expected.length) ||
                 cell->isToday() != isToday;
      }
      ASSERT_EQ(wrong, 0) << year << '-' << month;
    }
  }
}

TEST_F(FXDatePickerLayoutTest, stepsThroughEveryMonth) {
  picker->setSelectedDate(FXDate(1900, 1, 31));
  for (int year = 1900; year <= 2900; ++year) {
    for (int month = 1; month <= 12; ++month) {
      ASSERT_EQ(picker->getShownDate().year(), year);
      ASSERT_EQ(picker->getShownDate().month(), month);
      picker->onCmdNext(nullptr, 0, nullptr);
    }
  }
  EXPECT_EQ(text(picker->getShownDate()), "2901-01-28") << "the day stays at what the shortest month left";
}

TEST_F(FXDatePickerLayoutTest, useTheWholeGridWhenTheyMust) {
  picker->setSelectedDate(FXDate(2022, 10, 1));
  EXPECT_EQ(picker->days[5], picker->cell(1));
  EXPECT_EQ(picker->days[35], picker->cell(31));
  picker->setSelectedDate(FXDate(2024, 9, 1));
  EXPECT_EQ(picker->days[6], picker->cell(1));
  picker->setSelectedDate(FXDate(2024, 7, 1));
  EXPECT_EQ(picker->days[0], picker->cell(1));
}

TEST_F(FXDatePickerLayoutTest, leavesNoTraceOfTheMonthBefore) {
  picker->setSelectedDate(FXDate(2024, 1, 31));
  ASSERT_EQ(picker->selectedLabel, picker->days[30]);
  picker->onCmdNext(nullptr, 0, nullptr);
  picker->onCmdNext(nullptr, 0, nullptr);
  EXPECT_EQ(picker->countSelected(), 0);
  for (const FXDatePickerLabel* cell : picker->days) {
    EXPECT_EQ(cell->getBackColor(), app->getBackColor());
    if (!cell->isValid()) {
      EXPECT_STREQ(cell->getText().text(), " ");
      EXPECT_EQ(cell->getDay(), -1);
    }
  }
}

TEST_F(FXDatePickerLayoutTest, standsEachDayUnderItsWeekday) {
  auto* row = new FXHorizontalFrame(content, LAYOUT_FILL_X | LAYOUT_FILL_Y);
  auto* wide = new OpenDatePicker(row, nullptr, nullptr, 0, LAYOUT_FILL_X | LAYOUT_FILL_Y);
  show();
  const auto names = descendants<FXLabel>(wide->getFirst()->getNext());
  ASSERT_EQ(names.size(), 7u);
  const auto leftOf = [wide](const FXWindow* part) {
    FXint x = 0;
    FXint y = 0;
    part->translateCoordinatesTo(x, y, wide, 0, 0);
    return x;
  };
  for (FXint width = 500; width < 520; ++width) {
    window->resize(width, 500);
    settle();
    for (size_t i = 0; i < 7; ++i) {
      EXPECT_EQ(leftOf(names[i]), leftOf(wide->days[i])) << width;
      EXPECT_EQ(names[i]->getWidth(), wide->days[i]->getWidth()) << width;
    }
  }
}

TEST_F(FXDatePickerLayoutTest, hasTheSameSizeInEveryMonthAndWhileAYearIsEntered) {
  show();
  picker->setSelectedDate(FXDate(2024, 1, 1));
  const FXint width = picker->getDefaultWidth();
  const FXint height = picker->getDefaultHeight();
  for (int month = 1; month <= 12; ++month) {
    picker->setSelectedDate(FXDate(2024, month, 1));
    EXPECT_EQ(picker->getDefaultWidth(), width) << month;
    EXPECT_EQ(picker->getDefaultHeight(), height) << month;
    picker->showSpinner();
    EXPECT_EQ(picker->getDefaultWidth(), width) << month;
    EXPECT_EQ(picker->getDefaultHeight(), height) << month;
    picker->hideSpinner();
  }
}

TEST_F(FXDatePickerLayoutTest, growsWithTheFont) {
  FXFont large(app.get(), "Sans,240");
  FXFont* const usual = app->getNormalFont();
  app->setNormalFont(&large);
  auto* big = new OpenDatePicker(content, nullptr);
  app->setNormalFont(usual);
  show();
  EXPECT_GT(large.getFontHeight(), 2 * usual->getFontHeight());
  EXPECT_GT(big->getDefaultWidth(), 2 * picker->getDefaultWidth() * 3 / 4);
  EXPECT_GT(big->getDefaultHeight(), 2 * picker->getDefaultHeight() * 3 / 4);
  EXPECT_GT(descendants<FXArrowButton>(big)[0]->getArrowSize(), descendants<FXArrowButton>(picker)[0]->getArrowSize());
  for (const FXDatePickerLabel* cell : big->days) EXPECT_GE(cell->getHeight(), large.getFontHeight());
  delete big;
}

TEST(FXDateStepsTest, clampsToTheLastDayOfAMonth) {
  EXPECT_EQ(text(FXExt::clampedDate(2023, 2, 31)), "2023-02-28");
  EXPECT_EQ(text(FXExt::clampedDate(2024, 2, 31)), "2024-02-29");
  EXPECT_EQ(text(FXExt::clampedDate(1900, 2, 29)), "1900-02-28");
  EXPECT_EQ(text(FXExt::clampedDate(2000, 2, 29)), "2000-02-29");
  EXPECT_EQ(text(FXExt::clampedDate(2024, 12, 31)), "2024-12-31");
}

TEST(FXDateStepsTest, addsMonthsOverYears) {
  EXPECT_EQ(text(FXExt::addMonths(FXDate(2024, 1, 31), 1)), "2024-02-29");
  EXPECT_EQ(text(FXExt::addMonths(FXDate(2024, 1, 31), -1)), "2023-12-31");
  EXPECT_EQ(text(FXExt::addMonths(FXDate(2024, 6, 30), 30)), "2026-12-30");
  EXPECT_EQ(text(FXExt::addMonths(FXDate(2024, 6, 30), -30)), "2021-12-30");
  EXPECT_EQ(text(FXExt::addMonths(FXDate(1, 1, 15), -1)), "0000-12-15");
  EXPECT_EQ(FXExt::addMonths(FXDate(1, 1, 15), -14).year(), -1);
}
