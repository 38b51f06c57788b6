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

  /// Puts text from elsewhere into the cells from the given one on: columns end with a tab, rows with a line feed; what
  /// goes on past the last row makes new ones. False, and nothing changes, when the text does not fit: it has more
  /// columns than there are, or something else than a choice or yes or no where that is wanted.
  bool pasteText(int row, int column, const FX::FXString& text);

  /// Remembers the key of a stored row that saveToDB is to delete.
  void appendDeletedId(int id) { deletedIds_.push_back(id); }
  const std::vector<int>& getDeletedIds() const { return deletedIds_; }

  /// Whether there is anything that saveToDB would write, apart from new rows in which nothing has been entered.
  bool hasChanges() const;
  /// Hands everything to the persister: deleted keys, then the rows that were loaded and changed, then the new ones,
  /// each with all of its named fields. Starting a transaction is the caller's business.
  void saveToDB(DBTablePersister* persister);
  /// What the last saveToDB wrote has been rolled back: the next one writes all of it again.
  void keepUnsaved();

  /// Rows of a table by key, each with its columns' values, as a query gives them again. createCollector's loader fills
  /// them, findOvertaken tells by their first column the rows that were changed or deleted here and, since they were
  /// loaded, elsewhere as well.
  using Rows = std::map<int, std::vector<FX::FXString>>;
  std::unique_ptr<DataBaseValueLoader> createCollector(Rows& rows) const;
  std::vector<FX::FXString> findOvertaken(const Rows& rows) const;

  long onCmdNewRow(FX::FXObject*, FX::FXSelector, void*);
  long onKeyPress(FX::FXObject* sender, FX::FXSelector sel, void* ptr);
  long onCmdPasteSel(FX::FXObject*, FX::FXSelector, void*);
  long onCmdMark(FX::FXObject* sender, FX::FXSelector sel, void* ptr);

 protected:
  DBTable() = default;

  FX::FXTableItem* createItem(const FX::FXString& text, FX::FXIcon* icon, void* ptr) override;
  FX::FXWindow* getControlForItem(FX::FXint row, FX::FXint column) override;
  void setItemFromControl(FX::FXint row, FX::FXint column, FX::FXWindow* control) override;

 private:
  class Loader;
  class Collector;

  struct ColumnKind {
    COLUMN_TYPES type = COLUMN_TEXT;
    std::vector<std::pair<FX::FXString, FX::FXString>> choices;  // code, label
  };

  const ColumnKind& kindOf(int column) const;
  bool isCell(int row, int column) const;
  FX::FXString toShown(int column, const FX::FXString& stored) const;
  FX::FXString toStored(int column, const FX::FXString& shown) const;
  bool onChoiceKey(FX::FXComboBox& choice, const FX::FXEvent& event);
  bool takesText(int column, const FX::FXString& text) const;
  int appendRowOf(int id);
  std::vector<FX::FXString> storedValues(int row) const;
  std::map<FX::FXString, FX::FXString> fieldsOf(int row, DBTablePersister& persister) const;

  std::map<int, ColumnKind> kinds_;
  Rows loaded_;  // the stored rows as they came
  std::vector<int> deletedIds_;
  std::vector<int> handedOverIds_;  // those that the last saveToDB had deleted
  int lastNewId_ = 0;
};

}  // namespace Brontel
