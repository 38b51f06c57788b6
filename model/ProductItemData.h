#pragma once

#include "model/BaseItemData.h"

namespace Brontel::Plugin::ItemData::Model {

/// The variables of products.
class ProductItemData : public BaseItemData {
 public:
  explicit ProductItemData(::Brontel::Model::Schema* schema, const FX::FXString& goods = "t_product")
      : BaseItemData(schema, "t_productitemdata", goods) {}
};

}  // namespace Brontel::Plugin::ItemData::Model
