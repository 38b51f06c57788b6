#include "host/ui/SuiteDataWindow.h"

namespace Brontel {

FXIMPLEMENT(SuiteDataWindow, PanelisedWindow, nullptr, 0)

}  // namespace Brontel
