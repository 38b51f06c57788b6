#include "host/database/FirstRowInteger.h"

#include "host/database/IntegerText.h"

namespace Brontel::Database {

int FirstRowInteger::processValue(int column, const char* name, const char* value) {
  DataBaseValueLoader::processValue(column, name, value);
  if (column < column_) return 1;
  if (column == column_ && value != nullptr) {
    found_ = true;
    value_ = toInt(value);
  }
  return 0;
}

}  // namespace Brontel::Database
