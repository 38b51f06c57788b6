#include "host/entity/InvoiceLoader.h"

#include "host/database/IntegerText.h"
#include "host/entity/Invoice.h"

namespace Brontel {

using Database::toInt;

namespace {

constexpr signed char kQuantityPlaces = 4;

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
    default:
      invoice_.setVersion(toInt(value));
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
      break;
    case 5:
      item_->setUnit(value);
      break;
    case 6:
      item_->setPrice(value);
      break;
    default:
      item_->setReferencedItemId(toInt(value));
  }
  return DataBaseValueLoader::processValue(column, name, value);
}

}  // namespace Brontel
