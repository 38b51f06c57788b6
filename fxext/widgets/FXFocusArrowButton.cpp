#include "fxext/widgets/FXFocusArrowButton.h"

namespace FXExt {

using namespace FX;

long FXFocusArrowButton::handle(FXObject* sender, FXSelector sel, void* ptr) {
  const long result = FXArrowButton::handle(sender, sel, ptr);
  switch (sel) {
    case FXSEL(SEL_PAINT, 0):
      if (hasFocus()) drawFocus_(static_cast<FXEvent*>(ptr));
      break;
    case FXSEL(SEL_FOCUSIN, 0):
    case FXSEL(SEL_FOCUSOUT, 0):
      update();
      break;
    default:
      // After other messages the button may be gone.
      break;
  }
  return result;
}

void FXFocusArrowButton::drawFocus_(FXEvent* event) {
  FXDCWindow dc(this, event);
  dc.drawFocusRectangle(border + 1, border + 1, width - 2 * border - 2, height - 2 * border - 2);
}

}  // namespace FXExt
