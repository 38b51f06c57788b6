#include "host/database/BuiltSql.h"

namespace Brontel::Database {

namespace {

// Programs have a handful of shapes; whoever makes up new ones all the time must not fill the memory.
constexpr size_t kMostTexts = 256;

void append(std::string& key, const FX::FXString& part) {
  key.append(part.text(), static_cast<size_t>(part.length()));
  key.push_back('\0');
}

}  // namespace

const FX::FXString& BuiltSql::get(const FX::FXString& table, const FX::FXString& condition, const BoundValues& values,
                                  const std::function<FX::FXString()>& build) {
  std::string key;
  key.reserve(128);
  append(key, table);
  append(key, condition);
  for (const BoundValue& value : values) append(key, value.name);
  const auto found = texts_.find(key);
  if (found != texts_.end()) return found->second;
  if (texts_.size() >= kMostTexts) texts_.clear();
  return texts_.emplace(std::move(key), build()).first->second;
}

}  // namespace Brontel::Database
