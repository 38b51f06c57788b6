#include <gtest/gtest.h>

#include "host/entity/EntityTables.h"
#include "tests/support/TestDatabase.h"

using Brontel::Model::initEntityTables;
using Brontel::Model::measureEntityTables;
using Brontel::Model::Schema;

namespace {

using Rows = std::vector<std::vector<std::string>>;

class EntityTablesTest : public ::testing::Test {
 protected:
  std::string columnsOf(const char* table) {
    return database.text(std::string("select group_concat(name) from pragma_table_info('") + table + "')");
  }

  TestDatabase database;
};

}  // namespace

TEST_F(EntityTablesTest, areMadeOnce) {
  EXPECT_EQ(measureEntityTables(database.get()), Schema::Extent::None);
  EXPECT_EQ(initEntityTables(database.get()), 1);
  EXPECT_EQ(measureEntityTables(database.get()), Schema::Extent::All);
  const std::string before = database.dump();
  EXPECT_EQ(initEntityTables(database.get()), 1);
  EXPECT_EQ(database.dump(), before);
  EXPECT_EQ(database->getFailures(), 0);
}

TEST_F(EntityTablesTest, haveTheirColumns) {
  EXPECT_EQ(initEntityTables(database.get()), 1);
  EXPECT_EQ(
      database.text("select group_concat(name) from (select name from sqlite_master where type='table' order by 1)"),
      "t_invoice,t_invoiceitem,t_product,t_service,t_suite");
  EXPECT_EQ(columnsOf("t_product"), "t_product_id,code,name,unit,price,version");
  EXPECT_EQ(columnsOf("t_service"), "t_service_id,code,name,unit,price,version");
  EXPECT_EQ(columnsOf("t_suite"), "t_suite_id,code,name,unit,price,version");
  EXPECT_EQ(columnsOf("t_invoice"),
            "t_invoice_id,number,t_invoicetype_1,t_invoicestatus_1,t_invoice_1,partner,date,version");
  EXPECT_EQ(columnsOf("t_invoiceitem"),
            "t_invoiceitem_id,t_invoice_1,position,name,goodskind,goods,quantity,unit,price,t_invoiceitem_1");
}

TEST_F(EntityTablesTest, referToEachOtherThroughIndexes) {
  EXPECT_EQ(initEntityTables(database.get()), 1);
  EXPECT_EQ(
      database.rows("select \"from\", \"table\", on_delete from pragma_foreign_key_list('t_invoiceitem') order by 1"),
      (Rows{{"t_invoice_1", "t_invoice", "CASCADE"}, {"t_invoiceitem_1", "t_invoiceitem", "SET NULL"}}));
  EXPECT_EQ(database.rows("select \"from\", on_delete from pragma_foreign_key_list('t_invoice')"),
            (Rows{{"t_invoice_1", "SET NULL"}}));
  EXPECT_EQ(
      database.rows("select name from sqlite_master where type='index' order by 1"),
      (Rows{{"t_invoice_t_invoice_1_idx"}, {"t_invoiceitem_t_invoice_1_idx"}, {"t_invoiceitem_t_invoiceitem_1_idx"}}));
}

TEST_F(EntityTablesTest, areExtended) {
  database.exec("create table t_product (t_product_id integer primary key, name text)");
  database.exec("insert into t_product values (4, 'old')");
  EXPECT_EQ(measureEntityTables(database.get()), Schema::Extent::Part);
  EXPECT_EQ(initEntityTables(database.get()), 1);
  EXPECT_EQ(database.rows("select t_product_id, name, version from t_product"), (Rows{{"4", "old", "NULL"}}));
}

TEST_F(EntityTablesTest, areNotMadeWithoutDatabase) {
  EXPECT_EQ(initEntityTables(nullptr), 0);
  EXPECT_EQ(measureEntityTables(nullptr), Schema::Extent::None);
  database->close();
  EXPECT_EQ(initEntityTables(database.get()), 0);
}
