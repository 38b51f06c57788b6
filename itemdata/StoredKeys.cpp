#include "itemdata/StoredKeys.h"

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
    if (column == 2) {
      const CellKey cell = cellKey(variable_, toInt(value));
      keys_.stored_.emplace(key_, Stored{cell, false});
      keys_.keysOf_[cell].push_back(key_);
    }
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
    const auto found = stored_.find(entry->pk);
    const bool isTrue = found != stored_.end() && found->second.cell == keyOf(*entry) && !found->second.held;
    if (isTrue) {
      found->second.held = true;
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
    const auto found = keysOf_.find(keyOf(*entry));
    if (found == keysOf_.end()) continue;
    std::vector<FXint>& keys = found->second;
    while (!keys.empty() && stored_[keys.back()].held) keys.pop_back();
    if (keys.empty()) continue;
    entry->pk = keys.back();
    stored_[entry->pk].held = true;
  }
}

}  // namespace Brontel::Plugin::ItemData
