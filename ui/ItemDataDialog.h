#pragma once

#include <fx.h>

#include "fxext/values/MemoryGuard.h"

namespace Brontel {
class InvoiceItem;
}

namespace Brontel::Plugin::ItemData {

class ItemDataEntry;
class ItemDataList;

namespace UI {
class ItemDataTable;
}

/// The dialog in which the other data of one invoice item are recorded: an input for each variable that is recorded
/// once per item, and a table with a row per recorded unit group for the others. Edits the item's list in place,
/// however it is left, and never saves.
class ItemDataDialog : public FX::FXDialogBox {
  FXDECLARE(ItemDataDialog)

 public:
  enum { ID_TABLE = FX::FXDialogBox::ID_LAST + 1, ID_LAST };

  /// The owner must be there, and created before the dialog runs. The item is borrowed and outlives the dialog; without
  /// item data (or without item) there is only the OK button.
  ItemDataDialog(FX::FXWindow* owner, InvoiceItem* item);
  ItemDataDialog(const ItemDataDialog&) = delete;
  ItemDataDialog& operator=(const ItemDataDialog&) = delete;
  ~ItemDataDialog() override = default;

  /// Puts the keyboard into the first input, so that whoever opens the dialog can type at once.
  void create() override;

  /// Builds the inputs and the table into parent. The constructor does when there is a list.
  void createContent(FX::FXComposite* parent);
  /// Hands the text of a cell to onQuantityChanged of every other entry of its row.
  void triggerQtyChange(int row, int col);

  /// Cells were replaced (data: their FXTableRange). The other cells of a row hear of a new quantity.
  long onChange(FX::FXObject*, FX::FXSelector, void* range);
  /// The table has appended an empty row: makes its entries, the first with the quantity that is still missing.
  long onAddRow(FX::FXObject*, FX::FXSelector, void*);
  /// The table has inserted empty rows at its end (data: their FXTableRange): as if they had been added one by one.
  long onInsertRows(FX::FXObject*, FX::FXSelector, void* range);
  /// The table is about to remove a row (data: its index). Stored entries are marked, the others destroyed.
  long onDeleteRow(FX::FXObject*, FX::FXSelector, void* row);
  /// Enter in an input goes to the next one.
  long onKeyPress(FX::FXObject*, FX::FXSelector, void*);

 protected:
  ItemDataDialog() = default;

 private:
  FX::FXint countInputs() const;
  void createInputs(FX::FXComposite* parent, FX::FXint count);
  void createTable(FX::FXComposite* parent);
  void fillTable(FX::FXint rowCount);
  void setHeader(FX::FXint index);
  /// Makes the entries of new rows, which the table shows from that row on.
  void addRows(FX::FXint tableRow, FX::FXint count);
  void showRow(FX::FXint tableRow, FX::FXint first, FX::FXint count);
  void clearLinksToUnstored(FX::FXint rowNumber, FX::FXint tableRow);
  FX::FXint clearLinks(FX::FXint rowNumber, FX::FXint tableRow);

  InvoiceItem* item_ = nullptr;  // not owned
  MemoryGuard<FX::FXDataTarget> targets_;
  UI::ItemDataTable* table_ = nullptr;  // a child; null without per-unit variables
  ItemDataList* list_ = nullptr;        // the item's own
};

static_assert(static_cast<int>(ItemDataDialog::ID_TABLE) == 63);

}  // namespace Brontel::Plugin::ItemData
