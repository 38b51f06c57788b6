#include "host/ui/ServiceDataWindow.h"

namespace Brontel {

FXIMPLEMENT(ServiceDataWindow, PanelisedWindow, nullptr, 0)

}  // namespace Brontel
