#pragma once

#include <string>

#include <fx.h>

namespace Brontel::App {

/// The text as well-formed UTF-8 in which only a line feed ends a line: what is no UTF-8, and control characters,
/// become U+FFFD, tabs and lone carriage returns a blank.
std::string toPrintable(const FX::FXString& text);

}  // namespace Brontel::App
