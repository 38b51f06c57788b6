#include "host/entity/InvoiceLoader.h"

#include <cstring>

#include "host/database/IntegerText.h"
#include "host/entity/Invoice.h"

namespace Brontel {

using Database::toInt;

namespace {

constexpr signed char kQuantityPlaces = 4;

// Decimal numbers read any text, and hold what fits 64 bits; nothing at all is zero.
bool isQuantity(const char* text) {
  constexpr size_t kMostDigits = 18;
  if (text == nullptr || *text == '\0') return true;
  if (*text == '-') ++text;
  const size_t whole = std::strspn(text, "0123456789");
  const bool hasPoint = text[whole] == '.';
  const size_t places = hasPoint ? std::strspn(text + whole + 1, "0123456789") : 0;
  const size_t digits = whole + places;
  return text[digits + (hasPoint ? 1 : 0)] == '\0' && digits > 0 && digits <= kMostDigits;
}

}  // namespace

int InvoiceLoader::processValue(int column, const char* name, const char* value) {
  switch (column) {
    case 0:
      invoice_.setId(toInt(value));
      break;
    case 1:
      invoice_.setNumber(value);
      break;
    case 2:
      invoice_.setTypeCode(toInt(value));
      break;
    case 3:
      invoice_.setStatus(toInt(value));
      break;
    case 4:
      invoice_.setReferencedInvoiceId(toInt(value));
      break;
    case 5:
      invoice_.setPartner(value);
      break;
    case 6:
      invoice_.setDate(value);
      break;
    case 7:
      invoice_.setVersion(toInt(value));
      break;
    default:
      if (toInt(value) != 0) invoice_.setUnreadable();
  }
  return DataBaseValueLoader::processValue(column, name, value);
}

int InvoiceItemLoader::processValue(int column, const char* name, const char* value) {
  switch (column) {
    case 0:
      item_ = new InvoiceItem;
      item_->setId(toInt(value));
      invoice_.appendItem(item_);
      break;
    case 1:
      item_->setName(value);
      break;
    case 2:
      item_->setGoods(toInt(value), 0);
      break;
    case 3:
      item_->setGoods(item_->getGoodsKind(), toInt(value));
      break;
    case 4:
      item_->setQuantity(FXExt::FXDecimal(FX::FXString(value), kQuantityPlaces));
      if (!isQuantity(value)) invoice_.setUnreadable();
      break;
    case 5:
      item_->setUnit(value);
      break;
    case 6:
      item_->setPrice(value);
      break;
    case 7:
      item_->setReferencedItemId(toInt(value));
      break;
    default:
      if (toInt(value) != 0) invoice_.setUnreadable();
  }
  return DataBaseValueLoader::processValue(column, name, value);
}

}  // namespace Brontel
