#include "app/InvoiceText.h"

#include <algorithm>
#include <string_view>

#include "app/Tabbed.h"
#include "host/entity/Invoice.h"
#include "host/plugin/PluginRegistry.h"

namespace Brontel::App {

using FX::FXint;
using FX::FXString;

namespace {

void appendIndented(std::string& output, const FXString& text) {
  std::string_view rest(text.text(), static_cast<size_t>(text.length()));
  while (!rest.empty()) {
    const std::string_view line = rest.substr(0, rest.find('\n'));
    output.append("    ").append(line).push_back('\n');
    rest.remove_prefix(std::min(rest.size(), line.size() + 1));
  }
}

}  // namespace

std::string toText(const Invoice& invoice, const Plugin::PluginRegistry& plugins) {
  std::string text;
  for (FXint i = 0; i < invoice.getItems().no(); ++i) {
    InvoiceItem* item = invoice.getItems()[i];
    appendLine(text, {FX::FXStringVal(i + 1), item->getName(), item->getQuantity().toString(), item->getUnit(),
                      item->getPrice()});
    appendIndented(text, plugins.toString(item));
  }
  return text;
}

}  // namespace Brontel::App
