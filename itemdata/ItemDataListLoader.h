#pragma once

#include <memory>

#include "host/database/DataBaseValueLoader.h"
#include "itemdata/ItemDataEntry.h"

namespace Brontel::Plugin::ItemData {

class ItemDataList;

/// Appends a cell to a list for each row of: type, key, variable, name, mandatory, then process or row, then parameter
/// or value. Rows without key describe variables (process, parameter), rows with one are stored cells (row, value). A
/// row whose type no kind handles is skipped.
class ItemDataListLoader : public DataBaseValueLoader {
 public:
  /// Which rows make cells.
  enum class Filter { All, OnlyPerUnit };

  /// Borrows both; the owner goes into the new cells.
  ItemDataListLoader(ItemDataList& list, Entity* owner, Filter filter = Filter::All)
      : list_(list), owner_(owner), filter_(filter) {}

  int processValue(int column, const char* name, const char* value) override;

 private:
  void takeProcess(int process);
  void takeRow(int row);
  void beginRows();
  void finish(const char* text);

  std::unique_ptr<ItemDataEntry> current_;  // null while a result row is being skipped
  ItemDataList& list_;
  Entity* owner_;
  FX::FXint firstRow_ = -2;  // the first stored row number met; none has been yet
  Filter filter_;
};

}  // namespace Brontel::Plugin::ItemData
