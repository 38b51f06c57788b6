#include "tests/plugin/PluginWorld.h"

#include <gtest/gtest.h>

#include "host/entity/EntityTables.h"
#include "plugin/GetPlugin.h"

using Brontel::GoodsKind;
using Brontel::Invoice;
using Brontel::InvoiceItem;
using Brontel::ListOfMessage;
using Brontel::Plugin::ItemData::ItemDataEntry;
using Brontel::Plugin::ItemData::ItemDataList;
using FX::FXint;
using FX::FXString;

PluginWorld::PluginWorld()
    : app_("plugin-test", "Brontel"), container_(nullptr), repository_(database_.handle(), registry_) {
  // Nothing here has to outlive a power failure.
  database_.exec("pragma synchronous=off");
  EXPECT_EQ(Brontel::Model::initEntityTables(database_.get()), 1);
  EXPECT_TRUE(database_->setForeignKeys(true));
  app_.setDB(database_.get());
  container_.reset(get_plugin(&app_));
  EXPECT_EQ(container_->init(), 1);
  registry_.add(container_.get());
  EXPECT_TRUE(SampleGoods::store(database_.handle())) << database_->getLastError().message.text();
}

std::unique_ptr<Invoice> PluginWorld::load(int id) {
  Result result = Result::Failed;
  std::unique_ptr<Invoice> invoice = repository_.load(id, result);
  EXPECT_EQ(result, Result::Done);
  return invoice;
}

InvoiceItem* PluginWorld::addItem(Invoice& invoice, GoodsKind kind, int goods, const char* quantity) {
  auto* item = new InvoiceItem;
  item->setGoods(kind, goods);
  item->setName("tétel");
  item->setUnit("db");
  item->setQuantity(FXExt::FXDecimal(quantity, 4));
  invoice.appendItem(item);
  registry_.load(item);
  return item;
}

InvoiceItem* PluginWorld::addSofa(Invoice& invoice, const char* quantity, const char* note,
                                  const std::vector<std::vector<const char*>>& rows) {
  InvoiceItem* item = addItem(invoice, Brontel::GOODS_PRODUCT, SampleGoods::SOFA, quantity);
  type(item, SampleGoods::NOTE, 0, note);
  for (const auto& row : rows) addRow(item, row);
  return item;
}

std::vector<std::string> PluginWorld::check(Invoice& invoice) {
  ListOfMessage messages;
  registry_.checkInvoice(nullptr, &invoice, messages, "T");
  std::vector<std::string> texts;
  for (FXint i = 0; i < messages.no(); ++i) {
    FXString text = messages[i]->getText();
    text.substitute("\n", "\\n");
    texts.push_back(std::to_string(messages[i]->getLevel()) + " " + messages[i]->getCode().text() + " " + text.text());
    delete messages[i];
  }
  return texts;
}

std::string PluginWorld::print(InvoiceItem& item) const {
  return registry_.toString(&item).text();
}

std::vector<std::string> PluginWorld::stored(const InvoiceItem& item) const {
  std::vector<std::string> texts;
  for (const auto& row : database_.rows("select t_itemvariable_1, row, value from t_invoiceitemdata where "
                                        "t_invoiceitem_1=" +
                                        std::to_string(item.getId()) + " order by row, t_itemvariable_1")) {
    texts.push_back(row[0] + "/" + row[1] + "=" + row[2]);
  }
  return texts;
}

std::unique_ptr<Invoice> newInvoice(int typeCode) {
  auto invoice = std::make_unique<Invoice>();
  invoice->setTypeCode(typeCode);
  invoice->setNumber("2024/1");
  return invoice;
}

ItemDataList* dataOf(const InvoiceItem* item) {
  return ItemDataList::of(item);
}

ItemDataEntry* cell(const InvoiceItem* item, int variable, int row) {
  const ItemDataList* list = dataOf(item);
  for (FXint i = 0; list != nullptr && i < list->no(); ++i) {
    ItemDataEntry* entry = list->at(i);
    if (ItemDataEntry::isLive(entry) && entry->itemvariable == variable && entry->row == row) return entry;
  }
  ADD_FAILURE() << "no cell of variable " << variable << " in row " << row;
  return nullptr;
}

void type(const InvoiceItem* item, int variable, int row, const char* value) {
  ItemDataEntry* entry = cell(item, variable, row);
  if (entry != nullptr) entry->value = value;
}

void addRow(const InvoiceItem* item, const std::vector<const char*>& values) {
  constexpr int kVariables[] = {SampleGoods::QUANTITY, SampleGoods::BATCH, SampleGoods::COLOUR};
  ItemDataList* list = dataOf(item);
  ASSERT_NE(list, nullptr);
  list->addRows(1);
  for (size_t i = 0; i < values.size(); ++i) type(item, kVariables[i], list->rows, values[i]);
}

std::vector<std::string> cells(const InvoiceItem* item, bool withKeys) {
  const ItemDataList* list = dataOf(item);
  std::vector<std::string> texts;
  for (FXint i = 0; list != nullptr && i < list->no(); ++i) {
    const ItemDataEntry& entry = *list->at(i);
    std::string text = std::to_string(entry.itemvariable) + "/" + std::to_string(entry.row) + "=" + entry.value.text();
    if (withKeys) text += " pk=" + std::to_string(entry.pk);
    if (entry.del != 0) text += " deleted";
    texts.push_back(text);
  }
  return texts;
}
