#pragma once

#include "model/BaseItemData.h"

namespace Brontel::Plugin::ItemData::Model {

/// The variables of services.
class ServiceItemData : public BaseItemData {
 public:
  explicit ServiceItemData(::Brontel::Model::Schema* schema, const FX::FXString& goods = "t_service")
      : BaseItemData(schema, "t_serviceitemdata", goods) {}
};

}  // namespace Brontel::Plugin::ItemData::Model
