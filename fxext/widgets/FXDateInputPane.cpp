#include "fxext/widgets/FXDateInputPane.h"

#include "fxext/widgets/FXDatePicker.h"

namespace FXExt {

using namespace FX;

FXDatePicker* FXDateInputPane::picker_() const {
  return static_cast<FXDatePicker*>(getFirst());
}

long FXDateInputPane::handle(FXObject* sender, FXSelector sel, void* ptr) {
  if (sel == FXSEL(SEL_KEYPRESS, 0) && target && !picker_()->isSpinnerShown() &&
      target->tryHandle(this, FXSEL(SEL_KEYPRESS, message), ptr)) {
    return 1;
  }
  return FXPopup::handle(sender, sel, ptr);
}

void FXDateInputPane::show() {
  if (shown()) return;
  FXPopup::show();
  handle(this, FXSEL(SEL_FOCUSIN, 0), nullptr);
}

void FXDateInputPane::hide() {
  if (!shown()) return;
  picker_()->hideSpinner();
  FXPopup::hide();
  handle(this, FXSEL(SEL_FOCUSOUT, 0), nullptr);
}

}  // namespace FXExt
