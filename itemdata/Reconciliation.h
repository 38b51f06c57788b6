#pragma once

#include <unordered_map>
#include <vector>

#include <fx.h>

#include "itemdata/CellKeys.h"
#include "itemdata/ItemDataList.h"

namespace Brontel::Plugin::ItemData {

/// Brings a loaded list in line with the variables that its goods carry now; they may have been added, taken away,
/// re-ordered or switched between per item and per unit since the cells were stored.
///
/// Configured cells take the template's parameter and order. One that was never stored is added empty while the invoice
/// is open (a quantity as "0", the one value that is never stored). Cells of variables that the goods no longer carry
/// stay behind the configured ones when they hold a value, so that they go on being stored, printed and exported, and
/// leave the list when they are empty. A list that is complete and in order stays as it is.
class Reconciliation {
 public:
  /// Both are borrowed for the object's life.
  Reconciliation(ItemDataList& list, const ItemDataList& settings);

  void apply();

 private:
  enum Section { PerItem, PerUnit, NoLongerPerItem };

  /// Where a cell belongs: compared member by member.
  struct Place {
    Section section;
    FX::FXint row;
    size_t position;  // in the template; behind all of it for what is not configured
    ItemDataEntry* entry;
  };

  bool isConfigured(const ItemDataEntry& entry, FX::FXint position) const;
  void place(ItemDataEntry* entry);
  void addMissing();
  void addMissing(FX::FXint row, FX::FXint first, FX::FXint end);
  void rebuild();
  bool isClosed() const;

  ItemDataList& list_;
  const ItemDataList& settings_;
  bool derived_ = false;    // the list is that of a new item that was made from another one
  FX::FXint firstPerUnit_;  // the template's first per-unit position, its end when there is none
  std::unordered_map<FX::FXint, FX::FXint> positions_;        // of the template's variables
  std::unordered_map<CellKey, const ItemDataEntry*> firsts_;  // for each cell the first that the list holds
  std::vector<FX::FXint> rows_;                               // the rows there are, ascending
  std::vector<Place> places_;
};

}  // namespace Brontel::Plugin::ItemData
