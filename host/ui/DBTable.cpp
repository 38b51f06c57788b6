#include "host/ui/DBTable.h"

#include "host/database/DataBaseValueLoader.h"
#include "host/database/IntegerText.h"
#include "host/ui/DBTablePersister.h"

namespace Brontel {

using FX::FXint;
using FX::FXString;

FXDEFMAP(DBTable)
dbTableMap[] = {
    FXMAPFUNC(FX::SEL_COMMAND, DBTable::ID_NEW_ROW, DBTable::onCmdNewRow),
};

FXIMPLEMENT(DBTable, FXTable, dbTableMap, ARRAYNUMBER(dbTableMap))

namespace {

constexpr const char* kMark = "\xE2\x9C\x93";  // U+2713

}  // namespace

class DBTable::Loader : public DataBaseValueLoader {
 public:
  explicit Loader(DBTable& table) : table_(table) {}

  int processValue(int column, const char* name, const char* value) override {
    DataBaseValueLoader::processValue(column, name, value);
    if (column == 0) {
      id_ = Database::toInt(value);
      row_ = table_.appendRowOf(id_);
      return 1;
    }
    table_.setStoredValue(row_, column - 1, value);
    table_.loaded_[id_] = table_.storedValues(row_);
    return 1;
  }

 private:
  DBTable& table_;
  int id_ = 0;
  int row_ = 0;
};

DBTable::DBTable(FX::FXComposite* parent, FX::FXObject* target, FX::FXSelector selector, FX::FXuint options, int x,
                 int y, int width, int height, int padLeft, int padRight, int padTop, int padBottom)
    : FXTable(parent, target, selector, options, x, y, width, height, padLeft, padRight, padTop, padBottom) {}

void DBTable::setColumnType(int column, COLUMN_TYPES type) {
  if (column < 0 || column >= getNumColumns()) return;
  kinds_[column].type = type;
}

// The text comes by value because the plug-in interface has it so.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
void DBTable::setColumnValues(int column, FXString values, bool withCodes) {
  if (column < 0 || column >= getNumColumns()) return;
  ColumnKind& kind = kinds_[column];
  kind.type = COLUMN_CHOICE;
  kind.choices.clear();
  for (FXint line = 0; line <= values.contains('\n'); ++line) {
    const FXString text = values.section('\n', line);
    const FXString code = withCodes ? text.section('\t', 0) : text;
    kind.choices.emplace_back(code, withCodes ? text.section('\t', 1) : text);
  }
}

std::unique_ptr<DataBaseValueLoader> DBTable::createLoader() {
  return std::make_unique<Loader>(*this);
}

int DBTable::appendNewRow() {
  const int row = appendRowOf(--lastNewId_);
  for (FXint column = 0; column < getNumColumns(); ++column) {
    if (kindOf(column).type == COLUMN_YESNO) setStoredValue(row, column, "0");
  }
  return row;
}

bool DBTable::isNewRow(int row) const {
  return row >= 0 && row < getNumRows() && getRowText(row).left(1) == "-";
}

int DBTable::getRowId(int row) const {
  return row < 0 || row >= getNumRows() ? 0 : Database::toInt(getRowText(row).text());
}

FXString DBTable::getStoredValue(int row, int column) const {
  return isCell(row, column) ? toStored(column, getItemText(row, column)) : FXString();
}

void DBTable::setStoredValue(int row, int column, const FXString& value) {
  if (isCell(row, column)) setItemText(row, column, toShown(column, value));
}

void DBTable::startInput(FXint row, FXint column) {
  if (!isCell(row, column) || kindOf(column).type != COLUMN_YESNO) {
    FXTable::startInput(row, column);
    return;
  }
  setStoredValue(row, column, getStoredValue(row, column) == "1" ? "0" : "1");
  FX::FXTableRange changed;
  changed.fm.row = changed.to.row = row;
  changed.fm.col = changed.to.col = column;
  if (target != nullptr) target->tryHandle(this, FXSEL(FX::SEL_REPLACED, message), &changed);
}

FX::FXWindow* DBTable::getControlForItem(FXint row, FXint column) {
  const ColumnKind& kind = kindOf(column);
  if (kind.type != COLUMN_CHOICE) return FXTable::getControlForItem(row, column);
  auto* list = new FX::FXComboBox(this, 1, nullptr, 0, FX::COMBOBOX_STATIC, 0, 0, 0, 0, getMarginLeft(),
                                  getMarginRight(), getMarginTop(), getMarginBottom());
  for (const auto& [code, label] : kind.choices) list->appendItem(label);
  list->setNumVisible(list->getNumItems());
  list->setText(getItemText(row, column));
  list->create();
  return list;
}

void DBTable::setItemFromControl(FXint row, FXint column, FX::FXWindow* control) {
  const auto* list = dynamic_cast<FX::FXComboBox*>(control);
  if (list == nullptr) {
    FXTable::setItemFromControl(row, column, control);
  } else {
    setItemText(row, column, list->getText());
  }
}

void DBTable::saveToDB(DBTablePersister* persister) {
  if (persister == nullptr) return;
  for (const int id : deletedIds_) persister->deleteItem(id);
  deletedIds_.clear();
  for (FXint row = 0; row < getNumRows(); ++row) {
    const auto before = loaded_.find(getRowId(row));
    if (isNewRow(row) || before == loaded_.end() || before->second == storedValues(row)) continue;
    persister->updateItem(getRowId(row), fieldsOf(row, *persister));
  }
  for (FXint row = 0; row < getNumRows(); ++row) {
    if (isNewRow(row)) persister->insertItem(fieldsOf(row, *persister));
  }
}

long DBTable::onCmdNewRow(FX::FXObject*, FX::FXSelector, void*) {
  const int row = appendNewRow();
  setCurrentItem(row, 0, TRUE);
  makePositionVisible(row, 0);
  return 1;
}

const DBTable::ColumnKind& DBTable::kindOf(int column) const {
  static const ColumnKind text;
  const auto found = kinds_.find(column);
  return found == kinds_.end() ? text : found->second;
}

bool DBTable::isCell(int row, int column) const {
  return row >= 0 && row < getNumRows() && column >= 0 && column < getNumColumns();
}

FXString DBTable::toShown(int column, const FXString& stored) const {
  const ColumnKind& kind = kindOf(column);
  if (kind.type == COLUMN_YESNO) return stored == "1" ? kMark : "";
  for (const auto& [code, label] : kind.choices) {
    if (code == stored) return label;
  }
  return stored;
}

FXString DBTable::toStored(int column, const FXString& shown) const {
  const ColumnKind& kind = kindOf(column);
  if (kind.type == COLUMN_YESNO) return shown == kMark ? "1" : "0";
  for (const auto& [code, label] : kind.choices) {
    if (label == shown) return code;
  }
  return shown;
}

int DBTable::appendRowOf(int id) {
  const FXint row = getNumRows();
  insertRows(row, 1);
  setRowText(row, FX::FXStringVal(id));
  return row;
}

std::vector<FXString> DBTable::storedValues(int row) const {
  std::vector<FXString> values;
  values.reserve(static_cast<size_t>(getNumColumns()));
  for (FXint column = 0; column < getNumColumns(); ++column) values.push_back(getStoredValue(row, column));
  return values;
}

std::map<FXString, FXString> DBTable::fieldsOf(int row, DBTablePersister& persister) const {
  std::map<FXString, FXString> fields;
  for (FXint column = 0; column < getNumColumns(); ++column) {
    const FXString name = persister.getColName(column + 1);
    if (!name.empty()) fields[name] = getStoredValue(row, column);
  }
  return fields;
}

}  // namespace Brontel
