#pragma once

#include <fx.h>

#include "app/print/Step.h"

namespace Brontel::App {

class HostDatabase;
class PrintedPages;

/// Writes the pages into a PDF file, which must not be the database itself and is wholly the new one or stays as it
/// was. Returns what went wrong, for the person; empty when it is done.
FX::FXString writePdf(const FX::FXString& file, const PrintedPages& pages, HostDatabase& database,
                      const Step& step = noStep());

/// What the person is told when there was no memory for a document.
FX::FXString describeMissingMemory();

}  // namespace Brontel::App
