#include "RemarkTable.h"

#include "host/schema/Schema.h"

namespace Remarks {

using Brontel::Model::Column;

// [table]
void RemarkTable::init() {
  addReference("t_invoiceitem_1", Column::INTEGER, 0, "t_invoiceitem", 1, "", Column::BY_DECLARATION);
  addColumn("text", Column::TEXT);
}

bool RemarkTable::create(MorvaneDatabase* database) {
  Brontel::Model::Schema schema;
  new RemarkTable(&schema);  // the schema's
  return schema.sync(database) != 0;
}
// [table]

}  // namespace Remarks
