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
  key_.clear();
  append(key_, table);
  append(key_, condition);
  for (const BoundValue& value : values) append(key_, value.name);
  if (last_ != nullptr && last_->first == key_) return last_->second;
  auto found = texts_.find(key_);
  if (found == texts_.end()) {
    if (texts_.size() >= kMostTexts) texts_.clear();
    found = texts_.emplace(key_, build()).first;
  }
  last_ = &*found;
  return last_->second;
}

}  // namespace Brontel::Database
