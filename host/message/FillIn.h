#pragma once

#include <initializer_list>

#include <fx.h>

namespace Brontel {

/// Puts values into a translatable pattern in place of %s and %d, in order, or by number as in %2$s, where a language
/// wants them in another order. "%%" is a percent sign; a placeholder without value and any other percent sign stay as
/// they are. Unlike printf it cannot be led astray by a faulty translation.
FX::FXString fillIn(const FX::FXString& pattern, std::initializer_list<FX::FXString> values);

}  // namespace Brontel
