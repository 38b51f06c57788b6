#pragma once

#include <fx.h>

namespace Brontel {
class PastedText;
}

namespace Brontel::Plugin::ItemData {

class ItemDataEntry;

namespace UI {

/// The table in which the rows of an item's per-unit data are recorded. Its cells are linked to ItemDataEntry objects
/// through their item data; a cell without link cannot be edited, and no command takes a link away.
///
/// Tells its target SEL_COMMAND with ID_ADD_ROW (data: the table) after a row was appended and with ID_DELETE_ROW
/// (data: the row index) before one goes, and SEL_INSERTED (data: their FXTableRange) after pasting has appended
/// several, so that the target can keep the recorded data in step.
class ItemDataTable : public FX::FXTable {
  FXDECLARE(ItemDataTable)

 public:
  // FXTable has commands of its own for deleting rows, which tell nobody.
  enum { ID_ADD_ROW = FX::FXTable::ID_LAST + 1, ID_DELETE_ROW, ID_LAST };

  /// The pop-up menu belongs to the window that holds the parent, where its keys Ins and Del find an accelerator table.
  ItemDataTable(FX::FXComposite* parent, FX::FXObject* target, FX::FXSelector sel, FX::FXuint opts);
  ItemDataTable(const ItemDataTable&) = delete;
  ItemDataTable& operator=(const ItemDataTable&) = delete;
  ~ItemDataTable() override;

  void create() override;
  /// Puts the cursor into the first empty cell when there is none yet.
  void setFocus() override;
  /// Does nothing for a cell without entry, where what is typed would be lost.
  void startInput(FX::FXint row, FX::FXint col) override;
  /// Empties a linked cell instead of removing it, and tells the target afterwards.
  void removeItem(FX::FXint row, FX::FXint col, FX::FXbool notify = false) override;

  /// The entry that a cell is linked to; null without one and outside the table.
  ItemDataEntry* getEntry(FX::FXint row, FX::FXint col) const;

  long onContextMenu(FX::FXObject*, FX::FXSelector, void*);
  long onAddRow(FX::FXObject*, FX::FXSelector, void*);
  /// Deletes the current row and every selected one, lowest first. The rows are fixed beforehand and not adjusted when
  /// one goes: only the deletion of a single row removes exactly what was chosen.
  long onDeleteRow(FX::FXObject*, FX::FXSelector, void*);
  long onKeyPress(FX::FXObject*, FX::FXSelector, void*);
  /// Overlays the clipboard's rows on linked cells, adding rows at the end. What is too wide is refused as a whole.
  long onCmdPasteSel(FX::FXObject*, FX::FXSelector, void*);
  /// The cell under the pointer may be another one, of which a tool tip has to tell.
  long onMotion(FX::FXObject*, FX::FXSelector, void*);
  /// Names the variable of the cell under the pointer.
  long onQueryTip(FX::FXObject*, FX::FXSelector, void*);

 protected:
  ItemDataTable() = default;

 private:
  bool isCell(FX::FXint row, FX::FXint col) const;
  bool isEditorPaneShown() const;
  /// Moves that many cells on, row by row. False at the end of the table, where the cursor stays.
  bool moveBy(FX::FXint steps);
  bool moveDown();
  /// Accepts an open editor on the way.
  void moveTo(FX::FXint row, FX::FXint col, bool notify);
  void scrollTo(FX::FXint row, FX::FXint col);
  /// Rows that come and go leave the current cell without the look of one.
  void showCursor();
  /// Gives the focus to what follows the table in its window.
  void leaveForwards(void* event);
  FX::FXint firstEmptyColumn(FX::FXint row) const;
  /// Several cells go into the table even while one is being edited. False without text on the clipboard.
  bool pasteWhileEditing();
  void paste(const PastedText& pasted, FX::FXint row, FX::FXint col);
  /// Appends rows; false when the target has no entries for them.
  bool appendRows(FX::FXint count);
  void tellReplaced(const FX::FXTableRange& range);

  FX::FXMenuPane* popup_ = nullptr;  // owned
};

static_assert(static_cast<int>(ItemDataTable::ID_ADD_ROW) == 88);
static_assert(static_cast<int>(ItemDataTable::ID_DELETE_ROW) == 89);

}  // namespace UI
}  // namespace Brontel::Plugin::ItemData
