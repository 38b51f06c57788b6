#pragma once

#include "host/plugin/InvoiceItemMenuPlugin.h"

namespace Brontel {
class InvoiceForm;
}

namespace Brontel::Plugin::ItemData {

/// The entry in the pop-up menu of the invoice form's item table that opens the item data dialog for each selected item
/// in turn.
class InvoiceItemMenu : public InvoiceItemMenuPlugin {
 public:
  explicit InvoiceItemMenu(PluginContainer* container);

  /// The sender is the command in the table's menu: its owner's owner is the table. A row without item is passed over.
  /// Returns 1 always.
  long onCmdMenuItem(FX::FXObject* sender, FX::FXSelector, void*) override;

 private:
  static void openDialogs(InvoiceForm& form, FX::FXint first, FX::FXint last);
};

}  // namespace Brontel::Plugin::ItemData
