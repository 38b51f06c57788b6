#include "itemdata/Reconciliation.h"

#include <algorithm>
#include <tuple>

#include "host/entity/Invoice.h"
#include "itemdata/Codes.h"

namespace Brontel::Plugin::ItemData {

using FX::FXint;

Reconciliation::Reconciliation(ItemDataList& list, const ItemDataList& settings)
    : list_(list),
      settings_(settings),
      firstPerUnit_(settings.firstRowIndex < 0 ? settings.no() : std::min(settings.firstRowIndex, settings.no())) {
  const auto* item = dynamic_cast<const InvoiceItem*>(list.getOwner());
  derived_ = item != nullptr && isDerived(*item);
  for (FXint i = 0; i < settings_.no(); ++i) {
    if (settings_[i] != nullptr) positions_.emplace(settings_[i]->itemvariable, i);
  }
}

void Reconciliation::apply() {
  places_.reserve(static_cast<size_t>(list_.no()));
  for (FXint i = 0; i < list_.no(); ++i) place(list_[i]);
  if (!isClosed()) addMissing();
  std::stable_sort(places_.begin(), places_.end(), [](const Place& a, const Place& b) {
    return std::tie(a.section, a.row, a.position) < std::tie(b.section, b.row, b.position);
  });
  rebuild();
}

bool Reconciliation::isConfigured(const ItemDataEntry& entry, FXint position) const {
  return (position >= firstPerUnit_) == (entry.row > 0);
}

void Reconciliation::place(ItemDataEntry* entry) {
  if (entry == nullptr) return;
  const auto found = positions_.find(entry->itemvariable);
  if (found != positions_.end()) entry->vvalue = settings_[found->second]->vvalue;
  const bool wanted = found != positions_.end() && isConfigured(*entry, found->second);
  const auto known = firsts_.find(keyOf(*entry));
  const bool first = known == firsts_.end();
  // What derives from another item is read twice where the goods' variables have changed: as a cell of its own and with
  // the source's rows.
  const bool repeated =
      !first && derived_ && entry->pk == 0 && (entry->value.empty() || entry->value == known->second->value);
  if (repeated || (!wanted && entry->getValue().empty())) {
    delete entry;
    return;
  }
  if (first) firsts_.emplace(keyOf(*entry), entry);
  if (entry->row > 0 && (rows_.empty() || rows_.back() != entry->row)) rows_.push_back(entry->row);
  const Section section = entry->row > 0 ? PerUnit : wanted && first ? PerItem : NoLongerPerItem;
  const FXint position = wanted && first ? found->second : settings_.no();
  places_.push_back({section, entry->row, static_cast<size_t>(position), entry});
}

void Reconciliation::addMissing() {
  std::sort(rows_.begin(), rows_.end());
  rows_.erase(std::unique(rows_.begin(), rows_.end()), rows_.end());
  addMissing(0, 0, firstPerUnit_);
  for (const FXint row : rows_) addMissing(row, firstPerUnit_, settings_.no());
}

void Reconciliation::addMissing(FXint row, FXint first, FXint end) {
  for (FXint i = first; i < end; ++i) {
    const ItemDataEntry* model = settings_[i];
    if (model == nullptr || firsts_.contains(cellKey(model->itemvariable, row))) continue;
    ItemDataEntry* entry = model->clone(list_.getOwner());
    entry->row = row;
    entry->value = model->itemvariable == VARIABLE_QUANTITY ? "0" : "";
    places_.push_back({row > 0 ? PerUnit : PerItem, row, static_cast<size_t>(i), entry});
  }
}

void Reconciliation::rebuild() {
  list_.no(static_cast<FXint>(places_.size()));
  list_.rows = 0;
  FXint perItem = 0;
  for (size_t i = 0; i < places_.size(); ++i) {
    list_[static_cast<FXint>(i)] = places_[i].entry;
    list_.rows = std::max(list_.rows, places_[i].row);
    if (places_[i].section == PerItem) ++perItem;
  }
  // Where a closed invoice lacks per-item cells, the per-unit ones begin earlier than in the template.
  list_.firstRowIndex = settings_.firstRowIndex < 0 ? -1 : perItem;
}

bool Reconciliation::isClosed() const {
  const auto* item = dynamic_cast<const InvoiceItem*>(list_.getOwner());
  return item != nullptr && item->getInvoice() != nullptr && item->getInvoice()->isStatusClosed();
}

}  // namespace Brontel::Plugin::ItemData
