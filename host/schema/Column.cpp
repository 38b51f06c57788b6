#include "host/schema/Column.h"

#include "host/database/SqlText.h"

using Brontel::Database::quoteIdentifier;
using FX::FXString;

namespace Brontel::Model {

Column::Column(const FXString& name, ColumnType type, bool nullable, const FXString& targetTable,
               const FXString& targetColumn, OnDeleteType onDelete)
    : name_(name),
      type_(type),
      nullable_(nullable),
      targetTable_(targetTable),
      targetColumn_(targetColumn.empty() ? targetTable + "_id" : targetColumn),
      onDelete_(onDelete) {}

FXString Column::definition(bool nullable) const {
  FXString text = quoteIdentifier(name_) + (type_ == INTEGER ? " integer" : " text");
  if (!nullable) text += " not null";
  if (!targetTable_.empty()) {
    text +=
        " references " + quoteIdentifier(targetTable_) + "(" + quoteIdentifier(targetColumn_) + ")" + onDeleteClause();
  }
  return text;
}

const char* Column::onDeleteClause() const {
  switch (onDelete_) {
    case RESTRICT:
      return " on delete restrict";
    case SET_NULL:
      return " on delete set null";
    case CASCADE:
      return " on delete cascade";
    case BY_DECLARATION:
      return nullable_ ? " on delete set null" : " on delete cascade";
    case NO_ACTION:
      break;
  }
  return "";
}

}  // namespace Brontel::Model
