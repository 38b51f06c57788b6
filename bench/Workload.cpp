#include "bench/Workload.h"

#include <filesystem>
#include <string>

#include "host/entity/EntityTables.h"
#include "itemdata/Codes.h"
#include "itemdata/ItemDataPluginList.h"

using Brontel::Invoice;
using Brontel::InvoiceItem;
using Brontel::InvoiceRepository;
using Brontel::Plugin::ItemData::ItemDataContainer;
using Brontel::Plugin::ItemData::ItemDataEntry;
using Brontel::Plugin::ItemData::ItemDataList;
using FX::FXint;

Workload::Workload(Brontel::Morvane& app)
    : app_(app),
      file_((std::filesystem::temp_directory_path() / ("bench." + std::to_string(FX::fxgetpid()) + ".db")).c_str()) {
  std::filesystem::remove(file_.text());
  database_.open(file_, MorvaneDatabase::OpenMode::Create);
  database_.useWriteAheadJournal();
  app_.setDB(&database_);
  Brontel::Model::initEntityTables(&database_);
  database_.setForeignKeys(true);
  container_ = std::make_unique<ItemDataContainer>(&app_);
  container_->init();
  plugins_.add(container_.get());
  invoices_ = std::make_unique<InvoiceRepository>(database_, plugins_);
  database_.run("insert into t_product(t_product_id,code,name,unit) values(1,'P','Product','db')");
  database_.run(
      "insert into t_itemvariable(t_itemvariable_id,name,type,process,mandatory,vvalue) values"
      "(10,'Serial number',1,1,1,null),(11,'Expiry',2,1,0,null),(12,'Colour',3,1,0,'red,green,blue')");
  database_.run(
      "insert into t_productitemdata(t_product_1,t_itemvariable_1,position,direction) values"
      "(1,10,1,100),(1,11,2,100),(1,12,3,100)");
}

Workload::~Workload() {
  plugins_.remove(container_.get());
  container_.reset();
  app_.setDB(nullptr);
  database_.close();
  for (const char* end : {"", "-wal", "-shm"}) std::filesystem::remove((file_ + end).text());
}

std::unique_ptr<Invoice> Workload::makeInvoice(int rows) {
  auto invoice = std::make_unique<Invoice>();
  invoice->setTypeCode(101);
  invoice->setNumber("B-1");
  auto* item = new InvoiceItem;
  item->setGoods(Brontel::GOODS_PRODUCT, kProduct);
  item->setName("Product");
  item->setUnit("db");
  item->setQuantity(FXExt::FXDecimal(rows, 0, 4));
  invoice->appendItem(item);
  invoices_->loadPluginData(*invoice);
  ItemDataList* list = ItemDataList::of(item);
  list->addRows(rows);
  for (FXint i = 0; i < list->no(); ++i) {
    ItemDataEntry* entry = list->at(i);
    entry->value = entry->itemvariable == Brontel::Plugin::ItemData::VARIABLE_QUANTITY ? FX::FXString("1")
                   : entry->itemvariable == 10 ? "SN" + FX::FXStringVal(100000 + i)
                   : entry->itemvariable == 11 ? FX::FXString("2027.05.31")
                                               : FX::FXString("green");
  }
  return invoice;
}

std::unique_ptr<Invoice> Workload::makePerItemInvoice(int cells) {
  auto invoice = std::make_unique<Invoice>();
  invoice->setTypeCode(101);
  auto* item = new InvoiceItem;
  invoice->appendItem(item);
  auto* list = new ItemDataList(item, nullptr);
  item->addMiscData(Brontel::Plugin::ItemData::kMiscDataKey, list);
  for (int i = 0; i < cells; ++i) {
    constexpr int kFirstVariable = 1000;
    ItemDataEntry* entry = Brontel::Plugin::ItemData::plugins.getByType(Brontel::Plugin::ItemData::TYPE_TEXT, item);
    entry->itemvariable = kFirstVariable + i;
    entry->name = "Variable " + FX::FXStringVal(i);
    entry->value = "V" + FX::FXStringVal(i);
    list->append(entry);
  }
  return invoice;
}

int Workload::saveInvoice(int rows) {
  const std::unique_ptr<Invoice> invoice = makeInvoice(rows);
  return save(*invoice) ? invoice->getId() : 0;
}

std::unique_ptr<Invoice> Workload::load(int invoice) {
  InvoiceRepository::Result result = InvoiceRepository::Result::Done;
  return invoices_->load(invoice, result);
}

bool Workload::save(Invoice& invoice) {
  return invoices_->save(invoice) == InvoiceRepository::Result::Done;
}

void Workload::removeAll() {
  database_.run("delete from t_invoice");
}
