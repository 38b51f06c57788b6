#include "app/print/PrintedInvoice.h"

#include <libintl.h>

#include "app/ErrorText.h"
#include "app/print/PrintableUtf8.h"
#include "app/window/InvoiceTexts.h"
#include "host/entity/Invoice.h"
#include "host/plugin/PluginRegistry.h"

namespace Brontel::App {

using FX::FXint;
using FX::FXString;

namespace {

std::string oneLine(const FXString& text) {
  return toPrintable(toOneLine(text));
}

}  // namespace

PrintedInvoice::PrintedInvoice(const Invoice& invoice, const Plugin::PluginRegistry& plugins)
    : title(oneLine(nameOfType(invoice.getTypeCode()))), number(oneLine(invoice.getDisplayText())) {
  head.push_back({gettext("Szám"), number});
  head.push_back({gettext("Partner"), oneLine(invoice.getPartner())});
  head.push_back({gettext("Kelt"), oneLine(invoice.getDate())});
  head.push_back({gettext("Állapot"), oneLine(nameOfStatus(invoice.getStatus()))});
  header = {gettext("Tétel"), gettext("Megnevezés"), gettext("Mennyiség"), gettext("Egység"), gettext("Ár"), ""};
  for (FXint i = 0; i < invoice.getItems().no(); ++i) {
    InvoiceItem* item = invoice.getItems()[i];
    items.push_back({std::to_string(i + 1), oneLine(item->getName()), oneLine(item->getQuantity().toString()),
                     oneLine(item->getUnit()), oneLine(item->getPrice()), toPrintable(plugins.toString(item))});
  }
}

}  // namespace Brontel::App
