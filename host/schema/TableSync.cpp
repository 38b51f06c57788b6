#include "host/schema/TableSync.h"

#include <algorithm>

#include "host/database/BoundValue.h"
#include "host/database/DataBaseValueLoader.h"
#include "host/database/MorvaneDatabase.h"
#include "host/database/SqlText.h"
#include "host/database/Transaction.h"

using Brontel::Database::BoundValue;
using Brontel::Database::BoundValues;
using Brontel::Database::quoteIdentifier;
using Brontel::Database::Transaction;
using FX::FXint;
using FX::FXString;

namespace Brontel::Model {

namespace {

/// Collects a result of one text column.
class TextLoader : public DataBaseValueLoader {
 public:
  int processValue(int column, const char* name, const char* value) override {
    texts.emplace_back(value);
    return DataBaseValueLoader::processValue(column, name, value);
  }

  std::vector<FXString> texts;
};

bool read(MorvaneDatabase& database, const FXString& sql, const BoundValues& values, std::vector<FXString>& texts) {
  TextLoader loader;
  const bool done = database.run(sql, values, &loader);
  texts.swap(loader.texts);
  return done;
}

// SQLite's names are the same in any case of ASCII letters.
bool sameName(const FXString& a, const FXString& b) {
  return FX::comparecase(a, b) == 0;
}

FXString quotedList(const std::vector<FXString>& names) {
  FXString list;
  for (const FXString& name : names) list += (list.empty() ? "" : ",") + quoteIdentifier(name);
  return list;
}

}  // namespace

TableSync::TableSync(MorvaneDatabase& database, const FXString& table, const FX::FXObjectListOf<Column>& columns,
                     const FX::FXObjectListOf<Index>& indexes)
    : database_(database), table_(table), columns_(columns), indexes_(indexes) {}

bool TableSync::apply() {
  if (!plan()) return false;
  if (statements_.empty()) return true;
  Transaction transaction(database_);
  // Planned again under the write lock: another program may have made the table meanwhile.
  if (!transaction.isOpen() || !plan()) return false;
  for (const FXString& statement : statements_) {
    if (!database_.run(statement)) return false;
  }
  return transaction.commit();
}

bool TableSync::isPresent() {
  std::vector<FXString> existing;
  return readColumns(existing) && !existing.empty();
}

bool TableSync::isComplete() {
  std::vector<FXString> existing;
  if (!readColumns(existing)) return false;
  statements_.clear();
  planTable(existing);
  return statements_.empty();
}

bool TableSync::readColumns(std::vector<FXString>& existing) {
  const BoundValues values{BoundValue{"table", true, 0, table_}};
  return read(database_, "select name from pragma_table_info(%table)", values, existing);
}

bool TableSync::plan() {
  statements_.clear();
  std::vector<FXString> existing;
  if (!readColumns(existing)) return false;
  planTable(existing);
  for (FXint i = 0; i < indexes_.no(); ++i) {
    if (!planIndex(*indexes_[i])) return false;
  }
  return true;
}

void TableSync::planTable(const std::vector<FXString>& existing) {
  FXString all = quoteIdentifier(table_ + "_id") + " integer primary key";
  for (FXint i = 0; i < columns_.no(); ++i) {
    const Column& column = *columns_[i];
    all += ", " + column.definition();
    const auto isThis = [&column](const FXString& name) { return sameName(name, column.getName()); };
    if (!existing.empty() && std::none_of(existing.begin(), existing.end(), isThis)) {
      statements_.push_back("alter table " + quoteIdentifier(table_) + " add column " + column.nullableDefinition());
    }
  }
  if (existing.empty()) statements_.push_back("create table " + quoteIdentifier(table_) + " (" + all + ")");
}

bool TableSync::planIndex(const Index& index) {
  // An index of that name on another table is not ours to drop; making ours fails then, and says so.
  constexpr const char* kColumns =
      "select c.name from sqlite_master m join pragma_index_info(m.name) c where m.type='index' "
      "and m.name=%name collate nocase and m.tbl_name=%table collate nocase order by c.seqno";
  std::vector<FXString> existing;
  const BoundValues values{BoundValue{"name", true, 0, index.getName()}, BoundValue{"table", true, 0, table_}};
  if (!read(database_, kColumns, values, existing)) return false;
  const std::vector<FXString>& wanted = index.getColumns();
  if (std::equal(existing.begin(), existing.end(), wanted.begin(), wanted.end(), sameName)) return true;
  if (!existing.empty()) statements_.push_back("drop index " + quoteIdentifier(index.getName()));
  statements_.push_back("create index " + quoteIdentifier(index.getName()) + " on " + quoteIdentifier(table_) + " (" +
                        quotedList(wanted) + ")");
  return true;
}

}  // namespace Brontel::Model
