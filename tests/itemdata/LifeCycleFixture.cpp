#include "tests/itemdata/LifeCycleFixture.h"

#include "itemdata/Codes.h"

using namespace Brontel;
using namespace Brontel::Plugin::ItemData;

LifeCycleFixture::LifeCycleFixture() : repository(database.handle(), registry) {
  addGoods();
  EXPECT_TRUE(database->setForeignKeys(true));
}

std::unique_ptr<Invoice> LifeCycleFixture::newInvoice(const std::string& quantity) {
  auto invoice = std::make_unique<Invoice>();
  invoice->setTypeCode(101);
  invoice->setNumber("A-1");
  auto* item = new InvoiceItem;
  item->setGoods(GOODS_PRODUCT, 100);
  item->setName("Csavar");
  item->setUnit("db");
  item->setQuantity(FXExt::FXDecimal(quantity.c_str(), kQuantityPlaces));
  invoice->appendItem(item);
  repository.loadPluginData(*invoice);
  return invoice;
}

std::unique_ptr<Invoice> LifeCycleFixture::savedInvoice() {
  std::unique_ptr<Invoice> invoice = newInvoice("8");
  setCell(listOf(*invoice), 11, 0, "M");
  addRow(*invoice, "5", "S1", "kék");
  addRow(*invoice, "3", "S2", "piros");
  save(*invoice);
  return invoice;
}

std::unique_ptr<Invoice> LifeCycleFixture::deriveFrom(const Invoice& source, const std::string& quantity) {
  std::unique_ptr<Invoice> invoice(source.derive());
  itemOf(*invoice).setQuantity(FXExt::FXDecimal(quantity.c_str(), kQuantityPlaces));
  repository.loadPluginData(*invoice);
  return invoice;
}

void LifeCycleFixture::save(Invoice& invoice) {
  EXPECT_EQ(repository.save(invoice), InvoiceRepository::Result::Done) << database->getLastError().message.text();
}

std::unique_ptr<Invoice> LifeCycleFixture::reload(const Invoice& invoice) {
  InvoiceRepository::Result result = InvoiceRepository::Result::Failed;
  std::unique_ptr<Invoice> loaded = repository.load(invoice.getId(), result);
  EXPECT_EQ(result, InvoiceRepository::Result::Done) << database->getLastError().message.text();
  return loaded;
}

void LifeCycleFixture::changeStatus(Invoice& invoice, int status) {
  EXPECT_EQ(repository.changeStatus(invoice, status), InvoiceRepository::Result::Done);
}

ItemDataList& LifeCycleFixture::listOf(const Invoice& invoice) {
  ItemDataList* list = ItemDataList::of(&itemOf(invoice));
  if (list == nullptr) {
    ADD_FAILURE() << "the item has no data";
    list = new ItemDataList(&itemOf(invoice), nullptr);
    itemOf(invoice).addMiscData(kMiscDataKey, list);
  }
  return *list;
}

void LifeCycleFixture::addRow(Invoice& invoice, const std::string& quantity, const std::string& batch,
                              const std::string& colour) {
  ItemDataList& list = listOf(invoice);
  list.addRows(1);
  setCell(list, VARIABLE_QUANTITY, list.rows, quantity);
  setCell(list, 12, list.rows, batch);
  setCell(list, 13, list.rows, colour);
}

std::string LifeCycleFixture::printed(const Invoice& invoice) const {
  return registry.toString(&itemOf(invoice)).text();
}

LifeCycleFixture::Texts LifeCycleFixture::problems(Invoice& invoice) const {
  Messages messages;
  registry.checkInvoice(nullptr, &invoice, messages, "P");
  return messages.summary();
}
