#pragma once

#include <string>
#include <string_view>

namespace Brontel::Database {

/// The text in lower case by Unicode's simple mapping. Bytes that are no UTF-8 stay as they are. Linear in the text's
/// length.
std::string foldCase(std::string_view text);

}  // namespace Brontel::Database
