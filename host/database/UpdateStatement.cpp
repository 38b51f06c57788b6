#include "host/database/UpdateStatement.h"

#include <algorithm>
#include <string>
#include <vector>

#include "host/database/BuiltSql.h"
#include "host/database/SqlText.h"

using Brontel::Database::BoundValue;
using Brontel::Database::isParameterName;
using Brontel::Database::quoteIdentifier;
using FX::FXString;

UpdateStatement::UpdateStatement(MorvaneDatabase* db, const FXString& table, const FXString& where)
    : Statement(db), table_(table), where_(where) {}

UpdateStatement::UpdateStatement(MorvaneDatabase* db, const char* table, const char* where)
    : Statement(db), table_(table), where_(where) {}

const FXString& UpdateStatement::getSql() const {
  static Brontel::Database::BuiltSql texts;
  return texts.get(table_, where_, getValues(), [this] { return build(); });
}

FXString UpdateStatement::build() const {
  const std::vector<std::string> conditions = Brontel::Database::translateParameters(where_).parameters;
  const auto isBound = [this](const std::string& name) {
    return Brontel::Database::findValue(getValues(), name.c_str()) != nullptr;
  };
  if (conditions.empty() || !std::all_of(conditions.begin(), conditions.end(), isBound)) return FXString();
  FXString columns;
  for (const BoundValue& value : getValues()) {
    if (std::find(conditions.begin(), conditions.end(), value.name.text()) != conditions.end()) continue;
    if (!isParameterName(value.name)) return FXString();
    columns += (columns.empty() ? "" : ",") + quoteIdentifier(value.name) + "=%" + value.name;
  }
  if (columns.empty()) return FXString();
  return "update " + quoteIdentifier(table_) + " set " + columns + " where " + where_;
}
