#include "app/window/InvoiceEditor.h"

#include "app/InvoiceXml.h"
#include "app/NewInvoice.h"
#include "app/window/InvoiceTexts.h"
#include "app/window/Workspace.h"

namespace Brontel::App {

using FX::FXString;
using Result = InvoiceRepository::Result;

namespace {

constexpr FX::FXint kYearLength = 4;
constexpr char kQuantityPlaces = 4;

}  // namespace

InvoiceEditor::InvoiceEditor(Workspace& workspace, std::unique_ptr<Invoice> invoice)
    : workspace_(workspace), invoice_(std::move(invoice)), stored_(describe()) {}

std::unique_ptr<Invoice> InvoiceEditor::makeNew(Workspace& workspace) {
  auto invoice = std::make_unique<Invoice>();
  invoice->setTypeCode(offeredTypes().front());
  invoice->setDate(today());
  invoice->setNumber(freeNumber(workspace.getDatabase(), invoice->getDate().left(kYearLength) + "/"));
  return invoice;
}

bool InvoiceEditor::isEditable() const {
  return workspace_.isEditable() && !invoice_->isStatusClosed();
}

bool InvoiceEditor::hasChanged() const {
  return isEditable() && describe() != stored_;
}

// An export has all that somebody can have typed, wherever it is kept.
FXString InvoiceEditor::describe() const {
  return toXml(*invoice_, workspace_.getPlugins());
}

bool InvoiceEditor::hasRecordedData(int index) const {
  return !workspace_.getPlugins().toString(&getItem(index)).empty();
}

InvoiceItem& InvoiceEditor::addItem() {
  auto* item = new InvoiceItem;
  item->setQuantity(FXExt::FXDecimal(1, 0, kQuantityPlaces));
  invoice_->appendItem(item);
  return *item;
}

void InvoiceEditor::removeItem(int index) {
  invoice_->removeItem(index);
}

InvoiceItem& InvoiceEditor::replaceGoods(int index, const GoodsCatalogue::Goods& goods) {
  auto* item = new InvoiceItem;
  item->setGoods(goods.kind, goods.id);
  item->setName(goods.name);
  item->setUnit(goods.unit);
  item->setPrice(goods.price);
  item->setQuantity(getItem(index).getQuantity());
  invoice_->removeItem(index);
  invoice_->insertItem(index, item);
  workspace_.getPlugins().load(item);
  return *item;
}

Result InvoiceEditor::save() {
  const Result result = workspace_.getRepository().save(*invoice_);
  if (result == Result::Done) stored_ = describe();
  return result;
}

Result InvoiceEditor::changeStatus(int status) {
  return workspace_.getRepository().changeStatus(*invoice_, status);
}

Result InvoiceEditor::reload() {
  Result result = Result::Done;
  std::unique_ptr<Invoice> invoice =
      isNew() ? makeNew(workspace_) : workspace_.getRepository().load(invoice_->getId(), result);
  if (invoice == nullptr) return result;
  invoice_ = std::move(invoice);
  stored_ = describe();
  return result;
}

}  // namespace Brontel::App
