#pragma once

#include <map>
#include <memory>
#include <utility>
#include <vector>

#include <fx.h>

class DataBaseValueLoader;

namespace Brontel {

class DBTablePersister;

/// A table over database rows. A row's header text is its key; rows that are not stored yet count down from "-1".
class DBTable : public FX::FXTable {
  FXDECLARE(DBTable)

 public:
  enum { ID_NEW_ROW = FX::FXTable::ID_LAST, ID_LAST };

  enum COLUMN_TYPES {
    COLUMN_TEXT = 0,
    COLUMN_CHOICE = 1,  ///< a code, shown by its label
    COLUMN_YESNO = 2    ///< "1" or "0", shown as a mark
  };

  DBTable(FX::FXComposite* parent, FX::FXObject* target, FX::FXSelector selector, FX::FXuint options, int x, int y,
          int width, int height, int padLeft, int padRight, int padTop, int padBottom);

  /// Columns are text until told otherwise. A column outside the table does nothing.
  void setColumnType(int column, COLUMN_TYPES type);
  /// Makes the column a choice of the lines of values; with codes each line is "code, tab, label", else its own code.
  void setColumnValues(int column, FX::FXString values, bool withCodes);

  /// A loader that appends a row per result row: the first field is its key, the others fill the columns. The caller
  /// owns it; it must not outlive the table.
  std::unique_ptr<DataBaseValueLoader> createLoader();

  /// Appends an empty row and returns its index: no in yes/no columns, nothing in the others.
  int appendNewRow();
  /// Whether the row is not stored yet. An index outside the table is.
  bool isNewRow(int row) const;
  /// The row's key; negative for a new row, 0 for an index outside the table.
  int getRowId(int row) const;

  /// What the database gets: the text, the choice's code, or "1" or "0". Empty outside the table.
  FX::FXString getStoredValue(int row, int column) const;
  void setStoredValue(int row, int column, const FX::FXString& value);

  /// Editing a yes/no cell turns it round at once; a choice is picked from its list.
  void startInput(FX::FXint row, FX::FXint column) override;

  /// Remembers the key of a stored row that saveToDB is to delete.
  void appendDeletedId(int id) { deletedIds_.push_back(id); }

  /// Hands everything to the persister: deleted keys, then the rows that were loaded and changed, then the new ones,
  /// each with all of its named fields. Starting a transaction is the caller's business.
  void saveToDB(DBTablePersister* persister);

  long onCmdNewRow(FX::FXObject*, FX::FXSelector, void*);

 protected:
  DBTable() = default;

  FX::FXWindow* getControlForItem(FX::FXint row, FX::FXint column) override;
  void setItemFromControl(FX::FXint row, FX::FXint column, FX::FXWindow* control) override;

 private:
  class Loader;

  struct ColumnKind {
    COLUMN_TYPES type = COLUMN_TEXT;
    std::vector<std::pair<FX::FXString, FX::FXString>> choices;  // code, label
  };

  const ColumnKind& kindOf(int column) const;
  bool isCell(int row, int column) const;
  FX::FXString toShown(int column, const FX::FXString& stored) const;
  FX::FXString toStored(int column, const FX::FXString& shown) const;
  int appendRowOf(int id);
  std::vector<FX::FXString> storedValues(int row) const;
  std::map<FX::FXString, FX::FXString> fieldsOf(int row, DBTablePersister& persister) const;

  std::map<int, ColumnKind> kinds_;
  std::map<int, std::vector<FX::FXString>> loaded_;  // the values of a stored row as they came, by its key
  std::vector<int> deletedIds_;
  int lastNewId_ = 0;
};

}  // namespace Brontel
