#pragma once

#include <fx.h>

#include "host/schema/Column.h"
#include "host/schema/FXManagedObjectListOf.h"
#include "host/schema/Index.h"

class MorvaneDatabase;

namespace Brontel::Model {

class Schema;

/// A table that a subclass describes in init(). Its key <table>_id is there without being declared.
class Table : public FX::FXObject {
  FXDECLARE_ABSTRACT(Table)

 public:
  /// Hands the new table to the schema, which owns it; without a schema the caller does.
  Table(Schema* schema, const FX::FXString& name);
  Table(const Table&) = delete;
  Table& operator=(const Table&) = delete;
  ~Table() override;

  /// Declares the columns, in order. Called by the schema and nobody else; runs no SQL.
  virtual void init() = 0;

  const FX::FXString& getName() const { return name_; }

  void addColumn(const FX::FXString& name, Column::ColumnType type);

  /// A foreign-key column. An empty target column means the target table's key <targetTable>_id. An indexed one gets an
  /// index that begins with it and goes on with the table's other integer columns, so that looking up a row by this
  /// reference and any of them never walks through all rows of the reference.
  void addReference(const FX::FXString& column, Column::ColumnType type, unsigned char nullable,
                    const FX::FXString& targetTable, unsigned char indexed, const FX::FXString& targetColumn,
                    Column::OnDeleteType onDelete);

 protected:
  Table() = default;

 private:
  friend class Schema;

  void declare();
  void declareIndexes();

  FX::FXString name_;
  FX::FXManagedObjectListOf<Column> columns_;
  FX::FXManagedObjectListOf<Index> indexes_;
  FX::FXObjectListOf<Column> indexed_;  // the references to make an index of; owned by columns_
};

}  // namespace Brontel::Model
