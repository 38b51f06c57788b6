#pragma once

#include <memory>

#include "host/ui/DBTablePersister.h"

class DeleteStatement;
class InsertStatement;
class MorvaneDatabase;
class UpdateStatement;

namespace Brontel::Plugin::ItemData {

/// Writes the rows of the settings table to t_itemvariable. A value given for one row never reaches another.
class ItemDataSettingsPersister : public DBTablePersister {
 public:
  /// Borrows the database; without one nothing is written.
  explicit ItemDataSettingsPersister(MorvaneDatabase* db);
  ~ItemDataSettingsPersister() override;

  /// Fields that the map lacks stay as they are, but for "process", which becomes 0.
  void updateItem(int id, std::map<FX::FXString, FX::FXString> values) override;
  void deleteItem(int id) override;
  /// Gives the row a new key.
  void insertItem(std::map<FX::FXString, FX::FXString> values) override;
  FX::FXString getColName(int column) override;

 private:
  std::unique_ptr<UpdateStatement> update_;
  std::unique_ptr<InsertStatement> insert_;
  std::unique_ptr<DeleteStatement> delete_;
  MorvaneDatabase* database_;  // not owned
};

}  // namespace Brontel::Plugin::ItemData
