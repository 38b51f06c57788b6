#pragma once

#include <string>
#include <vector>

#include "bench/PlainSqlite.h"

/// The recorded data of one invoice item, read and written by someone who wants to be faster than the plug-in with the
/// same statements: prepared once, in one transaction, into plain structures.
class PlainList {
 public:
  struct Cell {
    int type = 0;
    int key = 0;
    int variable = 0;
    std::string name;
    bool mandatory = false;
    int row = 0;
    std::string value;
  };

  explicit PlainList(PlainDatabase& database);

  /// The settings, the list and then every cell by itself, as the plug-in reads them.
  std::vector<Cell> load(int product, int item);

  /// The keys once before and once after, and between them an insert, update or delete for each cell; one transaction.
  void insert(int item, const std::vector<Cell>& cells);
  void update(int item, const std::vector<Cell>& cells);
  void remove(int item, const std::vector<Cell>& cells);

 private:
  size_t readKeys(int item);

  PlainDatabase& database_;
  PlainStatement settings_;
  PlainStatement cells_;
  PlainStatement cell_;
  PlainStatement keys_;
  PlainStatement insert_;
  PlainStatement update_;
  PlainStatement delete_;
};
