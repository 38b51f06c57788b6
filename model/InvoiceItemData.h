#pragma once

#include "host/schema/Table.h"

namespace Brontel::Plugin::ItemData::Model {

/// The recorded values, one row a cell.
class InvoiceItemData : public ::Brontel::Model::Table {
 public:
  explicit InvoiceItemData(::Brontel::Model::Schema* schema) : Table(schema, "t_invoiceitemdata") {}

  void init() override;
};

}  // namespace Brontel::Plugin::ItemData::Model
