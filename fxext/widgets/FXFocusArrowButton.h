#pragma once

#include <fx.h>

namespace FXExt {

/// FOX's arrow button, which also shows that it has the focus. It has no metaclass of its own and passes for what it
/// is.
class FXFocusArrowButton : public FX::FXArrowButton {
 public:
  using FX::FXArrowButton::FXArrowButton;

  long handle(FX::FXObject* sender, FX::FXSelector sel, void* ptr) override;

 private:
  void drawFocus_(FX::FXEvent* event);
};

}  // namespace FXExt
