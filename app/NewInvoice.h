#pragma once

#include <fx.h>

#include "host/entity/InvoiceRepository.h"

namespace Brontel::App {

// What the number of an invoice made from another one gets behind its source's number.
constexpr const char* kDerivedMark = "/J";
constexpr const char* kCopyMark = "/M";

/// Today in the person's time zone, as invoices have their date.
FX::FXString today();

/// The beginning with the first counter that no invoice has.
FX::FXString freeNumber(MorvaneDatabase& database, const FX::FXString& beginning);

/// Saves a new invoice, dated today, under a free number that begins with its own and the mark.
InvoiceRepository::Result saveUnderFreeNumber(MorvaneDatabase& database, InvoiceRepository& repository,
                                              Invoice& invoice, const FX::FXString& mark);

}  // namespace Brontel::App
