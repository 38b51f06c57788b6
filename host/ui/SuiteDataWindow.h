#pragma once

#include "host/ui/GoodsDataWindow.h"

namespace Brontel {

/// The window of one suite.
class SuiteDataWindow : public GoodsDataWindow {
  FXDECLARE(SuiteDataWindow)

 public:
  SuiteDataWindow(FX::FXApp* app, const FX::FXString& title) : GoodsDataWindow(app, title, GOODS_SUITE) {}

 protected:
  SuiteDataWindow() = default;
};

}  // namespace Brontel
