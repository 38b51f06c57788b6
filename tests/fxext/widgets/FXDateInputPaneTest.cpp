#include <fxkeys.h>

#include "tests/fxext/widgets/OpenDateInput.h"
#include "tests/fxext/widgets/Recorder.h"
#include "tests/fxext/widgets/WidgetTest.h"

using namespace FX;

// The calendar that drops down, under somebody's hands.

class FXDateInputPaneTest : public WidgetTest {
 protected:
  FXDateInputPaneTest() : value("2024.03.05"), target(value) {
    input = new OpenDateInput(content, nullptr, &target, FXDataTarget::ID_VALUE, FRAME_SUNKEN | FRAME_THICK);
    after = new FXTextField(content, 10);
  }

  void open() {
    click(input->button);
    ASSERT_TRUE(input->isPaneShown());
  }

  void expectOpen(const char* shown, const char* stored) {
    EXPECT_TRUE(input->isPaneShown());
    EXPECT_EQ(input->shownText(), shown);
    EXPECT_STREQ(value.text(), stored);
  }
  void expectClosed(const char* stored) {
    EXPECT_FALSE(input->isPaneShown());
    EXPECT_EQ(input->shownText(), stored);
    EXPECT_STREQ(value.text(), stored);
  }

  FXWindow* arrow(bool next) { return descendants<FXArrowButton>(input->picker).at(next ? 3 : 0); }
  FXWindow* year() { return OpenDatePicker::yearLabelOf(*input->picker); }
  FXWindow* yearEntry() { return OpenDatePicker::yearSpinnerOf(*input->picker)->getFirst(); }
  FXWindow* cell(FXint day) { return OpenDatePicker::cellOf(*input->picker, day); }

  FXString value;
  FXDataTarget target;
  OpenDateInput* input;
  FXTextField* after;
};

TEST_F(FXDateInputPaneTest, keysMoveAndEnterTakes) {
  show();
  open();
  key(KEY_Down);
  expectOpen("2024.03.12", "2024.03.05");
  key(KEY_Right);
  key(KEY_Page_Down);
  key(KEY_Page_Up);
  key(KEY_Page_Up);
  key(KEY_Up);
  key(KEY_Left);
  expectOpen("2024.02.05", "2024.03.05");
  key(KEY_Return);
  expectClosed("2024.02.05");
  click(after);
  expectClosed("2024.02.05");
}

TEST_F(FXDateInputPaneTest, aClickTakes) {
  show();
  open();
  click(cell(17));
  expectClosed("2024.03.17");
  open();
  click(cell(1));
  expectClosed("2024.03.01");
}

TEST_F(FXDateInputPaneTest, tellsItsTargetOnceOfAClick) {
  Recorder recorder;
  recorder.expect(SEL_CHANGED, Recorder::Text);
  input->setTarget(&recorder);
  input->setValue("2024.03.05", FALSE);
  show();
  open();
  recorder.clear();
  click(cell(17));
  ASSERT_EQ(recorder.count(SEL_CHANGED), 1);
  EXPECT_EQ(recorder.last(SEL_CHANGED).text, "2024.03.17");
}

TEST_F(FXDateInputPaneTest, emptyCellsKeepItOpen) {
  show();
  open();
  click(descendants<FXMatrix>(input->picker).at(0)->getFirst());
  expectOpen("2024.03.05", "2024.03.05");
}

TEST_F(FXDateInputPaneTest, escapeLeavesEverythingAsItWas) {
  show();
  open();
  key(KEY_Down);
  expectOpen("2024.03.12", "2024.03.05");
  key(KEY_Escape);
  app->refresh();
  EXPECT_TRUE(waitUntil([this] { return input->shownText() == "2024.03.05"; }));
  expectClosed("2024.03.05");
  EXPECT_EQ(input->pickerDate(), "2024-03-05");
}

TEST_F(FXDateInputPaneTest, escapeDoesNotCloseTheDialog) {
  show();
  FXDialogBox dialog(window, "dialog", DECOR_ALL, 100, 100);
  auto* inside = new OpenDateInput(&dialog, nullptr);
  dialog.create();
  dialog.show();
  giveKeyboardTo(&dialog);
  click(inside->button);
  ASSERT_TRUE(inside->isPaneShown());
  key(KEY_Escape);
  EXPECT_FALSE(inside->isPaneShown());
  EXPECT_TRUE(dialog.shown());
}

TEST_F(FXDateInputPaneTest, keysGoOnWorkingAfterTheMouseTurnedTheMonth) {
  show();
  open();
  click(arrow(false));
  expectOpen("2024.03.05", "2024.03.05");
  EXPECT_EQ(text(input->picker->getShownDate()), "2024-02-05");
  key(KEY_Down);
  expectOpen("2024.03.12", "2024.03.05");
  click(arrow(true));
  key(KEY_Page_Down);
  key(KEY_Right);
  expectOpen("2024.04.13", "2024.03.05");
  key(KEY_KP_Enter);
  expectClosed("2024.04.13");
}

TEST_F(FXDateInputPaneTest, aMonthTurnedByTheMouseIsChosenFrom) {
  show();
  open();
  click(arrow(true));
  click(cell(30));
  expectClosed("2024.04.30");
}

TEST_F(FXDateInputPaneTest, theWheelTurnsTheMonthAndChoosesNothing) {
  show();
  open();
  moveTo(cell(17));
  events.wheel(-1);
  settle();
  EXPECT_EQ(text(input->picker->getShownDate()), "2024-04-05");
  expectOpen("2024.03.05", "2024.03.05");
  key(KEY_Escape);
  app->refresh();
  settle();
  open();
  EXPECT_EQ(text(input->picker->getShownDate()), "2024-03-05") << "opened again it shows the value";
}

TEST_F(FXDateInputPaneTest, aYearCanBeTyped) {
  show();
  open();
  click(year());
  EXPECT_TRUE(yearEntry()->hasFocus()) << "with a caret";
  type("2031");
  key(KEY_Up);
  EXPECT_EQ(text(input->picker->getShownDate()), "2032-03-05") << "the keys are the year's";
  key(KEY_Return);
  expectOpen("2024.03.05", "2024.03.05");
  EXPECT_EQ(text(input->picker->getShownDate()), "2032-03-05");
  click(cell(9));
  expectClosed("2032.03.09");
}

TEST_F(FXDateInputPaneTest, keysGoOnWorkingAfterAYearWasTyped) {
  show();
  open();
  click(year());
  type("2031");
  key(KEY_Return);
  key(KEY_Down);
  expectOpen("2024.03.12", "2024.03.05");
}

TEST_F(FXDateInputPaneTest, beginsWithTheYearNotBeingEntered) {
  show();
  open();
  click(year());
  EXPECT_TRUE(input->picker->isSpinnerShown());
  key(KEY_Escape);
  EXPECT_FALSE(input->isPaneShown());
  open();
  EXPECT_FALSE(input->picker->isSpinnerShown());
  key(KEY_Right);
  expectOpen("2024.03.06", "2024.03.05");
}

TEST_F(FXDateInputPaneTest, opensByAltDownInTheFieldAndBySpaceOnTheButton) {
  show();
  input->setFocus();
  key(KEY_Down, {KEY_Alt_L});
  EXPECT_TRUE(input->isPaneShown());
  key(KEY_Down);
  key(KEY_Return);
  expectClosed("2024.03.12");
  EXPECT_TRUE(input->button->hasFocus());
  key(KEY_space);
  EXPECT_TRUE(input->isPaneShown());
  key(KEY_Up);
  key(KEY_Return);
  expectClosed("2024.03.05");
  input->disable();
  FXEvent event = keyPress(KEY_Down, "", ALTMASK);
  EXPECT_EQ(input->handle(window, FXSEL(SEL_KEYPRESS, 0), &event), 0);
  EXPECT_FALSE(input->isPaneShown());
}

TEST_F(FXDateInputPaneTest, closesWhenTheFocusGoesElsewhere) {
  show();
  open();
  key(KEY_Tab);
  EXPECT_TRUE(after->hasFocus());
  expectClosed("2024.03.05");
  type("x");
  EXPECT_STREQ(after->getText().text(), "x");
}

TEST_F(FXDateInputPaneTest, closesOnAClickOutside) {
  show();
  open();
  moveTo(window, 500, 450);
  events.click();
  settle();
  expectClosed("2024.03.05");
  open();
  click(input->button);
  expectClosed("2024.03.05");
}

TEST_F(FXDateInputPaneTest, opensWhereThereIsRoom) {
  show();
  const auto expectOnScreen = [this] {
    EXPECT_GE(input->pane->getX(), 0);
    EXPECT_GE(input->pane->getY(), 0);
    EXPECT_LE(input->pane->getX() + input->pane->getWidth(), window->getRoot()->getWidth());
    EXPECT_LE(input->pane->getY() + input->pane->getHeight(), window->getRoot()->getHeight());
    EXPECT_EQ(input->pane->getWidth(), input->pane->getDefaultWidth());
    EXPECT_EQ(input->pane->getHeight(), input->pane->getDefaultHeight());
  };
  open();
  FXint x = 0;
  FXint y = 0;
  input->translateCoordinatesTo(x, y, window->getRoot(), 0, input->getHeight());
  EXPECT_EQ(input->pane->getY(), y) << "right below the field";
  expectOnScreen();
  key(KEY_Escape);
  window->move(700, 1000);
  settle();
  open();
  expectOnScreen();
}

TEST_F(FXDateInputPaneTest, isNotTakenByADragFromTheButton) {
  show();
  moveTo(input->button);
  events.pressButton();
  settle();
  ASSERT_TRUE(input->isPaneShown());
  moveTo(cell(17));
  events.releaseButton();
  settle();
  expectOpen("2024.03.05", "2024.03.05");
  click(cell(17));
  expectClosed("2024.03.17");
}
