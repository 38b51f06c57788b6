#pragma once

#include "host/plugin/InvoiceItemMenuPlugin.h"

namespace Remarks {

/// The entry of the item table's menu that opens the current item's remark.
class RemarkMenu : public Brontel::Plugin::InvoiceItemMenuPlugin {
 public:
  explicit RemarkMenu(Brontel::Plugin::PluginContainer* container);

  long onCmdMenuItem(FX::FXObject* sender, FX::FXSelector sel, void* ptr) override;
};

}  // namespace Remarks
