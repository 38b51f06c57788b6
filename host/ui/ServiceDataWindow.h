#pragma once

#include "host/ui/PanelisedWindow.h"

namespace Brontel {

/// The window of one service.
class ServiceDataWindow : public PanelisedWindow {
  FXDECLARE(ServiceDataWindow)

 public:
  ServiceDataWindow(FX::FXApp* app, const FX::FXString& title) : PanelisedWindow(app, title) {}

 protected:
  ServiceDataWindow() = default;
};

}  // namespace Brontel
