#pragma once

#include <fx.h>

namespace Brontel::Plugin::ItemData::UI {

/// The text as a label's: every "&" doubled, so that none becomes a hot key, and tabs and line feeds as blanks, since
/// what follows a tab would become a tool tip.
FX::FXString labelText(const FX::FXString& text);

}  // namespace Brontel::Plugin::ItemData::UI
