#include <fxkeys.h>

#include "fxext/widgets/FXComboBox.h"
#include "tests/fxext/widgets/OpenComboBox.h"
#include "tests/fxext/widgets/Recorder.h"
#include "tests/fxext/widgets/WidgetTest.h"

using namespace FX;

// What the combo box is and does, by messages.

class FXComboBoxTest : public WidgetTest {
 protected:
  FXComboBoxTest() { box = newBox("apple\nbanana\nbar\n", &recorder, 7); }

  OpenComboBox* newBox(const char* items, FXObject* target = nullptr, FXSelector message = 0) {
    auto* made = new OpenComboBox(content, 10, target, message, COMBOBOX_STATIC);
    made->fillItems(items);
    if (made->getNumItems() > 0) made->setCurrentItem(0);
    recorder.expect(SEL_COMMAND, Recorder::Text);
    return made;
  }

  long press(OpenComboBox* to, FXint code, const char* text = "", FXuint state = 0) {
    FXEvent event = keyPress(code, text, state);
    return to->handle(window, FXSEL(SEL_KEYPRESS, 0), &event);
  }

  long typeInto(OpenComboBox* to, const char* character) {
    return press(to, static_cast<unsigned char>(*character), character);
  }

  void expectLeftAlone(FXint code, const char* text, FXuint state = 0) {
    const std::string before = box->getText().text();
    EXPECT_EQ(press(box, code, text, state), 0) << std::hex << code << " " << state;
    EXPECT_TRUE(box->lookup.empty());
    EXPECT_FALSE(app->hasTimeout(box, OpenComboBox::ID_LOOKUPTIMER));
    EXPECT_EQ(before, box->getText().text());
  }

  Recorder recorder;
  OpenComboBox* box;
};

TEST_F(FXComboBoxTest, isRegisteredUnderItsQualifiedName) {
  const FXMetaClass& metaClass = FXExt::FXComboBox::metaClass;
  EXPECT_STREQ(metaClass.getClassName(), "FXExt::FXComboBox");
  EXPECT_EQ(metaClass.getBaseClass(), &FX::FXComboBox::metaClass);
  EXPECT_EQ(FXMetaClass::getMetaClassFromName("FXExt::FXComboBox"), &metaClass);
  EXPECT_EQ(FXMetaClass::getMetaClassFromName("FXComboBox"), &FX::FXComboBox::metaClass);
  EXPECT_TRUE(box->isMemberOf(&FX::FXComboBox::metaClass));
}

TEST_F(FXComboBoxTest, handlesTwoMessagesItself) {
  const auto handlerOf = [](FXuint type, FXuint id) {
    return static_cast<const FXExt::FXComboBox::FXMapEntry*>(FXExt::FXComboBox::metaClass.search(FXSEL(type, id)));
  };
  ASSERT_TRUE(handlerOf(SEL_KEYPRESS, 0));
  EXPECT_EQ(handlerOf(SEL_KEYPRESS, 0)->func, &FXExt::FXComboBox::onKeyPress);
  ASSERT_TRUE(handlerOf(SEL_TIMEOUT, 57));
  EXPECT_EQ(handlerOf(SEL_TIMEOUT, 57)->func, &FXExt::FXComboBox::onLookupTimer);
  EXPECT_EQ(countOfMappedMessages(FXExt::FXComboBox::metaClass), 2);
  EXPECT_EQ(static_cast<int>(FXExt::FXComboBox::ID_LAST), 58);
}

TEST_F(FXComboBoxTest, hasNoPartsWhenManufactured) {
  auto* made = dynamic_cast<FXExt::FXComboBox*>(manufacture(FXExt::FXComboBox::metaClass));
  ASSERT_TRUE(made);
  EXPECT_EQ(OpenComboBox::fieldOf(*made), nullptr);
  EXPECT_EQ(OpenComboBox::buttonOf(*made), nullptr);
  EXPECT_EQ(OpenComboBox::listOf(*made), nullptr);
  EXPECT_EQ(OpenComboBox::paneOf(*made), nullptr);
  EXPECT_TRUE(OpenComboBox::lookupOf(*made).empty());
}

TEST_F(FXComboBoxTest, passesTheArgumentsOn) {
  OpenComboBox full(content, 13, &recorder, 7, 0x103000, 1, 2, 30, 40, 5, 6, 8, 9);
  EXPECT_EQ(full.getNumColumns(), 13);
  EXPECT_EQ(full.getTarget(), &recorder);
  EXPECT_EQ(full.getSelector(), 7u);
  EXPECT_EQ(full.getComboStyle(), static_cast<FXuint>(COMBOBOX_STATIC));
  EXPECT_EQ(full.getFrameStyle(), static_cast<FXuint>(FRAME_LINE));
  EXPECT_EQ(full.getX(), 1);
  EXPECT_EQ(full.getY(), 2);
  EXPECT_EQ(full.getWidth(), 30);
  EXPECT_EQ(full.getHeight(), 40);
  EXPECT_EQ(full.field->getPadLeft(), 5);
  EXPECT_EQ(full.field->getPadRight(), 6);
  EXPECT_EQ(full.field->getPadTop(), 8);
  EXPECT_EQ(full.field->getPadBottom(), 9);
  EXPECT_TRUE(full.lookup.empty());
  const OpenComboBox brief(content, 4);
  EXPECT_EQ(brief.getTarget(), nullptr);
  EXPECT_EQ(brief.getComboStyle(), static_cast<FXuint>(COMBOBOX_NORMAL));
  EXPECT_EQ(brief.field->getPadLeft(), static_cast<FXint>(DEFAULT_PAD));
}

TEST_F(FXComboBoxTest, keepsItsWindowsAndItsSearchWhenDestroyedOrDetached) {
  app.create();
  typeInto(box, "b");
  ASSERT_TRUE(app->hasTimeout(box, OpenComboBox::ID_LOOKUPTIMER));
  box->destroy();
  EXPECT_FALSE(app->hasTimeout(box, OpenComboBox::ID_LOOKUPTIMER));
  EXPECT_NE(box->id(), 0u);
  EXPECT_NE(box->pane->id(), 0u);
  EXPECT_STREQ(box->lookup.text(), "b");
  typeInto(box, "a");
  EXPECT_STREQ(box->lookup.text(), "ba");
  box->detach();
  EXPECT_FALSE(app->hasTimeout(box, OpenComboBox::ID_LOOKUPTIMER));
  EXPECT_NE(box->id(), 0u);
  EXPECT_STREQ(box->lookup.text(), "ba");
}

TEST_F(FXComboBoxTest, takesItsTimerAlongWhenDeleted) {
  app->setTypingSpeed(20);
  typeInto(box, "b");
  const void* const gone = box;
  delete box;
  EXPECT_FALSE(app->hasTimeout(static_cast<FXObject*>(const_cast<void*>(gone)), OpenComboBox::ID_LOOKUPTIMER));
  auto* later = newBox("x\n");
  typeInto(later, "x");
  EXPECT_TRUE(waitUntil([this, later] { return !app->hasTimeout(later, OpenComboBox::ID_LOOKUPTIMER); }));
}

TEST_F(FXComboBoxTest, leavesNothingOnTheDisplayWithItsDialog) {
  app.create();
  settle();
  const int before = events.countTopLevelWindows();
  testing::internal::CaptureStderr();
  for (int i = 0; i < 50; ++i) {
    FXDialogBox dialog(window, "dialog");
    auto* inside = new OpenComboBox(&dialog, 10, nullptr, 0, COMBOBOX_STATIC);
    inside->fillItems("a\nb\n");
    dialog.create();
    dialog.show();
    typeInto(inside, "b");
    dialog.hide();
  }
  settle();
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
  EXPECT_EQ(events.countTopLevelWindows(), before);
}

TEST_F(FXComboBoxTest, doesAllElseAsTheOriginal) {
  FX::FXComboBox plain(content, 10, nullptr, 0, COMBOBOX_STATIC);
  plain.fillItems("apple\nbanana\nbar\n");
  box->setTarget(nullptr);
  FXEvent up{};
  up.code = 120;
  FXEvent down{};
  down.code = -120;
  FXString text = "bar";
  const std::vector<std::pair<FXSelector, void*>> messages = {{FXSEL(SEL_FOCUS_DOWN, 0), nullptr},
                                                              {FXSEL(SEL_FOCUS_DOWN, 0), nullptr},
                                                              {FXSEL(SEL_FOCUS_UP, 0), nullptr},
                                                              {FXSEL(SEL_MOUSEWHEEL, FX::FXComboBox::ID_TEXT), &down},
                                                              {FXSEL(SEL_MOUSEWHEEL, FX::FXComboBox::ID_TEXT), &up},
                                                              {FXSEL(SEL_COMMAND, FXWindow::ID_SETSTRINGVALUE), &text},
                                                              {FXSEL(SEL_COMMAND, FXWindow::ID_GETSTRINGVALUE), &text},
                                                              {FXSEL(SEL_FOCUS_LEFT, 0), nullptr},
                                                              {FXSEL(SEL_COMMAND, 200), nullptr}};
  for (const auto& [selector, data] : messages) {
    EXPECT_EQ(box->handle(window, selector, data), plain.handle(window, selector, data)) << selector;
    EXPECT_EQ(box->getCurrentItem(), plain.getCurrentItem()) << selector;
    EXPECT_STREQ(box->getText().text(), plain.getText().text()) << selector;
  }
}

TEST_F(FXComboBoxTest, ignoresKeysWhenDisabled) {
  box->disable();
  EXPECT_EQ(typeInto(box, "b"), 0);
  EXPECT_EQ(box->getCurrentItem(), 0);
  EXPECT_TRUE(box->lookup.empty());
  EXPECT_EQ(recorder.count(SEL_KEYPRESS), 0);
}

TEST_F(FXComboBoxTest, offersEveryKeyToItsTargetFirst) {
  recorder.answer(SEL_KEYPRESS, 5);
  EXPECT_EQ(typeInto(box, "b"), 1);
  EXPECT_EQ(box->getCurrentItem(), 0);
  EXPECT_TRUE(box->lookup.empty());
  EXPECT_EQ(recorder.last(SEL_KEYPRESS).id, 7u);
  EXPECT_EQ(recorder.last(SEL_KEYPRESS).sender, box);
  EXPECT_NE(recorder.last(SEL_KEYPRESS).data, nullptr);
  box->setTarget(nullptr);
  EXPECT_EQ(typeInto(box, "b"), 1);
  EXPECT_EQ(box->getCurrentItem(), 1);
}

TEST_F(FXComboBoxTest, doesNotCollectNavigationKeys) {
  for (const FXint code : {0xFF0D, 0xFF8D, 0x20, 0xFF80, 0xFFE9, 0xFFEA}) expectLeftAlone(code, "b");
  for (FXint code = 0xFF50; code <= 0xFF57; ++code) expectLeftAlone(code, "b");
  for (FXint code = 0xFF95; code <= 0xFF9C; ++code) expectLeftAlone(code, "b");
  for (FXint code = 0xFFE1; code <= 0xFFE4; ++code) expectLeftAlone(code, "b");
}

TEST_F(FXComboBoxTest, doesNotCollectWhatIsNotPrintable) {
  for (const char* text : {"", "\x08", "\x1b", "\x1f", "\x7f", "\xC2\x85"}) expectLeftAlone('b', text);
}

TEST_F(FXComboBoxTest, doesNotCollectCommands) {
  for (const FXuint state : {0x0004u, 0x2000u, 0x2004u, static_cast<FXuint>(ALTMASK)}) expectLeftAlone('b', "b", state);
  // Caps Lock and Num Lock are no commands.
  EXPECT_EQ(press(box, 'b', "b", CAPSLOCKMASK | NUMLOCKMASK), 1);
  EXPECT_EQ(box->getCurrentItem(), 1);
}

TEST_F(FXComboBoxTest, collectsKeypadDigitsAndPunctuation) {
  auto* numbers = newBox("1\n5\n-x\n");
  EXPECT_EQ(press(numbers, 0xFFB5, "5"), 1);
  EXPECT_EQ(numbers->getCurrentItem(), 1);
  numbers->handle(window, FXSEL(SEL_TIMEOUT, OpenComboBox::ID_LOOKUPTIMER), nullptr);
  EXPECT_EQ(press(numbers, '-', "-"), 1);
  EXPECT_EQ(numbers->getCurrentItem(), 2);
}

TEST_F(FXComboBoxTest, collectsAccentedLettersWhole) {
  auto* fruit = newBox("alma\néger\nőszibarack\nűrhajó\nűrlap\n");
  EXPECT_EQ(press(fruit, 0xE9, "é"), 1);
  EXPECT_EQ(fruit->lookup.length(), 2);
  EXPECT_STREQ(fruit->getText().text(), "éger");
  fruit->lookup.clear();
  EXPECT_EQ(press(fruit, 0x1F5, "ő"), 1);
  EXPECT_STREQ(fruit->getText().text(), "őszibarack");
  fruit->lookup.clear();
  for (const char* letter : {"ű", "r", "l"}) EXPECT_EQ(press(fruit, 0x1FB, letter), 1);
  EXPECT_STREQ(fruit->getText().text(), "űrlap");
}

TEST_F(FXComboBoxTest, forgetsAfterOneTypingSpeedFromTheLastKey) {
  EXPECT_EQ(typeInto(box, "z"), 1);
  EXPECT_TRUE(app->hasTimeout(box, OpenComboBox::ID_LOOKUPTIMER)) << "started before the search, which fails";
  typeInto(box, "b");
  const FXlong milliseconds = app->remainingTimeout(box, OpenComboBox::ID_LOOKUPTIMER);
  EXPECT_GT(milliseconds, 0);
  EXPECT_LE(milliseconds, static_cast<FXlong>(app->getTypingSpeed()));
  app->removeTimeout(box, OpenComboBox::ID_LOOKUPTIMER);
  EXPECT_FALSE(app->hasTimeout(box, OpenComboBox::ID_LOOKUPTIMER)) << "never more than one";
  EXPECT_EQ(box->handle(window, FXSEL(SEL_TIMEOUT, OpenComboBox::ID_LOOKUPTIMER), nullptr), 1);
  EXPECT_TRUE(box->lookup.empty());
}

TEST_F(FXComboBoxTest, survivesWithoutAList) {
  FXList* const list = box->list;
  box->list = nullptr;
  EXPECT_EQ(typeInto(box, "b"), 1);
  EXPECT_STREQ(box->lookup.text(), "b");
  box->list = list;
  EXPECT_EQ(box->getCurrentItem(), 0);
}

TEST_F(FXComboBoxTest, searchesFromTheCurrentItemOnAndRoundTheEnd) {
  box->setCurrentItem(1);
  typeInto(box, "b");
  EXPECT_EQ(box->getCurrentItem(), 1) << "the current item itself counts";
  box->setCurrentItem(2);
  box->lookup.clear();
  typeInto(box, "a");
  EXPECT_EQ(box->getCurrentItem(), 0);
}

TEST_F(FXComboBoxTest, tellsCapitalsFromSmallLetters) {
  EXPECT_EQ(typeInto(box, "B"), 1);
  EXPECT_EQ(box->getCurrentItem(), 0);
}

TEST_F(FXComboBoxTest, startsAnewAfterAMiss) {
  EXPECT_EQ(typeInto(box, "z"), 1);
  EXPECT_TRUE(box->lookup.empty());
  EXPECT_EQ(box->getCurrentItem(), 0);
  EXPECT_STREQ(box->getText().text(), "apple");
  EXPECT_EQ(recorder.count(SEL_COMMAND), 0);
  typeInto(box, "b");
  EXPECT_EQ(box->getCurrentItem(), 1);
}

TEST_F(FXComboBoxTest, findsTheLongerPrefixOfAFastTypist) {
  typeInto(box, "b");
  EXPECT_STREQ(box->getText().text(), "banana");
  typeInto(box, "a");
  EXPECT_EQ(recorder.count(SEL_COMMAND), 1) << "the item shown already is not told again";
  typeInto(box, "r");
  EXPECT_STREQ(box->getText().text(), "bar");
  ASSERT_EQ(recorder.count(SEL_COMMAND), 2);
  EXPECT_EQ(recorder.last(SEL_COMMAND).id, 7u);
  EXPECT_EQ(recorder.last(SEL_COMMAND).text, "bar");
}

TEST_F(FXComboBoxTest, selectsAHitInTheListBeforeItTellsTheTarget) {
  Recorder both;
  both.expect(SEL_COMMAND, Recorder::Text);
  box->list->setTarget(&both);
  box->setTarget(&both);
  typeInto(box, "b");
  std::vector<FXuint> types;
  for (const Recorder::Message& message : both.messages()) types.push_back(message.type);
  EXPECT_EQ(types, (std::vector<FXuint>{SEL_KEYPRESS, SEL_DESELECTED, SEL_SELECTED, SEL_COMMAND}));
  EXPECT_EQ(box->list->getAnchorItem(), 1);
  EXPECT_TRUE(box->list->isItemSelected(1));
  EXPECT_FALSE(box->list->isItemSelected(0));
  box->list->setTarget(nullptr);
  box->setTarget(nullptr);
}

TEST_F(FXComboBoxTest, showsTheCurrentItemOverATextFromElsewhere) {
  FXString value = "bar";
  box->handle(window, FXSEL(SEL_COMMAND, FXWindow::ID_SETSTRINGVALUE), &value);
  ASSERT_STREQ(box->getText().text(), "bar");
  typeInto(box, "a");
  EXPECT_STREQ(box->getText().text(), "apple");
  ASSERT_EQ(recorder.count(SEL_COMMAND), 1);
  EXPECT_EQ(recorder.last(SEL_COMMAND).text, "apple");
}

TEST_F(FXComboBoxTest, keepsPrintableKeysFromAnEditableField) {
  OpenComboBox editable(content, 10);
  editable.fillItems("apple\nbanana\n");
  EXPECT_EQ(typeInto(&editable, "q"), 1);
  EXPECT_STREQ(editable.getText().text(), "apple");
}

TEST_F(FXComboBoxTest, hasNothingToFindInAnEmptyList) {
  auto* empty = newBox("");
  EXPECT_EQ(typeInto(empty, "b"), 1);
  EXPECT_TRUE(empty->lookup.empty());
}
