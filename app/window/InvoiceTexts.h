#pragma once

#include <vector>

#include <fx.h>

namespace Brontel::App {

/// How an invoice's type and status are called.
FX::FXString nameOfType(int typeCode);
FX::FXString nameOfStatus(int status);

/// The types that a person can choose for a new invoice.
const std::vector<int>& offeredTypes();

/// Whether a date is a real one and written as YYYY-MM-DD.
bool isDate(const FX::FXString& text);

/// A name for a file about the invoice of that number, without what file names cannot have.
FX::FXString fileNameFor(const FX::FXString& number, const char* ending);

}  // namespace Brontel::App
