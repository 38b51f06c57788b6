#pragma once

#include <fx.h>

#include "app/print/Printers.h"

namespace Brontel::App {

/// Asks on which printer something is to be printed, and how often. Offers what it was used with the last time.
class PrinterDialog : public FX::FXDialogBox {
  FXDECLARE(PrinterDialog)

 public:
  PrinterDialog(FX::FXWindow* owner, const std::vector<FX::FXString>& printers);

  void create() override;

  /// What the person has chosen; to be remembered when they have accepted it.
  PrinterChoice getChoice() const;
  void remember() const;

 protected:
  PrinterDialog() = default;

 private:
  FX::FXComboBox* printers_ = nullptr;  // children
  FX::FXSpinner* copies_ = nullptr;
};

}  // namespace Brontel::App
