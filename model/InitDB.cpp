#include "model/InitDB.h"

#include "host/database/InsertStatement.h"
#include "host/database/MorvaneDatabase.h"
#include "host/schema/Schema.h"
#include "model/InvoiceItemData.h"
#include "model/ItemVariable.h"
#include "model/ProductItemData.h"
#include "model/ServiceItemData.h"
#include "model/SuiteItemData.h"

namespace Brontel::Plugin::ItemData::Model {

void initDB(MorvaneDatabase* db) {
  if (db == nullptr) return;
  ::Brontel::Model::Schema schema;
  new InvoiceItemData(&schema);
  new ItemVariable(&schema);
  new ProductItemData(&schema);
  new SuiteItemData(&schema);
  new ServiceItemData(&schema);
  schema.sync(db);
  // Only a sure "no" leads to an insert; a query that failed gives the default.
  if (db->queryInt("select count(1) from t_itemvariable where t_itemvariable_id=-1", 1, -1) != 0) return;
  InsertStatement statement(db, "t_itemvariable");
  statement.setInt("t_itemvariable_id", -1);
  statement.setString("name", "Mennyiség");
  statement.setInt("type", -1);
  statement.setInt("process", 1);
  statement.setInt("mandatory", 1);
  statement.execute(nullptr, 1);
}

}  // namespace Brontel::Plugin::ItemData::Model
