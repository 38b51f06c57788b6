#pragma once

#include <utility>
#include <vector>

#include <fx.h>

namespace Brontel::Model {

/// An index of a table over some of its columns, in order.
class Index : public FX::FXObject {
 public:
  Index(const FX::FXString& name, std::vector<FX::FXString> columns) : name_(name), columns_(std::move(columns)) {}

  const FX::FXString& getName() const { return name_; }
  const std::vector<FX::FXString>& getColumns() const { return columns_; }

 private:
  FX::FXString name_;
  std::vector<FX::FXString> columns_;
};

}  // namespace Brontel::Model
