#pragma once

#include <string_view>

#include <fx.h>

#include "host/database/BoundValue.h"

class DataBaseValueLoader;
class MorvaneDatabase;

/// One SQL statement with parameters written %name and bound by name. Values are bound, never spliced into the text.
///
/// A statement can be bound and executed any number of times; each execution uses what was bound since the one before.
/// Without an open database it does nothing and reports failure by its result. GUI thread only.
class Statement {
 public:
  MorvaneDatabase* database;  ///< borrowed; null makes every execution fail
  FX::FXString sql;           ///< may be assigned until the statement is executed

  explicit Statement(MorvaneDatabase* db);
  Statement(MorvaneDatabase* db, const FX::FXString& text);
  Statement(const Statement&) = delete;
  Statement& operator=(const Statement&) = delete;
  virtual ~Statement();

  /// Binding a name again replaces its value.
  void setInt(const FX::FXString& name, int value);
  void setInt(const char* name, int value);
  /// An integer given as text; text that is no integer binds 0.
  void setInt(const FX::FXString& name, const FX::FXString& value);
  void setString(const FX::FXString& name, FX::FXString value);
  void setString(const char* name, FX::FXString value);

  /// Runs the statement; the loader (may be null) gets each column of each row. 1 when done, 0 when it failed or had
  /// nothing to do. The flag is part of the plug-in interface and has no meaning here.
  int execute(DataBaseValueLoader* loader, unsigned char flag);

  /// Runs the statement and returns the integer in a column (0-based) of the first row; 0 without row, value or
  /// success.
  int queryInt(int column);

 protected:
  /// The text to run, asked for when the values are known; empty when there is nothing to do. It has to stay as it is
  /// until another statement is executed.
  virtual const FX::FXString& getSql() const;

  const Brontel::Database::BoundValues& getValues() const { return values_; }

 private:
  void bindNumber(std::string_view name, FX::FXlong number);
  void bindText(std::string_view name, FX::FXString& text);
  Brontel::Database::BoundValue& valueFor(std::string_view name);

  Brontel::Database::BoundValues values_;
  size_t bound_ = 0;  // of them; the others are left over from another statement until this one is executed
};
