#pragma once

#include <fx.h>

#include "host/database/DatabaseError.h"
#include "host/entity/InvoiceRepository.h"

namespace Brontel::App {

/// What went wrong with that database file and what can be done about it, in one translated line.
FX::FXString describe(const Database::DatabaseError& error, const FX::FXString& path);

/// The same for an invoice that could not be loaded or saved. Empty for Done, and for Failed, whose reason is a
/// database error.
FX::FXString describe(InvoiceRepository::Result result, const FX::FXString& invoice);

/// The text with line breaks and tabs turned into blanks, so that it stays one line, or one field of a line.
FX::FXString toOneLine(const FX::FXString& text);

}  // namespace Brontel::App
