#include "host/schema/Table.h"

#include "host/schema/Schema.h"

using FX::FXint;
using FX::FXString;

namespace Brontel::Model {

FXIMPLEMENT_ABSTRACT(Table, FXObject, nullptr, 0)

Table::Table(Schema* schema, const FXString& name) : name_(name) {
  if (schema != nullptr) schema->append(this);
}

Table::~Table() = default;

void Table::addColumn(const FXString& name, Column::ColumnType type) {
  columns_.append(new Column(name, type));
}

void Table::addReference(const FXString& column, Column::ColumnType type, unsigned char nullable,
                         const FXString& targetTable, unsigned char indexed, const FXString& targetColumn,
                         Column::OnDeleteType onDelete) {
  auto* reference = new Column(column, type, nullable != 0, targetTable, targetColumn, onDelete);
  columns_.append(reference);
  if (indexed != 0) indexed_.append(reference);
}

void Table::declare() {
  indexes_.deleteAll();
  indexed_.clear();
  columns_.deleteAll();
  init();
  declareIndexes();
}

void Table::declareIndexes() {
  for (FXint i = 0; i < indexed_.no(); ++i) {
    const Column* reference = indexed_[i];
    std::vector<FXString> columns{reference->getName()};
    for (FXint k = 0; k < columns_.no(); ++k) {
      if (columns_[k] != reference && columns_[k]->getType() == Column::INTEGER) {
        columns.push_back(columns_[k]->getName());
      }
    }
    indexes_.append(new Index(name_ + "_" + reference->getName() + "_idx", std::move(columns)));
  }
}

}  // namespace Brontel::Model
