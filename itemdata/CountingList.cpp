#include "itemdata/CountingList.h"

namespace Brontel::Plugin::ItemData {

using FX::FXint;

CountingList::~CountingList() {
  for (FXint i = 0; i < no(); ++i) delete at(i);
}

void CountingList::count(const FX::FXString& text) {
  ++total_;
  const auto [place, isNew] = indexes_.try_emplace(text.text(), no());
  if (isNew) {
    append(new FXExt::FXPair<FX::FXString, int>(text, 1));
  } else {
    ++at(place->second)->second;
  }
}

}  // namespace Brontel::Plugin::ItemData
