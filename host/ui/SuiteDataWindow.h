#pragma once

#include "host/ui/PanelisedWindow.h"

namespace Brontel {

/// The window of one suite.
class SuiteDataWindow : public PanelisedWindow {
  FXDECLARE(SuiteDataWindow)

 public:
  SuiteDataWindow(FX::FXApp* app, const FX::FXString& title) : PanelisedWindow(app, title) {}

 protected:
  SuiteDataWindow() = default;
};

}  // namespace Brontel
