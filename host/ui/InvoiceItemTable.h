#pragma once

#include <fx.h>

namespace Brontel {

class InvoiceForm;

namespace Plugin {
class PluginRegistry;
}

/// The table of an invoice's items. Row n shows item n of the form's invoice.
class InvoiceItemTable : public FX::FXTable {
  FXDECLARE(InvoiceItemTable)

 public:
  /// The form is borrowed: it holds the table.
  InvoiceItemTable(FX::FXComposite* parent, InvoiceForm* form, FX::FXObject* target = nullptr, FX::FXSelector sel = 0,
                   FX::FXuint options = 0);

  InvoiceForm* getForm() const { return form_; }

  /// A new pop-up pane owned by this table with one entry for each item menu plug-in; the caller deletes it.
  /// The entries' commands go to the plug-ins, which find their way back to the table through the owners.
  FX::FXMenuPane* createMenu(const Plugin::PluginRegistry& plugins);

 protected:
  InvoiceItemTable() = default;

 private:
  InvoiceForm* form_ = nullptr;
};

}  // namespace Brontel
