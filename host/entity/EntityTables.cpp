#include "host/entity/EntityTables.h"

#include "host/schema/Table.h"

namespace Brontel::Model {

namespace {

/// t_product, t_service and t_suite are alike.
class GoodsTable : public Table {
 public:
  using Table::Table;

  void init() override {
    addColumn("code", Column::TEXT);
    addColumn("name", Column::TEXT);
    addColumn("unit", Column::TEXT);
    addColumn("price", Column::TEXT);
    addColumn("version", Column::INTEGER);
  }
};

class InvoiceTable : public Table {
 public:
  explicit InvoiceTable(Schema* schema) : Table(schema, "t_invoice") {}

  void init() override {
    addColumn("number", Column::TEXT);
    addColumn("t_invoicetype_1", Column::INTEGER);
    addColumn("t_invoicestatus_1", Column::INTEGER);
    addReference("t_invoice_1", Column::INTEGER, 1, "t_invoice", 1, "", Column::BY_DECLARATION);
    addColumn("partner", Column::TEXT);
    addColumn("date", Column::TEXT);
    addColumn("version", Column::INTEGER);
  }
};

class ItemTable : public Table {
 public:
  explicit ItemTable(Schema* schema) : Table(schema, "t_invoiceitem") {}

  void init() override {
    addReference("t_invoice_1", Column::INTEGER, 0, "t_invoice", 1, "", Column::BY_DECLARATION);
    addColumn("position", Column::INTEGER);
    addColumn("name", Column::TEXT);
    addColumn("goodskind", Column::INTEGER);
    addColumn("goods", Column::INTEGER);
    addColumn("quantity", Column::TEXT);
    addColumn("unit", Column::TEXT);
    addColumn("price", Column::TEXT);
    addReference("t_invoiceitem_1", Column::INTEGER, 1, "t_invoiceitem", 1, "", Column::BY_DECLARATION);
  }
};

class EntitySchema : public Schema {
 public:
  EntitySchema() {
    new GoodsTable(this, "t_product");
    new GoodsTable(this, "t_service");
    new GoodsTable(this, "t_suite");
    new InvoiceTable(this);
    new ItemTable(this);
  }
};

}  // namespace

int initEntityTables(MorvaneDatabase* database) {
  return EntitySchema().sync(database);
}

Schema::Extent measureEntityTables(MorvaneDatabase* database) {
  return EntitySchema().measure(database);
}

}  // namespace Brontel::Model
