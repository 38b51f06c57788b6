#pragma once

#include "host/database/Statement.h"

/// Updates the rows that match a condition such as "t_x_id=%t_x_id". Parameters that the condition names only fill it;
/// every other bound parameter is a column to set. Without a column to set, or with an empty condition or one that has
/// an unbound parameter, nothing is changed: a whole table is never rewritten by an oversight.
class UpdateStatement : public Statement {
 public:
  UpdateStatement(MorvaneDatabase* db, const FX::FXString& table, const FX::FXString& where);
  UpdateStatement(MorvaneDatabase* db, const char* table, const char* where);

 protected:
  const FX::FXString& getSql() const override;

 private:
  FX::FXString build() const;

  FX::FXString table_;
  FX::FXString where_;
};
