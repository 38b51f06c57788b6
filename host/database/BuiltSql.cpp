#include "host/database/BuiltSql.h"

#include <string_view>

#include "host/database/TextView.h"

namespace Brontel::Database {

namespace {

// Programs have a handful of shapes; whoever makes up new ones all the time must not fill the memory.
constexpr size_t kMostTexts = 256;

void append(std::string& key, const FX::FXString& part) {
  key.append(viewOf(part));
  key.push_back('\0');
}

// Whether the rest of a key begins with that part, which is taken off then.
bool takePart(std::string_view& rest, const FX::FXString& part) {
  const std::string_view text = viewOf(part);
  if (!rest.starts_with(text) || rest.size() == text.size() || rest[text.size()] != '\0') return false;
  rest.remove_prefix(text.size() + 1);
  return true;
}

bool isKeyOf(std::string_view key, const FX::FXString& table, const FX::FXString& condition,
             const BoundValues& values) {
  if (!takePart(key, table) || !takePart(key, condition)) return false;
  for (const BoundValue& value : values) {
    if (!takePart(key, value.name)) return false;
  }
  return key.empty();
}

}  // namespace

const FX::FXString& BuiltSql::get(const FX::FXString& table, const FX::FXString& condition, const BoundValues& values,
                                  const std::function<FX::FXString()>& build) {
  if (last_ != nullptr && isKeyOf(last_->first, table, condition, values)) return last_->second;
  key_.clear();
  append(key_, table);
  append(key_, condition);
  for (const BoundValue& value : values) append(key_, value.name);
  auto found = texts_.find(key_);
  if (found == texts_.end()) {
    if (texts_.size() >= kMostTexts) {
      last_ = nullptr;
      texts_.clear();
    }
    found = texts_.emplace(key_, build()).first;
  }
  last_ = &*found;
  return last_->second;
}

}  // namespace Brontel::Database
