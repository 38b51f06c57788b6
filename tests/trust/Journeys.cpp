#include "tests/trust/Journeys.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "host/database/InsertStatement.h"
#include "host/database/Transaction.h"
#include "host/entity/EntityTables.h"
#include "model/InitDB.h"
#include "tests/support/FileConnection.h"
#include "ui/ItemDataSettingsPersister.h"

using Brontel::Invoice;
using Brontel::Database::Transaction;
using Brontel::Plugin::ItemData::ItemDataSettingsPersister;
using Result = PluginWorld::Result;

namespace {

void nothing(FaultWorld&) {}

bool openIt(FaultWorld& world) {
  world.handle().close();
  return world.reopen();
}

bool loadIt(FaultWorld& world) {
  Result result = Result::Failed;
  world.invoice = world.plugin().repository().load(world.storedInvoice(), result);
  if (result != Result::Done) {
    EXPECT_EQ(world.invoice, nullptr);
    return false;
  }
  const std::vector<std::string> expected = {
      "0: 11/0=A",     "0: -1/1=3",   "0: 12/1=S1", "0: 13/1=kék", "0: -1/2=2",   "0: 12/2=S2",
      "0: 13/2=piros", "0: -1/3=1",   "0: 12/3=S3", "0: 13/3=kék", "1: 11/0=B",   "1: -1/1=1",
      "1: 12/1=T1",    "1: 13/1=kék", "1: -1/2=1",  "1: 12/2=T2",  "1: 13/2=kék", "2: 14/0=2024.01.31"};
  EXPECT_EQ(cellsOf(*world.invoice), expected);
  return true;
}

void makeNew(FaultWorld& world) {
  world.invoice = newInvoice();
  PluginWorld& plugin = world.plugin();
  plugin.addSofa(*world.invoice, "5", "új", {{"3", "N1", "kék"}, {"2", "N2", "piros"}});
  plugin.addItem(*world.invoice, Brontel::GOODS_PRODUCT, SampleGoods::NAIL, "100");
}

void edit(FaultWorld& world) {
  world.invoice = world.plugin().load(world.storedInvoice());
  const auto& items = world.invoice->getItems();
  type(items[0], SampleGoods::NOTE, 0, "edited");
  type(items[0], SampleGoods::BATCH, 1, "edited");
  dataOf(items[0])->markRowForDelete(2);
  addRow(items[0], {"2", "S4", "piros"});
  dataOf(items[1])->markRowForDelete(2);
  world.invoice->removeItem(2);
  world.plugin().addSofa(*world.invoice, "1", "new", {{"1", "V1", "kék"}});
}

bool saveIt(FaultWorld& world) {
  const Result result = world.plugin().repository().save(*world.invoice);
  EXPECT_TRUE(result == Result::Done || result == Result::Failed);
  return result == Result::Done;
}

bool saveItAndClose(FaultWorld& world) {
  const bool saved = saveIt(world);
  world.handle().close();
  return saved;
}

// A variable that nobody uses, to be deleted.
void addUnusedVariable(FaultWorld& world) {
  FileConnection(world.path())
      .exec(
          "insert into t_itemvariable (t_itemvariable_id, name, type, process, mandatory, vvalue) "
          "values (99,'Felesleges',1,0,0,'')");
}

bool saveVariables(FaultWorld& world) {
  using Fields = std::map<FX::FXString, FX::FXString>;
  Transaction transaction(world.handle());
  if (!transaction.isOpen()) return false;
  ItemDataSettingsPersister persister(&world.handle());
  persister.deleteItem(99);
  persister.updateItem(SampleGoods::NOTE, Fields{{"name", "Megjegyzés 2"}, {"type", "3"}, {"vvalue", "a,b,c"}});
  persister.insertItem(
      Fields{{"name", "Első új"}, {"type", "1"}, {"process", "1"}, {"mandatory", "1"}, {"vvalue", ""}});
  persister.insertItem(Fields{{"name", "Második új"}, {"type", "3"}, {"process", "0"}, {"vvalue", "x,y"}});
  return transaction.commit();
}

bool saveProduct(FaultWorld& world) {
  MorvaneDatabase& database = world.handle();
  Transaction transaction(database);
  if (!transaction.isOpen()) return false;
  for (const int direction : {100, 200}) {
    Statement remove(&database, "delete from t_productitemdata where t_product_1=%id and direction=%direction");
    remove.setInt("id", SampleGoods::SOFA);
    remove.setInt("direction", direction);
    remove.execute(nullptr, 1);
    for (const int variable : {SampleGoods::DATE, SampleGoods::BATCH, SampleGoods::NOTE}) {
      InsertStatement insert(&database, "t_productitemdata");
      insert.setInt("t_product_1", SampleGoods::SOFA);
      insert.setInt("t_itemvariable_1", variable);
      insert.setInt("position", variable);
      insert.setInt("direction", direction);
      insert.execute(nullptr, 1);
    }
  }
  return transaction.commit();
}

void dropSome(FaultWorld& world) {
  FileConnection(world.path())
      .exec(
          "drop table t_suiteitemdata; drop index t_invoiceitem_t_invoice_1_idx; "
          "alter table t_itemvariable drop column vvalue; alter table t_product drop column version; "
          "delete from t_invoiceitemdata where t_itemvariable_1=-1; delete from t_itemvariable where "
          "t_itemvariable_id=-1");
}

bool makeTables(FaultWorld& world) {
  const FX::FXlong failures = world.handle().getFailures();
  const bool host = Brontel::Model::initEntityTables(&world.handle()) == 1;
  Brontel::Plugin::ItemData::Model::initDB(&world.handle());
  return host && world.handle().getFailures() == failures;
}

std::string copyOf(FaultWorld& world) {
  return world.path() + ".copy";
}

bool copyIt(FaultWorld& world) {
  std::filesystem::remove(copyOf(world));
  const bool done = world.handle().backupTo(copyOf(world).c_str());
  // A copy that is not whole must not lie about.
  EXPECT_EQ(std::filesystem::exists(copyOf(world)), done);
  return done;
}

}  // namespace

namespace Journeys {

Journey open() {
  return {"open", nothing, openIt};
}

Journey load() {
  return {"load", nothing, loadIt};
}

Journey saveNew() {
  return {"save a new invoice", makeNew, saveIt};
}

Journey saveEdited() {
  return {"save an edited invoice", edit, saveIt};
}

Journey saveAndClose() {
  return {"save and close", makeNew, saveItAndClose};
}

Journey saveSettings() {
  return {"save settings", addUnusedVariable, saveVariables};
}

Journey saveAssociations() {
  return {"save associations", nothing, saveProduct};
}

Journey extendSchema() {
  return {"extend the schema", dropSome, makeTables, true};
}

Journey backUp() {
  return {"back up", nothing, copyIt};
}

}  // namespace Journeys
