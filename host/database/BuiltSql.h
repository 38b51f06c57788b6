#pragma once

#include <functional>
#include <string>
#include <unordered_map>
#include <utility>

#include <fx.h>

#include "host/database/BoundValue.h"

namespace Brontel::Database {

/// Statement texts that were built from a table, a condition and the names of the bound values. A save binds the same
/// names for each of thousands of rows, and building the text takes longer than finding it.
class BuiltSql {
 public:
  /// The text for this shape, built now if it was not yet. It is valid until the next call.
  const FX::FXString& get(const FX::FXString& table, const FX::FXString& condition, const BoundValues& values,
                          const std::function<FX::FXString()>& build);

 private:
  std::unordered_map<std::string, FX::FXString> texts_;
  const std::pair<const std::string, FX::FXString>* last_ = nullptr;  // what was asked for last; lies in texts_
  std::string key_;                                                   // kept for its room
};

}  // namespace Brontel::Database
