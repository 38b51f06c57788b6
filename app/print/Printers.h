#pragma once

#include <vector>

#include <fx.h>

#include "app/print/Step.h"

namespace Brontel::App {

/// Where a document goes, and how often.
struct PrinterChoice {
  FX::FXString printer;  ///< empty for the system's own choice
  FX::FXint copies = 1;
};

/// The printers that the system knows; empty when it knows none or cannot say.
std::vector<FX::FXString> findPrinters(const Step& step = noStep());

/// Hands a PDF document to the printing system: lp, or lpr where there is no lp. Returns what it complains of, for the
/// person; empty when it has taken the document.
FX::FXString sendToPrinter(const FX::FXString& document, const PrinterChoice& choice, const Step& step = noStep());

}  // namespace Brontel::App
