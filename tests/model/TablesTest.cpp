// The plug-in's five tables as a fresh database gets them.

#include <type_traits>

#include <gtest/gtest.h>

#include "host/entity/EntityTables.h"
#include "host/schema/Schema.h"
#include "model/InvoiceItemData.h"
#include "model/ItemVariable.h"
#include "model/ProductItemData.h"
#include "model/ServiceItemData.h"
#include "model/SuiteItemData.h"
#include "tests/support/RecordingObserver.h"
#include "tests/support/TestDatabase.h"

using namespace Brontel::Plugin::ItemData::Model;
using Brontel::Model::Schema;
using Brontel::Model::Table;
using Rows = std::vector<std::vector<std::string>>;

static_assert(std::is_base_of_v<Table, ItemVariable> && sizeof(ItemVariable) == sizeof(Table));
static_assert(std::is_base_of_v<Table, InvoiceItemData> && sizeof(InvoiceItemData) == sizeof(Table));
static_assert(std::is_base_of_v<Table, BaseItemData> && sizeof(BaseItemData) == sizeof(Table) + sizeof(FX::FXString));
static_assert(std::is_base_of_v<BaseItemData, ProductItemData> && sizeof(ProductItemData) == sizeof(BaseItemData));
static_assert(std::is_base_of_v<BaseItemData, ServiceItemData> && sizeof(ServiceItemData) == sizeof(BaseItemData));
static_assert(std::is_base_of_v<BaseItemData, SuiteItemData> && sizeof(SuiteItemData) == sizeof(BaseItemData));
static_assert(std::is_constructible_v<ItemVariable, Schema*> && std::is_constructible_v<InvoiceItemData, Schema*>);
static_assert(std::is_constructible_v<SuiteItemData, Schema*, FX::FXString>);

namespace {

class TablesTest : public ::testing::Test {
 protected:
  TablesTest() {
    Brontel::Model::initEntityTables(database.get());
    Schema schema;
    new ItemVariable(&schema);
    new InvoiceItemData(&schema);
    new ProductItemData(&schema);
    new ServiceItemData(&schema);
    new SuiteItemData(&schema);
    EXPECT_EQ(schema.sync(database.get()), 1);
  }

  /// Name, type, not-null and key of each column.
  Rows columns(const std::string& table) {
    return database.rows("select name, lower(type), \"notnull\", pk from pragma_table_info('" + table +
                         "') order by cid");
  }
  /// Column, target table, target column and what a deletion does, by column.
  Rows references(const std::string& table) {
    return database.rows("select \"from\", \"table\", \"to\", on_delete from pragma_foreign_key_list('" + table +
                         "') order by \"from\"");
  }
  /// The columns of each index in order, by index.
  Rows indexes(const std::string& table) {
    return database.rows(
        "select group_concat(name) from (select l.name as list, i.name as name from "
        "pragma_index_list('" +
        table + "') l join pragma_index_info(l.name) i order by l.name, i.seqno) group by list");
  }

  TestDatabase database;
};

}  // namespace

TEST_F(TablesTest, variablesMayLackEverything) {
  EXPECT_EQ(columns("t_itemvariable"), (Rows{{"t_itemvariable_id", "integer", "0", "1"},
                                             {"name", "text", "0", "0"},
                                             {"type", "integer", "0", "0"},
                                             {"process", "integer", "0", "0"},
                                             {"mandatory", "integer", "0", "0"},
                                             {"vvalue", "text", "0", "0"}}));
  EXPECT_TRUE(references("t_itemvariable").empty());
}

TEST_F(TablesTest, cellsBelongToAnItemAndMayLackAVariable) {
  EXPECT_EQ(columns("t_invoiceitemdata"), (Rows{{"t_invoiceitemdata_id", "integer", "0", "1"},
                                                {"t_itemvariable_1", "integer", "0", "0"},
                                                {"t_invoiceitem_1", "integer", "1", "0"},
                                                {"row", "integer", "0", "0"},
                                                {"value", "text", "0", "0"}}));
  EXPECT_EQ(references("t_invoiceitemdata"),
            (Rows{{"t_invoiceitem_1", "t_invoiceitem", "t_invoiceitem_id", "CASCADE"},
                  {"t_itemvariable_1", "t_itemvariable", "t_itemvariable_id", "SET NULL"}}));
  EXPECT_EQ(indexes("t_invoiceitemdata"),
            (Rows{{"t_invoiceitem_1,t_itemvariable_1,row"}, {"t_itemvariable_1,t_invoiceitem_1,row"}}));
}

TEST_F(TablesTest, associationsJoinGoodsAndVariables) {
  for (const std::string kind : {"product", "service", "suite"}) {
    const std::string table = "t_" + kind + "itemdata";
    const std::string goods = "t_" + kind + "_1";
    EXPECT_EQ(columns(table), (Rows{{table + "_id", "integer", "0", "1"},
                                    {goods, "integer", "1", "0"},
                                    {"t_itemvariable_1", "integer", "1", "0"},
                                    {"position", "integer", "0", "0"},
                                    {"direction", "integer", "0", "0"}}));
    EXPECT_EQ(references(table), (Rows{{"t_itemvariable_1", "t_itemvariable", "t_itemvariable_id", "CASCADE"},
                                       {goods, "t_" + kind, "t_" + kind + "_id", "CASCADE"}}));
    EXPECT_EQ(indexes(table), (Rows{{"t_itemvariable_1," + goods + ",position,direction"},
                                    {goods + ",t_itemvariable_1,position,direction"}}));
  }
}

TEST_F(TablesTest, theColumnsOfCellsNeedNoQuotes) {
  database.exec("insert into t_invoiceitemdata (t_itemvariable_1,t_invoiceitem_1,row,value) values (-1,1,1,'5')");
  EXPECT_EQ(database.text("select value from t_invoiceitemdata where row=1 order by row"), "5");
}

TEST_F(TablesTest, aValueMayBeStoredWithoutVariable) {
  database.exec("insert into t_invoiceitemdata (t_invoiceitem_1,row,value) values (1,0,'x')");
  EXPECT_EQ(database.text("select t_itemvariable_1 from t_invoiceitemdata"), "NULL");
}

TEST_F(TablesTest, anAssociationNeedsGoodsAndVariable) {
  for (const std::string kind : {"product", "service", "suite"}) {
    const std::string insert = "insert into t_" + kind + "itemdata ";
    EXPECT_FALSE(database->run((insert + "(t_itemvariable_1) values (1)").c_str()));
    EXPECT_FALSE(database->run((insert + "(t_" + kind + "_1) values (1)").c_str()));
    EXPECT_TRUE(database->run((insert + "(t_" + kind + "_1,t_itemvariable_1) values (1,1)").c_str()));
  }
  EXPECT_FALSE(database->run("insert into t_invoiceitemdata (t_itemvariable_1) values (1)"));
}

TEST_F(TablesTest, deletingAVariableKeepsWhatWasRecorded) {
  ASSERT_TRUE(database->setForeignKeys(true));
  database.exec("insert into t_invoice (t_invoice_id) values (1)");
  database.exec("insert into t_invoiceitem (t_invoiceitem_id,t_invoice_1) values (10,1)");
  database.exec("insert into t_product (t_product_id) values (100)");
  database.exec("insert into t_itemvariable (t_itemvariable_id) values (7)");
  database.exec("insert into t_productitemdata (t_product_1,t_itemvariable_1) values (100,7)");
  database.exec("insert into t_invoiceitemdata (t_itemvariable_1,t_invoiceitem_1,row,value) values (7,10,0,'x')");
  database.exec("delete from t_itemvariable");
  EXPECT_EQ(database.rows("select t_itemvariable_1, value from t_invoiceitemdata"), (Rows{{"NULL", "x"}}));
  EXPECT_EQ(database.text("select count(*) from t_productitemdata"), "0");
  database.exec("delete from t_invoice");
  EXPECT_EQ(database.text("select count(*) from t_invoiceitemdata"), "0");
}

TEST_F(TablesTest, deletingGoodsTakesTheirAssociationsAlong) {
  ASSERT_TRUE(database->setForeignKeys(true));
  database.exec("insert into t_itemvariable (t_itemvariable_id) values (7)");
  for (const std::string kind : {"product", "service", "suite"}) {
    database.exec("insert into t_" + kind + " (t_" + kind + "_id) values (100)");
    database.exec("insert into t_" + kind + "itemdata (t_" + kind + "_1,t_itemvariable_1) values (100,7)");
    database.exec("delete from t_" + kind);
    EXPECT_EQ(database.text("select count(*) from t_" + kind + "itemdata"), "0");
  }
  EXPECT_EQ(database.text("select count(*) from t_itemvariable"), "1");
}

TEST_F(TablesTest, declaringRunsNoStatement) {
  RecordingObserver recorder(database.handle());
  Schema schema;
  ItemVariable variable(nullptr);
  InvoiceItemData cell(nullptr);
  ProductItemData product(nullptr);
  ServiceItemData service(nullptr);
  SuiteItemData suite(nullptr);
  for (Table* table : std::initializer_list<Table*>{&variable, &cell, &product, &service, &suite}) table->init();
  EXPECT_TRUE(recorder.texts().empty());
}
