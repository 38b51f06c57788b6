#include "host/ui/SuiteDataWindow.h"

namespace Brontel {

FXIMPLEMENT(SuiteDataWindow, GoodsDataWindow, nullptr, 0)

}  // namespace Brontel
