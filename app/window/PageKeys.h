#pragma once

#include <fx.h>

namespace Brontel::App {

/// Lets the letters that are underlined on the shown page of a tab book mean that page. The toolkit gives a letter to
/// the widget that was made last, on whatever page it is.
void listenToKeysOf(const FX::FXTabBook& book, FX::FXint page);

}  // namespace Brontel::App
