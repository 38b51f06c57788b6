// Printable text and XML of ItemDataList.

#include <string>

#include "host/entity/InvoiceItem.h"
#include "host/message/FillIn.h"
#include "host/xml/Document.h"
#include "host/xml/Element.h"
#include "itemdata/Codes.h"
#include "itemdata/CountingList.h"
#include "itemdata/ItemDataList.h"

namespace Brontel::Plugin::ItemData {

using FX::FXint;
using FX::FXString;

namespace {

// A standard string grows without copying all of itself for every cell.
FXString toFXString(const std::string& text) {
  return FXString(text.data(), static_cast<FXint>(text.size()));
}

void add(std::string& text, const char* separator, const FXString& part) {
  if (!text.empty()) text += separator;
  text.append(part.text(), static_cast<size_t>(part.length()));
}

// Per-item values first, then row by row: "A; B; 3 db x, y; 2 db z".
FXString printRows(const ItemDataList& list) {
  std::string text;
  FXint previousRow = 0;
  bool afterQuantity = false;
  for (FXint i = 0; i < list.no(); ++i) {
    const ItemDataEntry* entry = list[i];
    if (entry == nullptr) continue;
    const FXString part = entry->getPrintableText();
    if (part.empty()) continue;
    const bool sameRow = entry->row != 0 && entry->row == previousRow;
    add(text, !sameRow ? "; " : afterQuantity ? " " : ", ", part);
    afterQuantity = entry->type == TYPE_QUANTITY;
    previousRow = entry->row;
  }
  return toFXString(text);
}

// Values without rows; once some value repeats, each with its count: "A (2 db), B (1 db)".
FXString printCounted(const ItemDataList& list, const FXString& unit) {
  CountingList counted;
  for (FXint i = 0; i < list.no(); ++i) {
    const FXString part = list[i] == nullptr ? FXString() : list[i]->getPrintableText();
    if (!part.empty()) counted.count(part);
  }
  const bool repeats = counted.no() != counted.getTotal();
  std::string text;
  for (FXint i = 0; i < counted.no(); ++i) {
    const FXString& value = counted[i]->first;
    add(text, ", ", repeats ? fillIn("%s (%d %s)", {value, FX::FXStringVal(counted[i]->second), unit}) : value);
  }
  return toFXString(text);
}

}  // namespace

FXString ItemDataList::getPrintableText() const {
  if (hasQuantityColumn()) return printRows(*this);
  const InvoiceItem* item = getItem();
  return printCounted(*this, item == nullptr ? FXString() : item->getUnit());
}

void ItemDataList::toXml(XMLBuilder::Element* parent) const {
  if (parent == nullptr) return;
  parent->getDocument()->addNamespace(kXmlName, kXmlNamespace);
  XMLBuilder::Element* element = parent->createElement(kXmlName, kXmlNamespace);
  for (FXint i = 0; i < no(); ++i) {
    if (at(i) != nullptr) at(i)->toXml(element);
  }
}

}  // namespace Brontel::Plugin::ItemData
