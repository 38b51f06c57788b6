#pragma once

#include "model/BaseItemData.h"

namespace Brontel::Plugin::ItemData::Model {

/// The variables of suites.
class SuiteItemData : public BaseItemData {
 public:
  explicit SuiteItemData(::Brontel::Model::Schema* schema, const FX::FXString& goods = "t_suite")
      : BaseItemData(schema, "t_suiteitemdata", goods) {}
};

}  // namespace Brontel::Plugin::ItemData::Model
