#include "tests/trust/HostProcess.h"

#include <iostream>

#include "itemdata/ItemDataList.h"
#include "plugin/GetPlugin.h"
#include "tests/plugin/SampleGoods.h"

using Brontel::Invoice;
using Brontel::InvoiceItem;
using Brontel::Plugin::ItemData::ItemDataEntry;
using Brontel::Plugin::ItemData::ItemDataList;
using FX::FXint;

bool HostProcess::open(const std::string& path, Use use) {
  if (!database_.open(path.c_str(), use)) {
    std::cerr << database_.getError().text() << "\n";
    return false;
  }
  app_.setDB(&database_.handle());
  container_.reset(get_plugin(&app_));
  container_->init();
  registry_.add(container_.get());
  repository_ = std::make_unique<Brontel::InvoiceRepository>(database_.handle(), registry_);
  if (use == Use::Create && database_.handle().queryInt("select count(*) from t_product", 1, -1) == 0) {
    SampleGoods::store(database_.handle());
    database_.markComplete();
  }
  const std::string error = takeError();
  if (!error.empty()) std::cerr << error << "\n";
  return error.empty();
}

std::string HostProcess::takeError() {
  if (!database_.errors().hasError()) return {};
  std::string error = database_.describeError().text();
  database_.errors().forget();
  return error;
}

std::unique_ptr<Invoice> HostProcess::newInvoice(const std::string& number, int rows, const std::string& text) {
  auto invoice = std::make_unique<Invoice>();
  invoice->setTypeCode(101);
  invoice->setNumber(number.c_str());
  auto* item = new InvoiceItem;
  item->setGoods(Brontel::GOODS_PRODUCT, SampleGoods::SOFA);
  item->setQuantity(FXExt::FXDecimal(rows, 0, 4));
  invoice->appendItem(item);
  registry_.load(item);
  if (ItemDataList* list = ItemDataList::of(item)) list->addRows(rows);
  retype(*invoice, text);
  return invoice;
}

void HostProcess::retype(Invoice& invoice, const std::string& text) {
  invoice.setPartner(text.c_str());
  for (FXint i = 0; i < invoice.getItems().no(); ++i) {
    const ItemDataList* list = ItemDataList::of(invoice.getItems()[i]);
    for (FXint c = 0; list != nullptr && c < list->no(); ++c) list->at(c)->value = text.c_str();
  }
}

std::string HostProcess::textOf(const Invoice& invoice) {
  const std::string text = invoice.getPartner().text();
  int cells = 0;
  int expected = 0;
  for (FXint i = 0; i < invoice.getItems().no(); ++i) {
    // The note, and three cells in each row.
    expected += 1 + 3 * static_cast<int>(invoice.getItems()[i]->getQuantity().toLong());
    const ItemDataList* list = ItemDataList::of(invoice.getItems()[i]);
    for (FXint c = 0; list != nullptr && c < list->no(); ++c, ++cells) {
      if (text != list->at(c)->value.text()) return "mixed: " + text + " and " + list->at(c)->value.text();
    }
  }
  return cells == expected && cells > 0 ? text : "mixed: " + std::to_string(cells) + " cells";
}
