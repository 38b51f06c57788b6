#include "model/ItemVariable.h"

namespace Brontel::Plugin::ItemData::Model {

using ::Brontel::Model::Column;

void ItemVariable::init() {
  addColumn("name", Column::TEXT);
  addColumn("type", Column::INTEGER);
  addColumn("process", Column::INTEGER);
  addColumn("mandatory", Column::INTEGER);
  addColumn("vvalue", Column::TEXT);
}

}  // namespace Brontel::Plugin::ItemData::Model
