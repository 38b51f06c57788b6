#include "host/database/Statement.h"

#include <utility>
#include <vector>

#include "host/database/FirstRowInteger.h"
#include "host/database/IntegerText.h"
#include "host/database/MorvaneDatabase.h"
#include "host/database/TextView.h"

using Brontel::Database::BoundValue;
using Brontel::Database::BoundValues;
using Brontel::Database::viewOf;
using FX::FXString;

namespace {

std::string_view nameOf(const char* text) {
  return text == nullptr ? std::string_view() : std::string_view(text);
}

/// As many as there are statements at work at a time.
constexpr size_t kMostSpares = 8;

/// What statements have bound before, without the values. The next statement mostly binds the same names in the same
/// order, and then has nothing to allocate.
std::vector<BoundValues>& spares() {
  // They are put back by destructors, which must not be in need of memory then.
  static std::vector<BoundValues> kept = [] {
    std::vector<BoundValues> room;
    room.reserve(kMostSpares);
    return room;
  }();
  return kept;
}

BoundValues takeSpare() {
  if (spares().empty()) {
    BoundValues values;
    // More than nearly every statement has: growing would copy the texts.
    constexpr size_t kUsualValues = 8;
    values.reserve(kUsualValues);
    return values;
  }
  BoundValues values = std::move(spares().back());
  spares().pop_back();
  return values;
}

void keepSpare(BoundValues&& values) {
  if (values.empty() || spares().size() >= kMostSpares) return;
  for (BoundValue& value : values) {
    value.isText = false;
    value.number = 0;
    if (!value.text.empty()) value.text.clear();
  }
  spares().push_back(std::move(values));
}

}  // namespace

Statement::Statement(MorvaneDatabase* db) : database(db) {}

Statement::Statement(MorvaneDatabase* db, const FXString& text) : database(db), sql(text) {}

Statement::~Statement() {
  keepSpare(std::move(values_));
}

void Statement::setInt(const FXString& name, int value) {
  bindNumber(viewOf(name), value);
}

void Statement::setInt(const char* name, int value) {
  bindNumber(nameOf(name), value);
}

void Statement::setInt(const FXString& name, const FXString& value) {
  FX::FXlong number = 0;
  const bool isNumber = Brontel::Database::isInteger(value, number);
  bindNumber(viewOf(name), isNumber ? number : 0);
}

void Statement::setString(const FXString& name, FXString value) {
  bindText(viewOf(name), value);
}

void Statement::setString(const char* name, FXString value) {
  bindText(nameOf(name), value);
}

int Statement::execute(DataBaseValueLoader* loader, unsigned char) {
  values_.resize(bound_);
  const FXString& text = getSql();
  // Taken out first: a loader may bind and run this very statement again.
  BoundValues values = std::exchange(values_, {});
  bound_ = 0;
  const bool done = database != nullptr && !text.empty() && database->run(text, values, loader);
  keepSpare(std::move(values));
  return done ? 1 : 0;
}

int Statement::queryInt(int column) {
  Brontel::Database::FirstRowInteger value(column);
  execute(&value, 1);
  return value.getValue();
}

const FXString& Statement::getSql() const {
  return sql;
}

void Statement::bindNumber(std::string_view name, FX::FXlong number) {
  BoundValue& bound = valueFor(name);
  bound.isText = false;
  bound.number = number;
}

void Statement::bindText(std::string_view name, FXString& text) {
  BoundValue& bound = valueFor(name);
  bound.isText = true;
  bound.text.adopt(text);
}

BoundValue& Statement::valueFor(std::string_view name) {
  for (size_t i = 0; i < bound_; ++i) {
    if (viewOf(values_[i].name) == name) return values_[i];
  }
  if (bound_ == 0 && values_.empty()) values_ = takeSpare();
  if (bound_ == values_.size()) values_.emplace_back();
  BoundValue& value = values_[bound_++];
  if (viewOf(value.name) != name) value.name.assign(name.data(), static_cast<FX::FXint>(name.size()));
  return value;
}
