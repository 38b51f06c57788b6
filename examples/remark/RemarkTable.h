#pragma once

#include "host/schema/Table.h"

class MorvaneDatabase;

namespace Remarks {

/// A row for each invoice item that has a remark.
class RemarkTable : public Brontel::Model::Table {
 public:
  static constexpr const char* kName = "t_invoiceitemremark";

  explicit RemarkTable(Brontel::Model::Schema* schema) : Table(schema, kName) {}

  void init() override;

  /// Creates the table where it is missing. False when the database refuses; it keeps the reason.
  static bool create(MorvaneDatabase* database);
};

}  // namespace Remarks
