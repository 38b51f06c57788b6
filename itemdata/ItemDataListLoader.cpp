#include "itemdata/ItemDataListLoader.h"

#include <libintl.h>

#include "host/database/IntegerText.h"
#include "itemdata/Codes.h"
#include "itemdata/ItemDataList.h"
#include "itemdata/ItemDataPluginList.h"

namespace Brontel::Plugin::ItemData {

using Database::toInt;

int ItemDataListLoader::processValue(int column, const char* name, const char* value) {
  if (column == 0) current_.reset(plugins.getByType(toInt(value), owner_));
  if (current_ != nullptr) {
    switch (column) {
      case 1:
        current_->pk = toInt(value);
        break;
      case 2:
        current_->itemvariable = toInt(value);
        break;
      case 3:
        if (value != nullptr) current_->name = value;
        break;
      case 4:
        current_->mandatory = toInt(value) == 1 ? 1 : 0;
        break;
      case 5:
        current_->pk == 0 ? takeProcess(toInt(value)) : takeRow(toInt(value));
        break;
      case 6:
        finish(value);
        break;
      default:
        break;
    }
  }
  return DataBaseValueLoader::processValue(column, name, value);
}

void ItemDataListLoader::takeProcess(int process) {
  current_->process = process != 0 ? 1 : 0;
  if (process == 0) {
    if (filter_ == Filter::OnlyPerUnit) current_.reset();
    return;
  }
  if (list_.firstRowIndex == -1) beginRows();
  ++list_.columns;
  current_->row = process;
}

void ItemDataListLoader::takeRow(int row) {
  current_->row = row;
  current_->process = row != 0 ? 1 : 0;
  if (row == 0) return;
  if (firstRow_ == -2) firstRow_ = row;
  if (row == firstRow_) ++list_.columns;
}

// The quantity stands first in a row and is no variable of the user's, so it is made here.
void ItemDataListLoader::beginRows() {
  ItemDataEntry* quantity = plugins.getByType(TYPE_QUANTITY, owner_);
  if (quantity == nullptr) return;
  quantity->name = dgettext(kTextDomain, "Mennyiség");
  quantity->itemvariable = VARIABLE_QUANTITY;
  quantity->mandatory = 1;
  quantity->process = 1;
  quantity->row = 1;
  list_.firstRowIndex = list_.no();
  list_.rows = 1;
  list_.append(quantity);
  ++list_.columns;
}

void ItemDataListLoader::finish(const char* text) {
  (current_->pk != 0 ? current_->value : current_->vvalue) = text;
  list_.rows = current_->row;
  list_.append(current_.release());
}

}  // namespace Brontel::Plugin::ItemData
