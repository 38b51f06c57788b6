#include "host/schema/Schema.h"

#include "host/database/MorvaneDatabase.h"
#include "host/database/Transaction.h"
#include "host/schema/TableSync.h"

using FX::FXint;

namespace Brontel::Model {

FXIMPLEMENT(Schema, FXObject, nullptr, 0)

void Schema::append(Table* table) {
  tables_.append(table);
}

int Schema::sync(MorvaneDatabase* database) {
  if (database == nullptr) return 0;
  for (FXint i = 0; i < tables_.no(); ++i) tables_[i]->declare();
  int done = 1;
  for (FXint i = 0; i < tables_.no(); ++i) {
    const Table& table = *tables_[i];
    TableSync sync(*database, table.name_, table.columns_, table.indexes_);
    if (!sync.apply()) done = 0;
  }
  return done;
}

Schema::Extent Schema::measure(MorvaneDatabase* database) {
  FXint present = 0;
  FXint complete = 0;
  for (FXint i = 0; database != nullptr && i < tables_.no(); ++i) {
    const Table& table = *tables_[i];
    tables_[i]->declare();
    TableSync sync(*database, table.name_, table.columns_, table.indexes_);
    if (sync.isPresent()) ++present;
    if (sync.isComplete()) ++complete;
  }
  if (present == 0) return Extent::None;
  return complete == tables_.no() ? Extent::All : Extent::Part;
}

}  // namespace Brontel::Model
