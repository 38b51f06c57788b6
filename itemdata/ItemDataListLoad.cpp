// Loading and saving of ItemDataList.

#include "host/database/Statement.h"
#include "host/entity/Invoice.h"
#include "itemdata/CellKeys.h"
#include "itemdata/Codes.h"
#include "itemdata/Direction.h"
#include "itemdata/ItemDataList.h"
#include "itemdata/ItemDataListLoader.h"
#include "itemdata/ListSelect.h"
#include "itemdata/Reconciliation.h"

namespace Brontel::Plugin::ItemData {

using FX::FXint;

void ItemDataList::loadSettings(MorvaneDatabase* db, int invoiceKind, InvoiceItem* item) {
  const char* select = item == nullptr ? nullptr : settingsSelect(item->getGoodsKind());
  if (db == nullptr || select == nullptr) return;
  Statement statement(db, select);
  statement.setInt("id", item->getGoodsId());
  statement.setInt("direction", directionOf(invoiceKind));
  columns = 0;
  ItemDataListLoader loader(*this, owner_);
  statement.execute(&loader, 1);
}

void ItemDataList::loadSavedItemData(MorvaneDatabase* db) {
  const InvoiceItem* item = getItem();
  if (db == nullptr || item == nullptr) return;
  const bool derived = isDerived(*item);
  if (!derived && item->getId() < 1) return;
  Statement statement(db, derived ? kDerivedCells : kStoredCells);
  statement.setInt("id", derived ? item->getReferencedItemId() : item->getId());
  columns = 0;
  ItemDataListLoader loader(*this, owner_);
  statement.execute(&loader, 1);
}

int ItemDataList::load(MorvaneDatabase* db) {
  if (db == nullptr) return 0;
  if (no() == 0) {
    loadSavedItemData(db);
  } else {
    appendDerivedRows(db);
  }
  loadCells(db);
  if (templateList == nullptr) return 0;
  columns = templateList->columns;
  Reconciliation(*this, *templateList).apply();
  return 0;
}

// A new derived item starts with its goods' per-item cells, which must not keep it from getting the source's rows.
void ItemDataList::appendDerivedRows(MorvaneDatabase* db) {
  const InvoiceItem* item = getItem();
  if (item == nullptr || !isDerived(*item)) return;
  for (FXint i = 0; i < no(); ++i) {
    if (at(i) != nullptr && at(i)->row > 0) return;
  }
  Statement statement(db, kDerivedCells);
  statement.setInt("id", item->getReferencedItemId());
  ItemDataListLoader loader(*this, owner_, ItemDataListLoader::Filter::OnlyPerUnit);
  statement.execute(&loader, 1);
}

void ItemDataList::loadCells(MorvaneDatabase* db) {
  CellKeys seen;
  CellKeys doubled;
  for (FXint i = 0; i < no(); ++i) {
    const ItemDataEntry* entry = at(i);
    if (entry != nullptr && entry->pk != 0 && !seen.insert(keyOf(*entry)).second) doubled.insert(keyOf(*entry));
  }
  for (FXint i = 0; i < no(); ++i) {
    ItemDataEntry* entry = at(i);
    // Of two stored rows for one cell, reading by the cell would give both the same key, and the other row could never
    // be changed or deleted again. They keep what the list's own statement read.
    if (entry == nullptr || (entry->pk != 0 && doubled.contains(keyOf(*entry)))) continue;
    entry->load(db);
  }
}

int ItemDataList::save(MorvaneDatabase* db) {
  FXint zeroRow = -1;
  FXint zeroItem = -1;
  for (FXint i = 0; i < no(); ++i) {
    ItemDataEntry* entry = at(i);
    if (entry == nullptr) continue;
    const FXint item = entry->getOwner() == nullptr ? 0 : entry->getOwner()->getId();
    if (entry->getValue() == "0") {
      zeroRow = entry->row;
      zeroItem = item;
    } else if (entry->row != zeroRow || item != zeroItem || entry->itemvariable != VARIABLE_WITH_QUANTITY) {
      entry->save(db);
    }
  }
  return 0;
}

}  // namespace Brontel::Plugin::ItemData
