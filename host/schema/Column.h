#pragma once

#include <fx.h>

namespace Brontel::Model {

/// A declared column; one with a target table is a reference.
class Column : public FX::FXObject {
 public:
  enum ColumnType { TEXT = 0, INTEGER = 1 };

  /// What becomes of a row when the row it refers to is deleted.
  enum OnDeleteType {
    NO_ACTION = 0,
    RESTRICT = 1,
    SET_NULL = 2,
    CASCADE = 3,
    /// As the declaration implies: a reference that may be NULL becomes NULL, the row of one that may not goes along.
    BY_DECLARATION = 4
  };

  Column(const FX::FXString& name, ColumnType type) : name_(name), type_(type) {}
  Column(const FX::FXString& name, ColumnType type, bool nullable, const FX::FXString& targetTable,
         const FX::FXString& targetColumn, OnDeleteType onDelete);

  const FX::FXString& getName() const { return name_; }
  ColumnType getType() const { return type_; }

  /// The column's definition for a new table.
  FX::FXString definition() const { return definition(nullable_); }
  /// The same for a table that may have rows already: those could not satisfy NOT NULL.
  FX::FXString nullableDefinition() const { return definition(true); }

 private:
  FX::FXString definition(bool nullable) const;
  const char* onDeleteClause() const;

  FX::FXString name_;
  ColumnType type_;
  bool nullable_ = true;
  FX::FXString targetTable_;
  FX::FXString targetColumn_;
  OnDeleteType onDelete_ = NO_ACTION;
};

}  // namespace Brontel::Model
