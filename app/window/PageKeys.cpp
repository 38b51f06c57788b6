#include "app/window/PageKeys.h"

namespace Brontel::App {

namespace {

/// The toolkit keeps a label's key for its subclasses.
struct Key : FX::FXLabel {
  static FX::FXHotKey of(const FX::FXLabel& label) { return label.*(&Key::hotkey); }
};

void changeKeys(FX::FXWindow& window, void (FX::FXWindow::*change)(FX::FXHotKey)) {
  for (FX::FXWindow* child = window.getFirst(); child != nullptr; child = child->getNext()) {
    const auto* label = dynamic_cast<const FX::FXLabel*>(child);
    if (label != nullptr && Key::of(*label) != 0) (child->*change)(Key::of(*label));
    changeKeys(*child, change);
  }
}

}  // namespace

void listenToKeysOf(const FX::FXTabBook& book, FX::FXint page) {
  // Tabs and pages take turns.
  for (FX::FXint i = 1; FX::FXWindow* frame = book.childAtIndex(i); i += 2) {
    changeKeys(*frame, &FX::FXWindow::remHotKey);
  }
  if (FX::FXWindow* shown = book.childAtIndex(2 * page + 1)) changeKeys(*shown, &FX::FXWindow::addHotKey);
}

}  // namespace Brontel::App
