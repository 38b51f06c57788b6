#include "host/ui/PanelisedWindow.h"

namespace Brontel {

FXIMPLEMENT_ABSTRACT(PanelisedWindow, FXTopWindow, nullptr, 0)

PanelisedWindow::PanelisedWindow(FX::FXApp* app, const FX::FXString& title)
    : FXTopWindow(app, title, nullptr, nullptr, FX::DECOR_ALL, 0, 0, 0, 0, 0, 0, 0, 0, 4, 4) {}

}  // namespace Brontel
