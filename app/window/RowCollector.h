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
      rows_.emplace_back();
      rows_.back().id = Database::toInt(value);
    } else {
      rows_.back().cells.emplace_back(value);
    }
    return DataBaseValueLoader::processValue(column, name, value);
  }

  std::vector<RowList::Row>& getRows() { return rows_; }

 private:
  std::vector<RowList::Row> rows_;
};

}  // namespace Brontel::App
