#include "host/database/BoundValue.h"

#include <cstring>

namespace Brontel::Database {

const BoundValue* findValue(const BoundValues& values, const char* name) {
  for (const BoundValue& value : values) {
    if (std::strcmp(value.name.text(), name) == 0) return &value;
  }
  return nullptr;
}

}  // namespace Brontel::Database
