#include "host/entity/GoodsRepository.h"

#include "host/database/DataBaseValueLoader.h"
#include "host/database/InsertStatement.h"
#include "host/database/IntegerText.h"
#include "host/database/MorvaneDatabase.h"
#include "host/database/UpdateStatement.h"

namespace Brontel {

using FX::FXString;

namespace {

constexpr const char* kColumns = "_id, ifnull(version,0), code, name, unit, price from ";

class GoodsLoader : public DataBaseValueLoader {
 public:
  explicit GoodsLoader(std::vector<Goods>& goods) : goods_(goods) {}

  int processValue(int column, const char* name, const char* value) override {
    if (column == 0) goods_.emplace_back();
    Goods& goods = goods_.back();
    FXString* const texts[] = {&goods.code, &goods.name, &goods.unit, &goods.price};
    if (column == 0) goods.id = Database::toInt(value);
    if (column == 1) goods.version = Database::toInt(value);
    if (column >= 2 && column <= 5 && value != nullptr) *texts[column - 2] = value;
    return DataBaseValueLoader::processValue(column, name, value);
  }

 private:
  std::vector<Goods>& goods_;
};

}  // namespace

const char* GoodsRepository::tableOf(GoodsKind kind) {
  switch (kind) {
    case GOODS_SERVICE:
      return "t_service";
    case GOODS_SUITE:
      return "t_suite";
    case GOODS_PRODUCT:
    case GOODS_NONE:
      break;
  }
  return "t_product";
}

std::vector<Goods> GoodsRepository::find(const FXString& text) {
  std::vector<Goods> found;
  GoodsLoader loader(found);
  const FXString table = getTable();
  Statement select(&database_, "select " + table + kColumns + table +
                                   " where instr(fold(ifnull(code,'')),fold(%text))>0 or"
                                   " instr(fold(ifnull(name,'')),fold(%text))>0 order by fold(name), " +
                                   table + "_id");
  select.setString("text", text);
  select.execute(&loader, 1);
  return found;
}

GoodsRepository::Result GoodsRepository::load(int id, Goods& goods) {
  std::vector<Goods> found;
  GoodsLoader loader(found);
  const FXString table = getTable();
  Statement select(&database_, "select " + table + kColumns + table + " where " + table + "_id=%id");
  select.setInt("id", id);
  if (select.execute(&loader, 1) == 0) return Result::Failed;
  if (found.empty()) return Result::NotFound;
  goods = found.front();
  return Result::Done;
}

GoodsRepository::Result GoodsRepository::save(Goods& goods) {
  const FXString table = getTable();
  const FXString key = table + "_id";
  InsertStatement insert(&database_, table);
  // A row that an older version of the program has written may have no version yet.
  UpdateStatement update(&database_, table, key + "=%" + key + " and ifnull(version,0)=%loaded_version");
  const bool isNew = goods.id == 0;
  Statement& statement = isNew ? static_cast<Statement&>(insert) : static_cast<Statement&>(update);
  const int id = isNew ? database_.nextId(table) : goods.id;
  if (id == 0) return Result::Failed;
  statement.setInt(key, id);
  if (!isNew) statement.setInt("loaded_version", goods.version);
  statement.setString("code", goods.code);
  statement.setString("name", goods.name);
  statement.setString("unit", goods.unit);
  statement.setString("price", goods.price);
  statement.setInt("version", goods.version + 1);
  if (statement.execute(nullptr, 1) == 0) return Result::Failed;
  if (database_.changes() != 1) return Result::Overtaken;
  goods.id = id;
  ++goods.version;
  return Result::Done;
}

}  // namespace Brontel
