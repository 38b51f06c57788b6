#include "host/database/DeleteStatement.h"

#include "host/database/BuiltSql.h"
#include "host/database/SqlText.h"

using Brontel::Database::BoundValue;
using Brontel::Database::isParameterName;
using Brontel::Database::quoteIdentifier;
using FX::FXString;

DeleteStatement::DeleteStatement(MorvaneDatabase* db, const FXString& table) : Statement(db), table_(table) {}

DeleteStatement::DeleteStatement(MorvaneDatabase* db, const char* table) : Statement(db), table_(table) {}

const FXString& DeleteStatement::getSql() const {
  static Brontel::Database::BuiltSql texts;
  return texts.get(table_, FXString(), getValues(), [this] { return build(); });
}

FXString DeleteStatement::build() const {
  FXString condition;
  for (const BoundValue& value : getValues()) {
    if (!isParameterName(value.name)) return FXString();
    condition += (condition.empty() ? "" : " and ") + quoteIdentifier(value.name) + "=%" + value.name;
  }
  if (condition.empty()) return FXString();
  return "delete from " + quoteIdentifier(table_) + " where " + condition;
}
