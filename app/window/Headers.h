#pragma once

#include <fx.h>

namespace Brontel::App {

/// Widens every item of a header that is too narrow for its text and an arrow. Its font has to be on the display.
void fitHeaders(FX::FXHeader& header);

}  // namespace Brontel::App
