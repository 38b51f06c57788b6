#pragma once

#include <fx.h>

namespace Brontel::App {

/// The text as it is compared where case does not matter.
FX::FXString folded(const FX::FXString& text);

/// Whether one text comes before another as people look for them: digits count as numbers, case does not, and accents
/// only between texts that are alike otherwise.
bool comesBefore(const FX::FXString& one, const FX::FXString& other);

}  // namespace Brontel::App
