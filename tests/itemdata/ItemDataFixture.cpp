#include "tests/itemdata/ItemDataFixture.h"

#include "host/entity/EntityTables.h"
#include "itemdata/Codes.h"

using Brontel::Database::BoundValue;
using Brontel::Database::BoundValues;
using namespace Brontel::Plugin::ItemData;

ItemDataFixture::ItemDataFixture() {
  app.setDB(database.get());
  EXPECT_EQ(Brontel::Model::initEntityTables(database.get()), 1);
  container.init();
  registry.add(&container);
}

void ItemDataFixture::run(const std::string& sql, const std::vector<std::string>& texts) {
  BoundValues values;
  for (const std::string& text : texts) {
    values.push_back(BoundValue{("t" + std::to_string(values.size())).c_str(), true, 0, text.c_str()});
  }
  EXPECT_TRUE(database->run(sql.c_str(), values)) << sql << ": " << database->getLastError().message.text();
}

void ItemDataFixture::addVariable(int id, const std::string& name, int type, int process, int mandatory,
                                  const std::string& parameter) {
  const std::string numbers =
      std::to_string(type) + "," + std::to_string(process) + "," + std::to_string(mandatory) + ",";
  run("insert into t_itemvariable (t_itemvariable_id,name,type,process,mandatory,vvalue) values (" +
          std::to_string(id) + ",%t0," + numbers + "%t1)",
      {name, parameter});
}

void ItemDataFixture::associate(int variable, int position, int goods, const std::string& kind, int direction) {
  run("insert into t_" + kind + "itemdata (t_" + kind + "_1,t_itemvariable_1,position,direction) values (" +
          std::to_string(goods) + "," + std::to_string(variable) + "," + std::to_string(position) + "," +
          std::to_string(direction) + ")",
      {});
}

void ItemDataFixture::dissociate(int variable) {
  run("delete from t_productitemdata where t_itemvariable_1=" + std::to_string(variable), {});
}

void ItemDataFixture::addGoods() {
  run("insert into t_product (t_product_id,name,unit) values (100,'Csavar','db')", {});
  addVariable(11, "Megjegyzés", TYPE_TEXT, 0, 1);
  addVariable(12, "Sarzs", TYPE_TEXT, 1, 1);
  addVariable(13, "Szín", TYPE_LIST, 1, 0, "piros,kék");
  associate(11, 1);
  associate(12, 2);
  associate(13, 3);
}

void ItemDataFixture::insertItem(int invoice, int status, int item, int source) {
  run("insert or ignore into t_invoice (t_invoice_id,t_invoicestatus_1) values (" + std::to_string(invoice) + "," +
          std::to_string(status) + ")",
      {});
  run("insert into t_invoiceitem (t_invoiceitem_id,t_invoice_1,t_invoiceitem_1) values (" + std::to_string(item) + "," +
          std::to_string(invoice) + "," + (source == 0 ? "null" : std::to_string(source)) + ")",
      {});
}

void ItemDataFixture::insertCell(int item, int variable, int row, const std::string& value, int key) {
  run("insert into t_invoiceitemdata (t_invoiceitemdata_id,t_itemvariable_1,t_invoiceitem_1,row,value) values (" +
          (key == 0 ? "null" : std::to_string(key)) + "," + (variable == 0 ? "null" : std::to_string(variable)) + "," +
          std::to_string(item) + "," + std::to_string(row) + ",%t0)",
      {value});
}

void ItemDataFixture::insertRow(int item, int row, const std::string& quantity, const std::string& batch,
                                const std::string& colour) {
  insertCell(item, VARIABLE_QUANTITY, row, quantity);
  insertCell(item, 12, row, batch);
  insertCell(item, 13, row, colour);
}

ItemDataFixture::Texts ItemDataFixture::stored(int item) const {
  Texts cells;
  for (const auto& row : database.rows("select ifnull(t_itemvariable_1,'NULL')||'/'||row||'='||ifnull(value,'NULL') "
                                       "from t_invoiceitemdata where t_invoiceitem_1=" +
                                       std::to_string(item) + " order by row, t_invoiceitemdata_id")) {
    cells.push_back(row.front());
  }
  return cells;
}
