#include "host/database/InsertStatement.h"

#include "host/database/BuiltSql.h"
#include "host/database/SqlText.h"

using Brontel::Database::BoundValue;
using Brontel::Database::isParameterName;
using Brontel::Database::quoteIdentifier;
using FX::FXString;

InsertStatement::InsertStatement(MorvaneDatabase* db, const FXString& table) : Statement(db), table_(table) {}

InsertStatement::InsertStatement(MorvaneDatabase* db, const char* table) : Statement(db), table_(table) {}

const FXString& InsertStatement::getSql() const {
  static Brontel::Database::BuiltSql texts;
  return texts.get(table_, FXString(), getValues(), [this] { return build(); });
}

FXString InsertStatement::build() const {
  FXString columns;
  FXString parameters;
  for (const BoundValue& value : getValues()) {
    if (!isParameterName(value.name)) return FXString();
    columns += (columns.empty() ? "" : ",") + quoteIdentifier(value.name);
    parameters += (parameters.empty() ? "%" : ",%") + value.name;
  }
  if (columns.empty()) return "insert into " + quoteIdentifier(table_) + " default values";
  return "insert into " + quoteIdentifier(table_) + " (" + columns + ") values (" + parameters + ")";
}
