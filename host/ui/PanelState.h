#pragma once

#include <fx.h>

namespace Brontel {

/// What the inputs below a window hold (texts, choices, marks, lists with their order), as one text that differs when
/// any of it does. Compared with an earlier one it tells whether somebody has changed something.
FX::FXString panelState(const FX::FXWindow* window);

}  // namespace Brontel
