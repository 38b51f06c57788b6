#pragma once

#include <fx.h>

namespace Brontel::App {

/// Writes a file that is wholly the new one or, on failure, still the old one; its permissions stay. A pipe or device
/// is written to as it is. Returns what went wrong, for the person; empty when it is done.
FX::FXString replaceFile(const FX::FXString& path, const FX::FXString& content);

}  // namespace Brontel::App
