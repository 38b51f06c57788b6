#include "ui/ItemDataVariable.h"

#include "host/database/DeleteStatement.h"
#include "host/database/InsertStatement.h"
#include "host/database/UpdateStatement.h"

namespace Brontel::Plugin::ItemData::UI {

using FX::FXString;

void ItemDataVariable::saveAssigned(MorvaneDatabase* db, const FXString& table, const FXString& keyColumn,
                                    unsigned int newPosition) const {
  const int wanted = static_cast<int>(newPosition);
  if (assignId == 0) {
    InsertStatement insert(db, table);
    insert.setInt(keyColumn, goodsId);
    insert.setInt("t_itemvariable_1", variableId);
    insert.setInt("position", wanted);
    insert.setInt("direction", direction);
    insert.execute(nullptr, 1);
  } else if (position != wanted) {
    UpdateStatement update(db, table, table + "_id = %assignId");
    update.setInt("assignId", assignId);
    update.setInt("position", wanted);
    update.execute(nullptr, 1);
  }
}

void ItemDataVariable::saveNotAssigned(MorvaneDatabase* db, const FXString& table) const {
  if (assignId == 0) return;
  DeleteStatement statement(db, table);
  statement.setInt(table + "_id", assignId);
  statement.execute(nullptr, 1);
}

}  // namespace Brontel::Plugin::ItemData::UI
