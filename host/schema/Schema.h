#pragma once

#include <fx.h>

#include "host/schema/FXManagedObjectListOf.h"
#include "host/schema/Table.h"

class MorvaneDatabase;

namespace Brontel::Model {

/// Tables as they should be. A short-lived object: built, synchronised with a database, and gone.
class Schema : public FX::FXObject {
  FXDECLARE(Schema)

 public:
  Schema() = default;
  Schema(const Schema&) = delete;
  Schema& operator=(const Schema&) = delete;

  /// Takes the table over. Table's constructor calls it.
  void append(Table* table);

  /// Brings the database in line: every table declares itself, then missing tables, columns and indexes are made, in
  /// the tables' order. Nothing is ever dropped but an index of ours whose columns have changed, and a database that is
  /// in line already is only read. Each table is changed as a whole or not at all; one that fails does not stop the
  /// others. 1 when all is in line, 0 otherwise or without a database. Can be repeated.
  int sync(MorvaneDatabase* database);

  /// How much of the declared tables and columns a database has; indexes do not count, since without them everything
  /// works. Only reads. None also without a database, or when it cannot be read.
  enum class Extent { None, Part, All };
  Extent measure(MorvaneDatabase* database);

 private:
  FX::FXManagedObjectListOf<Table> tables_;
};

}  // namespace Brontel::Model
