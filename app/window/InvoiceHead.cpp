#include "app/window/InvoiceHead.h"

#include <algorithm>

#include <libintl.h>

#include "app/window/InvoiceTexts.h"
#include "host/entity/Invoice.h"

namespace Brontel::App {

using FX::FXint;
using FX::FXString;

FXIMPLEMENT(InvoiceHead, FXMatrix, nullptr, 0)

namespace {

constexpr FXint kPairsInRow = 2;

// The toolkit keeps one pointer for each line.
void* asData(int code) {
  // NOLINTNEXTLINE(performance-no-int-to-ptr): the number is kept where a pointer could be
  return reinterpret_cast<void*>(static_cast<FX::FXival>(code));
}

int codeOf(const FX::FXListBox& box, FXint index) {
  return index < 0 ? 0 : static_cast<int>(reinterpret_cast<FX::FXival>(box.getItemData(index)));
}

void setEditable(FX::FXTextField* field, bool editable, FX::FXApp* app) {
  field->setEditable(editable);
  field->setBackColor(editable ? app->getBackColor() : app->getBaseColor());
}

}  // namespace

InvoiceHead::InvoiceHead(FX::FXComposite* parent, FX::FXObject* receiver, FX::FXSelector sel)
    : FXMatrix(parent, kPairsInRow * 2, FX::MATRIX_BY_COLUMNS | FX::LAYOUT_FILL_X, 0, 0, 0, 0, 8, 8, 8, 4, 6, 6) {
  number_ = addField(gettext("S&zám:"), 14, receiver, sel);
  partner_ = addField(gettext("&Partner:"), 16, receiver, sel);
  date_ = addField(gettext("&Kelt:"), 11, receiver, sel);
  addLabel(gettext("T&ípus:"));
  type_ = new FX::FXListBox(this, receiver, sel,
                            FX::FRAME_SUNKEN | FX::FRAME_THICK | FX::LAYOUT_CENTER_Y | FX::LAYOUT_FILL_COLUMN);
  addLabel(gettext("Állapot:"));
  status_ = addLabel(FXString());
}

FX::FXLabel* InvoiceHead::addLabel(const FXString& text) {
  return new FX::FXLabel(this, text, nullptr, FX::JUSTIFY_LEFT | FX::LAYOUT_CENTER_Y);
}

FX::FXTextField* InvoiceHead::addField(const FXString& label, int columns, FX::FXObject* receiver, FX::FXSelector sel) {
  addLabel(label);
  return new FX::FXTextField(this, columns, receiver, sel,
                             FX::FRAME_SUNKEN | FX::FRAME_THICK | FX::LAYOUT_FILL_X | FX::LAYOUT_FILL_COLUMN);
}

void InvoiceHead::showInvoice(const Invoice& invoice, bool editable) {
  number_->setText(invoice.getNumber());
  partner_->setText(invoice.getPartner());
  date_->setText(invoice.getDate());
  status_->setText(nameOfStatus(invoice.getStatus()));
  for (FX::FXTextField* field : {number_, partner_, date_}) setEditable(field, editable, getApp());
  showType(invoice.getTypeCode(), editable && invoice.getItems().no() == 0);
}

void InvoiceHead::showType(int typeCode, bool canChange) {
  std::vector<int> types = offeredTypes();
  if (std::find(types.begin(), types.end(), typeCode) == types.end()) types.push_back(typeCode);
  if (type_->getNumItems() != static_cast<FXint>(types.size())) {
    type_->clearItems();
    for (const int code : types) type_->appendItem(nameOfType(code), nullptr, asData(code));
    type_->setNumVisible(type_->getNumItems());
  }
  for (FXint i = 0; i < type_->getNumItems(); ++i) {
    if (codeOf(*type_, i) == typeCode) type_->setCurrentItem(i);
  }
  if (canChange) {
    type_->enable();
  } else {
    type_->disable();
  }
}

void InvoiceHead::store(Invoice& invoice) const {
  invoice.setNumber(number_->getText());
  invoice.setPartner(partner_->getText());
  invoice.setDate(date_->getText());
  invoice.setTypeCode(codeOf(*type_, type_->getCurrentItem()));
}

bool InvoiceHead::checkDate() {
  if (isDate(date_->getText())) return true;
  date_->setFocus();
  date_->selectAll();
  return false;
}

}  // namespace Brontel::App
