#include "fxext/widgets/FXComboBox.h"

#include <fxkeys.h>

FXDEFMAP(FXExt::FXComboBox)
comboBoxMap[] = {
    FXMAPFUNC(FX::SEL_KEYPRESS, 0, FXExt::FXComboBox::onKeyPress),
    FXMAPFUNC(FX::SEL_TIMEOUT, FXExt::FXComboBox::ID_LOOKUPTIMER, FXExt::FXComboBox::onLookupTimer),
};

FXIMPLEMENT(FXExt::FXComboBox, FX::FXComboBox, comboBoxMap, ARRAYNUMBER(comboBoxMap))

namespace FXExt {

using namespace FX;

namespace {

static_assert(FXExt::FXComboBox::ID_LOOKUPTIMER == 57);

// Control, and the bit of a second keyboard group; and Alt, so that the mnemonics of the window go on working.
constexpr FXuint kCommandModifiers = 0x2004 | ALTMASK;

bool isNavigationKey(FXint code) {
  return code == KEY_Return || code == KEY_KP_Enter || code == KEY_space || code == KEY_KP_Space ||
         (KEY_Home <= code && code <= KEY_End) || (KEY_KP_Home <= code && code <= KEY_KP_End) ||
         (KEY_Shift_L <= code && code <= KEY_Control_R) || code == KEY_Alt_L || code == KEY_Alt_R;
}

bool isSearchKey(const FXEvent& event) {
  if (isNavigationKey(event.code) || (event.state & kCommandModifiers)) return false;
  const FXwchar first = event.text.wc(0);
  return first >= 0x20 && Unicode::isPrint(first);
}

bool isClosingKey(FXint code) {
  return code == KEY_Escape || code == KEY_Return || code == KEY_KP_Enter;
}

}  // namespace

FXComboBox::FXComboBox() {
  field = nullptr;
  button = nullptr;
  list = nullptr;
  pane = nullptr;
}

FXComboBox::FXComboBox(FXComposite* p, FXint cols, FXObject* tgt, FXSelector sel, FXuint opts, FXint x, FXint y,
                       FXint w, FXint h, FXint pl, FXint pr, FXint pt, FXint pb)
    : FX::FXComboBox(p, cols, tgt, sel, opts, x, y, w, h, pl, pr, pt, pb) {}

FXComboBox::~FXComboBox() {
  getApp()->removeTimeout(this, ID_LOOKUPTIMER);
}

void FXComboBox::destroy() {
  getApp()->removeTimeout(this, ID_LOOKUPTIMER);
}

void FXComboBox::detach() {
  getApp()->removeTimeout(this, ID_LOOKUPTIMER);
}

void FXComboBox::changeFocus(FXWindow* child) {
  FX::FXComboBox::changeFocus(child);
  if (!list) return;
  // The list has the colours that the field is to have without the focus: callers set both at once.
  const bool highlighted = child && child == field && !isEditable();
  field->setBackColor(highlighted ? list->getSelBackColor() : list->getBackColor());
  field->setTextColor(highlighted ? list->getSelTextColor() : list->getTextColor());
}

long FXComboBox::onKeyPress(FXObject* sender, FXSelector sel, void* ptr) {
  if (!isEnabled()) return 0;
  if (target && target->tryHandle(this, FXSEL(SEL_KEYPRESS, message), ptr)) return 1;
  const FXEvent& event = *static_cast<FXEvent*>(ptr);
  if (!isSearchKey(event)) return leaveKeyToBase_(sender, sel, ptr);
  lookup.append(event.text);
  getApp()->addTimeout(this, ID_LOOKUPTIMER, getApp()->getTypingSpeed());
  if (!list) return 1;
  const FXint found = list->findItem(lookup, list->getCurrentItem(), SEARCH_FORWARD | SEARCH_WRAP | SEARCH_PREFIX);
  if (found < 0) {
    lookup.clear();
    return 1;
  }
  choose_(found);
  return 1;
}

// FOX asks no base class once a mapped handler has answered 0, so that the base must be called for its keys to work.
long FXComboBox::leaveKeyToBase_(FXObject* sender, FXSelector sel, void* ptr) {
  if (!getFocus()) return 0;
  // A click on the field opens the list and leaves the focus in the field, from where no key would close it again.
  if (getFocus() == field && isPaneShown() && isClosingKey(static_cast<FXEvent*>(ptr)->code)) {
    button->handle(this, FXSEL(SEL_COMMAND, ID_UNPOST), nullptr);
    return 1;
  }
  return FX::FXComboBox::onKeyPress(sender, sel, ptr);
}

void FXComboBox::choose_(FXint index) {
  list->makeItemVisible(index);
  list->killSelection(TRUE);
  list->selectItem(index, TRUE);
  list->setAnchorItem(index);
  const bool isCurrent = list->getCurrentItem() == index;
  FX::FXComboBox::setCurrentItem(index, TRUE);
  // The item may have been current already under a text that came from elsewhere.
  if (isCurrent) showCurrentItem_();
}

void FXComboBox::showCurrentItem_() {
  const FXString text = list->getItemText(list->getCurrentItem());
  if (getText() == text) return;
  setText(text);
  if (target) target->tryHandle(this, FXSEL(SEL_COMMAND, message), const_cast<FXchar*>(text.text()));
}

long FXComboBox::onLookupTimer(FXObject*, FXSelector, void*) {
  lookup.clear();
  return 1;
}

}  // namespace FXExt
