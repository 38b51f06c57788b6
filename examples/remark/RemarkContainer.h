#pragma once

#include <memory>

#include "host/plugin/PluginContainer.h"

namespace Remarks {

/// The plug-in as the host sees it.
class RemarkContainer : public Brontel::Plugin::PluginContainer {
 public:
  /// Without an application there is neither icon nor database.
  explicit RemarkContainer(Brontel::Morvane* app);

  FX::FXIcon* getIcon16() override;
  /// 0 when the database is there but cannot have the plug-in's table.
  int init() override;

 private:
  std::unique_ptr<FX::FXIcon> icon_;
};

}  // namespace Remarks
