#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "host/database/DataBaseValueLoader.h"

/// Writes down every call, and can ask to stop or do something in between.
class RecordingLoader : public DataBaseValueLoader {
 public:
  struct Cell {
    int column;
    std::string name;
    std::optional<std::string> value;

    bool operator==(const Cell&) const = default;
  };

  int processValue(int column, const char* name, const char* value) override {
    DataBaseValueLoader::processValue(column, name, value);
    cells.push_back({column, name, value == nullptr ? std::nullopt : std::optional<std::string>(value)});
    if (onCell) onCell();
    return static_cast<int>(cells.size()) == stopAt ? 0 : 1;
  }

  /// The values in the order in which they came; "NULL" for null.
  std::vector<std::string> values() const {
    std::vector<std::string> values;
    for (const Cell& cell : cells) values.push_back(cell.value.value_or("NULL"));
    return values;
  }

  std::vector<Cell> cells;
  int stopAt = -1;  ///< the call, from 1, that answers with zero
  std::function<void()> onCell;
};
