#include "bench/PlainList.h"

#include <benchmark/benchmark.h>

namespace {

constexpr int kOutgoing = 100;

std::string textOf(const PlainStatement& statement, int column) {
  const char* text = statement.text(column);
  return text == nullptr ? std::string() : std::string(text);
}

}  // namespace

PlainList::PlainList(PlainDatabase& database)
    : database_(database),
      settings_(database,
                "select type,null,t_itemvariable_1,name,mandatory,process,vvalue from t_productitemdata join "
                "t_itemvariable on t_itemvariable_1=t_itemvariable_id where direction=?1 and t_product_1=?2 order by "
                "process, position"),
      cells_(database,
             "select type,t_invoiceitemdata_id,t_itemvariable_1,name,mandatory,row,value from t_invoiceitemdata left "
             "join t_itemvariable on t_itemvariable_1=t_itemvariable_id where t_invoiceitem_1=?1 order by row, "
             "t_invoiceitemdata_id"),
      cell_(database,
            "select value, t_invoiceitemdata_id from t_invoiceitemdata where t_invoiceitem_1=?1 and "
            "t_itemvariable_1=?2 and row=?3"),
      keys_(database,
            "select t_invoiceitemdata_id, t_itemvariable_1, row from t_invoiceitemdata where t_invoiceitem_1=?1 order "
            "by t_invoiceitemdata_id"),
      insert_(database,
              "insert into t_invoiceitemdata(t_itemvariable_1,t_invoiceitem_1,value,row) values(?1,?2,?3,?4)"),
      update_(database,
              "update t_invoiceitemdata set t_itemvariable_1=?1, t_invoiceitem_1=?2, value=?3, row=?4 where "
              "t_invoiceitemdata_id=?5"),
      delete_(database, "delete from t_invoiceitemdata where t_invoiceitemdata_id=?1") {}

std::vector<PlainList::Cell> PlainList::load(int product, int item) {
  std::vector<Cell> settings;
  settings_.bind(1, kOutgoing);
  settings_.bind(2, product);
  while (settings_.step()) {
    settings.push_back({settings_.integer(0), 0, settings_.integer(2), textOf(settings_, 3), settings_.integer(4) != 0,
                        0, textOf(settings_, 6)});
  }
  settings_.reset();
  benchmark::DoNotOptimize(settings);
  std::vector<Cell> cells;
  cells_.bind(1, item);
  while (cells_.step()) {
    cells.push_back({cells_.integer(0), cells_.integer(1), cells_.integer(2), textOf(cells_, 3), cells_.integer(4) != 0,
                     cells_.integer(5), textOf(cells_, 6)});
  }
  cells_.reset();
  for (Cell& cell : cells) {
    cell_.bind(1, item);
    cell_.bind(2, cell.variable);
    cell_.bind(3, cell.row);
    if (cell_.step()) {
      cell.value = textOf(cell_, 0);
      cell.key = cell_.integer(1);
    }
    cell_.reset();
  }
  return cells;
}

size_t PlainList::readKeys(int item) {
  std::vector<int> keys;
  keys_.bind(1, item);
  while (keys_.step()) {
    keys.push_back(keys_.integer(0));
    benchmark::DoNotOptimize(keys_.integer(1));
    benchmark::DoNotOptimize(keys_.integer(2));
  }
  keys_.reset();
  return keys.size();
}

void PlainList::insert(int item, const std::vector<Cell>& cells) {
  database_.run("begin immediate");
  benchmark::DoNotOptimize(readKeys(item));
  for (const Cell& cell : cells) {
    insert_.bind(1, cell.variable);
    insert_.bind(2, item);
    insert_.bind(3, cell.value);
    insert_.bind(4, cell.row);
    insert_.run();
  }
  benchmark::DoNotOptimize(readKeys(item));
  database_.run("commit");
}

void PlainList::update(int item, const std::vector<Cell>& cells) {
  database_.run("begin immediate");
  benchmark::DoNotOptimize(readKeys(item));
  for (const Cell& cell : cells) {
    update_.bind(1, cell.variable);
    update_.bind(2, item);
    update_.bind(3, cell.value);
    update_.bind(4, cell.row);
    update_.bind(5, cell.key);
    update_.run();
  }
  benchmark::DoNotOptimize(readKeys(item));
  database_.run("commit");
}

void PlainList::remove(int item, const std::vector<Cell>& cells) {
  database_.run("begin immediate");
  benchmark::DoNotOptimize(readKeys(item));
  for (const Cell& cell : cells) {
    delete_.bind(1, cell.key);
    delete_.run();
  }
  benchmark::DoNotOptimize(readKeys(item));
  database_.run("commit");
}
