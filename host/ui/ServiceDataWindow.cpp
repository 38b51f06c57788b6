#include "host/ui/ServiceDataWindow.h"

namespace Brontel {

FXIMPLEMENT(ServiceDataWindow, GoodsDataWindow, nullptr, 0)

}  // namespace Brontel
