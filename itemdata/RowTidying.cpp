#include "itemdata/RowTidying.h"

#include "itemdata/Codes.h"

namespace Brontel::Plugin::ItemData {

using FX::FXint;

void RowTidying::apply() {
  const FXint count = list_.no();
  FXint first = 0;
  while (first < count) {
    const FXint end = endOfRow(first);
    if (isMarked(first, end)) {
      tidyRow(first, end);
    } else {
      for (FXint i = first; i < end; ++i) {
        if (list_[i] != nullptr) live_.insert(list_[i]->row);
        list_[kept_++] = list_[i];
      }
    }
    first = end;
  }
  list_.no(kept_);
  lowerRowCount();
}

FXint RowTidying::endOfRow(FXint first) const {
  FXint end = first + 1;
  while (list_[first] != nullptr && end < list_.no() && list_[end] != nullptr && list_[end]->row == list_[first]->row &&
         list_[end]->type != TYPE_QUANTITY) {
    ++end;
  }
  return end;
}

bool RowTidying::isMarked(FXint first, FXint end) const {
  for (FXint i = first; i < end; ++i) {
    if (list_[i] != nullptr && list_[i]->del != 0) return true;
  }
  return false;
}

void RowTidying::tidyRow(FXint first, FXint end) {
  tidied_.push_back(list_[first]->row);
  for (FXint i = first; i < end; ++i) {
    ItemDataEntry* entry = list_[i];
    if (entry->pk == 0) {
      delete entry;
      continue;
    }
    if (entry->del == 0) entry->markForDelete(1);
    list_[kept_++] = entry;
  }
}

void RowTidying::lowerRowCount() {
  for (const FXint row : tidied_) {
    if (row > 0 && row == list_.rows && !live_.contains(row)) --list_.rows;
  }
}

}  // namespace Brontel::Plugin::ItemData
