#include "tests/examples/RemarkWorld.h"

#include <gtest/gtest.h>

#include "host/entity/EntityTables.h"
#include "host/message/Message.h"

extern "C" Brontel::Plugin::PluginContainer* get_plugin(Brontel::Morvane* app);

using Brontel::Invoice;
using Brontel::InvoiceItem;

RemarkWorld::RemarkWorld(Brontel::Morvane& app) : repository_(database_.handle(), registry_) {
  EXPECT_EQ(Brontel::Model::initEntityTables(database_.get()), 1);
  EXPECT_TRUE(database_->setForeignKeys(true));
  app.setDB(database_.get());
  container_.reset(get_plugin(&app));
  EXPECT_EQ(container_->init(), 1);
  registry_.add(container_.get());
  invoice_.setTypeCode(101);
  for (const char* name : {"Asztal & szék", "Lámpa"}) {
    auto* item = new InvoiceItem;
    item->setName(name);
    item->setQuantity(FXExt::FXDecimal("1", 4));
    invoice_.appendItem(item);
    registry_.load(item);
  }
}

std::unique_ptr<Invoice> RemarkWorld::reload() {
  Result result = Result::Failed;
  std::unique_ptr<Invoice> loaded = repository_.load(invoice_.getId(), result);
  EXPECT_EQ(result, Result::Done);
  return loaded;
}

std::vector<std::string> RemarkWorld::check(FX::FXWindow* form) {
  Brontel::ListOfMessage messages;
  registry_.checkInvoice(form, &invoice_, messages, "T");
  std::vector<std::string> texts;
  for (FX::FXint i = 0; i < messages.no(); ++i) {
    const std::unique_ptr<Brontel::Message> message(messages[i]);
    texts.push_back(std::to_string(message->getLevel()) + " " + message->getCode().text() + " " +
                    message->getText().text());
  }
  return texts;
}

std::vector<std::string> RemarkWorld::stored() const {
  std::vector<std::string> texts;
  for (const auto& row : database_.rows("select t_invoiceitem_1, text from t_invoiceitemremark order by 1, 2")) {
    texts.push_back(row[0] + " " + row[1]);
  }
  return texts;
}
