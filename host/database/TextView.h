#pragma once

#include <string_view>

#include <fx.h>

namespace Brontel::Database {

/// The bytes of a text, zero bytes included, for as long as it stays as it is.
inline std::string_view viewOf(const FX::FXString& text) {
  return {text.text(), static_cast<size_t>(text.length())};
}

}  // namespace Brontel::Database
