#pragma once

#include <string>
#include <vector>

#include <fx.h>

namespace Brontel::Database {

/// SQL text whose %name parameters have become SQLite's numbered ones.
struct SqlText {
  std::string text;                     ///< ?1, ?2 ... in place of %name
  std::vector<std::string> parameters;  ///< the name behind each number; parameters[0] is ?1
};

/// Turns %name into numbered parameters, the same name into the same number. A name is a letter or underscore and all
/// the letters, digits and underscores after it, so that %t_item_1 is never read as %t_item and a rest. Text in single
/// or double quotes stays as it is, and so does a percent sign that no name follows (modulo is written with a blank).
SqlText translateParameters(const FX::FXString& sql);

/// Whether text is a letter or underscore followed by letters, digits and underscores only, as a parameter's name must
/// be.
bool isParameterName(const FX::FXString& text);

/// The identifier in double quotes, inner quotes doubled, so that any text names a table or column and nothing else.
FX::FXString quoteIdentifier(const FX::FXString& identifier);

}  // namespace Brontel::Database
