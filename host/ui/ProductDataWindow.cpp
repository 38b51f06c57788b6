#include "host/ui/ProductDataWindow.h"

namespace Brontel {

FXIMPLEMENT(ProductDataWindow, PanelisedWindow, nullptr, 0)

}  // namespace Brontel
