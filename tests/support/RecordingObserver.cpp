#include "tests/support/RecordingObserver.h"

#include "host/database/MorvaneDatabase.h"

using Brontel::Database::BoundValue;

std::string RecordingObserver::Record::value(const std::string& name) const {
  for (const auto& [bound, text] : values) {
    if (bound == name) return text;
  }
  return std::string();
}

std::string RecordingObserver::Record::toText() const {
  std::string list;
  for (const auto& [name, text] : values) list += (list.empty() ? "" : ", ") + name + "=" + text;
  return list.empty() ? sql : sql + " [" + list + "]";
}

RecordingObserver::RecordingObserver(MorvaneDatabase& database) : database_(database) {
  database_.setObserver(this);
}

RecordingObserver::~RecordingObserver() {
  database_.setObserver(nullptr);
}

bool RecordingObserver::beforeRun(const FX::FXString& sql, const Brontel::Database::BoundValues& values) {
  Record record{sql.text(), {}};
  for (const BoundValue& value : values) {
    record.values.emplace_back(
        value.name.text(), value.isText ? "'" + std::string(value.text.text()) + "'" : std::to_string(value.number));
  }
  records_.push_back(std::move(record));
  return true;
}

std::vector<std::string> RecordingObserver::texts() const {
  std::vector<std::string> texts;
  for (const Record& record : records_) texts.push_back(record.toText());
  return texts;
}

int RecordingObserver::count(const std::string& beginning) const {
  int found = 0;
  for (const Record& record : records_) found += record.sql.starts_with(beginning) ? 1 : 0;
  return found;
}
