#pragma once

#include "host/database/Statement.h"

/// Deletes the rows in which every bound parameter's column equals its value. Without any bound parameter nothing is
/// deleted: a table is never emptied by an oversight.
class DeleteStatement : public Statement {
 public:
  DeleteStatement(MorvaneDatabase* db, const FX::FXString& table);
  DeleteStatement(MorvaneDatabase* db, const char* table);

 protected:
  const FX::FXString& getSql() const override;

 private:
  FX::FXString build() const;

  FX::FXString table_;
};
