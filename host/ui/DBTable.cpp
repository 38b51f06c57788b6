#include "host/ui/DBTable.h"

#include <algorithm>

#include <fxkeys.h>

#include "host/database/DataBaseValueLoader.h"
#include "host/database/IntegerText.h"
#include "host/ui/DBTablePersister.h"
#include "host/ui/Legibility.h"
#include "host/ui/PastedText.h"

namespace Brontel {

using FX::FXint;
using FX::FXString;

FXDEFMAP(DBTable)
dbTableMap[] = {
    FXMAPFUNC(FX::SEL_KEYPRESS, 0, DBTable::onKeyPress),
    FXMAPFUNC(FX::SEL_COMMAND, DBTable::ID_NEW_ROW, DBTable::onCmdNewRow),
    FXMAPFUNC(FX::SEL_COMMAND, DBTable::ID_PASTE_SEL, DBTable::onCmdPasteSel),
    FXMAPFUNC(FX::SEL_COMMAND, DBTable::ID_MARK, DBTable::onCmdMark),
};

FXIMPLEMENT(DBTable, FXTable, dbTableMap, ARRAYNUMBER(dbTableMap))

namespace {

constexpr const char* kMark = "\xE2\x9C\x93";  // U+2713

bool isCharacter(const FX::FXEvent& event) {
  return static_cast<unsigned char>(event.text[0]) >= ' ' && event.code < 0xFF00 &&
         (event.state & (FX::CONTROLMASK | FX::ALTMASK)) == 0;
}

// FOX makes a cell's item when it gets a text; one that comes into a selected cell would be dark on dark.
void showSelection(FX::FXTable& table, FXint row, FXint column) {
  table.getItem(row, column)->setSelected(table.isItemSelected(row, column));
}

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

class DBTable::Collector : public DataBaseValueLoader {
 public:
  Collector(const DBTable& table, Rows& rows) : table_(table), rows_(rows) {}

  int processValue(int column, const char* name, const char* value) override {
    DataBaseValueLoader::processValue(column, name, value);
    if (column == 0) {
      row_ = &rows_[Database::toInt(value)];
      row_->clear();
    } else {
      row_->push_back(table_.toStored(column - 1, table_.toShown(column - 1, value)));
    }
    return 1;
  }

 private:
  const DBTable& table_;
  Rows& rows_;
  std::vector<FXString>* row_ = nullptr;
};

DBTable::DBTable(FX::FXComposite* parent, FX::FXObject* target, FX::FXSelector selector, FX::FXuint options, int x,
                 int y, int width, int height, int padLeft, int padRight, int padTop, int padBottom)
    : FXTable(parent, target, selector, options, x, y, width, height, padLeft, padRight, padTop, padBottom) {
  fitRows(*this);
}

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
  if (!isCell(row, column)) return;
  setItemText(row, column, toShown(column, value));
  showSelection(*this, row, column);
  if (kindOf(column).type == COLUMN_YESNO) setItemJustify(row, column, FX::FXTableItem::CENTER_Y);
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

bool DBTable::pasteText(int row, int column, const FXString& text) {
  if (!isCell(row, column) || text.empty()) return false;
  const PastedText pasted(text);
  for (FXint line = 0; line < pasted.getNumRows(); ++line) {
    for (FXint i = 0; i < pasted.getNumColumns(line); ++i) {
      if (!takesText(column + i, pasted.getCell(line, i))) return false;
    }
  }
  acceptInput(TRUE);
  for (FXint line = 0; line < pasted.getNumRows(); ++line) {
    if (row + line >= getNumRows()) appendNewRow();
    for (FXint i = 0; i < pasted.getNumColumns(line); ++i) {
      setStoredValue(row + line, column + i, toStored(column + i, pasted.getCell(line, i)));
    }
  }
  return true;
}

FX::FXTableItem* DBTable::createItem(const FXString& text, FX::FXIcon* icon, void* ptr) {
  FX::FXTableItem* item = FXTable::createItem(text, icon, ptr);
  item->setJustify(FX::FXTableItem::LEFT | FX::FXTableItem::CENTER_Y);
  return item;
}

FX::FXWindow* DBTable::getControlForItem(FXint row, FXint column) {
  const ColumnKind& kind = kindOf(column);
  if (kind.type != COLUMN_CHOICE) return FXTable::getControlForItem(row, column);
  auto* list = new FX::FXComboBox(this, 1, nullptr, 0, FX::COMBOBOX_STATIC, 0, 0, 0, 0, getMarginLeft(),
                                  getMarginRight(), getMarginTop(), getMarginBottom());
  for (const auto& [code, label] : kind.choices) list->appendItem(label);
  list->setNumVisible(list->getNumItems());
  list->setCurrentItem(list->findItem(getItemText(row, column)));
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
  showSelection(*this, row, column);
}

bool DBTable::hasChanges() const {
  const auto isEntered = [](const FXString& value) { return !value.empty() && value != "0"; };
  for (FXint row = 0; row < getNumRows(); ++row) {
    const std::vector<FXString> values = storedValues(row);
    const auto before = loaded_.find(getRowId(row));
    const bool isStored = !isNewRow(row) && before != loaded_.end();
    if (isStored ? before->second != values : std::any_of(values.begin(), values.end(), isEntered)) return true;
  }
  return !deletedIds_.empty();
}

void DBTable::saveToDB(DBTablePersister* persister) {
  if (persister == nullptr) return;
  handedOverIds_.clear();
  for (const int id : deletedIds_) persister->deleteItem(id);
  handedOverIds_.swap(deletedIds_);
  for (FXint row = 0; row < getNumRows(); ++row) {
    const auto before = loaded_.find(getRowId(row));
    if (isNewRow(row) || before == loaded_.end() || before->second == storedValues(row)) continue;
    persister->updateItem(getRowId(row), fieldsOf(row, *persister));
  }
  for (FXint row = 0; row < getNumRows(); ++row) {
    if (isNewRow(row)) persister->insertItem(fieldsOf(row, *persister));
  }
}

void DBTable::keepUnsaved() {
  deletedIds_.insert(deletedIds_.begin(), handedOverIds_.begin(), handedOverIds_.end());
  handedOverIds_.clear();
}

std::unique_ptr<DataBaseValueLoader> DBTable::createCollector(Rows& rows) const {
  return std::make_unique<Collector>(*this, rows);
}

std::vector<FXString> DBTable::findOvertaken(const Rows& rows) const {
  std::vector<FXString> overtaken;
  const auto isSame = [&rows](const Rows::value_type& before) {
    const auto now = rows.find(before.first);
    return now != rows.end() && now->second == before.second;
  };
  for (FXint row = 0; row < getNumRows(); ++row) {
    const auto before = loaded_.find(getRowId(row));
    if (isNewRow(row) || before == loaded_.end() || before->second == storedValues(row)) continue;
    if (!isSame(*before)) overtaken.push_back(before->second.front());
  }
  for (const int id : deletedIds_) {
    const auto before = loaded_.find(id);
    // What somebody else has deleted as well is as it should be.
    if (before != loaded_.end() && rows.count(id) > 0 && !isSame(*before)) overtaken.push_back(before->second.front());
  }
  return overtaken;
}

long DBTable::onCmdNewRow(FX::FXObject*, FX::FXSelector, void*) {
  acceptInput(TRUE);
  const int row = appendNewRow();
  killSelection(TRUE);
  setCurrentItem(row, 0, TRUE);
  handle(this, FXSEL(FX::SEL_COMMAND, ID_MARK), nullptr);
  makePositionVisible(row, 0);
  setFocus();
  return 1;
}

long DBTable::onKeyPress(FX::FXObject* sender, FX::FXSelector sel, void* ptr) {
  const auto* event = static_cast<const FX::FXEvent*>(ptr);
  auto* choice = dynamic_cast<FX::FXComboBox*>(editor);
  if (choice != nullptr && onChoiceKey(*choice, *event)) return 1;
  // Any key that stands for a character starts editing, which turns a yes/no cell round: only the space bar shall.
  const bool starts = editor == nullptr && isCharacter(*event) && event->code != FX::KEY_space;
  const COLUMN_TYPES type = kindOf(getCurrentColumn()).type;
  if (starts && type == COLUMN_YESNO) return 1;
  if (starts && type == COLUMN_CHOICE) {
    handle(this, FXSEL(FX::SEL_COMMAND, ID_START_INPUT), nullptr);
    choice = dynamic_cast<FX::FXComboBox*>(editor);
    if (choice != nullptr) onChoiceKey(*choice, *event);
    return 1;
  }
  // The window that holds the table may have a use for it.
  if (editor == nullptr && event->code == FX::KEY_Escape) return 0;
  return FXTable::onKeyPress(sender, sel, ptr);
}

// A cell that is gone to by key is selected as one that is clicked, so that people see where they are.
long DBTable::onCmdMark(FX::FXObject* sender, FX::FXSelector sel, void* ptr) {
  FXTable::onCmdMark(sender, sel, ptr);
  if (isCell(getCurrentRow(), getCurrentColumn())) extendSelection(getCurrentRow(), getCurrentColumn(), TRUE);
  return 1;
}

// FOX's list cannot be accepted by key, and accepts by itself what the arrows pass.
bool DBTable::onChoiceKey(FX::FXComboBox& choice, const FX::FXEvent& event) {
  const FXint current = choice.getCurrentItem();
  FXint wanted = -1;
  if (event.code == FX::KEY_Return || event.code == FX::KEY_KP_Enter) {
    acceptInput(TRUE);
    return true;
  }
  if (event.code == FX::KEY_Down || event.code == FX::KEY_KP_Down) {
    wanted = std::min(current + 1, choice.getNumItems() - 1);
  } else if (event.code == FX::KEY_Up || event.code == FX::KEY_KP_Up) {
    wanted = std::max(current - 1, 0);
  } else if (isCharacter(event)) {
    wanted = choice.findItem(event.text, current + 1,
                             FX::SEARCH_FORWARD | FX::SEARCH_WRAP | FX::SEARCH_PREFIX | FX::SEARCH_IGNORECASE);
  } else {
    return false;
  }
  if (wanted >= 0 && wanted < choice.getNumItems()) choice.setCurrentItem(wanted);
  return true;
}

// FOX's own would add columns, and rows without key, and would put text into cells that hold a choice.
long DBTable::onCmdPasteSel(FX::FXObject*, FX::FXSelector, void*) {
  FXString text;
  bool done = isEditable() && getDNDData(FX::FROM_CLIPBOARD, utf8Type, text);
  if (done) {
    const bool selected = getSelStartRow() >= 0;
    done = pasteText(selected ? getSelStartRow() : getCurrentRow(), selected ? getSelStartColumn() : getCurrentColumn(),
                     text);
  }
  if (!done) getApp()->beep();
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
  if (kind.type == COLUMN_YESNO) return shown == kMark || shown == "1" ? "1" : "0";
  for (const auto& [code, label] : kind.choices) {
    if (label == shown) return code;
  }
  return shown;
}

bool DBTable::takesText(int column, const FXString& text) const {
  if (column < 0 || column >= getNumColumns()) return false;
  const ColumnKind& kind = kindOf(column);
  if (kind.type == COLUMN_TEXT || text.empty()) return true;
  if (kind.type == COLUMN_YESNO) return text == "0" || text == "1" || text == kMark;
  return std::any_of(kind.choices.begin(), kind.choices.end(),
                     [&text](const auto& choice) { return choice.first == text || choice.second == text; });
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
