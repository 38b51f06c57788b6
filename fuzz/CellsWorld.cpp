#include "fuzz/CellsWorld.h"

#include <cstdlib>
#include <unistd.h>

#include "fuzz/FuzzInput.h"
#include "host/database/DataBaseValueLoader.h"
#include "host/entity/EntityTables.h"
#include "plugin/GetPlugin.h"

using Brontel::Database::BoundValue;
using FX::FXString;

namespace {

FXString toFX(const std::string& text) {
  return FXString(text.data(), static_cast<FX::FXint>(text.size()));
}

class RowTexts : public DataBaseValueLoader {
 public:
  int processValue(int column, const char* name, const char* value) override {
    text += value == nullptr ? "NULL" : value;
    text += column == 2 ? "\n" : "|";
    return DataBaseValueLoader::processValue(column, name, value);
  }

  std::string text;
};

}  // namespace

CellsWorld::CellsWorld() {
  char name[] = "/tmp/fuzz-cells-XXXXXX";
  const int file = mkstemp(name);
  require(file >= 0 && close(file) == 0, "a file for the database");
  require(database_.open(name, MorvaneDatabase::OpenMode::Create), "a database");
  // Nobody else looks at it, and it need not outlive the process.
  run("pragma locking_mode=exclusive");
  run("pragma journal_mode=memory");
  run("pragma synchronous=off");
  require(Brontel::Model::initEntityTables(&database_) == 1, "the host's tables");
  unlink(name);
  app_.setDB(&database_);
  container_.reset(get_plugin(&app_));
  container_->init();
  registry_.add(container_.get());
  repository_ = std::make_unique<Brontel::InvoiceRepository>(database_, registry_);
}

void CellsWorld::clear(int invoiceType, const std::string& quantity) {
  for (const char* table : {"t_invoiceitemdata", "t_productitemdata", "t_invoiceitem", "t_invoice", "t_product"}) {
    run(("delete from " + std::string(table)).c_str());
  }
  run("delete from t_itemvariable where t_itemvariable_id>0");
  run("insert into t_product (t_product_id, name) values (1, 'x')");
  run("insert into t_invoice (t_invoice_id, number, t_invoicetype_1, t_invoicestatus_1) values (1, '1', %type, 150)",
      {BoundValue{"type", false, invoiceType, {}}});
  run("insert into t_invoiceitem (t_invoiceitem_id, t_invoice_1, name, goodskind, goods, quantity, unit) "
      "values (1, 1, 'x', 1, 1, %quantity, 'db')",
      {BoundValue{"quantity", true, 0, toFX(quantity)}});
}

void CellsWorld::addVariable(int id, const std::string& type, int process, const std::string& name,
                             const std::string& choices) {
  run("insert into t_itemvariable (t_itemvariable_id, name, type, process, mandatory, vvalue) "
      "values (%id, %name, %type, %process, %id % 2, %choices)",
      {BoundValue{"id", false, id, {}}, BoundValue{"name", true, 0, toFX(name)},
       BoundValue{"type", true, 0, toFX(type)}, BoundValue{"process", false, process, {}},
       BoundValue{"choices", true, 0, toFX(choices)}});
  run("insert into t_productitemdata (t_product_1, t_itemvariable_1, position, direction) values (1, %id, %id, 100)",
      {BoundValue{"id", false, id, {}}});
}

void CellsWorld::addCell(const std::string& variable, const std::string& row, const std::string& value) {
  run("insert into t_invoiceitemdata (t_itemvariable_1, t_invoiceitem_1, row, value) "
      "values (%variable, 1, %row, %value)",
      {BoundValue{"variable", true, 0, toFX(variable)}, BoundValue{"row", true, 0, toFX(row)},
       BoundValue{"value", true, 0, toFX(value)}});
}

std::string CellsWorld::stored() {
  RowTexts rows;
  require(database_.run("select t_itemvariable_1, row, value from t_invoiceitemdata order by 1, 2, 3", {}, &rows),
          "reading the cells");
  return rows.text;
}

void CellsWorld::run(const char* sql, const Brontel::Database::BoundValues& values) {
  require(database_.run(sql, values), sql);
}
