#include "host/ui/ProductDataWindow.h"

namespace Brontel {

FXIMPLEMENT(ProductDataWindow, GoodsDataWindow, nullptr, 0)

}  // namespace Brontel
