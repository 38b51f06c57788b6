#pragma once

#include "host/ui/PanelisedWindow.h"

namespace Brontel {

/// The window of one product.
class ProductDataWindow : public PanelisedWindow {
  FXDECLARE(ProductDataWindow)

 public:
  ProductDataWindow(FX::FXApp* app, const FX::FXString& title) : PanelisedWindow(app, title) {}

 protected:
  ProductDataWindow() = default;
};

}  // namespace Brontel
