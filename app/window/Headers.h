#pragma once

#include <fx.h>

namespace Brontel::App {

/// Gives every item of a header the width that is remembered under that section of the settings. One without, or with
/// one that nobody can have left, gets the width for the application's letters that it has for the usual ones.
void restoreHeaders(FX::FXHeader& header, const FX::FXString& section);

/// Remembers the widths of a header's items under that section of the settings.
void saveHeaders(const FX::FXHeader& header, const FX::FXString& section);

/// Widens every item of a header that is too narrow for its text and an arrow. Its font has to be on the display.
void fitHeaders(FX::FXHeader& header);

}  // namespace Brontel::App
