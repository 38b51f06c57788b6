#pragma once

#include <map>

#include <fx.h>

namespace Brontel {

/// Writes the rows of a DBTable. Maps are keyed by the names that getColName gives.
class DBTablePersister {
 public:
  DBTablePersister() = default;
  DBTablePersister(const DBTablePersister&) = delete;
  DBTablePersister& operator=(const DBTablePersister&) = delete;
  virtual ~DBTablePersister() = default;

  virtual void updateItem(int id, std::map<FX::FXString, FX::FXString> values) = 0;
  virtual void deleteItem(int id) = 0;
  virtual void insertItem(std::map<FX::FXString, FX::FXString> values) = 0;
  /// The field's name; fields count from 1, since field 0 is the row's key. Empty for a field that is not stored.
  virtual FX::FXString getColName(int column) = 0;
};

}  // namespace Brontel
