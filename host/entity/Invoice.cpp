#include "host/entity/Invoice.h"

#include <algorithm>

namespace Brontel {

using FX::FXint;
using FX::FXString;

FXIMPLEMENT(Invoice, Entity, nullptr, 0)

Invoice::~Invoice() {
  deleteMiscData();
}

FXString Invoice::getDisplayText() const {
  return number_.empty() ? "#" + FX::FXStringVal(getId()) : number_;
}

void Invoice::appendItem(InvoiceItem* item) {
  if (item == nullptr) return;
  item->setInvoice(this);
  items_.append(item);
}

void Invoice::insertItem(int index, InvoiceItem* item) {
  if (item == nullptr) return;
  item->setInvoice(this);
  items_.insert(std::clamp(index, 0, static_cast<int>(items_.no())), item);
}

void Invoice::removeItem(int index) {
  if (index < 0 || index >= items_.no()) return;
  InvoiceItem* item = items_[index];
  items_.erase(index);
  if (item->getId() == 0) {
    delete item;
  } else {
    removedItems_.append(item);
  }
}

Invoice* Invoice::copy() const {
  Invoice* invoice = copyHead();
  for (FXint i = 0; i < items_.no(); ++i) invoice->appendItem(items_[i]->copy());
  return invoice;
}

Invoice* Invoice::derive() const {
  Invoice* invoice = copyHead();
  invoice->referencedInvoiceId_ = getId();
  for (FXint i = 0; i < items_.no(); ++i) invoice->appendItem(items_[i]->derive());
  return invoice;
}

Invoice* Invoice::copyHead() const {
  auto* invoice = new Invoice;
  invoice->typeCode_ = typeCode_;
  invoice->number_ = number_;
  invoice->partner_ = partner_;
  invoice->date_ = date_;
  return invoice;
}

}  // namespace Brontel
