#pragma once

#include <fx.h>

namespace Brontel::Database {

/// The base-10 integer at the start of the text, as database columns deliver it: null and text without one are 0, what
/// lies outside the range of int comes as its nearest limit.
int toInt(const char* text);

/// Whether text is optional blanks, an optional sign and decimal digits with nothing behind them; value is then that
/// number, or its nearest 64-bit limit.
bool isInteger(const FX::FXString& text, FX::FXlong& value);

}  // namespace Brontel::Database
