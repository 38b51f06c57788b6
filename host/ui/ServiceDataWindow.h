#pragma once

#include "host/ui/GoodsDataWindow.h"

namespace Brontel {

/// The window of one service.
class ServiceDataWindow : public GoodsDataWindow {
  FXDECLARE(ServiceDataWindow)

 public:
  ServiceDataWindow(FX::FXApp* app, const FX::FXString& title) : GoodsDataWindow(app, title, GOODS_SERVICE) {}

 protected:
  ServiceDataWindow() = default;
};

}  // namespace Brontel
