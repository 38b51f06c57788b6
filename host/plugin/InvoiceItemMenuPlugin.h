#pragma once

#include <fx.h>

#include "host/plugin/PluginModule.h"

namespace Brontel::Plugin {

/// An entry in the pop-up menu of the invoice form's item table. The host makes a menu command with this module as
/// target and ID_MENU_ITEM as message, in a pane owned by the table.
class InvoiceItemMenuPlugin : public PluginModule {
  FXDECLARE_ABSTRACT(InvoiceItemMenuPlugin)

 public:
  enum { ID_MENU_ITEM = 1, ID_LAST };

  InvoiceItemMenuPlugin(PluginContainer* container, const FX::FXString& label);

  /// The user chose the entry; the sender is the menu command.
  virtual long onCmdMenuItem(FX::FXObject* sender, FX::FXSelector sel, void* ptr) = 0;
  /// Keeps the entry enabled. Returns 1.
  virtual long onUpdMenuItem(FX::FXObject* sender, FX::FXSelector sel, void* ptr);

  /// In FOX's menu syntax: label, accelerator and help separated by tabs.
  const FX::FXString& getLabel() const { return label_; }

 protected:
  InvoiceItemMenuPlugin() = default;

  void* data_ = nullptr;  ///< the plug-in's own
  FX::FXString label_;
};

}  // namespace Brontel::Plugin
