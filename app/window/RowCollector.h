#pragma once

#include <vector>

#include "app/window/RowList.h"
#include "host/database/DataBaseValueLoader.h"
#include "host/database/IntegerText.h"

namespace Brontel::App {

/// Gathers a query's rows for a list: the first column is the key, the others are the cells, NULL is empty.
class RowCollector : public DataBaseValueLoader {
 public:
  int processValue(int column, const char* name, const char* value) override {
    if (column == 0) {
      collected_.emplace_back();
      collected_.back().id = Database::toInt(value);
    } else {
      collected_.back().cells.emplace_back(value);
    }
    return DataBaseValueLoader::processValue(column, name, value);
  }

  std::vector<RowList::Row>& getRows() { return collected_; }

 private:
  std::vector<RowList::Row> collected_;
};

}  // namespace Brontel::App
