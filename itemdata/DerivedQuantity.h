#pragma once

#include <fx.h>

namespace Brontel::Plugin::ItemData {

/// A quantity that the database has computed, as decimal text. SQLite answers with binary floating point once a
/// quantity has a fraction: "2.0", "9.9999999999989e-05". Such a text is read digit by digit, rounded half away from
/// zero to four places and written as the decimals of this system are ("2", "0.0001"). An integer, the empty text and
/// what is no number, or too large a one, come back as they are.
FX::FXString exactQuantity(const FX::FXString& number);

}  // namespace Brontel::Plugin::ItemData
