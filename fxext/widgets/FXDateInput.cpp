#include "fxext/widgets/FXDateInput.h"

#include <fxkeys.h>

#include "fxext/widgets/FXDateInputPane.h"
#include "fxext/widgets/FXDatePicker.h"
#include "fxext/widgets/FXDateSteps.h"

namespace FXExt {

using namespace FX;

FXDEFMAP(FXDateInput)
dateInputMap[] = {
    FXMAPFUNC(SEL_LEFTBUTTONPRESS, FXDateInput::ID_PICKER, FXDateInput::onDateSelected),
    FXMAPFUNC(SEL_CHANGED, FXDateInput::ID_FIELD, FXDateInput::onDateEntered),
    FXMAPFUNC(SEL_COMMAND, FXDateInput::ID_FIELD, FXDateInput::onFieldCommand),
    FXMAPFUNC(SEL_UPDATE, FXDateInput::ID_FIELD, FXDateInput::onUpdate),
    FXMAPFUNC(SEL_KEYPRESS, FXDateInput::ID_FIELD, FXDateInput::onKeyPress),
    FXMAPFUNC(SEL_KEYRELEASE, FXDateInput::ID_FIELD, FXDateInput::onKeyReleased),
    FXMAPFUNC(SEL_MIDDLEBUTTONRELEASE, FXDateInput::ID_FIELD, FXDateInput::onFieldPaste),
    FXMAPFUNC(SEL_KEYPRESS, FXDateInput::ID_PANE, FXDateInput::onPaneKeyPress),
    FXMAPFUNC(SEL_KEYPRESS, 0, FXDateInput::onOpeningKey),
    FXMAPFUNC(SEL_FOCUS_SELF, 0, FXDateInput::onFocusSelf),
    FXMAPFUNC(SEL_FOCUSOUT, 0, FXDateInput::onFocusOut),
    FXMAPFUNC(SEL_COMMAND, FXWindow::ID_GETSTRINGVALUE, FXDateInput::onCmdGetStringValue),
    FXMAPFUNC(SEL_COMMAND, FXWindow::ID_SETSTRINGVALUE, FXDateInput::onCmdSetStringValue),
};

FXIMPLEMENT(FXDateInput, FXPacker, dateInputMap, ARRAYNUMBER(dateInputMap))

namespace {

static_assert(FXDateInput::ID_PICKER == 55);
static_assert(FXDateInput::ID_FIELD == 56);
static_assert(FXDateInput::ID_PANE == 57);

// Every "2024.03.05" fits.
constexpr FXint kColumns = 10;
constexpr FXint kPickerPad = 2;

constexpr FXint kFirstYear = 1;
constexpr FXint kLastYear = 2999;

constexpr FXuint kButtonStyle = FRAME_RAISED | FRAME_THICK | MENUBUTTON_ATTACH_RIGHT;
static_assert(kButtonStyle == 0x20006000);

// Where a key leads from a date. False when the key is none of the calendar's.
bool step(FXint key, FXDate& date) {
  switch (key) {
    case KEY_Left:
    case KEY_KP_Left:
      date += -1;
      return true;
    case KEY_Right:
    case KEY_KP_Right:
      date += 1;
      return true;
    case KEY_Up:
    case KEY_KP_Up:
      date += -7;
      return true;
    case KEY_Down:
    case KEY_KP_Down:
      date += 7;
      return true;
    case KEY_Page_Up:
    case KEY_KP_Page_Up:
      date = addMonths(date, -1);
      return true;
    case KEY_Page_Down:
    case KEY_KP_Page_Down:
      date = addMonths(date, 1);
      return true;
    default:
      return false;
  }
}

bool isTakingKey(FXint key) {
  return key == KEY_Return || key == KEY_KP_Enter || key == KEY_ISO_Enter;
}

}  // namespace

FXDateInput::FXDateInput() = default;

FXDateInput::FXDateInput(FXComposite* p, FXDatePickerHoliday* holiday, FXObject* tgt, FXSelector sel, FXuint opts,
                         FXint x, FXint y, FXint w, FXint h, FXint pl, FXint pr, FXint pt, FXint pb)
    : FXPacker(p, opts, x, y, w, h, 0, 0, 0, 0, 0, 0) {
  flags |= FLAG_ENABLED;
  // The value comes through the text field's updates only, which pause while it has the focus. The widget's own would
  // put the old value back under the hands of somebody who types.
  flags &= ~FLAG_UPDATE;
  target = tgt;
  message = sel;
  field = new FXTextField(this, kColumns, this, ID_FIELD, 0, 0, 0, 0, 0, pl, pr, pt, pb);
  pane = new FXDateInputPane(this, FRAME_RAISED | FRAME_SUNKEN);
  pane->setTarget(this);
  pane->setSelector(ID_PANE);
  picker = new FXDatePicker(pane, holiday, this, ID_PICKER, LAYOUT_FILL_X | LAYOUT_FILL_Y, 0, 0, 0, 0, kPickerPad,
                            kPickerPad, kPickerPad, kPickerPad);
  button = new FXMenuButton(this, FXString::null, nullptr, pane, kButtonStyle, 0, 0, 0, 0, 0, 0, 0, 0);
  button->setXOffset(border);
  button->setYOffset(border);
}

// The pane is a window of its own and no child of this one.
FXDateInput::~FXDateInput() {
  delete pane;
}

void FXDateInput::create() {
  FXPacker::create();
  pane->create();
  if (target) target->tryHandle(this, FXSEL(SEL_UPDATE, message), nullptr);
}

void FXDateInput::destroy() {
  pane->destroy();
  FXPacker::destroy();
}

void FXDateInput::detach() {
  FXPacker::detach();
  pane->detach();
}

void FXDateInput::enable() {
  if (isEnabled()) return;
  FXPacker::enable();
  field->enable();
  button->enable();
}

void FXDateInput::disable() {
  if (!isEnabled()) return;
  closePane_();
  FXPacker::disable();
  field->disable();
  button->disable();
}

void FXDateInput::layout() {
  const FXint innerHeight = height - (border << 1);
  const FXint buttonWidth = button->getDefaultWidth();
  const FXint fieldWidth = width - buttonWidth - (border << 1);
  field->position(border, border, fieldWidth, innerHeight);
  button->position(border + fieldWidth, border, buttonWidth, innerHeight);
  pane->resize(pane->getDefaultWidth(), pane->getDefaultHeight());
  flags &= ~FLAG_DIRTY;
}

FXint FXDateInput::getDefaultWidth() {
  return field->getDefaultWidth() + button->getDefaultWidth() + (border << 1);
}

FXint FXDateInput::getDefaultHeight() {
  return FXMAX(field->getDefaultHeight(), button->getDefaultHeight()) + (border << 1);
}

// FOX calls this both for the widget itself and, before a part of it gets the focus, from that part.
void FXDateInput::setFocus() {
  FXPacker::setFocus();
  if (!getFocus() && !focusingField_) focusField_();
}

void FXDateInput::focusField_() {
  // A window that does not exist yet must not take the focus: its input context needs one.
  if (!field->isEnabled() || !field->id()) return;
  focusingField_ = true;
  field->setFocus();
  focusingField_ = false;
}

void FXDateInput::changeFocus(FXWindow* child) {
  FXWindow* const before = getFocus();
  if (child && before && before != child) before->killFocus();
  FXPacker::changeFocus(child);
  if (child != button) closePane_();
}

void FXDateInput::closePane_() {
  button->handle(this, FXSEL(SEL_COMMAND, ID_UNPOST), nullptr);
  if (pane->shown()) pane->popdown();
}

bool FXDateInput::isPaneShown() const {
  return pane->shown();
}

void FXDateInput::setDate(const FXDate& date) {
  FXint year = 0;
  FXint month = 0;
  FXint day = 0;
  date.getDate(year, month, day);
  field->setText(FXStringFormat("%04d.%02d.%02d", year, month, day));
}

void FXDateInput::setValue(FXString text, unsigned char notify) {
  text.substitute('-', '.');
  // The same text again would lose the selection and the place of the caret.
  if (field->getText() != text) field->setText(text);
  if (notify) notifyTarget_();
  onDateEntered(this, 0, nullptr);
}

FXString FXDateInput::getValue(char) const {
  return field->getText();
}

void FXDateInput::notifyTarget_() {
  const FXString text = field->getText();
  if (target) target->tryHandle(this, FXSEL(SEL_CHANGED, message), const_cast<FXchar*>(text.text()));
}

long FXDateInput::onDateEntered(FXObject*, FXSelector, void*) {
  FXint year = 0;
  FXint month = 0;
  FXint day = 0;
  if (field->getText().scan("%04d.%02d.%02d", &year, &month, &day) != 3) return 1;
  if (month >= 14) month = FXDate::Dec;
  if (year < kFirstYear || kLastYear < year || month < FXDate::Jan || FXDate::Dec < month || day < 1 || 31 < day) {
    return 1;
  }
  const FXDate date(year, month, day);
  // Every update of the window comes here.
  if (!picker->isShowing(date)) picker->setSelectedDate(date);
  return 1;
}

long FXDateInput::onDateSelected(FXObject*, FXSelector, void*) {
  closePane_();
  setDate(picker->getSelectedDate());
  notifyTarget_();
  return 1;
}

long FXDateInput::onUpdate(FXObject*, FXSelector, void*) {
  if (!target || isPaneShown()) return 0;
  return target->tryHandle(this, FXSEL(SEL_UPDATE, message), nullptr);
}

long FXDateInput::onKeyPress(FXObject*, FXSelector, void*) {
  notifyTarget_();
  return 0;
}

long FXDateInput::onKeyReleased(FXObject*, FXSelector, void*) {
  notifyTarget_();
  return 1;
}

// Sent on Return and when the focus leaves a changed text, by which time no key need have told of the change.
long FXDateInput::onFieldCommand(FXObject*, FXSelector, void*) {
  notifyTarget_();
  return 1;
}

// The field tells of this before it pastes; so it is made to paste here, and the target hears of it at once.
long FXDateInput::onFieldPaste(FXObject*, FXSelector, void*) {
  field->handle(this, FXSEL(SEL_COMMAND, FXTextField::ID_PASTE_MIDDLE), nullptr);
  notifyTarget_();
  return 1;
}

long FXDateInput::onOpeningKey(FXObject* sender, FXSelector sel, void* ptr) {
  if (FXPacker::onKeyPress(sender, sel, ptr)) return 1;
  const FXEvent& event = *static_cast<FXEvent*>(ptr);
  if (!isEnabled() || !(event.state & ALTMASK) || (event.code != KEY_Down && event.code != KEY_KP_Down)) return 0;
  // The button hands the keys on to the pane while it has the focus.
  button->setFocus();
  button->handle(this, FXSEL(SEL_COMMAND, ID_POST), ptr);
  return 1;
}

long FXDateInput::onPaneKeyPress(FXObject*, FXSelector, void* ptr) {
  if (target && target->tryHandle(this, FXSEL(SEL_KEYPRESS, message), ptr)) return 1;
  const FXint key = static_cast<FXEvent*>(ptr)->code;
  if (isTakingKey(key)) return onDateSelected(this, 0, nullptr);
  FXDate date = picker->getSelectedDate();
  if (!step(key, date)) return 0;
  moveTo_(date);
  return 1;
}

// A year that would not be read back as a date is not gone to.
void FXDateInput::moveTo_(const FXDate& date) {
  const FXint year = date.year();
  if (year < kFirstYear || kLastYear < year) return;
  picker->setSelectedDate(date);
  setDate(date);
}

long FXDateInput::onFocusSelf(FXObject*, FXSelector, void* ptr) {
  if (ptr) return field->handle(this, FXSEL(SEL_FOCUS_SELF, 0), ptr);
  // The text field asks the event whether the keyboard brought the focus.
  if (!isEnabled()) return 0;
  focusField_();
  return 1;
}

long FXDateInput::onFocusOut(FXObject* sender, FXSelector sel, void* ptr) {
  field->handle(this, FXSEL(SEL_FOCUSOUT, 0), ptr);
  return FXPacker::onFocusOut(sender, sel, ptr);
}

long FXDateInput::onCmdGetStringValue(FXObject*, FXSelector, void* ptr) {
  *static_cast<FXString*>(ptr) = field->getText();
  return 1;
}

long FXDateInput::onCmdSetStringValue(FXObject*, FXSelector, void* ptr) {
  if (!isPaneShown()) setValue(*static_cast<FXString*>(ptr), FALSE);
  return 1;
}

}  // namespace FXExt
