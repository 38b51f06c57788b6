#pragma once

#include <string>

#include <fx.h>

namespace XMLBuilder {

/// The text with every character that XML 1.0 forbids, and every byte that is no UTF-8, replaced by U+FFFD: a barcode
/// scanner's control characters must not make an export unreadable.
std::string cleanText(const FX::FXString& text);

}  // namespace XMLBuilder
