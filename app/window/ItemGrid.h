#pragma once

#include "host/ui/InvoiceItemTable.h"

namespace Brontel {

class Invoice;
class InvoiceItem;

namespace App {

class GoodsCatalogue;

/// The item table of the invoice form. Tab and Enter walk through the cells, typing begins editing one; what has been
/// entered arrives at the target as SEL_REPLACED, the table itself changes no item.
class ItemGrid : public InvoiceItemTable {
  FXDECLARE(ItemGrid)

 public:
  enum Column { GOODS, QUANTITY, UNIT, PRICE, DATA, COLUMNS };

  /// The form holds the table, the catalogue outlives it.
  ItemGrid(FX::FXComposite* parent, InvoiceForm* form, const GoodsCatalogue& catalogue, FX::FXObject* target,
           FX::FXSelector sel);

  /// Shows every item of the invoice, row by row.
  void showItems(const Invoice& invoice);
  /// Shows an item in a row that is there.
  void showItem(FX::FXint row, const InvoiceItem& item);
  /// Shows what the plug-ins have recorded for the row's item.
  void showData(FX::FXint row, const FX::FXString& text);
  void insertItemRow(FX::FXint row, const InvoiceItem& item);
  void removeItemRow(FX::FXint row);

  /// The first and the last row that are selected, or the current one twice; first is -1 when there is none.
  void getChosenRows(FX::FXint& first, FX::FXint& last) const;
  /// Puts the cursor into a cell and scrolls to it.
  void goTo(FX::FXint row, FX::FXint column);
  /// Whether somebody types in a cell.
  bool isEditing() const { return editor != nullptr; }
  /// Gives the mouse back, so that a box can be shown in the middle of a click.
  void releaseMouse();

  void create() override;
  void startInput(FX::FXint row, FX::FXint column) override;
  /// The form checks again, since it does not while somebody types.
  void cancelInput() override;

  long onKeyPress(FX::FXObject*, FX::FXSelector, void*);
  long onCmdCut(FX::FXObject*, FX::FXSelector, void*);
  long onCmdPaste(FX::FXObject*, FX::FXSelector, void*);
  long onCmdDelete(FX::FXObject*, FX::FXSelector, void*);

 protected:
  ItemGrid() = default;

  FX::FXWindow* getControlForItem(FX::FXint row, FX::FXint column) override;
  void setItemFromControl(FX::FXint row, FX::FXint column, FX::FXWindow* control) override;

 private:
  bool walk(int step);
  bool isChoosingGoods() const;

  const GoodsCatalogue* catalogue_ = nullptr;
};

}  // namespace App
}  // namespace Brontel
