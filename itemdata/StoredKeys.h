#pragma once

#include <unordered_map>
#include <vector>

#include <fx.h>

#include "itemdata/CellKeys.h"
#include "itemdata/ItemDataList.h"

class MorvaneDatabase;

namespace Brontel::Plugin::ItemData {

/// Keeps a list's keys true around a save. A cell does not learn the key of the row that it inserts, and a rolled-back
/// save leaves keys of rows that never came to be; saving again would then store cells twice, lose them, or touch the
/// rows of another item that has got the key meanwhile.
class StoredKeys {
 public:
  /// Reads which rows the table holds for the list's item. When that fails, the list keeps the keys it has: a marked
  /// cell that lost its key could never be deleted again. Rows with what a cell cannot hold (a number beyond 32 bits, a
  /// text with a zero byte) are a failure of the database, so that the save is not kept.
  StoredKeys(MorvaneDatabase* db, const ItemDataList& list);

  /// Before the cells are written: a key that the table does not hold for the cell's variable and row, or that another
  /// cell holds, live ones first, is dropped, and a live cell without key takes a free one.
  void repair(ItemDataList& list);

  /// After they have been written: a live cell whose row is gone loses its key, and one without key takes that of its
  /// row. Should a row that was to be deleted still stand beside it, it is the older one and stays with the marked
  /// cell.
  void assign(ItemDataList& list);

  /// Whether, after assign, each live cell that a save writes has the key of its row.
  static bool hasAll(const ItemDataList& list);

 private:
  struct Stored {
    FX::FXint key = 0;
    CellKey cell = 0;
    bool held = false;
  };
  class Loader;

  void holdKeys(ItemDataList& list, bool live);
  void takeFreeKeys(ItemDataList& list);
  Stored* find(FX::FXint key);
  Stored* newestFree(CellKey cell);
  void sortByCell();

  bool known_ = false;          // whether the table could be read
  bool readable_ = true;        // whether a cell can hold what is in it
  std::vector<Stored> stored_;  // ascending by key
  size_t next_ = 0;             // where the next key is looked for first: lists are mostly stored in their own order
  size_t end_ = 0;              // of the rows that may be free
  bool sorted_ = false;         // whether rowsOf_ is filled
  std::unordered_map<CellKey, std::vector<size_t>> rowsOf_;  // of each cell, ascending
};

}  // namespace Brontel::Plugin::ItemData
