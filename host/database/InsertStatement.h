#pragma once

#include "host/database/Statement.h"

/// Inserts one row: every bound parameter is a column of it, in binding order; the others stay NULL or get their key.
/// Without any bound parameter the row holds nothing but its key and the columns' defaults. With one whose name is no
/// plain identifier nothing is inserted.
class InsertStatement : public Statement {
 public:
  InsertStatement(MorvaneDatabase* db, const FX::FXString& table);
  InsertStatement(MorvaneDatabase* db, const char* table);

 protected:
  const FX::FXString& getSql() const override;

 private:
  FX::FXString build() const;

  FX::FXString table_;
};
