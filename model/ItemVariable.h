#pragma once

#include "host/schema/Table.h"

namespace Brontel::Plugin::ItemData::Model {

/// The fields that users define, one row each, and the built-in quantity variable.
class ItemVariable : public ::Brontel::Model::Table {
 public:
  explicit ItemVariable(::Brontel::Model::Schema* schema) : Table(schema, "t_itemvariable") {}

  void init() override;
};

}  // namespace Brontel::Plugin::ItemData::Model
