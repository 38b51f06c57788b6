#pragma once

#include <vector>

#include <fx.h>

#include "host/schema/Column.h"
#include "host/schema/Index.h"

class MorvaneDatabase;

namespace Brontel::Model {

/// Finds out what one table of the database lacks and makes it. Everything is borrowed for the object's life.
class TableSync {
 public:
  TableSync(MorvaneDatabase& database, const FX::FXString& table, const FX::FXObjectListOf<Column>& columns,
            const FX::FXObjectListOf<Index>& indexes);

  /// True when the table is, or now is, as declared. A table that lacks nothing is only read.
  bool apply();

  /// Whether the database has a table of that name, and whether that has all declared columns. False when it cannot be
  /// read.
  bool isPresent();
  bool isComplete();

 private:
  bool readColumns(std::vector<FX::FXString>& existing);
  bool plan();
  void planTable(const std::vector<FX::FXString>& existing);
  bool planIndex(const Index& index);

  MorvaneDatabase& database_;
  const FX::FXString& table_;
  const FX::FXObjectListOf<Column>& columns_;
  const FX::FXObjectListOf<Index>& indexes_;
  std::vector<FX::FXString> statements_;
};

}  // namespace Brontel::Model
