#include "host/database/DataBaseValueLoader.h"

int DataBaseValueLoader::processValue(int column, const char*, const char*) {
  if (column == 0) ++rows_;
  return 1;
}

int DataBaseValueLoader::getNumRows() const {
  return rows_;
}
