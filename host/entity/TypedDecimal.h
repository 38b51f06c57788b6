#pragma once

#include <fx.h>

namespace Brontel {

/// Turns what a person typed as a quantity or a price into a decimal number's text, with "." and without blanks around
/// it; people write the fraction behind a comma or a point. False, and number untouched, when it is none or has more
/// digits than invoices keep: twelve before the mark and four behind it.
bool readDecimal(const FX::FXString& typed, FX::FXString& number);

}  // namespace Brontel
