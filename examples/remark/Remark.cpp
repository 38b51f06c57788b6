#include "Remark.h"

#include "host/entity/Entity.h"

namespace Remarks {

// [misc data]
Remark* Remark::clone(Brontel::Entity* newOwner) const {
  return new Remark(newOwner, text_);
}

Remark* Remark::of(const Brontel::Entity* item) {
  return item == nullptr ? nullptr : dynamic_cast<Remark*>(item->getMiscData(kKey));
}

void Remark::set(Brontel::Entity* item, const FX::FXString& text) {
  if (Remark* remark = of(item)) {
    remark->setText(text);
  } else if (item != nullptr) {
    item->addMiscData(kKey, new Remark(item, text));  // the item's from now on
  }
}
// [misc data]

FX::FXString Remark::textOf(const Brontel::Entity* item) {
  const Remark* remark = of(item);
  return remark == nullptr ? FX::FXString() : remark->getText();
}

}  // namespace Remarks
