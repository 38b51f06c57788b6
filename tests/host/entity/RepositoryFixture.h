#pragma once

#include <memory>
#include <string>

#include <gtest/gtest.h>

#include "host/database/DeleteStatement.h"
#include "host/database/InsertStatement.h"
#include "host/entity/EntityTables.h"
#include "host/entity/Invoice.h"
#include "host/entity/InvoiceRepository.h"
#include "host/plugin/PluginRegistry.h"
#include "tests/host/plugin/RecordingEntityPlugin.h"
#include "tests/host/plugin/TestContainer.h"
#include "tests/support/TestDatabase.h"

/// An entity plug-in that keeps a row of its own for each item, written anew at each save.
class StoringEntityPlugin : public RecordingEntityPlugin {
 public:
  StoringEntityPlugin(Brontel::Plugin::PluginContainer* container, Log& log, MorvaneDatabase& database)
      : RecordingEntityPlugin(container, log), database_(database) {}

  int save(Brontel::Entity* entity) const override {
    note("save", entity);
    DeleteStatement old(&database_, "t_data");
    old.setInt("t_invoiceitem_1", entity->getId());
    old.execute(nullptr, 1);
    InsertStatement row(&database_, "t_data");
    row.setInt("t_invoiceitem_1", entity->getId());
    row.setString("value", static_cast<Brontel::InvoiceItem*>(entity)->getName());
    return row.execute(nullptr, 1);
  }

 private:
  MorvaneDatabase& database_;
};

/// A database as the host application makes it, and a plug-in at work on it.
class RepositoryFixture {
 public:
  using Result = Brontel::InvoiceRepository::Result;

  RepositoryFixture() : repository(database.handle(), registry) {
    EXPECT_EQ(Brontel::Model::initEntityTables(database.get()), 1);
    database.exec(
        "create table t_data (t_data_id integer primary key, t_invoiceitem_1 integer not null references"
        " t_invoiceitem(t_invoiceitem_id) on delete cascade, value text)");
    EXPECT_TRUE(database->setForeignKeys(true));
    plugin = container.add(new StoringEntityPlugin(&container, log, database.handle()));
    registry.add(&container);
  }

  /// An invoice of items of these names that has never been saved.
  static std::unique_ptr<Brontel::Invoice> makeInvoice(std::initializer_list<const char*> items = {"one", "two"}) {
    auto invoice = std::make_unique<Brontel::Invoice>();
    invoice->setTypeCode(101);
    invoice->setNumber("N/1");
    invoice->setPartner("O'Brien \"%id\"");
    invoice->setDate("2024-01-02");
    for (const char* name : items) appendItem(*invoice, name);
    return invoice;
  }

  static Brontel::InvoiceItem* appendItem(Brontel::Invoice& invoice, const char* name) {
    auto* item = new Brontel::InvoiceItem;
    item->setName(name);
    item->setGoods(Brontel::GOODS_PRODUCT, 3);
    item->setQuantity(FXExt::FXDecimal("2.5", 4));
    item->setUnit("kg");
    item->setPrice("10.00");
    invoice.appendItem(item);
    return item;
  }

  std::unique_ptr<Brontel::Invoice> load(int id) {
    Result result = Result::Failed;
    auto invoice = repository.load(id, result);
    EXPECT_EQ(result, Result::Done);
    return invoice;
  }

  TestDatabase database;
  RecordingEntityPlugin::Log log;
  Brontel::Plugin::PluginRegistry registry;
  TestContainer container;
  Brontel::InvoiceRepository repository;
  StoringEntityPlugin* plugin = nullptr;  // the container's
};

class InvoiceRepositoryTest : public ::testing::Test, protected RepositoryFixture {};
