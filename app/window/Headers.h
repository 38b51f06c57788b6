#pragma once

#include <fx.h>

namespace Brontel::App {

/// Gives every item of a header the width for the application's letters that it has for the usual ones.
void scaleHeaders(FX::FXHeader& header);

/// Widens every item of a header that is too narrow for its text and an arrow. Its font has to be on the display.
void fitHeaders(FX::FXHeader& header);

}  // namespace Brontel::App
