#include "app/SampleGoods.h"

#include "host/database/InsertStatement.h"
#include "host/database/MorvaneDatabase.h"
#include "host/entity/InvoiceItem.h"

namespace Brontel::App {

using FX::FXString;

namespace {

/// The key of the variable that quantities refer to, which is always there.
constexpr int kQuantityVariable = -1;

constexpr int kOutgoing = 100;
constexpr int kIncoming = 200;

enum VariableType { TYPE_TEXT = 1, TYPE_DATE = 2, TYPE_LIST = 3 };

struct VariableData {
  const char* name;
  VariableType type;
  bool perUnit;
  bool mandatory;
  const char* choices;
};

// In the order of SampleGoods::Variable.
constexpr VariableData kVariables[] = {
    {"Gyári szám", TYPE_TEXT, true, true, ""},      {"Elektróda lejárata", TYPE_DATE, true, false, ""},
    {"Gyártási tétel", TYPE_TEXT, false, true, ""}, {"Helyszín", TYPE_LIST, false, false, "Kiszállás,Telephely,Távoli"},
    {"Plomba száma", TYPE_TEXT, false, false, ""},
};

// In the order of SampleGoods::Goods.
constexpr SampleGoods::GoodsData kGoods[] = {
    {GOODS_PRODUCT, "t_product", "DEF-500", "Félautomata defibrillátor", "db", "489000"},
    {GOODS_PRODUCT, "t_product", "GEL-250", "Kontaktgél 250 ml", "flakon", "1450"},
    {GOODS_SERVICE, "t_service", "FEL-01", "Éves felülvizsgálat", "óra", "12500"},
    {GOODS_SUITE, "t_suite", "ELS-20", "Munkahelyi elsősegélycsomag", "készlet", "18900"},
};

struct Association {
  SampleGoods::Goods goods;
  SampleGoods::Variable variable;
  int direction;
  int position;
};

// Services and kits are not bought in.
constexpr Association kAssociations[] = {
    {SampleGoods::DEFIBRILLATOR, SampleGoods::SERIAL_NUMBER, kOutgoing, 1},
    {SampleGoods::DEFIBRILLATOR, SampleGoods::EXPIRY, kOutgoing, 2},
    {SampleGoods::DEFIBRILLATOR, SampleGoods::SERIAL_NUMBER, kIncoming, 1},
    {SampleGoods::DEFIBRILLATOR, SampleGoods::EXPIRY, kIncoming, 2},
    {SampleGoods::GEL, SampleGoods::BATCH, kOutgoing, 1},
    {SampleGoods::GEL, SampleGoods::BATCH, kIncoming, 1},
    {SampleGoods::INSPECTION, SampleGoods::PLACE, kOutgoing, 1},
    {SampleGoods::FIRST_AID_KIT, SampleGoods::SEAL, kOutgoing, 1},
};

}  // namespace

bool SampleGoods::insert() {
  return insertVariables() && insertGoods() && insertAssociations();
}

const SampleGoods::GoodsData& SampleGoods::dataOf(Goods goods) {
  return kGoods[goods];
}

int SampleGoods::idOf(Variable variable) const {
  return variable == QUANTITY ? kQuantityVariable : variables_[variable];
}

bool SampleGoods::insertVariables() {
  for (const VariableData& variable : kVariables) {
    // Left to itself the engine would go on from the quantity's -1 with 0, which stands for no variable.
    variables_.push_back(database_.nextId("t_itemvariable"));
    InsertStatement statement(&database_, "t_itemvariable");
    statement.setInt("t_itemvariable_id", variables_.back());
    statement.setString("name", variable.name);
    statement.setInt("type", variable.type);
    statement.setInt("process", variable.perUnit ? 1 : 0);
    statement.setInt("mandatory", variable.mandatory ? 1 : 0);
    statement.setString("vvalue", variable.choices);
    if (statement.execute(nullptr, 1) == 0) return false;
  }
  return true;
}

bool SampleGoods::insertGoods() {
  for (const GoodsData& goods : kGoods) {
    InsertStatement statement(&database_, goods.table);
    statement.setString("code", goods.code);
    statement.setString("name", goods.name);
    statement.setString("unit", goods.unit);
    statement.setString("price", goods.price);
    statement.setInt("version", 1);
    if (statement.execute(nullptr, 1) == 0) return false;
    goods_.push_back(database_.lastInsertId());
  }
  return true;
}

bool SampleGoods::insertAssociations() {
  for (const Association& association : kAssociations) {
    const FXString table = dataOf(association.goods).table;
    InsertStatement statement(&database_, table + "itemdata");
    statement.setInt(table + "_1", idOf(association.goods));
    statement.setInt("t_itemvariable_1", idOf(association.variable));
    statement.setInt("position", association.position);
    statement.setInt("direction", association.direction);
    if (statement.execute(nullptr, 1) == 0) return false;
  }
  return true;
}

}  // namespace Brontel::App
