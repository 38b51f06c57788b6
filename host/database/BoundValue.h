#pragma once

#include <vector>

#include <fx.h>

namespace Brontel::Database {

/// A value bound to a statement's parameter by name.
struct BoundValue {
  FX::FXString name;    ///< the parameter without its percent sign
  bool isText = false;  ///< whether text or number holds the value
  FX::FXlong number = 0;
  FX::FXString text;
};

using BoundValues = std::vector<BoundValue>;

/// The value bound under that name, or null. Names are case-sensitive.
const BoundValue* findValue(const BoundValues& values, const char* name);

}  // namespace Brontel::Database
