#include "app/InvoiceXml.h"

#include <filesystem>
#include <string>
#include <system_error>

#include <libintl.h>

#include "app/HostDatabase.h"
#include "app/OutputFile.h"
#include "host/entity/Invoice.h"
#include "host/message/FillIn.h"
#include "host/plugin/PluginRegistry.h"
#include "host/xml/Document.h"

namespace Brontel::App {

using FX::FXint;
using FX::FXString;
using FX::FXStringVal;

namespace {

void addItem(XMLBuilder::Element& items, InvoiceItem& item, int position, const Plugin::PluginRegistry& plugins) {
  XMLBuilder::Element* element = items.createElement("item", "");
  element->setAttribute("position", FXStringVal(position), "");
  element->setAttribute("name", item.getName(), "");
  element->setAttribute("goodskind", FXStringVal(item.getGoodsKind()), "");
  element->setAttribute("goods", FXStringVal(item.getGoodsId()), "");
  element->setAttribute("quantity", item.getQuantity().toString(), "");
  element->setAttribute("unit", item.getUnit(), "");
  element->setAttribute("price", item.getPrice(), "");
  plugins.toXml(&item, element);
}

// Whether it is the database's file or one of those that the engine keeps beside it; those need not be there yet.
bool isOfDatabase(const FXString& file, const FXString& database) {
  std::error_code error;
  const std::filesystem::path wanted = std::filesystem::weakly_canonical(file.text(), error);
  // The engine keeps them beside the file itself, not beside a link to it.
  const std::string own = std::filesystem::weakly_canonical(database.text(), error).string();
  for (const char* ending : {"", "-wal", "-shm", "-journal"}) {
    if (wanted == own + ending || std::filesystem::equivalent(wanted, own + ending, error)) return true;
  }
  return false;
}

}  // namespace

FXString toXml(const Invoice& invoice, const Plugin::PluginRegistry& plugins) {
  XMLBuilder::Document document("invoice");
  XMLBuilder::Element* root = document.getRoot();
  root->setAttribute("id", FXStringVal(invoice.getId()), "");
  root->setAttribute("number", invoice.getNumber(), "");
  root->setAttribute("type", FXStringVal(invoice.getTypeCode()), "");
  root->setAttribute("status", FXStringVal(invoice.getStatus()), "");
  root->setAttribute("partner", invoice.getPartner(), "");
  root->setAttribute("date", invoice.getDate(), "");
  if (invoice.getReferencedInvoiceId() != 0) {
    root->setAttribute("reference", FXStringVal(invoice.getReferencedInvoiceId()), "");
  }
  XMLBuilder::Element* items = root->createElement("items", "");
  for (FXint i = 0; i < invoice.getItems().no(); ++i) addItem(*items, *invoice.getItems()[i], i + 1, plugins);
  return document.toText();
}

FXString writeExport(const FXString& file, const FXString& text, HostDatabase& database) {
  if (isOfDatabase(file, database.handle().getPath())) {
    return fillIn(gettext("Ez az adatbázis része, nem írható felül: %s. Adjon meg másik fájlt."), {file});
  }
  return replaceFile(file, text);
}

}  // namespace Brontel::App
