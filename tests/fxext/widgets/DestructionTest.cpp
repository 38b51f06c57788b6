#include <fxkeys.h>

#include "tests/fxext/widgets/OpenComboBox.h"
#include "tests/fxext/widgets/OpenDateInput.h"
#include "tests/fxext/widgets/OpenDualList.h"
#include "tests/fxext/widgets/Recorder.h"
#include "tests/fxext/widgets/WidgetTest.h"

using namespace FX;

// A window may go at any moment, whatever is open or held down. The sanitizers watch.

namespace {

/// Deletes a window when it gets a message.
class Deleting : public FXObject {
 public:
  explicit Deleting(FXuint type) : type_(type) {}

  long handle(FXObject*, FXSelector sel, void*) override {
    if (FXSELTYPE(sel) != type_) return 0;
    delete doomed;
    doomed = nullptr;
    return 1;
  }

  FXWindow* doomed = nullptr;

 private:
  FXuint type_;
};

}  // namespace

class DestructionTest : public WidgetTest {
 protected:
  DestructionTest() {
    dialog = new FXDialogBox(window, "dialog", DECOR_ALL, 50, 50);
    frame = new FXVerticalFrame(dialog, LAYOUT_FILL_X | LAYOUT_FILL_Y);
  }

  void showDialog() {
    show();
    dialog->create();
    dialog->show();
    giveKeyboardTo(dialog);
  }

  // Deletes the dialog, lets go of everything and goes on for a while; then nothing of it is left.
  void deleteDialog() {
    delete dialog;
    dialog = nullptr;
    events.releaseButton();
    events.move(5, 5);
    events.click();
    giveKeyboardTo(window);
    type("x");
    app->addTimeout(&timer, 1, 60);
    EXPECT_TRUE(waitUntil([this] { return timer.count(SEL_TIMEOUT) > 0; }));
    settle();
    EXPECT_EQ(events.countTopLevelWindows(), 1) << "the main window";
  }

  FXArrowButton* arrowOf(const FXWindow* widget) { return descendants<FXArrowButton>(widget).at(0); }

  FXDialogBox* dialog;
  FXVerticalFrame* frame;
  Recorder timer;
};

TEST_F(DestructionTest, ofAComboBoxWithItsListOpen) {
  auto* box = new OpenComboBox(frame, 10, nullptr, 0, COMBOBOX_STATIC);
  box->fillItems("a\nb\nc\n");
  box->setNumVisible(3);
  showDialog();
  click(box->button);
  moveTo(box->list);
  ASSERT_TRUE(box->isPaneShown());
  deleteDialog();
}

TEST_F(DestructionTest, ofAComboBoxInTheMiddleOfTyping) {
  auto* box = new OpenComboBox(frame, 10, nullptr, 0, COMBOBOX_STATIC);
  box->fillItems("a\nb\nc\n");
  app->setTypingSpeed(40);
  showDialog();
  click(box->field);
  events.pressKey('b');
  settle();
  ASSERT_TRUE(app->hasTimeout(box, OpenComboBox::ID_LOOKUPTIMER));
  deleteDialog();
  events.releaseKey('b');
}

TEST_F(DestructionTest, ofAComboBoxByItsOwnTarget) {
  Deleting target(SEL_COMMAND);
  auto* box = new OpenComboBox(frame, 10, &target, 1, COMBOBOX_STATIC);
  box->fillItems("a\nb\nc\n");
  showDialog();
  box->field->setFocus();
  target.doomed = box;
  type("b");
  EXPECT_EQ(target.doomed, nullptr);
  deleteDialog();
}

TEST_F(DestructionTest, ofADateFieldWithItsCalendarOpen) {
  auto* input = new OpenDateInput(frame, nullptr);
  showDialog();
  click(input->button);
  moveTo(input->picker);
  ASSERT_TRUE(input->isPaneShown());
  deleteDialog();
}

TEST_F(DestructionTest, ofADateFieldWhileAYearIsEntered) {
  auto* input = new OpenDateInput(frame, nullptr);
  showDialog();
  click(input->button);
  click(OpenDatePicker::yearLabelOf(*input->picker));
  type("20");
  ASSERT_TRUE(input->picker->isSpinnerShown());
  deleteDialog();
}

TEST_F(DestructionTest, ofADateFieldWithAnArrowHeldDown) {
  auto* input = new OpenDateInput(frame, nullptr);
  showDialog();
  click(input->button);
  moveTo(arrowOf(input->picker));
  events.pressButton();
  settle();
  ASSERT_TRUE(arrowOf(input->picker)->getState());
  deleteDialog();
}

TEST_F(DestructionTest, ofADateFieldWhileItsTextIsDraggedOver) {
  auto* input = new OpenDateInput(frame, nullptr);
  input->setValue("2024.03.05", FALSE);
  showDialog();
  FXint x = 0;
  FXint y = 0;
  input->field->translateCoordinatesTo(x, y, input->getRoot(), 0, 0);
  events.dragTo(x + 3, y + 8, x - 30, y + 8);
  settle();
  ASSERT_TRUE(app->hasTimeout(input->field, FXWindow::ID_AUTOSCROLL));
  deleteDialog();
}

TEST_F(DestructionTest, ofADateFieldByItsOwnTargetAfterAClick) {
  Deleting target(SEL_CHANGED);
  auto* input = new OpenDateInput(frame, nullptr, &target, 1);
  showDialog();
  click(input->button);
  target.doomed = input;
  click(OpenDatePicker::cellOf(*input->picker, 17));
  EXPECT_EQ(target.doomed, nullptr);
  deleteDialog();
}

TEST_F(DestructionTest, ofADateFieldByItsOwnTargetAfterAKey) {
  Deleting target(SEL_CHANGED);
  auto* input = new OpenDateInput(frame, nullptr, &target, 1);
  showDialog();
  click(input->button);
  target.doomed = input;
  key(KEY_Return);
  EXPECT_EQ(target.doomed, nullptr);
  deleteDialog();
}

TEST_F(DestructionTest, ofAPickerWhileAYearIsEntered) {
  auto* picker = new OpenDatePicker(frame, nullptr);
  showDialog();
  click(picker->yearLabel);
  type("20");
  ASSERT_TRUE(picker->isSpinnerShown());
  deleteDialog();
}

TEST_F(DestructionTest, ofAPickerWithAnArrowHeldDown) {
  auto* picker = new OpenDatePicker(frame, nullptr);
  showDialog();
  moveTo(arrowOf(picker));
  events.pressButton();
  settle();
  ASSERT_TRUE(arrowOf(picker)->getState());
  deleteDialog();
}

TEST_F(DestructionTest, ofManyPickers) {
  showDialog();
  for (int i = 0; i < 100; ++i) {
    OpenDatePicker picker(frame, nullptr);
    picker.create();
    picker.onCmdNext(nullptr, 0, nullptr);
    picker.showSpinner();
  }
  settle();
  deleteDialog();
}

TEST_F(DestructionTest, ofADualListInTheMiddleOfADrag) {
  auto* lists = new OpenDualList(frame, "From", "To", LAYOUT_FILL_X | LAYOUT_FILL_Y);
  for (int i = 0; i < 100; ++i) lists->appendFromListItem(FXStringVal(i), nullptr, nullptr);
  lists->fromList->setNumVisible(5);
  showDialog();
  FXint x = 0;
  FXint y = 0;
  lists->fromList->translateCoordinatesTo(x, y, lists->getRoot(), 10, 10);
  events.dragTo(x, y, x, y + 400);
  settle();
  ASSERT_TRUE(lists->fromList->grabbed());
  deleteDialog();
}

TEST_F(DestructionTest, ofADualListBetweenTheClicksOfADoubleClick) {
  auto* lists = new OpenDualList(frame, "From", "To", LAYOUT_FILL_X | LAYOUT_FILL_Y);
  for (int i = 0; i < 3; ++i) lists->appendFromListItem(FXStringVal(i), nullptr, nullptr);
  showDialog();
  moveTo(lists->fromList, 10, 10);
  events.click();
  events.pressButton();
  settle();
  deleteDialog();
}
