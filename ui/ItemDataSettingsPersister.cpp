#include "ui/ItemDataSettingsPersister.h"

#include "host/database/DeleteStatement.h"
#include "host/database/InsertStatement.h"
#include "host/database/MorvaneDatabase.h"
#include "host/database/UpdateStatement.h"

namespace Brontel::Plugin::ItemData {

using FX::FXString;

namespace {

constexpr const char* kTable = "t_itemvariable";
constexpr const char* kKey = "t_itemvariable_id";

}  // namespace

ItemDataSettingsPersister::ItemDataSettingsPersister(MorvaneDatabase* db)
    : update_(std::make_unique<UpdateStatement>(db, kTable, "t_itemvariable_id=%t_itemvariable_id")),
      insert_(std::make_unique<InsertStatement>(db, kTable)),
      delete_(std::make_unique<DeleteStatement>(db, kTable)),
      database_(db) {}

ItemDataSettingsPersister::~ItemDataSettingsPersister() = default;

// Values come by value because the host interface has it so.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
void ItemDataSettingsPersister::updateItem(int id, std::map<FXString, FXString> values) {
  update_->setInt(kKey, id);
  if (values.count("name") > 0) update_->setString("name", values["name"]);
  if (values.count("type") > 0) update_->setInt("type", values["type"]);
  update_->setInt("process", values["process"]);
  if (values.count("mandatory") > 0) update_->setInt("mandatory", values["mandatory"]);
  if (values.count("vvalue") > 0) update_->setString("vvalue", values["vvalue"]);
  update_->execute(nullptr, 1);
}

void ItemDataSettingsPersister::deleteItem(int id) {
  delete_->setInt(kKey, id);
  delete_->execute(nullptr, 1);
}

void ItemDataSettingsPersister::insertItem(std::map<FXString, FXString> values) {
  const int id = database_ == nullptr ? 0 : database_->nextId(kTable);
  // The key 0 would stand for no variable; the database has told what was wrong.
  if (id == 0) return;
  insert_->setInt(kKey, id);
  insert_->setString("name", values["name"]);
  if (insert_->execute(nullptr, 1) != 0) updateItem(id, values);
}

FXString ItemDataSettingsPersister::getColName(int column) {
  switch (column) {
    case 1:
      return "name";
    case 2:
      return "type";
    case 3:
      return "process";
    case 4:
      return "mandatory";
    case 5:
      return "vvalue";
    default:
      return FXString();
  }
}

}  // namespace Brontel::Plugin::ItemData
