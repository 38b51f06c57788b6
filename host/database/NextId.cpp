#include "host/database/NextId.h"

#include <climits>

#include "host/database/DataBaseValueLoader.h"
#include "host/database/FirstRowInteger.h"
#include "host/database/MorvaneDatabase.h"
#include "host/database/SqlText.h"

using FX::FXString;

namespace Brontel::Database {

namespace {

FXString largest(const FXString& table, const FXString& column) {
  // SQLite columns hold what they are given; text is larger than any number and must not count.
  return FXString("(select max(") + quoteIdentifier(column) + ") from " + quoteIdentifier(table) + " where typeof(" +
         quoteIdentifier(column) + ")='integer')";
}

/// Collects a row (table, column) per reference into one list of scalar subqueries.
class ReferenceLoader : public DataBaseValueLoader {
 public:
  int processValue(int column, const char* name, const char* value) override {
    DataBaseValueLoader::processValue(column, name, value);
    if (column == 0) {
      table_ = value;
    } else {
      terms += ",ifnull(" + largest(table_, value) + ",0)";
    }
    return 1;
  }

  FXString terms;

 private:
  FXString table_;
};

}  // namespace

int nextId(MorvaneDatabase& database, const FXString& table) {
  ReferenceLoader references;
  const BoundValue column{"column", true, 0, table + "_1"};
  const bool read = database.run(
      "select m.name, c.name from sqlite_master m join pragma_table_info(m.name) c "
      "where m.type='table' and c.name=%column collate nocase",
      {column}, &references);
  if (!read) return 0;
  FirstRowInteger last(0);
  const FXString sql = "select max(0,ifnull(" + largest(table, table + "_id") + ",0)" + references.terms + ")";
  if (!database.run(sql, {}, &last)) return 0;
  if (last.getValue() == INT_MAX) {
    database.fail(ErrorKind::Other, "the table has no free key left", sql);
    return 0;
  }
  return last.getValue() + 1;
}

}  // namespace Brontel::Database
