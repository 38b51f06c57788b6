#include <unistd.h>

#include <fxkeys.h>

#include "fxext/widgets/FXDateInput.h"
#include "tests/fxext/widgets/OpenDateInput.h"
#include "tests/fxext/widgets/Recorder.h"
#include "tests/fxext/widgets/StubHolidays.h"
#include "tests/fxext/widgets/WidgetTest.h"

using namespace FX;
using FXExt::FXDateInput;

// What the date field is and does, by messages.

class FXDateInputTest : public WidgetTest {
 protected:
  FXDateInputTest() : input(new OpenDateInput(content, &holidays, &recorder, 9)) {
    recorder.expect(SEL_CHANGED, Recorder::Text);
  }

  long send(FXuint type, FXuint id, void* data = nullptr) { return input->handle(window, FXSEL(type, id), data); }
  void enter(const char* text) { input->setValue(text, FALSE); }
  long pressInPane(FXint code) {
    FXEvent event = keyPress(code);
    return send(SEL_KEYPRESS, FXDateInput::ID_PANE, &event);
  }
  void post() { input->button->handle(window, FXSEL(SEL_COMMAND, FXWindow::ID_POST), nullptr); }

  StubHolidays holidays;
  Recorder recorder;
  OpenDateInput* input;
};

TEST_F(FXDateInputTest, isAPacker) {
  EXPECT_STREQ(FXDateInput::metaClass.getClassName(), "FXDateInput");
  EXPECT_EQ(FXDateInput::metaClass.getBaseClass(), &FXPacker::metaClass);
  EXPECT_EQ(FXMetaClass::getMetaClassFromName("FXDateInput"), &FXDateInput::metaClass);
}

TEST_F(FXDateInputTest, hasNoPartsWhenManufactured) {
  auto* made = dynamic_cast<FXDateInput*>(manufacture(FXDateInput::metaClass));
  ASSERT_TRUE(made);
  EXPECT_EQ(OpenDateInput::fieldOf(*made), nullptr);
  EXPECT_EQ(OpenDateInput::paneOf(*made), nullptr);
  EXPECT_EQ(OpenDateInput::buttonOf(*made), nullptr);
  EXPECT_EQ(OpenDateInput::pickerOf(*made), nullptr);
}

TEST_F(FXDateInputTest, mapsItsMessages) {
  const auto isMapped = [](FXuint type, FXuint id, long (FXDateInput::*handler)(FXObject*, FXSelector, void*)) {
    const auto* entry = static_cast<const FXDateInput::FXMapEntry*>(FXDateInput::metaClass.search(FXSEL(type, id)));
    return entry && entry->func == handler;
  };
  EXPECT_TRUE(isMapped(SEL_LEFTBUTTONPRESS, 55, &FXDateInput::onDateSelected));
  EXPECT_TRUE(isMapped(SEL_CHANGED, 56, &FXDateInput::onDateEntered));
  EXPECT_TRUE(isMapped(SEL_UPDATE, 56, &FXDateInput::onUpdate));
  EXPECT_TRUE(isMapped(SEL_KEYPRESS, 56, &FXDateInput::onKeyPress));
  EXPECT_TRUE(isMapped(SEL_KEYRELEASE, 56, &FXDateInput::onKeyReleased));
  EXPECT_TRUE(isMapped(SEL_KEYPRESS, 57, &FXDateInput::onPaneKeyPress));
  EXPECT_TRUE(isMapped(SEL_FOCUS_SELF, 0, &FXDateInput::onFocusSelf));
  EXPECT_TRUE(isMapped(SEL_FOCUSOUT, 0, &FXDateInput::onFocusOut));
  EXPECT_TRUE(isMapped(SEL_COMMAND, FXWindow::ID_GETSTRINGVALUE, &FXDateInput::onCmdGetStringValue));
  EXPECT_TRUE(isMapped(SEL_COMMAND, FXWindow::ID_SETSTRINGVALUE, &FXDateInput::onCmdSetStringValue));
  EXPECT_FALSE(FXDateInput::metaClass.search(FXSEL(SEL_CHANGED, 55)));
}

TEST_F(FXDateInputTest, consistsOfFieldButtonPaneAndPicker) {
  const OpenDateInput full(content, &holidays, &recorder, 9, 0x3400, 1, 2, 30, 40, 5, 6, 7, 8);
  EXPECT_EQ(full.getTarget(), &recorder);
  EXPECT_EQ(full.getSelector(), 9u);
  EXPECT_EQ(full.getFrameStyle(), static_cast<FXuint>(FRAME_LINE));
  EXPECT_EQ((std::vector{full.getX(), full.getY(), full.getWidth(), full.getHeight()}), (std::vector{1, 2, 30, 40}));
  EXPECT_EQ(full.field->getNumColumns(), 10);
  EXPECT_EQ(full.field->getTarget(), &full);
  EXPECT_EQ(full.field->getSelector(), 56u);
  EXPECT_EQ(full.field->getPadLeft(), 5);
  EXPECT_EQ(full.field->getPadRight(), 6);
  EXPECT_EQ(full.field->getPadTop(), 7);
  EXPECT_EQ(full.field->getPadBottom(), 8);
  EXPECT_EQ(full.pane->getFrameStyle(), 0x3000u);
  EXPECT_EQ(full.pane->getOwner(), &full);
  EXPECT_EQ(full.pane->getTarget(), &full);
  EXPECT_EQ(full.pane->getSelector(), 57u);
  EXPECT_EQ(full.picker->getParent(), full.pane);
  EXPECT_EQ(full.picker->getTarget(), &full);
  EXPECT_EQ(full.picker->getSelector(), 55u);
  EXPECT_EQ(full.picker->getPadLeft() + full.picker->getPadRight(), 4);
  EXPECT_EQ(full.picker->getPadTop() + full.picker->getPadBottom(), 4);
  EXPECT_EQ(full.button->getMenu(), full.pane);
  EXPECT_EQ(full.button->getFrameStyle(), static_cast<FXuint>(FRAME_RAISED | FRAME_THICK));
  EXPECT_EQ(full.button->getAttachment(), static_cast<FXuint>(MENUBUTTON_ATTACH_RIGHT));
  EXPECT_EQ(full.button->getPopupStyle(), 0u);
  EXPECT_GT(holidays.asked(), 0);
}

TEST_F(FXDateInputTest, writesADateSilentlyAndLeavesTheCalendar) {
  enter("2024.03.05");
  input->setDate(FXDate(987, 1, 2));
  EXPECT_EQ(input->shownText(), "0987.01.02");
  EXPECT_EQ(input->pickerDate(), "2024-03-05");
  EXPECT_EQ(recorder.count(SEL_CHANGED), 0);
}

TEST_F(FXDateInputTest, takesAValueWithPointsForDashes) {
  enter("2024-03-05");
  EXPECT_EQ(input->shownText(), "2024.03.05");
  EXPECT_EQ(input->pickerDate(), "2024-03-05");
  enter("a-b-c");
  EXPECT_EQ(input->shownText(), "a.b.c");
  EXPECT_EQ(input->pickerDate(), "2024-03-05");
  enter("");
  EXPECT_EQ(input->shownText(), "");
  EXPECT_EQ(recorder.count(SEL_CHANGED) + recorder.count(SEL_COMMAND), 0);
}

TEST_F(FXDateInputTest, tellsOfAValueWhenAsked) {
  struct Watching : Recorder {
    long handle(FXObject* sender, FXSelector sel, void* ptr) override {
      if (FXSELTYPE(sel) == SEL_CHANGED) before = watched->pickerDate();
      return Recorder::handle(sender, sel, ptr);
    }
    OpenDateInput* watched = nullptr;
    std::string before;
  } watching;
  enter("2000.01.01");
  watching.watched = input;
  watching.expect(SEL_CHANGED, Recorder::Text);
  input->setTarget(&watching);
  input->setValue("2024-03-05", TRUE);
  ASSERT_EQ(watching.count(SEL_CHANGED), 1);
  EXPECT_EQ(watching.last(SEL_CHANGED).id, 9u);
  EXPECT_EQ(watching.last(SEL_CHANGED).sender, input);
  EXPECT_EQ(watching.last(SEL_CHANGED).text, "2024.03.05");
  EXPECT_EQ(watching.before, "2000-01-01") << "told before the calendar moved";
  EXPECT_EQ(input->pickerDate(), "2024-03-05");
  input->setTarget(nullptr);
  input->setValue("2024-03-06", TRUE);
  EXPECT_EQ(input->pickerDate(), "2024-03-06");
}

TEST_F(FXDateInputTest, givesTheTextAsItStands) {
  enter("half typ");
  for (const char any : {'\0', '\1', 'x'}) EXPECT_STREQ(input->getValue(any).text(), "half typ");
  FXString copy;
  EXPECT_EQ(send(SEL_COMMAND, FXWindow::ID_GETSTRINGVALUE, &copy), 1);
  EXPECT_STREQ(copy.text(), "half typ");
}

TEST_F(FXDateInputTest, takesAValueByMessageUnlessThePaneIsOpen) {
  FXString value = "2024-03-05";
  EXPECT_EQ(send(SEL_COMMAND, FXWindow::ID_SETSTRINGVALUE, &value), 1);
  EXPECT_EQ(input->shownText(), "2024.03.05");
  show();
  post();
  ASSERT_TRUE(input->isPaneShown());
  value = "1999.09.09";
  EXPECT_EQ(send(SEL_COMMAND, FXWindow::ID_SETSTRINGVALUE, &value), 1);
  EXPECT_EQ(input->shownText(), "2024.03.05");
  EXPECT_EQ(input->pickerDate(), "2024-03-05");
  EXPECT_EQ(recorder.count(SEL_CHANGED), 0);
}

TEST_F(FXDateInputTest, forwardsTheFieldsUpdatesUnlessThePaneIsOpen) {
  show();
  recorder.clear();
  recorder.answer(SEL_UPDATE, 5);
  EXPECT_EQ(send(SEL_UPDATE, FXDateInput::ID_FIELD), 5);
  EXPECT_EQ(recorder.last(SEL_UPDATE).sender, input);
  EXPECT_EQ(recorder.last(SEL_UPDATE).id, 9u);
  recorder.answer(SEL_UPDATE, 0);
  EXPECT_EQ(send(SEL_UPDATE, FXDateInput::ID_FIELD), 0);
  post();
  recorder.clear();
  recorder.answer(SEL_UPDATE, 5);
  EXPECT_EQ(send(SEL_UPDATE, FXDateInput::ID_FIELD), 0);
  settle();
  EXPECT_EQ(recorder.count(SEL_UPDATE), 0);
}

TEST_F(FXDateInputTest, tellsOfEveryKeyInTheField) {
  enter("2024");
  recorder.answer(SEL_CHANGED, 1);
  FXEvent event = keyPress('.', ".");
  EXPECT_EQ(send(SEL_KEYPRESS, FXDateInput::ID_FIELD, &event), 0);
  EXPECT_EQ(recorder.last(SEL_CHANGED).text, "2024");
  EXPECT_EQ(recorder.last(SEL_CHANGED).id, 9u);
  recorder.answer(SEL_CHANGED, 0);
  EXPECT_EQ(send(SEL_KEYRELEASE, FXDateInput::ID_FIELD, &event), 1);
  EXPECT_EQ(recorder.count(SEL_CHANGED), 2);
}

TEST_F(FXDateInputTest, takesThePickedDate) {
  show();
  post();
  input->picker->setSelectedDate(FXDate(2024, 3, 7));
  FXDate picked(2024, 3, 7);
  EXPECT_EQ(send(SEL_LEFTBUTTONPRESS, FXDateInput::ID_PICKER, &picked), 1);
  EXPECT_FALSE(input->isPaneShown());
  EXPECT_EQ(input->shownText(), "2024.03.07");
  ASSERT_EQ(recorder.count(SEL_CHANGED), 1);
  EXPECT_EQ(recorder.last(SEL_CHANGED).text, "2024.03.07");
  EXPECT_EQ(recorder.last(SEL_CHANGED).sender, input);
  post();
  EXPECT_TRUE(input->isPaneShown()) << "the button is up again";
}

TEST_F(FXDateInputTest, movesTheDateInThePane) {
  struct Move {
    FXint keys[2];
    const char* from;
    const char* to;
  };
  const Move moves[] = {
      {{KEY_Left, KEY_KP_Left}, "2024.03.01", "2024.02.29"},
      {{KEY_Right, KEY_KP_Right}, "2023.12.31", "2024.01.01"},
      {{KEY_Up, KEY_KP_Up}, "2024.01.03", "2023.12.27"},
      {{KEY_Down, KEY_KP_Down}, "2024.02.28", "2024.03.06"},
      {{KEY_Page_Up, KEY_KP_Page_Up}, "2024.03.31", "2024.02.29"},
      {{KEY_Page_Up, KEY_KP_Page_Up}, "2024.01.31", "2023.12.31"},
      {{KEY_Page_Down, KEY_KP_Page_Down}, "2023.01.31", "2023.02.28"},
      {{KEY_Page_Down, KEY_KP_Page_Down}, "2023.12.31", "2024.01.31"},
  };
  for (const Move& move : moves) {
    for (const FXint code : move.keys) {
      enter(move.from);
      EXPECT_EQ(pressInPane(code), 1);
      EXPECT_EQ(input->shownText(), move.to) << move.from;
      FXString date = move.to;
      date.substitute('.', '-');
      EXPECT_EQ(input->pickerDate(), date.text());
      EXPECT_EQ(text(input->picker->getShownDate()), date.text());
    }
  }
  EXPECT_EQ(recorder.count(SEL_CHANGED), 0);
}

TEST_F(FXDateInputTest, movesFromTheSelectedDateAfterTheMonthWasTurned) {
  enter("2024.03.05");
  input->picker->onCmdNext(nullptr, 0, nullptr);
  EXPECT_EQ(send(SEL_CHANGED, FXDateInput::ID_PICKER), 0);
  EXPECT_EQ(input->shownText(), "2024.03.05") << "turning months is no choice";
  EXPECT_EQ(recorder.count(SEL_CHANGED), 0);
  pressInPane(KEY_Down);
  EXPECT_EQ(input->shownText(), "2024.03.12");
}

TEST_F(FXDateInputTest, staysWithinTheYearsThatCanBeReadBack) {
  for (const auto& [date, code] : {std::pair{"0001.01.01", KEY_Left},
                                   {"0001.01.05", KEY_Up},
                                   {"0001.01.05", KEY_Page_Up},
                                   {"2999.12.31", KEY_Right},
                                   {"2999.12.31", KEY_Down},
                                   {"2999.12.31", KEY_Page_Down}}) {
    enter(date);
    EXPECT_EQ(pressInPane(code), 1);
    EXPECT_EQ(input->shownText(), date);
  }
}

TEST_F(FXDateInputTest, takesTheDateOnAnyEnterInThePane) {
  show();
  for (const FXint code : {0xFF0D, 0xFF8D, 0xFE34}) {
    enter("2024.03.05");
    post();
    pressInPane(KEY_Down);
    recorder.clear();
    EXPECT_EQ(pressInPane(code), 1);
    EXPECT_FALSE(input->isPaneShown());
    ASSERT_EQ(recorder.count(SEL_CHANGED), 1);
    EXPECT_EQ(recorder.last(SEL_CHANGED).text, "2024.03.12");
  }
}

TEST_F(FXDateInputTest, leavesOtherKeysInThePaneAlone) {
  enter("2024.03.05");
  for (const FXint code : {KEY_a, KEY_Home, KEY_End, KEY_Tab, KEY_Escape, KEY_space}) EXPECT_EQ(pressInPane(code), 0);
  EXPECT_EQ(input->shownText(), "2024.03.05");
  EXPECT_EQ(input->pickerDate(), "2024-03-05");
}

TEST_F(FXDateInputTest, offersKeysInThePaneToItsTargetFirst) {
  enter("2024.03.05");
  recorder.answer(SEL_KEYPRESS, 3);
  EXPECT_NE(pressInPane(KEY_Down), 0);
  EXPECT_EQ(input->shownText(), "2024.03.05");
  EXPECT_EQ(recorder.last(SEL_KEYPRESS).id, 9u);
  EXPECT_EQ(recorder.last(SEL_KEYPRESS).sender, input);
}

TEST_F(FXDateInputTest, worksWithoutATarget) {
  input->setTarget(nullptr);
  show();
  FXEvent event = keyPress('1', "1");
  EXPECT_EQ(send(SEL_UPDATE, FXDateInput::ID_FIELD), 0);
  EXPECT_EQ(send(SEL_KEYPRESS, FXDateInput::ID_FIELD, &event), 0);
  EXPECT_EQ(send(SEL_KEYRELEASE, FXDateInput::ID_FIELD, &event), 1);
  EXPECT_EQ(send(SEL_COMMAND, FXDateInput::ID_FIELD), 1);
  EXPECT_EQ(pressInPane(KEY_Down), 1);
  EXPECT_EQ(pressInPane(KEY_Return), 1);
  EXPECT_EQ(input->shownText().size(), 10u);
}

TEST_F(FXDateInputTest, enablesAndDisablesItsParts) {
  show();
  post();
  input->disable();
  EXPECT_FALSE(input->isPaneShown());
  EXPECT_FALSE(input->isEnabled() || input->field->isEnabled() || input->button->isEnabled());
  input->setFocus();
  EXPECT_FALSE(input->field->hasFocus());
  EXPECT_EQ(send(SEL_FOCUS_SELF, 0), 0);
  input->enable();
  EXPECT_TRUE(input->isEnabled() && input->field->isEnabled() && input->button->isEnabled());
}

TEST_F(FXDateInputTest, givesTheFocusToTheField) {
  input->setFocus();
  EXPECT_FALSE(input->field->hasFocus()) << "not before it exists";
  show();
  FXTextField* elsewhere = other();
  const auto expectFocusBy = [&](const std::function<void()>& act) {
    elsewhere->setFocus();
    EXPECT_FALSE(input->field->hasFocus());
    act();
    EXPECT_TRUE(input->field->hasFocus());
    EXPECT_FALSE(input->button->hasFocus());
  };
  expectFocusBy([this] { input->setFocus(); });
  expectFocusBy([this] { EXPECT_EQ(send(SEL_FOCUS_SELF, 0, nullptr), 1); });
  expectFocusBy([this] {
    FXEvent event = keyPress(KEY_Tab);
    EXPECT_EQ(send(SEL_FOCUS_SELF, 0, &event), 1);
  });
  elsewhere->setFocus();
  input->button->setFocus();
  EXPECT_TRUE(input->button->hasFocus());
  EXPECT_FALSE(input->field->hasFocus());
  EXPECT_EQ(input->getFocus(), input->button);
}

TEST_F(FXDateInputTest, passesTheFocusOutOnWithoutJudging) {
  show();
  input->setFocus();
  enter("2024.0");
  recorder.clear();
  EXPECT_EQ(send(SEL_FOCUSOUT, 0), 1);
  EXPECT_FALSE(input->field->hasFocus());
  EXPECT_FALSE(input->hasFocus());
  EXPECT_EQ(recorder.count(SEL_FOCUSOUT), 1);
  EXPECT_EQ(input->shownText(), "2024.0");
}

TEST_F(FXDateInputTest, isCreatedWithItsPaneAndItsValue) {
  FXString value = "2024-03-05";
  FXDataTarget target(value);
  OpenDateInput bound(content, nullptr, &target, FXDataTarget::ID_VALUE);
  EXPECT_EQ(bound.shownText(), "");
  app.create();
  EXPECT_NE(bound.pane->id(), 0u);
  EXPECT_EQ(bound.shownText(), "2024.03.05");
  bound.destroy();
  EXPECT_EQ(bound.id(), 0u);
  EXPECT_EQ(bound.pane->id(), 0u);
  bound.create();
  EXPECT_NE(bound.pane->id(), 0u);
  // A window that is detached leaves things behind on purpose, for another process to have.
  EXPECT_EXIT(
      {
        bound.detach();
        _exit(bound.id() == 0 && bound.pane->id() == 0 ? 0 : 1);
      },
      testing::ExitedWithCode(0), "");
}

TEST_F(FXDateInputTest, hasRoomForADateAndTheButton) {
  show();
  EXPECT_GE(input->getDefaultHeight(), input->field->getDefaultHeight() + 4);
  EXPECT_EQ(input->field->getX(), 2);
  EXPECT_EQ(input->button->getX(), input->field->getX() + input->field->getWidth());
  EXPECT_EQ(input->button->getX() + input->button->getWidth(), input->getWidth() - 2);
  EXPECT_EQ(input->field->getHeight(), input->getHeight() - 4);
  const FXint needed = input->field->getFont()->getTextWidth(FXString("2024.10.28"));
  EXPECT_GE(input->field->getWidth(), needed + input->field->getPadLeft() + input->field->getPadRight());
  EXPECT_EQ(input->pane->getWidth(), input->pane->getDefaultWidth());
}

TEST_F(FXDateInputTest, doesNotFillTheCalendarAnewForNothing) {
  FXString value = "2024.03.05";
  FXDataTarget target(value);
  input->setTarget(&target);
  input->setSelector(FXDataTarget::ID_VALUE);
  show();
  const int asked = holidays.asked();
  for (int i = 0; i < 100; ++i) input->field->handle(window, FXSEL(SEL_UPDATE, 0), nullptr);
  EXPECT_EQ(holidays.asked(), asked);
  value = "2024.03.06";
  input->field->handle(window, FXSEL(SEL_UPDATE, 0), nullptr);
  EXPECT_EQ(holidays.asked(), asked + 31);
}
