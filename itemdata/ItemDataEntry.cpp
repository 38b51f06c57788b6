#include "itemdata/ItemDataEntry.h"

#include <libintl.h>

#include "host/database/DataBaseValueLoader.h"
#include "host/database/DeleteStatement.h"
#include "host/database/InsertStatement.h"
#include "host/database/IntegerText.h"
#include "host/database/UpdateStatement.h"
#include "host/entity/Invoice.h"
#include "host/message/FillIn.h"
#include "host/xml/Element.h"
#include "itemdata/CheckMessage.h"
#include "itemdata/Codes.h"
#include "itemdata/DerivedQuantity.h"
#include "itemdata/EditorLayout.h"
#include "itemdata/EntrySelect.h"
#include "itemdata/ItemDataEntryTableItem.h"
#include "itemdata/ItemDataList.h"

namespace Brontel::Plugin::ItemData {

using FX::FXString;
using FXExt::FXDecimal;

/// Puts the stored value and key into the cell; of several rows the last one stays.
class ItemDataEntry::DBVL : public DataBaseValueLoader {
 public:
  explicit DBVL(ItemDataEntry& entry) : entry_(entry) {}

  int processValue(int column, const char* name, const char* value) override {
    if (column == 0) entry_.value = value;
    if (column == 1) entry_.pk = Database::toInt(value);
    return DataBaseValueLoader::processValue(column, name, value);
  }

 private:
  ItemDataEntry& entry_;
};

ItemDataEntry::~ItemDataEntry() {
  delete auxiliary;
}

int ItemDataEntry::save(MorvaneDatabase* db) {
  if (db == nullptr || owner_ == nullptr || (pk == 0 && del != 0)) return 0;
  if (del != 0) {
    DeleteStatement statement(db, "t_invoiceitemdata");
    statement.setInt("t_invoiceitemdata_id", pk);
    statement.execute(nullptr, 1);
    return 0;
  }
  if (pk == 0) {
    InsertStatement statement(db, "t_invoiceitemdata");
    write(statement);
  } else {
    UpdateStatement statement(db, "t_invoiceitemdata", "t_invoiceitemdata_id=%t_invoiceitemdata_id");
    statement.setInt("t_invoiceitemdata_id", pk);
    write(statement);
  }
  return 0;
}

void ItemDataEntry::write(Statement& statement) const {
  if (itemvariable != VARIABLE_NONE) statement.setInt("t_itemvariable_1", itemvariable);
  statement.setInt("t_invoiceitem_1", owner_->getId());
  statement.setString("value", getValue());
  statement.setInt("row", row);
  statement.execute(nullptr, 1);
}

int ItemDataEntry::load(MorvaneDatabase* db) {
  const InvoiceItem* item = getItem();
  if (db == nullptr || item == nullptr) return 0;
  const bool derived = isDerived(*item);
  Statement statement(db);
  statement.sql = entrySelect(derived, itemvariable);
  if (itemvariable != VARIABLE_NONE) statement.setInt("t_itemvariable_1", itemvariable);
  statement.setInt("t_invoiceitem_1", derived ? item->getReferencedItemId() : item->getId());
  if (derived && itemvariable == VARIABLE_QUANTITY) {
    statement.setInt("closed", STATUS_CLOSED);
    statement.setInt("storno", STATUS_STORNO);
  }
  statement.setInt("row", row);
  DBVL loader(*this);
  statement.execute(&loader, 1);
  if (derived && itemvariable == VARIABLE_QUANTITY && loader.getNumRows() > 0) value = exactQuantity(value);
  if (item->getInvoice() != nullptr) item->getInvoice()->setLoadedDataMarker(1);
  return 0;
}

void ItemDataEntry::markForDelete(unsigned char mark) {
  value.clear();
  del = mark;
}

void ItemDataEntry::setStatus(unsigned int) {}

// The prefix comes by value because the operation's slot is part of what entry kinds override.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
void ItemDataEntry::check(int itemIndex, ListOfMessage& messages, FXString prefix) {
  const InvoiceItem* item = getItem();
  if (item == nullptr || item->getInvoice() == nullptr) return;
  const Invoice& invoice = *item->getInvoice();
  if (!getValue().empty() || invoice.getTypeCode() == kUncheckedInvoiceType) return;
  Message* message = newCheckMessage("%s_ITEMDATAWANTED", prefix, invoice);
  const char* pattern = mandatory != 0
                            ? gettext("A(z) %d. tételhez rögzíteni kell néhány egyéb adatot!\nMező neve:%s")
                            : gettext("A(z) %d. tételhez lehet rögzíteni néhány egyéb adatot!\nMező neve:%s");
  message->setText(fillIn(pattern, {FX::FXStringVal(itemIndex), name}));
  message->setLevel(mandatory != 0 ? Message::LEVEL_BLOCKING : Message::LEVEL_NOTICE);
  messages.append(message);
}

void ItemDataEntry::addWidget(FX::FXComposite* parent, MemoryGuard<FX::FXDataTarget>& targets) {
  new FX::FXTextField(parent, kEditorColumns, addTarget(targets), FX::FXDataTarget::ID_VALUE, kEditorOptions, 0, 0, 0,
                      0, kEditorPad, kEditorPad, kEditorPad, kEditorPad);
}

FX::FXDataTarget* ItemDataEntry::addTarget(MemoryGuard<FX::FXDataTarget>& targets) {
  auto* target = new FX::FXDataTarget(value);
  targets.append(target);
  return target;
}

FX::FXTableItem* ItemDataEntry::getTableItem() {
  auto* item = new ItemDataEntryTableItem;
  item->setJustify(FX::FXTableItem::LEFT);
  item->setData(this);
  item->setText(getValue());
  return item;
}

FXString ItemDataEntry::getValue() const {
  return value;
}

void ItemDataEntry::toXml(XMLBuilder::Element* parent) const {
  if (parent == nullptr) return;
  // Made once, since there are thousands of cells.
  static const FXString kElement(kXmlName);
  static const FXString kNamespace(kXmlNamespace);
  static const FXString kRow("row");
  static const FXString kName("name");
  XMLBuilder::Element* element = parent->createElement(kElement, kNamespace);
  element->setAttribute(kRow, FX::FXStringVal(row), FXString());
  element->setAttribute(kName, name, FXString());
  element->setText(value);
}

FXString ItemDataEntry::getPrintableText() const {
  return value;
}

FXString ItemDataEntry::toDebugString() const {
  return FX::FXStringFormat(
      "ItemDataEntry@%p: pk: %d, name: %s, itemvariable: %d, type:%d, mandatory:%d, process: %d, vvalue:%s, value: %s, "
      "row: %d, del: %d ",
      static_cast<const void*>(this), pk, name.text(), itemvariable, type, mandatory, process, vvalue.text(),
      value.text(), row, del);
}

FXDecimal ItemDataEntry::getQuantity() const {
  const ItemDataList* list = ItemDataList::of(owner_);
  return list == nullptr ? FXDecimal(0, 0, kQuantityPlaces) : list->getQuantityForRow(row);
}

void ItemDataEntry::onQuantityChanged(const FXString&) {}

const InvoiceItem* ItemDataEntry::getItem() const {
  return dynamic_cast<const InvoiceItem*>(owner_);
}

void ItemDataEntry::copyFieldsTo(ItemDataEntry& clone) const {
  clone.name = name;
  clone.itemvariable = itemvariable;
  clone.type = type;
  clone.mandatory = mandatory;
  clone.process = process;
  clone.vvalue = vvalue;
  clone.value = value;
  clone.row = row;
}

bool isDerived(const InvoiceItem& item) {
  return item.getId() == 0 && item.getReferenceMode() == InvoiceItem::MODE_DERIVED && item.getReferencedItemId() > 0;
}

}  // namespace Brontel::Plugin::ItemData
