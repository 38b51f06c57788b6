#include "itemdata/StoredKeys.h"

#include <algorithm>

#include "host/database/DataBaseValueLoader.h"
#include "host/database/IntegerText.h"
#include "host/database/MorvaneDatabase.h"
#include "host/database/Statement.h"
#include "host/entity/Entity.h"
#include "itemdata/Codes.h"

namespace Brontel::Plugin::ItemData {

using Database::toInt;
using FX::FXint;

class StoredKeys::Loader : public DataBaseValueLoader {
 public:
  explicit Loader(StoredKeys& keys) : keys_(keys) {}

  int processValue(int column, const char* name, const char* value) override {
    if (column == 3) keys_.readable_ = keys_.readable_ && toInt(value) != 0;
    if (column == 0) key_ = toInt(value);
    if (column == 1) variable_ = toInt(value);  // NULL is VARIABLE_NONE
    if (column == 2) keys_.stored_.push_back({key_, cellKey(variable_, toInt(value)), false});
    return DataBaseValueLoader::processValue(column, name, value);
  }

 private:
  StoredKeys& keys_;
  FXint key_ = 0;
  FXint variable_ = 0;
};

StoredKeys::StoredKeys(MorvaneDatabase* db, const ItemDataList& list) {
  if (list.getOwner() == nullptr) return;
  Statement statement(db,
                      "select t_invoiceitemdata_id, t_itemvariable_1, row, "
                      "t_invoiceitemdata_id between -2147483648 and 2147483647 "
                      "and ifnull(row,0) between -2147483648 and 2147483647 "
                      "and instr(cast(ifnull(value,'') as blob),x'00')=0 from t_invoiceitemdata "
                      "where t_invoiceitem_1=%t_invoiceitem_1 order by t_invoiceitemdata_id");
  statement.setInt("t_invoiceitem_1", list.getOwner()->getId());
  Loader loader(*this);
  known_ = statement.execute(&loader, 1) != 0;
  end_ = stored_.size();
  // Written back it would be another row, another key or a shorter text.
  if (!readable_) db->fail(Database::ErrorKind::Damaged, "a recorded value holds what no program of this kind stores");
}

void StoredKeys::repair(ItemDataList& list) {
  if (!known_) return;
  holdKeys(list, true);
  holdKeys(list, false);
  takeFreeKeys(list);
}

void StoredKeys::assign(ItemDataList& list) {
  if (!known_) return;
  holdKeys(list, true);
  takeFreeKeys(list);
}

bool StoredKeys::hasAll(const ItemDataList& list) {
  for (FXint i = 0; i < list.no(); ++i) {
    const ItemDataEntry* entry = list[i];
    if (!ItemDataEntry::isLive(entry) || entry->pk != 0) continue;
    if (entry->getValue() != "0" && entry->itemvariable != VARIABLE_WITH_QUANTITY) return false;
  }
  return true;
}

void StoredKeys::holdKeys(ItemDataList& list, bool live) {
  for (FXint i = 0; i < list.no(); ++i) {
    ItemDataEntry* entry = list[i];
    if (entry == nullptr || entry->pk == 0 || ItemDataEntry::isLive(entry) != live) continue;
    Stored* found = find(entry->pk);
    const bool isTrue = found != nullptr && found->cell == keyOf(*entry) && !found->held;
    if (isTrue) {
      found->held = true;
    } else {
      entry->pk = 0;
    }
  }
}

void StoredKeys::takeFreeKeys(ItemDataList& list) {
  // Rows are inserted in the order of the cells, so from the end on the newest key belongs to the last cell.
  for (FXint i = list.no() - 1; i >= 0; --i) {
    ItemDataEntry* entry = list[i];
    // What is never written has no row of its own.
    if (!ItemDataEntry::isLive(entry) || entry->pk != 0 || entry->getValue() == "0") continue;
    Stored* row = newestFree(keyOf(*entry));
    if (row == nullptr) continue;
    entry->pk = row->key;
    row->held = true;
  }
}

StoredKeys::Stored* StoredKeys::find(FXint key) {
  if (next_ < stored_.size() && stored_[next_].key == key) return &stored_[next_++];
  const auto found = std::lower_bound(stored_.begin(), stored_.end(), key,
                                      [](const Stored& row, FXint wanted) { return row.key < wanted; });
  if (found == stored_.end() || found->key != key) return nullptr;
  next_ = static_cast<size_t>(found - stored_.begin()) + 1;
  return &*found;
}

StoredKeys::Stored* StoredKeys::newestFree(CellKey cell) {
  while (end_ > 0 && stored_[end_ - 1].held) --end_;
  if (end_ > 0 && stored_[end_ - 1].cell == cell) return &stored_[end_ - 1];
  if (!sorted_) sortByCell();
  const auto found = rowsOf_.find(cell);
  if (found == rowsOf_.end()) return nullptr;
  std::vector<size_t>& rows = found->second;
  while (!rows.empty() && stored_[rows.back()].held) rows.pop_back();
  return rows.empty() ? nullptr : &stored_[rows.back()];
}

void StoredKeys::sortByCell() {
  sorted_ = true;
  for (size_t i = 0; i < stored_.size(); ++i) rowsOf_[stored_[i].cell].push_back(i);
}

}  // namespace Brontel::Plugin::ItemData
