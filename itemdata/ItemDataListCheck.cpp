// Quantities and validation of ItemDataList.

#include <typeinfo>

#include <libintl.h>

#include "host/entity/Invoice.h"
#include "host/message/FillIn.h"
#include "itemdata/CheckMessage.h"
#include "itemdata/Codes.h"
#include "itemdata/ItemDataList.h"
#include "itemdata/ItemDataStringEntry.h"
#include "itemdata/RowTidying.h"

namespace Brontel::Plugin::ItemData {

using FX::FXint;
using FX::FXString;
using FXExt::FXDecimal;

namespace {

// A text cell gives its value as it stands, of which no copy is needed.
FXDecimal quantityOf(const ItemDataEntry& entry) {
  if (typeid(entry) == typeid(ItemDataStringEntry)) return FXDecimal(entry.value, kQuantityPlaces);
  return FXDecimal(entry.getValue(), kQuantityPlaces);
}

}  // namespace

int ItemDataList::getRowNum() const {
  if (firstRowIndex < 0) return 0;
  int count = 0;
  // Row 0 is no row: what goods no longer carry per item stands behind the rows.
  FXint previous = 0;
  for (FXint i = no() - 1; i >= firstRowIndex; --i) {
    if (!ItemDataEntry::isLive(at(i)) || at(i)->row == 0 || at(i)->row == previous) continue;
    previous = at(i)->row;
    ++count;
  }
  return count;
}

bool ItemDataList::hasQuantityColumn() const {
  for (FXint i = 0; i < no(); ++i) {
    if (ItemDataEntry::isLive(at(i)) && at(i)->type == TYPE_QUANTITY && at(i)->row > 0) return true;
  }
  return false;
}

FXDecimal ItemDataList::getQuantityForRow(int row) const {
  for (FXint i = no() - 1; i >= 0; --i) {
    const ItemDataEntry* entry = at(i);
    if (ItemDataEntry::isLive(entry) && entry->type == TYPE_QUANTITY && entry->row == row) {
      return quantityOf(*entry);
    }
  }
  return FXDecimal(0, 0, kQuantityPlaces);
}

FXDecimal ItemDataList::getSumQuantity() const {
  FXDecimal sum(0, 0, kQuantityPlaces);
  for (FXint i = no() - 1; i >= 0; --i) {
    const ItemDataEntry* entry = at(i);
    if (ItemDataEntry::isLive(entry) && entry->type == TYPE_QUANTITY) {
      sum += quantityOf(*entry);
    }
  }
  return sum;
}

int ItemDataList::check(int itemIndex, ListOfMessage& messages, const FXString& prefix) {
  const InvoiceItem* item = getItem();
  if (item == nullptr || item->getInvoice() == nullptr) return 0;
  const Invoice& invoice = *item->getInvoice();
  const bool closed = invoice.isStatusClosed();
  // The sum is compared as it stands before the tidying, which destroys cells.
  if (firstRowIndex >= 0 && !closed && invoice.getTypeCode() != kUncheckedInvoiceType) {
    checkQuantity(messages, prefix, *item, invoice);
  }
  RowTidying(*this).apply();
  if (closed) return 0;
  for (FXint i = 0; i < no(); ++i) {
    if (ItemDataEntry::isLive(at(i))) at(i)->check(itemIndex, messages, prefix);
  }
  return 0;
}

void ItemDataList::checkQuantity(ListOfMessage& messages, const FXString& prefix, const InvoiceItem& item,
                                 const Invoice& invoice) const {
  const FXDecimal sum = getSumQuantity();
  const FXDecimal& expected = item.getQuantity();
  if (sum == expected) return;
  const bool more = sum > expected;
  const char* pattern =
      more ? gettext("Egyéb tételadatok: Az összmennyiség (%s) több, mint a tétellistában megadott (%s).")
           : gettext("Egyéb tételadatok: Az összmennyiség (%s) kevesebb, mint a tétellistában megadott (%s).");
  Message* message =
      newCheckMessage(more ? "%s_ITEMDATAQUANTITYMORETHAN" : "%s_ITEMDATAQUANTITYLESSTHAN", prefix, invoice);
  message->setText(fillIn(pattern, {sum.toString(), expected.toString()}));
  messages.append(message);
}

}  // namespace Brontel::Plugin::ItemData
