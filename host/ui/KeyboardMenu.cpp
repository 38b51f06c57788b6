#include "host/ui/KeyboardMenu.h"

namespace Brontel {

FXIMPLEMENT(KeyboardMenu, FXMenuPane, nullptr, 0)

void KeyboardMenu::show() {
  const bool wasShown = shown();
  FXMenuPane::show();
  if (!wasShown && id() != 0) grabKeyboard();
}

void KeyboardMenu::hide() {
  if (shown() && id() != 0) ungrabKeyboard();
  FXMenuPane::hide();
}

}  // namespace Brontel
