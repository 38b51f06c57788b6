#pragma once

#include <string>
#include <vector>

#include "fxext/widgets/FXDualList.h"

/// Lets a test see the parts, also of lists that are not of this class.
class OpenDualList : public FXExt::FXDualList {
 public:
  using FXExt::FXDualList::fromList;
  using FXExt::FXDualList::FXDualList;
  using FXExt::FXDualList::toList;

  static FX::FXList* fromListOf(FXExt::FXDualList& lists) { return lists.*(&OpenDualList::fromList); }
  static FX::FXList* toListOf(FXExt::FXDualList& lists) { return lists.*(&OpenDualList::toList); }
};

/// The items of a list in order, separated by blanks; '*' behind the selected ones.
inline std::string itemsOf(const FX::FXList* list) {
  std::string items;
  for (FX::FXint i = 0; i < list->getNumItems(); ++i) {
    items += (i ? " " : "") + std::string(list->getItemText(i).text()) + (list->isItemSelected(i) ? "*" : "");
  }
  return items;
}
