#include <fxkeys.h>

#include "tests/fxext/widgets/OpenComboBox.h"
#include "tests/fxext/widgets/WidgetTest.h"

using namespace FX;

// The combo box under somebody's hands, bound to a string as the entries' editors have it.

class FXComboBoxEventsTest : public WidgetTest {
 protected:
  FXComboBoxEventsTest() : target(value) {
    before = new FXTextField(content, 10);
    auto* frame = new FXHorizontalFrame(content, 0x3401, 0, 0, 0, 0, 0, 0, 0, 0);
    box = new OpenComboBox(frame, 2, &target, FXDataTarget::ID_VALUE, 0x100401, 0, 0, 0, 0, 2, 2, 2, 2);
    box->fillItems(" \napple\nbanana\nbar\néger\nőszibarack\nűrhajó\nűrlap\n");
    box->setNumVisible(8);
    after = new FXTextField(content, 10);
  }

  void showFocused() {
    show();
    before->setFocus();
    key(KEY_Tab);
    ASSERT_TRUE(box->field->hasFocus());
  }

  void clickItem(FXint index) {
    ASSERT_TRUE(box->isPaneShown());
    moveTo(box->list, 20, index * box->list->getItemHeight(0) + box->list->getItemHeight(0) / 2);
    events.click();
    settle();
  }

  // The value in the string, and the same in the field.
  std::string shown() {
    EXPECT_STREQ(box->getText().text(), value.text());
    return value.text();
  }

  FXString value;
  FXDataTarget target;
  FXTextField* before;
  OpenComboBox* box;
  FXTextField* after;
};

TEST_F(FXComboBoxEventsTest, typingChoosesIntoTheBoundString) {
  showFocused();
  type("b");
  EXPECT_EQ(shown(), "banana");
  type("ar");
  EXPECT_EQ(shown(), "bar");
  key(KEY_Tab);
  EXPECT_EQ(shown(), "bar");
  EXPECT_FALSE(box->field->hasFocus());
}

TEST_F(FXComboBoxEventsTest, typingReachesItAlsoWhileItsButtonHasTheFocus) {
  showFocused();
  key(KEY_Tab);
  ASSERT_TRUE(box->button->hasFocus());
  type("bar");
  EXPECT_EQ(shown(), "bar");
}

TEST_F(FXComboBoxEventsTest, findsAccentedLetters) {
  showFocused();
  app->setTypingSpeed(50);
  const auto pause = [this] { waitUntil([this] { return !app->hasTimeout(box, OpenComboBox::ID_LOOKUPTIMER); }); };
  type("é");
  EXPECT_EQ(shown(), "éger");
  pause();
  type("ő");
  EXPECT_EQ(shown(), "őszibarack");
  pause();
  type("ű");
  EXPECT_EQ(shown(), "űrhajó");
  pause();
  // The keys of a Hungarian keyboard.
  key(0x1F5);
  EXPECT_EQ(shown(), "őszibarack");
  pause();
  key(0x1FB);
  EXPECT_EQ(shown(), "űrhajó");
}

TEST_F(FXComboBoxEventsTest, findsALongerPrefixOfAccentedLetters) {
  showFocused();
  app->setTypingSpeed(10000);
  type("űrl");
  EXPECT_EQ(shown(), "űrlap");
}

TEST_F(FXComboBoxEventsTest, forgetsWhatASlowTypistTyped) {
  showFocused();
  app->setTypingSpeed(30);
  type("b");
  EXPECT_EQ(shown(), "banana");
  EXPECT_TRUE(waitUntil([this] { return !app->hasTimeout(box, OpenComboBox::ID_LOOKUPTIMER); }));
  EXPECT_TRUE(box->lookup.empty());
  type("a");
  EXPECT_EQ(shown(), "apple");
}

TEST_F(FXComboBoxEventsTest, repeatedLettersAndMissesKeepTheItem) {
  showFocused();
  app->setTypingSpeed(10000);
  type("b");
  EXPECT_EQ(shown(), "banana");
  type("b");
  EXPECT_EQ(shown(), "banana");
  EXPECT_TRUE(box->lookup.empty());
  type("b");
  EXPECT_EQ(shown(), "banana") << "the current item begins with it";
  type("x");
  EXPECT_EQ(shown(), "banana");
  type("a");
  EXPECT_EQ(shown(), "apple");
}

TEST_F(FXComboBoxEventsTest, navigatesAsTheOriginal) {
  auto* frame = new FXHorizontalFrame(content, 0x3401, 0, 0, 0, 0, 0, 0, 0, 0);
  auto* plain = new FX::FXComboBox(frame, 2, nullptr, 0, 0x100401);
  plain->fillItems(" \napple\nbanana\nbar\néger\nőszibarack\nűrhajó\nűrlap\n");
  box->setTarget(nullptr);
  showFocused();
  for (const unsigned code : {KEY_Down, KEY_Down, KEY_Down, KEY_Up, KEY_Home, KEY_Left, KEY_Right, KEY_End, KEY_space,
                              KEY_Return, KEY_Shift_L, KEY_Control_L, KEY_KP_Down, KEY_Escape}) {
    box->field->setFocus();
    key(code);
    const bool stays = box->field->hasFocus();
    plain->getFirst()->setFocus();
    key(code);
    EXPECT_EQ(box->getCurrentItem(), plain->getCurrentItem()) << std::hex << code;
    EXPECT_STREQ(box->getText().text(), plain->getText().text()) << std::hex << code;
    EXPECT_EQ(stays, static_cast<bool>(plain->getFirst()->hasFocus())) << std::hex << code;
  }
  EXPECT_EQ(box->getCurrentItem(), 3);
}

TEST_F(FXComboBoxEventsTest, pagingKeysMoveTheFocusAsTheyDoInFox) {
  showFocused();
  key(KEY_Page_Down);
  EXPECT_TRUE(box->button->hasFocus());
  key(KEY_Page_Down);
  EXPECT_TRUE(after->hasFocus());
  key(KEY_Page_Up);
  EXPECT_TRUE(box->field->hasFocus());
  key(KEY_Page_Up);
  EXPECT_TRUE(before->hasFocus());
}

TEST_F(FXComboBoxEventsTest, commandsAndMnemonicsAreNotSearchedFor) {
  new FXButton(content, "&OK", nullptr, after, FXWindow::ID_DISABLE);
  showFocused();
  key('b', {KEY_Control_L});
  EXPECT_EQ(shown(), "");
  key('o', {KEY_Alt_L});
  EXPECT_FALSE(after->isEnabled()) << "the mnemonic has pressed the button";
  EXPECT_TRUE(box->lookup.empty());
  EXPECT_EQ(shown(), "");
}

TEST_F(FXComboBoxEventsTest, theWheelChoosesIntoTheBoundString) {
  show();
  moveTo(box->field);
  for (const char* item : {"apple", "banana"}) {
    events.wheel(-1);
    settle();
    EXPECT_EQ(shown(), item);
  }
  events.wheel(1);
  settle();
  EXPECT_EQ(shown(), "apple");
  box->disable();
  events.wheel(-1);
  settle();
  EXPECT_EQ(shown(), "apple");
}

TEST_F(FXComboBoxEventsTest, theMouseChoosesIntoTheBoundString) {
  show();
  click(box->button);
  clickItem(3);
  EXPECT_FALSE(box->isPaneShown());
  EXPECT_EQ(shown(), "bar");
  click(box->field);
  clickItem(4);
  EXPECT_EQ(shown(), "éger");
  click(after);
  EXPECT_EQ(shown(), "éger");
}

TEST_F(FXComboBoxEventsTest, keysChooseIntoTheBoundString) {
  showFocused();
  key(KEY_Down);
  EXPECT_EQ(shown(), "apple");
  key(KEY_Down);
  key(KEY_KP_Up);
  EXPECT_EQ(shown(), "apple");
  key(KEY_Tab);
  key(KEY_Tab);
  EXPECT_TRUE(after->hasFocus());
  EXPECT_EQ(shown(), "apple");
}

TEST_F(FXComboBoxEventsTest, aChangeFromOutsideShows) {
  show();
  value = "bar";
  app->refresh();
  EXPECT_TRUE(waitUntil([this] { return box->getText() == "bar"; }));
  EXPECT_EQ(shown(), "bar");
}

TEST_F(FXComboBoxEventsTest, theOpenListCanBeLeftByTheKeyboard) {
  showFocused();
  for (const unsigned code : {KEY_Return, KEY_KP_Enter, KEY_Escape}) {
    click(box->field);
    ASSERT_TRUE(box->isPaneShown());
    type("b");
    EXPECT_TRUE(box->isPaneShown());
    EXPECT_EQ(shown(), "banana");
    key(code);
    EXPECT_FALSE(box->isPaneShown()) << std::hex << code;
    EXPECT_EQ(shown(), "banana");
    EXPECT_TRUE(window->shown());
  }
}

TEST_F(FXComboBoxEventsTest, escapeClosesTheListAndNotTheDialog) {
  FXDialogBox dialog(window, "dialog", DECOR_ALL, 0, 200);
  auto* inside = new OpenComboBox(&dialog, 10, nullptr, 0, COMBOBOX_STATIC);
  inside->fillItems("a\nb\n");
  inside->setNumVisible(2);
  show();
  dialog.create();
  dialog.show();
  giveKeyboardTo(&dialog);
  click(inside->field);
  ASSERT_TRUE(inside->isPaneShown());
  key(KEY_Escape);
  EXPECT_FALSE(inside->isPaneShown());
  EXPECT_TRUE(dialog.shown());
}

TEST_F(FXComboBoxEventsTest, showsThatItHasTheFocus) {
  show();
  const FXColor back = box->field->getBackColor();
  const FXColor text = box->field->getTextColor();
  before->setFocus();
  key(KEY_Tab);
  EXPECT_EQ(box->field->getBackColor(), app->getSelbackColor());
  EXPECT_EQ(box->field->getTextColor(), app->getSelforeColor());
  type("b");
  EXPECT_EQ(box->field->getBackColor(), app->getSelbackColor());
  key(KEY_Tab);
  EXPECT_EQ(box->field->getBackColor(), back);
  EXPECT_EQ(box->field->getTextColor(), text);
  click(box->field);
  clickItem(2);
  EXPECT_EQ(box->field->getBackColor(), app->getSelbackColor());
  box->setBackColor(FXRGB(255, 200, 200));
  box->disable();
  EXPECT_EQ(box->field->getBackColor(), FXRGB(255, 200, 200)) << "a colour set meanwhile stays";
}

TEST_F(FXComboBoxEventsTest, anEditableBoxHasItsCaretInstead) {
  auto* editable = new OpenComboBox(content, 10);
  show();
  const FXColor back = editable->field->getBackColor();
  click(editable->field);
  EXPECT_TRUE(editable->field->hasFocus());
  EXPECT_EQ(editable->field->getBackColor(), back);
}
