#include "tests/plugin/SpyEntry.h"

#include "itemdata/ItemDataList.h"

using Brontel::Plugin::ItemData::ItemDataList;

SpyEntry::SpyEntry(Log& log, Brontel::Entity* owner) : log_(log) {
  owner_ = owner;
}

SpyEntry* SpyEntry::clone(Brontel::Entity* owner) const {
  auto* entry = new SpyEntry(log_, owner);
  copyFieldsTo(*entry);
  return entry;
}

int SpyEntry::save(MorvaneDatabase* db) {
  note("save", db);
  return 0;
}

int SpyEntry::load(MorvaneDatabase* db) {
  note("load", db);
  return 0;
}

void SpyEntry::setStatus(unsigned int status) {
  log_.push_back("status " + std::to_string(status));
}

void SpyEntry::check(int itemIndex, Brontel::ListOfMessage& messages, FX::FXString prefix) {
  log_.push_back("check " + std::to_string(itemIndex) + " " + prefix.text() + " " + std::to_string(messages.no()));
}

void SpyEntry::note(const char* what, const MorvaneDatabase* db) {
  std::string text = what;
  if (ItemDataList::of(owner_) != nullptr) text += " attached";
  if (db != expectedDatabase) text += " with another database";
  log_.push_back(text);
}
