#include "fxext/widgets/FXFocusList.h"

namespace FXExt {

using namespace FX;

long FXFocusList::handle(FXObject* sender, FXSelector sel, void* ptr) {
  const long result = FXList::handle(sender, sel, ptr);
  switch (sel) {
    case FXSEL(SEL_PAINT, 0):
      if (hasFocus() && getNumItems() == 0) drawFocus_(static_cast<FXEvent*>(ptr));
      break;
    case FXSEL(SEL_FOCUSIN, 0):
    case FXSEL(SEL_FOCUSOUT, 0):
      if (getNumItems() == 0) update();
      break;
    default:
      // After other messages the list may be gone.
      break;
  }
  return result;
}

void FXFocusList::drawFocus_(FXEvent* event) {
  constexpr FXint kInset = 2;
  FXDCWindow dc(this, event);
  dc.drawFocusRectangle(kInset, kInset, width - 2 * kInset, height - 2 * kInset);
}

}  // namespace FXExt
