#include "model/BaseItemData.h"

namespace Brontel::Plugin::ItemData::Model {

using ::Brontel::Model::Column;

void BaseItemData::init() {
  addReference(goods_ + "_1", Column::INTEGER, 0, goods_, 1, "", Column::BY_DECLARATION);
  addReference("t_itemvariable_1", Column::INTEGER, 0, "t_itemvariable", 1, "", Column::BY_DECLARATION);
  addColumn("position", Column::INTEGER);
  addColumn("direction", Column::INTEGER);
}

}  // namespace Brontel::Plugin::ItemData::Model
