#pragma once

#include <fx.h>

namespace Brontel::Plugin::ItemData::UI {

/// Reads the clipboard as a window of the display sees it. As text, not as the toolkit's list of comma-separated
/// values: a comma belongs to a number as people write it. False when there is no text.
bool readClipboard(const FX::FXWindow& window, FX::FXString& text);

}  // namespace Brontel::Plugin::ItemData::UI
