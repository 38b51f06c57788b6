#include "host/entity/InvoiceItem.h"

namespace Brontel {

FXIMPLEMENT(InvoiceItem, Entity, nullptr, 0)

InvoiceItem::~InvoiceItem() {
  deleteMiscData();
}

void InvoiceItem::setGoods(int kind, int id) {
  goodsKind_ = kind;
  goodsId_ = id;
}

InvoiceItem* InvoiceItem::copy() const {
  InvoiceItem* item = copyFields();
  item->cloneMiscDataFrom(*this);
  return item;
}

InvoiceItem* InvoiceItem::derive() const {
  InvoiceItem* item = copyFields();
  item->referenceMode_ = MODE_DERIVED;
  item->referencedItemId_ = getId();
  return item;
}

InvoiceItem* InvoiceItem::copyFields() const {
  auto* item = new InvoiceItem;
  item->setGoods(goodsKind_, goodsId_);
  item->name_ = name_;
  item->quantity_ = quantity_;
  item->unit_ = unit_;
  item->price_ = price_;
  return item;
}

}  // namespace Brontel
