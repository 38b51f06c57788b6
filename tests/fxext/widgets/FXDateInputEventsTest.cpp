#include <fxkeys.h>

#include "tests/fxext/widgets/OpenDateInput.h"
#include "tests/fxext/widgets/WidgetTest.h"

using namespace FX;

// The date field under somebody's hands, bound to a string as the entries' editors have it.

class FXDateInputEventsTest : public WidgetTest {
 protected:
  FXDateInputEventsTest() : target(value) {
    before = new FXTextField(content, 10);
    input = new OpenDateInput(content, nullptr, &target, FXDataTarget::ID_VALUE, 0x3401, 0, 0, 0, 0, 2, 2, 2, 2);
    other();
  }

  void showFocused(const char* text) {
    value = text;
    show();
    before->setFocus();
    key(KEY_Tab);
    ASSERT_TRUE(input->field->hasFocus());
  }

  // The value in the string, and the same in the field.
  std::string shown() {
    EXPECT_EQ(input->shownText(), value.text());
    return value.text();
  }

  FXString value;
  FXDataTarget target;
  FXTextField* before;
  OpenDateInput* input;
};

TEST_F(FXDateInputEventsTest, everyKeyIsInTheStringAtOnce) {
  showFocused("");
  std::string expected;
  for (const char* character : {"2", "0", "2", "4", ".", "3", ".", "5"}) {
    type(character);
    expected += character;
    EXPECT_EQ(shown(), expected);
  }
  EXPECT_EQ(input->pickerDate(), "2024-03-05");
  key(KEY_BackSpace);
  EXPECT_EQ(shown(), "2024.3.");
  key(KEY_Home);
  key(KEY_Delete);
  EXPECT_EQ(shown(), "024.3.");
  key(KEY_Tab);
  key(KEY_Tab);
  EXPECT_EQ(shown(), "024.3.");
  EXPECT_TRUE(other()->hasFocus());
}

TEST_F(FXDateInputEventsTest, aFastTypistLosesNothing) {
  showFocused("1999.01.01");
  events.type("2024.12.31");
  events.key(KEY_Tab);
  settle();
  EXPECT_EQ(shown(), "2024.12.31");
  EXPECT_EQ(input->pickerDate(), "2024-12-31");
}

TEST_F(FXDateInputEventsTest, takesAccentedLettersToo) {
  showFocused("");
  type("2024 őszén");
  EXPECT_EQ(shown(), "2024 őszén");
}

TEST_F(FXDateInputEventsTest, tabSelectsTheTextForTypingOver) {
  showFocused("2024.03.05");
  type("1");
  EXPECT_EQ(shown(), "1");
}

TEST_F(FXDateInputEventsTest, isNotOverwrittenWhileSomebodyTypes) {
  showFocused("1999.01.01");
  events.pressKey('2');
  settle();
  EXPECT_EQ(input->shownText(), "2");
  EXPECT_STREQ(value.text(), "1999.01.01") << "the string follows when the key is up";
  for (int i = 0; i < 5; ++i) {
    app->refresh();
    settle();
  }
  EXPECT_EQ(input->shownText(), "2");
  events.releaseKey('2');
  settle();
  EXPECT_EQ(shown(), "2");
}

TEST_F(FXDateInputEventsTest, pastesFromTheClipboard) {
  showFocused("");
  putOnClipboard("2024.03.05");
  input->setFocus();
  key('v', {KEY_Control_L});
  EXPECT_EQ(shown(), "2024.03.05");
  EXPECT_EQ(input->pickerDate(), "2024-03-05");
  key('a', {KEY_Control_L});
  key(KEY_Insert, {KEY_Shift_L});
  EXPECT_EQ(shown(), "2024.03.05");
  key(KEY_Tab);
  EXPECT_EQ(shown(), "2024.03.05");
}

TEST_F(FXDateInputEventsTest, cutsAndCopies) {
  showFocused("2024.03.05");
  key('a', {KEY_Control_L});
  key('x', {KEY_Control_L});
  EXPECT_EQ(shown(), "");
  key('v', {KEY_Control_L});
  key('v', {KEY_Control_L});
  EXPECT_EQ(shown(), "2024.03.052024.03.05");
}

TEST_F(FXDateInputEventsTest, pastesWithTheMiddleButton) {
  value = "";
  show();
  selectElsewhere("2024.03.05");
  click(input->field, 2);
  EXPECT_EQ(shown(), "2024.03.05");
  EXPECT_EQ(input->pickerDate(), "2024-03-05");
  click(before);
  EXPECT_EQ(shown(), "2024.03.05");
  app->refresh();
  settle();
  EXPECT_EQ(shown(), "2024.03.05");
}

// However the text came in: it is in the string once the field has lost the focus.
TEST_F(FXDateInputEventsTest, anyChangeIsInTheStringWhenTheFocusLeaves) {
  showFocused("");
  FXString text = "2024.03.05";
  input->field->handle(window, FXSEL(SEL_COMMAND, FXTextField::ID_INSERT_STRING), const_cast<FXchar*>(text.text()));
  EXPECT_STREQ(value.text(), "");
  before->setFocus();
  EXPECT_EQ(shown(), "2024.03.05");
}

TEST_F(FXDateInputEventsTest, selectsWithTheMouse) {
  value = "2024.03.05";
  show();
  FXint x = 0;
  FXint y = 0;
  input->field->translateCoordinatesTo(x, y, input->getRoot(), 0, 0);
  events.dragTo(x + 3, y + 8, x + input->field->getWidth() - 3, y + 8);
  events.releaseButton();
  settle();
  type("1");
  EXPECT_EQ(shown(), "1");
  click(before);
  EXPECT_EQ(shown(), "1");
}

TEST_F(FXDateInputEventsTest, showsAChangeFromOutside) {
  value = "2024.03.05";
  show();
  EXPECT_EQ(shown(), "2024.03.05");
  value = "2025.12.24";
  app->refresh();
  EXPECT_TRUE(waitUntil([this] { return input->shownText() == "2025.12.24"; }));
  EXPECT_EQ(input->pickerDate(), "2025-12-24");
}

TEST_F(FXDateInputEventsTest, returnKeepsTextSelectionAndCaret) {
  showFocused("2024.03.05");
  key(KEY_Home);
  key(KEY_Return);
  key(KEY_Right, {KEY_Shift_L});
  key(KEY_Return);
  app->refresh();
  settle();
  EXPECT_TRUE(input->field->hasSelection());
  EXPECT_EQ(input->field->getCursorPos(), 1);
  EXPECT_EQ(shown(), "2024.03.05");
}

TEST_F(FXDateInputEventsTest, showsAStoredDateWithDashesAndTellsItWithPoints) {
  showFocused("2024-03-05");
  EXPECT_EQ(input->shownText(), "2024.03.05");
  key(KEY_Tab);
  EXPECT_STREQ(value.text(), "2024.03.05");
}

TEST_F(FXDateInputEventsTest, takesNothingWhileDisabled) {
  value = "2024.03.05";
  show();
  input->disable();
  before->setFocus();
  key(KEY_Tab);
  EXPECT_TRUE(other()->hasFocus());
  click(input->field);
  type("1");
  selectElsewhere("9");
  click(input->field, 2);
  click(input->button);
  EXPECT_EQ(shown(), "2024.03.05");
  EXPECT_FALSE(input->isPaneShown());
}

TEST_F(FXDateInputEventsTest, goesBackAndForthWithTheTabKey) {
  showFocused("");
  key(KEY_Tab);
  EXPECT_TRUE(input->button->hasFocus());
  key(KEY_Tab, {KEY_Shift_L});
  EXPECT_TRUE(input->field->hasFocus());
  key(KEY_Tab, {KEY_Shift_L});
  EXPECT_TRUE(before->hasFocus());
  click(input->button);
  EXPECT_TRUE(input->button->hasFocus());
  EXPECT_FALSE(input->field->hasFocus());
}
