#pragma once

#include <fx.h>

namespace Brontel {

/// A pop-up menu that has the keyboard while it is shown, so that arrow keys, Enter and Escape work in it. The toolkit
/// leaves the keyboard to the window below, which is deaf while the menu is modal.
class KeyboardMenu : public FX::FXMenuPane {
  FXDECLARE(KeyboardMenu)

 public:
  explicit KeyboardMenu(FX::FXWindow* owner) : FXMenuPane(owner) {}

  void show() override;
  /// Before the command of the chosen entry runs, which may open a window of its own.
  void hide() override;

 protected:
  KeyboardMenu() = default;
};

}  // namespace Brontel
