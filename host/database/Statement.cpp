#include "host/database/Statement.h"

#include <utility>

#include "host/database/FirstRowInteger.h"
#include "host/database/IntegerText.h"
#include "host/database/MorvaneDatabase.h"

using Brontel::Database::BoundValue;
using Brontel::Database::BoundValues;
using FX::FXString;

Statement::Statement(MorvaneDatabase* db) : database(db) {}

Statement::Statement(MorvaneDatabase* db, const FXString& text) : database(db), sql(text) {}

Statement::~Statement() = default;

void Statement::setInt(const FXString& name, int value) {
  BoundValue& bound = valueFor(name);
  bound.isText = false;
  bound.number = value;
}

void Statement::setInt(const FXString& name, const FXString& value) {
  FX::FXlong number = 0;
  const bool isNumber = Brontel::Database::isInteger(value, number);
  BoundValue& bound = valueFor(name);
  bound.isText = false;
  bound.number = isNumber ? number : 0;
}

void Statement::setString(const FXString& name, FXString value) {
  BoundValue& bound = valueFor(name);
  bound.isText = true;
  bound.text.adopt(value);
}

int Statement::execute(DataBaseValueLoader* loader, unsigned char) {
  const FXString text = buildSql();
  // Taken out first: a loader may bind and run this very statement again.
  const BoundValues values = std::exchange(values_, {});
  if (database == nullptr || text.empty()) return 0;
  return database->run(text, values, loader) ? 1 : 0;
}

int Statement::queryInt(int column) {
  Brontel::Database::FirstRowInteger value(column);
  execute(&value, 1);
  return value.getValue();
}

FXString Statement::buildSql() const {
  return sql;
}

BoundValue& Statement::valueFor(const FXString& name) {
  for (BoundValue& value : values_) {
    if (value.name == name) return value;
  }
  // More than nearly every statement has: growing would copy the texts.
  constexpr size_t kUsualValues = 8;
  if (values_.capacity() == 0) values_.reserve(kUsualValues);
  values_.emplace_back();
  values_.back().name = name;
  return values_.back();
}
