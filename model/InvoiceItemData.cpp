#include "model/InvoiceItemData.h"

namespace Brontel::Plugin::ItemData::Model {

using ::Brontel::Model::Column;

void InvoiceItemData::init() {
  // NULL stands for a value without a variable; it is also what a deleted variable leaves, so that what was recorded
  // stays.
  addReference("t_itemvariable_1", Column::INTEGER, 1, "t_itemvariable", 1, "", Column::BY_DECLARATION);
  addReference("t_invoiceitem_1", Column::INTEGER, 0, "t_invoiceitem", 1, "", Column::BY_DECLARATION);
  addColumn("row", Column::INTEGER);
  addColumn("value", Column::TEXT);
}

}  // namespace Brontel::Plugin::ItemData::Model
