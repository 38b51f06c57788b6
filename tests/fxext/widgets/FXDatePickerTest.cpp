#include "fxext/widgets/FXDatePicker.h"

// clang-format off
#include <fx.h>  // Before its parts.
#include <FXTranslator.h>
// clang-format on
#include <fxkeys.h>

#include "tests/fxext/widgets/OpenDatePicker.h"
#include "tests/fxext/widgets/Recorder.h"
#include "tests/fxext/widgets/StubHolidays.h"
#include "tests/fxext/widgets/WidgetTest.h"

using namespace FX;
using FXExt::FXDatePicker;
using FXExt::FXDatePickerLabel;

// What the picker is and does, by messages.

class FXDatePickerTest : public WidgetTest {
 protected:
  FXDatePickerTest() : picker(new OpenDatePicker(content, &holidays, &recorder, 9)) {
    recorder.expect(SEL_CHANGED, Recorder::Date);
    recorder.expect(SEL_LEFTBUTTONPRESS, Recorder::Date);
  }

  long send(FXuint type, FXuint id, void* data = nullptr) { return picker->handle(window, FXSEL(type, id), data); }
  long pick(FXObject* cell) { return picker->handle(cell, FXSEL(SEL_LEFTBUTTONPRESS, FXDatePicker::ID_DAY), nullptr); }

  void expectShown(const FXDate& date, int notified) {
    EXPECT_EQ(text(picker->getShownDate()), text(date));
    EXPECT_STREQ(picker->monthLabel->getText().text(), FXDate::monthName(date.month()));
    EXPECT_EQ(FXIntVal(picker->yearLabel->getText()), date.year());
    ASSERT_EQ(recorder.count(SEL_CHANGED), notified);
    if (notified > 0) {
      EXPECT_EQ(text(recorder.last(SEL_CHANGED).date), text(date));
    }
    recorder.clear();
  }

  StubHolidays holidays;
  Recorder recorder;
  OpenDatePicker* picker;
};

TEST_F(FXDatePickerTest, isAFrame) {
  EXPECT_STREQ(FXDatePicker::metaClass.getClassName(), "FXDatePicker");
  EXPECT_EQ(FXDatePicker::metaClass.getBaseClass(), &FXVerticalFrame::metaClass);
  EXPECT_EQ(FXMetaClass::getMetaClassFromName("FXDatePicker"), &FXDatePicker::metaClass);
}

TEST_F(FXDatePickerTest, hasNoPartsWhenManufactured) {
  auto* made = dynamic_cast<FXDatePicker*>(manufacture(FXDatePicker::metaClass));
  ASSERT_TRUE(made);
  EXPECT_EQ(OpenDatePicker::monthLabelOf(*made), nullptr);
  EXPECT_EQ(OpenDatePicker::yearLabelOf(*made), nullptr);
  EXPECT_EQ(OpenDatePicker::yearSpinnerOf(*made), nullptr);
  EXPECT_EQ(OpenDatePicker::selectedLabelOf(*made), nullptr);
  EXPECT_EQ(OpenDatePicker::holidayOf(*made), nullptr);
}

TEST_F(FXDatePickerTest, mapsItsNineMessages) {
  const auto isMapped = [](FXuint type, FXuint id, long (FXDatePicker::*handler)(FXObject*, FXSelector, void*)) {
    const auto* entry = static_cast<const FXDatePicker::FXMapEntry*>(FXDatePicker::metaClass.search(FXSEL(type, id)));
    return entry && entry->func == handler;
  };
  EXPECT_TRUE(isMapped(SEL_COMMAND, 55, &FXDatePicker::onCmdPrev));
  EXPECT_TRUE(isMapped(SEL_COMMAND, 56, &FXDatePicker::onCmdNext));
  EXPECT_TRUE(isMapped(SEL_COMMAND, 57, &FXDatePicker::onCmdToday));
  EXPECT_TRUE(isMapped(SEL_LEFTBUTTONPRESS, 58, &FXDatePicker::onLabelSelected));
  EXPECT_TRUE(isMapped(SEL_COMMAND, 59, &FXDatePicker::onCmdYear));
  EXPECT_TRUE(isMapped(SEL_COMMAND, 60, &FXDatePicker::onCmdYearNo));
  EXPECT_TRUE(isMapped(SEL_KEYPRESS, 60, &FXDatePicker::onKpYearNo));
  EXPECT_TRUE(isMapped(SEL_MOUSEWHEEL, 0, &FXDatePicker::onVMouseWheel));
  EXPECT_TRUE(isMapped(SEL_KEYPRESS, 0, &FXComposite::onKeyPress));
  EXPECT_EQ(countOfMappedMessages(FXDatePicker::metaClass), 9);
}

TEST_F(FXDatePickerTest, keepsTheArguments) {
  const FXDatePicker full(content, nullptr, &recorder, 9, 0x3400, 1, 2, 30, 40, 5, 6, 7, 8);
  EXPECT_EQ(full.getTarget(), &recorder);
  EXPECT_EQ(full.getSelector(), 9u);
  EXPECT_EQ(full.getFrameStyle(), static_cast<FXuint>(FRAME_LINE));
  EXPECT_TRUE(full.getLayoutHints() & LAYOUT_FILL_X);
  EXPECT_EQ(full.getX(), 1);
  EXPECT_EQ(full.getY(), 2);
  EXPECT_EQ(full.getWidth(), 30);
  EXPECT_EQ(full.getHeight(), 40);
  EXPECT_EQ(full.getPadLeft(), 5);
  EXPECT_EQ(full.getPadRight(), 6);
  EXPECT_EQ(full.getPadTop(), 7);
  EXPECT_EQ(full.getPadBottom(), 8);
}

TEST_F(FXDatePickerTest, beginsWithTodaySelected) {
  const FXDate today = FXDate::localDate();
  EXPECT_EQ(text(picker->getSelectedDate()), text(today));
  EXPECT_TRUE(picker->cell(today.day())->isToday());
  EXPECT_TRUE(picker->cell(today.day())->isSelected());
  EXPECT_EQ(picker->countSelected(), 1);
  EXPECT_EQ(holidays.asked(), today.daysInMonth()) << "filled once";
}

TEST_F(FXDatePickerTest, hasAHeaderAndAGrid) {
  std::vector<FXuint> selectors;
  for (const FXArrowButton* arrow : descendants<FXArrowButton>(picker)) {
    if (arrow->getTarget() == picker) selectors.push_back(arrow->getSelector());
  }
  EXPECT_EQ(selectors, (std::vector<FXuint>{55, 56}));
  const auto grids = descendants<FXMatrix>(picker);
  ASSERT_EQ(grids.size(), 1u);
  EXPECT_EQ(grids[0]->getNumColumns(), 7);
  EXPECT_EQ(grids[0]->numChildren(), 42);
  const auto cells = descendants<FXDatePickerLabel>(grids[0]);
  ASSERT_EQ(cells.size(), 42u);
  for (size_t i = 0; i < cells.size(); ++i) {
    EXPECT_EQ(cells[i], picker->days[i]);
    EXPECT_EQ(cells[i]->getTarget(), picker);
    EXPECT_EQ(cells[i]->getSelector(), 58u);
  }
  for (FXWindow* part : descendants<FXWindow>(picker)) {
    FXuint const selector = part->getTarget() == picker ? part->getSelector() : 0;
    EXPECT_NE(selector, 57u) << "nothing sends today";
  }
}

TEST_F(FXDatePickerTest, namesTheWeekdaysFromMondayInTheFontOfTheDays) {
  const FXWindow* row = picker->getFirst()->getNext();
  std::vector<std::string> names;
  for (const FXLabel* name : descendants<FXLabel>(row)) {
    names.emplace_back(name->getText().text());
    EXPECT_EQ(name->getFont(), picker->days[0]->getFont());
  }
  EXPECT_EQ(names, (std::vector<std::string>{"Mon", "Tue", "Wed", "Thu", "Fri", "Sat", "Sun"}));
}

class Shouting : public FXTranslator {
 public:
  using FXTranslator::FXTranslator;

  const FXchar* tr(const FXchar* context, const FXchar* message, const FXchar*) const override {
    static FXString shouted;
    shouted = FXString(context) + "!" + message;
    return shouted.text();
  }
};

TEST_F(FXDatePickerTest, asksTheTranslatorForNames) {
  delete app->getTranslator();
  app->setTranslator(new Shouting(app.get()));
  OpenDatePicker translated(content, nullptr);
  translated.setSelectedDate(FXDate(2024, 3, 5));
  EXPECT_STREQ(translated.monthLabel->getText().text(), "FXDatePicker!March");
  EXPECT_STREQ(descendants<FXLabel>(translated.getFirst()->getNext())[0]->getText().text(), "FXDatePicker!Mon");
}

TEST_F(FXDatePickerTest, showsTheYearInFourDigitsAndEntersItIn1900To2900) {
  FXint low = 0;
  FXint high = 0;
  picker->yearSpinner->getRange(low, high);
  EXPECT_EQ(low, 1900);
  EXPECT_EQ(high, 2900);
  EXPECT_FALSE(picker->yearSpinner->shown());
  EXPECT_TRUE(picker->yearLabel->shown());
  picker->setSelectedDate(FXDate(987, 1, 1));
  EXPECT_STREQ(picker->yearLabel->getText().text(), "0987");
  EXPECT_EQ(picker->yearSpinner->getValue(), 1900);
  EXPECT_EQ(recorder.messages().size(), 0u);
}

TEST_F(FXDatePickerTest, selectsADateSilently) {
  const FXDate date(2024, 2, 29);
  EXPECT_EQ(text(picker->setSelectedDate(date)), text(date));
  EXPECT_EQ(text(picker->getSelectedDate()), text(date));
  EXPECT_TRUE(picker->isShowing(date));
  EXPECT_EQ(picker->selectedLabel, picker->cell(29));
  expectShown(date, 0);
  EXPECT_EQ(recorder.messages().size(), 0u);
}

TEST_F(FXDatePickerTest, takesOverNewHolidaysOnReset) {
  picker->setSelectedDate(FXDate(2024, 3, 5));
  holidays.add(FXDate(2024, 3, 15));
  EXPECT_FALSE(picker->cell(15)->isHoliday());
  picker->reset();
  EXPECT_TRUE(picker->cell(15)->isHoliday());
  EXPECT_EQ(recorder.messages().size(), 0u);
}

TEST_F(FXDatePickerTest, stepsMonthsOverYearEndsAndShortMonths) {
  struct Step {
    FXDate from;
    FXuint id;
    FXDate to;
  };
  const Step steps[] = {
      {FXDate(2023, 12, 15), 56, FXDate(2024, 1, 15)}, {FXDate(2024, 1, 15), 55, FXDate(2023, 12, 15)},
      {FXDate(2023, 1, 31), 56, FXDate(2023, 2, 28)},  {FXDate(2024, 1, 31), 56, FXDate(2024, 2, 29)},
      {FXDate(2024, 3, 31), 55, FXDate(2024, 2, 29)},  {FXDate(2024, 10, 31), 56, FXDate(2024, 11, 30)},
      {FXDate(1900, 1, 7), 55, FXDate(1899, 12, 7)},   {FXDate(2900, 12, 7), 56, FXDate(2901, 1, 7)},
  };
  for (const Step& step : steps) {
    picker->setSelectedDate(step.from);
    picker->showSpinner();
    EXPECT_EQ(send(SEL_COMMAND, step.id), 1);
    EXPECT_FALSE(picker->isSpinnerShown());
    EXPECT_EQ(text(picker->getSelectedDate()), text(step.from));
    EXPECT_EQ(picker->countSelected(), 0);
    EXPECT_EQ(picker->selectedLabel, nullptr);
    expectShown(step.to, 1);
  }
}

TEST_F(FXDatePickerTest, tellsOfAStepByItsOwnMessage) {
  send(SEL_COMMAND, FXDatePicker::ID_NEXT);
  EXPECT_EQ(recorder.last(SEL_CHANGED).id, 9u);
  EXPECT_EQ(recorder.last(SEL_CHANGED).sender, picker);
}

TEST_F(FXDatePickerTest, stepsYearsRoundTheEnds) {
  const auto expectStep = [this](const FXDate& from, int years, const FXDate& to) {
    picker->setSelectedDate(from);
    if (years > 0) {
      picker->incYear();
    } else {
      picker->decYear();
    }
    EXPECT_EQ(text(picker->getSelectedDate()), text(from));
    expectShown(to, 1);
  };
  expectStep(FXDate(2024, 5, 6), 1, FXDate(2025, 5, 6));
  expectStep(FXDate(2024, 5, 6), -1, FXDate(2023, 5, 6));
  expectStep(FXDate(1900, 5, 6), -1, FXDate(2900, 5, 6));
  expectStep(FXDate(2900, 5, 6), 1, FXDate(1900, 5, 6));
  expectStep(FXDate(1200, 5, 6), 1, FXDate(2900, 5, 6));
  expectStep(FXDate(2024, 2, 29), 1, FXDate(2025, 2, 28));
  expectStep(FXDate(2024, 2, 29), -1, FXDate(2023, 2, 28));
}

TEST_F(FXDatePickerTest, goesToToday) {
  picker->setSelectedDate(FXDate(1999, 1, 1));
  EXPECT_EQ(send(SEL_COMMAND, FXDatePicker::ID_TODAY), 1);
  expectShown(FXDate::localDate(), 1);
  EXPECT_EQ(text(picker->getSelectedDate()), "1999-01-01");
}

TEST_F(FXDatePickerTest, entersAYearSilently) {
  picker->setSelectedDate(FXDate(2024, 2, 29));
  EXPECT_EQ(send(SEL_COMMAND, FXDatePicker::ID_YEAR), 1);
  EXPECT_TRUE(picker->yearSpinner->shown());
  EXPECT_FALSE(picker->yearLabel->shown());
  picker->yearSpinner->setValue(2023);
  EXPECT_EQ(send(SEL_COMMAND, FXDatePicker::ID_YEARENTRY), 1);
  EXPECT_TRUE(picker->isSpinnerShown());
  expectShown(FXDate(2023, 2, 28), 0);
  picker->hideSpinner();
  EXPECT_FALSE(picker->yearSpinner->shown());
  EXPECT_TRUE(picker->yearLabel->shown());
}

TEST_F(FXDatePickerTest, endsTheEntryOfAYearOnReturnOnly) {
  picker->setSelectedDate(FXDate(2024, 3, 5));
  picker->showSpinner();
  picker->yearSpinner->setValue(2031);
  for (const FXint code : {KEY_KP_Enter, KEY_1, KEY_Escape}) {
    FXEvent other = keyPress(code);
    EXPECT_EQ(send(SEL_KEYPRESS, FXDatePicker::ID_YEARENTRY, &other), 0);
    EXPECT_TRUE(picker->isSpinnerShown());
    expectShown(FXDate(2024, 3, 5), 0);
  }
  FXEvent enter = keyPress(KEY_Return);
  EXPECT_EQ(send(SEL_KEYPRESS, FXDatePicker::ID_YEARENTRY, &enter), 1);
  EXPECT_FALSE(picker->isSpinnerShown());
  expectShown(FXDate(2031, 3, 5), 0);
}

TEST_F(FXDatePickerTest, turnsTheMonthByTheWheel) {
  for (const auto& [code, month] : {std::pair{120, 2}, {0, 2}, {-120, 4}, {-240, 4}}) {
    picker->setSelectedDate(FXDate(2024, 3, 5));
    picker->showSpinner();
    FXEvent event{};
    event.code = code;
    EXPECT_EQ(send(SEL_MOUSEWHEEL, 0, &event), 1);
    EXPECT_FALSE(picker->isSpinnerShown());
    expectShown(FXDate(2024, month, 5), 1);
  }
}

TEST_F(FXDatePickerTest, picksADay) {
  picker->setSelectedDate(FXDate(2024, 3, 5));
  picker->showSpinner();
  EXPECT_EQ(pick(picker->cell(7)), 1);
  EXPECT_EQ(text(picker->getSelectedDate()), "2024-03-07");
  EXPECT_EQ(text(picker->getShownDate()), "2024-03-05");
  EXPECT_FALSE(picker->cell(5)->isSelected());
  EXPECT_TRUE(picker->cell(7)->isSelected());
  EXPECT_EQ(picker->selectedLabel, picker->cell(7));
  EXPECT_FALSE(picker->isSpinnerShown());
  ASSERT_EQ(recorder.messages().size(), 1u);
  EXPECT_EQ(recorder.last(SEL_LEFTBUTTONPRESS).id, 9u);
  EXPECT_EQ(text(recorder.last(SEL_LEFTBUTTONPRESS).date), "2024-03-07");
}

TEST_F(FXDatePickerTest, ignoresEmptyCellsAndStrangers) {
  picker->setSelectedDate(FXDate(2024, 3, 5));
  picker->showSpinner();
  FXLabel stranger(content, "x");
  for (FXObject* sender : {static_cast<FXObject*>(picker->days[0]), static_cast<FXObject*>(picker->days[41]),
                           static_cast<FXObject*>(&stranger), static_cast<FXObject*>(nullptr)}) {
    EXPECT_EQ(pick(sender), 1);
    EXPECT_EQ(text(picker->getSelectedDate()), "2024-03-05");
    EXPECT_EQ(recorder.messages().size(), 0u);
  }
  EXPECT_TRUE(picker->isSpinnerShown());
}

TEST_F(FXDatePickerTest, worksWithoutATarget) {
  picker->setTarget(nullptr);
  picker->setSelectedDate(FXDate(2024, 3, 5));
  EXPECT_EQ(send(SEL_COMMAND, FXDatePicker::ID_NEXT), 1);
  EXPECT_EQ(send(SEL_COMMAND, FXDatePicker::ID_TODAY), 1);
  picker->incYear();
  EXPECT_EQ(pick(picker->cell(7)), 1);
  EXPECT_EQ(picker->getSelectedDate().day(), 7);
}

TEST_F(FXDatePickerTest, takesColours) {
  picker->setMonthBkColor(FXRGB(1, 2, 3));
  picker->setYearBkColor(FXRGB(4, 5, 6));
  picker->setSelectionBkColor(FXRGB(7, 8, 9));
  EXPECT_EQ(picker->monthLabel->getBackColor(), FXRGB(1, 2, 3));
  EXPECT_EQ(picker->yearLabel->getBackColor(), FXRGB(4, 5, 6));
  EXPECT_EQ(picker->selectedLabel->getBackColor(), FXRGB(7, 8, 9));
  const FXint other = picker->getSelectedDate().day() == 3 ? 4 : 3;
  EXPECT_EQ(picker->cell(other)->getBackColor(), app->getBackColor());
  pick(picker->cell(other));
  EXPECT_EQ(picker->cell(other)->getBackColor(), FXRGB(7, 8, 9));
}

TEST_F(FXDatePickerTest, disablesItsParts) {
  picker->disable();
  EXPECT_FALSE(picker->isEnabled());
  for (const FXLabel* label : descendants<FXLabel>(picker)) EXPECT_FALSE(label->isEnabled());
  for (const FXArrowButton* arrow : descendants<FXArrowButton>(picker)) EXPECT_FALSE(arrow->isEnabled());
  EXPECT_FALSE(picker->yearSpinner->isEnabled());
  picker->enable();
  EXPECT_TRUE(picker->isEnabled());
  for (const FXLabel* label : descendants<FXLabel>(picker)) EXPECT_TRUE(label->isEnabled());
  EXPECT_TRUE(picker->yearSpinner->isEnabled());
}

TEST_F(FXDatePickerTest, leavesTheHolidaysToTheirOwner) {
  delete picker;
  EXPECT_FALSE(holidays.isHoliday(FXDate(2024, 3, 15)));
}
