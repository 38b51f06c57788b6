#pragma once

#include "host/ui/GoodsDataWindow.h"

namespace Brontel {

/// The window of one product.
class ProductDataWindow : public GoodsDataWindow {
  FXDECLARE(ProductDataWindow)

 public:
  ProductDataWindow(FX::FXApp* app, const FX::FXString& title) : GoodsDataWindow(app, title, GOODS_PRODUCT) {}

 protected:
  ProductDataWindow() = default;
};

}  // namespace Brontel
