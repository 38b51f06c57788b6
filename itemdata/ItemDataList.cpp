#include "itemdata/ItemDataList.h"

#include <unordered_map>
#include <vector>

#include "host/entity/Invoice.h"
#include "itemdata/Codes.h"
#include "itemdata/Reconciliation.h"
#include "itemdata/RowTidying.h"

namespace Brontel::Plugin::ItemData {

using FX::FXint;

ItemDataList::ItemDataList(Entity* owner, ItemDataList* settings)
    : ListOfEntityMiscData<ItemDataEntry>(owner), templateList(settings) {
  if (templateList == nullptr) return;
  firstRowIndex = templateList->firstRowIndex;
  columns = templateList->columns;
  if (owner != nullptr && owner->getId() <= 0) cloneItemsFrom(templateList, 0);
}

ItemDataList::~ItemDataList() {
  if (templateAdopted_) delete templateList;
}

ItemDataList* ItemDataList::of(const Entity* entity) {
  return entity == nullptr ? nullptr : dynamic_cast<ItemDataList*>(entity->getMiscData(kMiscDataKey));
}

void ItemDataList::append(ItemDataEntry* entry) {
  FXObjectListOf<ItemDataEntry>::append(entry);
}

void ItemDataList::cloneItemsFrom(const ItemDataList* source, unsigned char all) {
  if (source == nullptr) return;
  const FXint count = all != 0 ? source->no() : source->perItemCount();
  for (FXint i = 0; i < count; ++i) {
    const ItemDataEntry* entry = source->at(i);
    if (entry == nullptr) continue;
    appendClone(*entry);
    rows = entry->row;
  }
}

ItemDataList* ItemDataList::clone(Entity* owner) const {
  ItemDataList* settings = nullptr;
  if (templateList != nullptr) settings = templateList->clone(owner);
  auto* copy = new ItemDataList(owner, settings);
  if (settings != nullptr) copy->adoptTemplate();
  for (FXint i = 0; i < no(); ++i) {
    const ItemDataEntry* entry = at(i);
    if (entry == nullptr) continue;
    copy->appendClone(*entry);
    // A deleted row must not come back to life in the copy.
    if (entry->del != 0) copy->at(copy->no() - 1)->markForDelete(entry->del);
  }
  copy->rows = rows;
  copy->columns = columns;
  copy->firstRowIndex = firstRowIndex;
  copy->freshCopy_ = true;
  return copy;
}

void ItemDataList::settle() {
  dropSeeds();
  if (!freshCopy_) return;
  freshCopy_ = false;
  RowTidying(*this).apply();
  if (templateList != nullptr) Reconciliation(*this, *templateList).apply();
}

void ItemDataList::dropSeeds() {
  // Seeds and the copies that replace them stand before the rows. What stands behind is no such copy, and dropping a
  // cell for its sake would move the rows away from firstRowIndex.
  std::unordered_map<FXint, FXint> lastOf;
  for (FXint i = 0; i < no() && (at(i) == nullptr || at(i)->row == 0); ++i) {
    if (at(i) != nullptr) lastOf[at(i)->itemvariable] = i;
  }
  FXint kept = 0;
  for (FXint i = 0; i < no(); ++i) {
    ItemDataEntry* entry = at(i);
    const bool isSeed = entry != nullptr && entry->row == 0 && entry->pk == 0 && entry->del == 0 &&
                        entry->getValue().empty() && lastOf[entry->itemvariable] > i;
    if (isSeed) {
      delete entry;
    } else {
      at(kept++) = entry;
    }
  }
  no(kept);
}

void ItemDataList::setStatus(MorvaneDatabase*, unsigned int status) {
  const InvoiceItem* item = getItem();
  const Invoice* invoice = item == nullptr ? nullptr : item->getInvoice();
  const bool always = status == 102 || status == 452;
  const bool whenReferring = status == 101 || status == 201 || status == 401;
  const bool refers = invoice != nullptr && invoice->getReferencedInvoiceId() > 0;
  if (!always && !(whenReferring && refers)) return;
  for (FXint i = 0; i < no(); ++i) {
    if (at(i) != nullptr) at(i)->setStatus(status);
  }
}

void ItemDataList::addRows(int n) {
  if (n < 1 || templateList == nullptr || firstRowIndex < 0 || templateList->firstRowIndex < 0) return;
  std::vector<const ItemDataEntry*> models;
  for (FXint i = templateList->firstRowIndex; i < templateList->no(); ++i) {
    if (templateList->at(i) != nullptr) models.push_back(templateList->at(i));
  }
  if (models.empty()) return;
  FXint next = no();
  // Grown once: cell by cell it would take minutes for thousands of rows.
  no(next + n * static_cast<FXint>(models.size()));
  for (int added = 0; added < n; ++added) {
    ++rows;
    for (const ItemDataEntry* model : models) {
      at(next) = model->clone(owner_);
      at(next++)->row = rows;
    }
  }
}

void ItemDataList::markRowForDelete(int row) {
  for (FXint i = no() - 1; i >= 0; --i) {
    ItemDataEntry* entry = at(i);
    if (entry == nullptr || entry->row != row) continue;
    if (entry->pk == 0) {
      erase(i);
      delete entry;
    } else if (entry->del == 0) {
      entry->markForDelete(1);
    }
  }
  if (row > 0 && rows == row) --rows;
}

const InvoiceItem* ItemDataList::getItem() const {
  return dynamic_cast<const InvoiceItem*>(owner_);
}

FXint ItemDataList::perItemCount() const {
  return firstRowIndex < 0 || firstRowIndex > no() ? no() : firstRowIndex;
}

void ItemDataList::appendClone(const ItemDataEntry& entry) {
  append(entry.clone(owner_));
}

}  // namespace Brontel::Plugin::ItemData
