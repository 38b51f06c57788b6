#include "app/print/PdfFile.h"

#include <libintl.h>

#include "app/InvoiceXml.h"
#include "app/print/PrintedPages.h"

namespace Brontel::App {

using FX::FXString;

FXString writePdf(const FXString& file, const PrintedPages& pages, HostDatabase& database, const Step& step) {
  const FXString document = pages.toPdf(step);
  return document.empty() ? describeMissingMemory() : writeExport(file, document, database);
}

FXString describeMissingMemory() {
  return gettext("Kevés a memória, a PDF nem készült el. Zárjon be más programokat.");
}

}  // namespace Brontel::App
