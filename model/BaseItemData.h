#pragma once

#include "host/schema/Table.h"

namespace Brontel::Plugin::ItemData::Model {

/// Which variables goods of one kind carry, in which order and for which direction of invoice.
class BaseItemData : public ::Brontel::Model::Table {
 public:
  BaseItemData(::Brontel::Model::Schema* schema, const FX::FXString& table, const FX::FXString& goods)
      : Table(schema, table), goods_(goods) {}

  void init() override;

 private:
  FX::FXString goods_;  // the table of the goods
};

}  // namespace Brontel::Plugin::ItemData::Model
